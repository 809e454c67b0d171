// The add-in's commands: what ribbon buttons, command-bar buttons and CController lead to.
#pragma once

#include "addin/CommandBarMenus.h"
#include "addin/Commands.h"
#include "addin/RibbonElement.h"
#include "platform/LateBound.h"
#include "selection/frmBusy.h"

#include <memory>
#include <string>

namespace corvane
{

// Makes the ribbon and the menus, and runs the commands that they lead to.
class CAddInMenus
{
public:
    // The procedures that the busy window runs for the save commands.
    explicit CAddInMenus(SaveProcedures procedures) : m_procedures{std::move(procedures)} {}
    CAddInMenus(const CAddInMenus&) = delete;
    CAddInMenus& operator=(const CAddInMenus&) = delete;

    void SetApplication(LateBound application) { m_oApplication = std::move(application); }
    // The ribbon object that the host hands over; kept for InvalidateControls.
    void SetRibbon(LateBound ribbon) { rbnRibbonUI = std::move(ribbon); }

    // Rebuilds the captions from the customer's words; throws Error.
    void SetUICaptions();

    // The customUI document for the host's version, and its variant for Outlook. Empty after an error, which is
    // reported.
    [[nodiscard]] std::wstring GetOfficeRibbonXML() const noexcept;
    [[nodiscard]] std::wstring GetOutlookRibbonXML() const noexcept;

    // Runs the command of a ribbon control; an unknown id does nothing. Errors are reported.
    void RibbonHandler2(const std::wstring& controlId) noexcept;
    // Makes the host read every control anew, when it has handed over its ribbon.
    void InvalidateControls() const noexcept;

    // Builds and removes the entries in a command-bar host's "Menu Bar". CreateMenus throws Error and leaves what it
    // has added; DeleteMenus passes over everything that fails.
    void CreateMenus(const LateBound& oCommandBar);
    void DeleteMenus(const LateBound& oCommandBar) noexcept;

    // Runs a command, under the trace name of what started it. Errors are reported.
    void Run(const Command& command, std::wstring_view caller) noexcept;
    // The save commands under the names of the interface.
    void SaveAssignmentClickHelper(std::wstring_view caller) noexcept
    {
        Run(CommandOf(CommandKind::SaveAssignment), caller);
    }
    void SaveGateDocClickHelper(std::wstring_view caller) noexcept { Run(CommandOf(CommandKind::SaveGateDoc), caller); }
    void SaveRelatedDocClickHelper(std::wstring_view caller) noexcept
    {
        Run(CommandOf(CommandKind::SaveRelatedDoc), caller);
    }

private:
    [[nodiscard]] std::wstring RibbonXml(std::wstring_view procedure, RibbonTab tab) const noexcept;
    // Tells the user where a cell or an object is edited; then true.
    [[nodiscard]] bool RefusesWhileEditing() const noexcept;
    void RunSave(const SaveCommand& command, std::wstring_view caller) noexcept;
    void Save(const SaveCommand& command, const HostDocument& document, frmBusy& busy);
    void PickTarget(const SaveCommand& command, const std::wstring& server);
    [[nodiscard]] int HostVersion() const;

    LateBound m_oApplication;
    LateBound rbnRibbonUI;
    SaveProcedures m_procedures;
    UICaptions m_captions;
    CommandBarMenus m_barMenus{[this](const Command& command) { Run(command, command.barClick); }};

    // What the last command read from the active document.
    DocumentBinding m_binding;
    DocumentBindingKind m_lDocumentKind = DocumentBindingKind::Unbound;
};

// The process's commands; made at a start-up connection, released at disconnection. A running command holds its own
// reference, so that a disconnection inside it does no harm.
extern std::shared_ptr<CAddInMenus>& g_oAddInMenus;

// The process's commands, or Error number 91 while there are none.
[[nodiscard]] std::shared_ptr<CAddInMenus> AddInMenus();

} // namespace corvane
