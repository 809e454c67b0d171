#include "addin/CAddInMenus.h"

#include "forms/Messages.h"
#include "platform/ComObject.h"
#include "platform/Error.h"
#include "platform/Procedure.h"
#include "platform/XmlDocument.h"
#include "selection/frmSaveTo.h"
#include "shared/DocumentProperties.h"
#include "shared/HostDocument.h"
#include "shared/HostVersion.h"
#include "shared/SaveResult.h"
#include "support/CCustomNames.h"
#include "support/CTraceLog.h"
#include "support/Conversions.h"
#include "support/Help.h"
#include "support/Policy.h"
#include "support/frmAbout.h"

namespace corvane
{
namespace
{

// The host's main window, where it tells one.
HWND WindowOf(const LateBound& application) noexcept
{
    HWND window = nullptr;
    Ignoring([&] { window = reinterpret_cast<HWND>(static_cast<INT_PTR>(application.Number(L"HWND"))); });
    return window;
}

// The ribbon's data as nodes of a document, all in one namespace.
XmlNode NodeOf(const XmlDocument& document, const RibbonElement& element, const std::wstring& namespaceUri)
{
    XmlNode node = document.CreateElement(element.name.c_str(), namespaceUri);
    for (const auto& [name, value] : element.attributes)
        node.SetAttribute(name.c_str(), value);
    for (const RibbonElement& child : element.children)
        node.Append(NodeOf(document, child, namespaceUri));
    return node;
}

// Follows a command for macros that ask how it ended.
class ResultOfCommand
{
public:
    ResultOfCommand() { LastSave().Begin(); }
    ResultOfCommand(const ResultOfCommand&) = delete;
    ResultOfCommand& operator=(const ResultOfCommand&) = delete;
    ~ResultOfCommand() { LastSave().End(); }
};

} // namespace

// Never destroyed: at the end of a process without a disconnection the host's objects may already be gone.
std::shared_ptr<CAddInMenus>& g_oAddInMenus = *new std::shared_ptr<CAddInMenus>;

std::shared_ptr<CAddInMenus> AddInMenus()
{
    if (g_oAddInMenus == nullptr) throw ObjectNotSet(L"AddInMenus");
    return g_oAddInMenus;
}

int CAddInMenus::HostVersion() const { return MajorVersion(m_oApplication.Text(L"Version")); }

void CAddInMenus::SetUICaptions()
{
    const ProcedureScope scope{L"CAddInMenus.SetUICaptions"};
    CustomNameTable& names = CustomNames().GetAllCustomNames();
    m_captions = BuildUICaptions([&names](std::wstring_view term) { return names.Item(term); });
}

std::wstring CAddInMenus::RibbonXml(std::wstring_view procedure, RibbonTab tab) const noexcept
{
    std::wstring xml;
    AtHostBoundary(procedure, [&] {
        const int version = HostVersion();
        XmlDocument document;
        document.Append(NodeOf(document, BuildRibbon(version, m_captions, tab), CustomUINamespaceFor(version)));
        xml = document.Text();
    });
    return xml;
}

std::wstring CAddInMenus::GetOfficeRibbonXML() const noexcept
{
    return RibbonXml(L"CAddInMenus.GetOfficeRibbonXML", RibbonTab::Shared);
}

std::wstring CAddInMenus::GetOutlookRibbonXML() const noexcept
{
    return RibbonXml(L"CAddInMenus.GetOutlookRibbonXML", RibbonTab::Own);
}

void CAddInMenus::RibbonHandler2(const std::wstring& controlId) noexcept
{
    if (const Command* const command = FindCommand(controlId)) Run(*command, command->ribbonClick);
}

void CAddInMenus::Run(const Command& command, std::wstring_view caller) noexcept
{
    if (command.save != nullptr) return RunSave(*command.save, caller);
    AtHostBoundary(caller, [&] {
        SetHostWindow(WindowOf(m_oApplication));
        if (command.kind == CommandKind::HelpTopics) return ShowHelpContents();
        frmAbout about;
        about.ShowModal();
    });
}

void CAddInMenus::CreateMenus(const LateBound& oCommandBar)
{
    const ProcedureScope scope{L"CAddInMenus.CreateMenus"};
    TraceVariable(L"oCommandBar.Name", oCommandBar.Text(L"Name"));
    DeleteMenus(oCommandBar); // what a crashed run left behind
    m_barMenus.Create(oCommandBar, m_captions);
}

void CAddInMenus::DeleteMenus(const LateBound& oCommandBar) noexcept
{
    const ProcedureScope scope{L"CAddInMenus.DeleteMenus"};
    Ignoring([&] { TraceVariable(L"oCommandBar.Name", oCommandBar.Text(L"Name")); });
    m_barMenus.Delete(oCommandBar);
}

void CAddInMenus::InvalidateControls() const noexcept
{
    const ProcedureScope scope{L"CAddInMenus.InvalidateControls"};
    Ignoring([this] {
        if (rbnRibbonUI) rbnRibbonUI.Call(L"Invalidate");
    });
}

bool CAddInMenus::RefusesWhileEditing() const noexcept
{
    bool editing = false;
    Reporting([&] {
        SetHostWindow(WindowOf(m_oApplication));
        editing = IsEditing(m_oApplication);
        if (!editing) return;
        const std::wstring why =
            L"You are currently editing a cell or object. Please finish editing before saving to Corvane.";
        LastSave().Refuse(why);
        ShowMessage(why, kStylePlain, L"Save to Corvane");
    });
    return editing;
}

void CAddInMenus::RunSave(const SaveCommand& command, std::wstring_view caller) noexcept
{
    const LibraryInUse inUse;
    const std::shared_ptr<CAddInMenus> alive = g_oAddInMenus;
    const ResultOfCommand result;
    if (RefusesWhileEditing()) return;
    Reporting([&] {
        frmBusy busy{m_procedures};
        // Loaded once before it is needed, so that it comes up at once.
        auto failure = Catch([&] {
            busy.Load();
            busy.Unload();
        });
        const ProcedureScope scope{caller};
        const HostDocument document{m_oApplication};
        if (!failure) failure = Catch([&] { Save(command, document, busy); });
        if (failure) ReportError(*failure);
        busy.Unload();
        document.SetInteractive(true);
    });
}

void CAddInMenus::Save(const SaveCommand& command, const HostDocument& document, frmBusy& busy)
{
    if (!document.IsOpen()) {
        const std::wstring why = L"You must have a file open to save to " + CustomName(L"Corvane");
        LastSave().Refuse(why);
        ShowMessage(why, kStylePlain);
        return;
    }
    m_binding = ReadBinding(document);
    m_lDocumentKind = ClassifyBoundDocument(m_binding);
    const ServerDecision named = DecideServer(m_binding.server);
    m_binding.server = named.Usable();
    if (!SkipsTree(command, m_binding)) {
        PickTarget(command, named.address); // there the user is told why it is refused
        document.SetInteractive(false);
    }
    if (!HasTarget(command, m_binding)) return;
    busy.lMethodType = command.methodType;
    busy.sServer = m_binding.server;
    busy.target = TargetIn(command.tree, m_binding);
    busy.oDocument = document;
    busy.ShowModal();
}

void CAddInMenus::PickTarget(const SaveCommand& command, const std::wstring& server)
{
    frmSaveTo tree;
    tree.DialogType = static_cast<std::int32_t>(command.tree);
    tree.ServerURL = server;
    tree.target = StartOf(command, m_binding);
    tree.ShowModal();
    m_binding.server = DecideServer(tree.ServerURL).Usable(); // a tree that was left has the one it was given
    static_cast<Target&>(m_binding) = tree.target;
    tree.Unload();
}

} // namespace corvane
