#include "shared/MailClient.h"

#include "platform/LateBound.h"
#include "platform/Procedure.h"
#include "support/Conversions.h"

namespace corvane
{

bool IsMailClientOutlook() noexcept
{
    bool isOutlook = false;
    Ignoring([&] {
        const LateBound shell = LateBound::Create(L"Wscript.Shell");
        const std::wstring command = shell.Call(L"RegRead", L"HKCR\\mailto\\shell\\open\\command\\").Text();
        // Outlook Express counts as well.
        isOutlook = ToLower(command).find(L"outlook") != std::wstring::npos;
    });
    return isOutlook;
}

} // namespace corvane
