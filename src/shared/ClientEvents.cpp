#include "shared/ClientEvents.h"

#include "forms/HostCall.h"
#include "forms/Messages.h"
#include "platform/Procedure.h"
#include "shared/DocumentProperties.h"
#include "shared/HostDocument.h"
#include "shared/HostTraits.h"
#include "shared/SaveReply.h"
#include "shared/SaveResult.h"
#include "support/CCustomNames.h"
#include "support/Policy.h"

namespace corvane
{
namespace
{

void RunMacro(const HostDocument& document, const std::wstring& macro) noexcept
{
    Ignoring([&] {
        const bool qualified = document.Traits() != nullptr && document.Traits()->namesDocumentOfMacro;
        const std::wstring prefix = qualified ? document.Active().Text(L"Name") + L"!" : std::wstring{};
        const HostCall call;
        document.Application().Call(L"Run", prefix + macro);
    });
}

} // namespace

bool ClientEventsEnabled(const HostDocument& document)
{
    const ProcedureScope scope{L"SharedCode.ClientEventsEnabled"};
    if (Policy::Number(L"ClientEvents") == 0) return false;
    ClientEventFacts facts{std::nullopt, document.Traits(), document.Version()};
    if (CustomPropertyExists(document, kDoEventsProperty))
        facts.doEvents = GetCustomProperty(document, kDoEventsProperty);
    return WantsClientEvents(facts) && IsClientEventsSettingOn(CustomName(kClientEventsSetting));
}

void RunBeforeSaveEvent(const HostDocument& document) noexcept
{
    const ProcedureScope scope{L"SharedCode.RunBeforeSaveEvent"};
    RunMacro(document, L"KRXEvents.KRXBeforeSave");
}

void RunAfterSaveEvent(const HostDocument& document) noexcept
{
    const ProcedureScope scope{L"SharedCode.RunAfterSaveEvent"};
    RunMacro(document, L"KRXEvents.KRXAfterSave");
}

std::wstring ProcessSaveResult(const std::wstring& sResult)
{
    const ProcedureScope scope{L"SharedCode.ProcessSaveResult"};
    const SaveReply reply = ReadSaveReply(sResult);
    if (reply.kind == ReplyKind::Cancelled) LastSave().Refuse(reply.text);
    // A cancellation shows one button and no icon: the style number the interface names is none the system has.
    if (reply.kind == ReplyKind::Cancelled) ShowMessage(reply.text, kStylePlain);
    if (reply.kind == ReplyKind::BrokenLinks) ShowMessage(reply.text, kStyleExclamation);
    return reply.kind == ReplyKind::Cancelled ? L"CANCEL" : L"";
}

} // namespace corvane
