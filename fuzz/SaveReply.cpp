// What a reply tells is the text behind its prefix.
#include "shared/SaveReply.h"
#include "Input.h"
#include "shared/HostTraits.h"
#include "shared/HostVersion.h"

void Fuzz(Input& input)
{
    using namespace corvane;
    static_cast<void>(
        WantsClientEvents({input.Choice() ? std::optional{input.Text()} : std::nullopt,
                           FindHost(input.Choice() ? kWordName : kExcelName), MajorVersion(input.Text())}));
    const std::wstring answer = input.Rest();
    const SaveReply reply = ReadSaveReply(answer);
    Require((reply.kind == ReplyKind::Nothing) == reply.text.empty());
    Require(reply.text.empty() || answer.ends_with(reply.text));
    Require(ReadSaveReply(L"CancelMessage:" + answer).kind ==
            (answer.empty() ? ReplyKind::Nothing : ReplyKind::Cancelled));
}
