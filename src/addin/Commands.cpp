#include "addin/Commands.h"

#include <algorithm>

namespace corvane
{
namespace
{

constexpr std::size_t kSaveCount = 3;

constexpr Command kCommands[] = {
    {CommandKind::SaveAssignment,
     &kSaveAssignment,
     L"DelivAct",
     L"KRXSaveAssignement",
     L"SaveAsAssignement",
     L"CAddInMenus.rbnSaveAsAssignment_Click",
     L"CAddInMenus.cbrSaveAsAssignment_Click",
     L"MasterDocument",
     {&UICaptions::saveAsDelivActMenu},
     {&UICaptions::saveAsDelivActLabel},
     {&UICaptions::delivActTip}},
    {CommandKind::SaveRelatedDoc,
     &kSaveRelatedDoc,
     L"Related",
     L"KRXSaveRelatedDoc",
     L"SaveRelatedDoc",
     L"CAddInMenus.rbnSaveAsRelatedDoc_Click",
     L"CAddInMenus.cbrSaveAsRelatedDoc_Click",
     L"ReviewCompareMenu",
     {nullptr, L"Save as Related Document..."},
     {nullptr, L"Save as Related Document"},
     {&UICaptions::relatedTip}},
    {CommandKind::SaveGateDoc,
     &kSaveGateDoc,
     L"GateDoc",
     L"KRXSaveGateDoc",
     L"SaveGateDoc",
     L"CAddInMenus.rbnSaveAsGateDoc_Click",
     L"CAddInMenus.cbrSaveAsGateDoc_Click",
     L"MasterDocument",
     {&UICaptions::saveAsGateDocMenu},
     {&UICaptions::saveAsGateDocLabel},
     {&UICaptions::gateDocTip}},
    {CommandKind::HelpTopics,
     nullptr,
     L"CorvaneOfficeHelp",
     L"KRXMSOHelp",
     L"",
     L"CAddInMenus.rbnHelpTopics_Click",
     L"CAddInMenus.cbrHelpTopics_Click",
     L"Help",
     {nullptr, L"Corvane for MS Office Help"},
     {&UICaptions::helpTopicsLabel},
     {&UICaptions::helpTopicsTip},
     L"MS Office Add-in Help"},
    {CommandKind::HelpAbout,
     nullptr,
     L"AboutCorvaneOffice",
     L"KRXAboutMSO",
     L"",
     L"CAddInMenus.rbnHelpAbout_Click",
     L"CAddInMenus.cbrHelpAbout_Click",
     L"Info",
     {nullptr, L"About Corvane for MS Office"},
     {&UICaptions::aboutLabel},
     {&UICaptions::aboutTip},
     L"About MS Office Add-in"},
};

} // namespace

std::span<const Command> SaveCommands() noexcept { return std::span{kCommands}.first(kSaveCount); }

std::span<const Command> HelpCommands() noexcept { return std::span{kCommands}.subspan(kSaveCount); }

const Command& CommandOf(CommandKind kind) noexcept { return *std::ranges::find(kCommands, kind, &Command::kind); }

const Command* FindCommand(std::wstring_view controlId) noexcept
{
    const auto* const found =
        std::ranges::find_if(kCommands, [&](const Command& command) { return controlId == command.controlId; });
    return found == std::end(kCommands) ? nullptr : found;
}

} // namespace corvane
