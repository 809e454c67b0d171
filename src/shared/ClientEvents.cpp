#include "shared/ClientEvents.h"

#include "forms/Messages.h"
#include "platform/Procedure.h"
#include "shared/DocumentProperties.h"
#include "shared/HostVersion.h"
#include "shared/SaveReply.h"
#include "support/CCustomNames.h"

namespace corvane
{
namespace
{

void RunMacro(const LateBound& application, const std::wstring& macro) noexcept
{
    Ignoring([&] {
        const bool qualified = application.Text(L"Name") == kPowerPointName;
        const std::wstring prefix =
            qualified ? application.Object(L"ActivePresentation").Text(L"Name") + L"!" : std::wstring{};
        application.Call(L"Run", prefix + macro);
    });
}

} // namespace

bool ClientEventsEnabled(const LateBound& oApplication)
{
    const ProcedureScope scope{L"SharedCode.ClientEventsEnabled"};
    ClientEventFacts facts{std::nullopt, oApplication.Text(L"Name"), oApplication.Text(L"Version")};
    if (CustomPropertyExists(oApplication, kDoEventsProperty))
        facts.doEvents = GetCustomProperty(oApplication, kDoEventsProperty);
    return WantsClientEvents(facts) && IsClientEventsSettingOn(CustomName(kClientEventsSetting));
}

void RunBeforeSaveEvent(const LateBound& oApplication) noexcept
{
    const ProcedureScope scope{L"SharedCode.RunBeforeSaveEvent"};
    RunMacro(oApplication, L"KRXEvents.KRXBeforeSave");
}

void RunAfterSaveEvent(const LateBound& oApplication) noexcept
{
    const ProcedureScope scope{L"SharedCode.RunAfterSaveEvent"};
    RunMacro(oApplication, L"KRXEvents.KRXAfterSave");
}

std::wstring ProcessSaveResult(const std::wstring& sResult)
{
    const ProcedureScope scope{L"SharedCode.ProcessSaveResult"};
    const SaveReply reply = ReadSaveReply(sResult);
    // A cancellation shows one button and no icon: the style number the interface names is none the system has.
    if (reply.kind == ReplyKind::Cancelled) ShowMessage(reply.text, kStylePlain);
    if (reply.kind == ReplyKind::BrokenLinks) ShowMessage(reply.text, kStyleExclamation);
    return reply.kind == ReplyKind::Cancelled ? L"CANCEL" : L"";
}

} // namespace corvane
