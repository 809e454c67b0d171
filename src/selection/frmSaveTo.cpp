#include "selection/frmSaveTo.h"

#include "forms/FormList.h"
#include "forms/Messages.h"
#include "platform/Procedure.h"
#include "resources/resource.h"
#include "support/CCustomNames.h"
#include "support/Conversions.h"
#include "support/Help.h"
#include "support/Policy.h"
#include "webservice/Operations.h"

#include <array>

namespace corvane
{
namespace
{

constexpr std::wstring_view kSchemeOnly = L"http://";

} // namespace

frmSaveTo::frmSaveTo() noexcept : Form{L"frmSaveTo", IDD_frmSaveTo} {}

frmSaveTo::~frmSaveTo()
{
    Unload();
    KeepServers(); // the host may have closed the window
}

std::span<const FormHandler> frmSaveTo::Handlers() const
{
    static const FormHandler kHandlers[] = {
        Handle(cmbServerURL, CBN_SELCHANGE, L"cmbServerURL_Click", &frmSaveTo::cmbServerURL_Click),
        Handle(cmbServerURL, CBN_SETFOCUS, L"cmbServerURL_GotFocus", &frmSaveTo::cmbServerURL_GotFocus),
        Handle(cmbServerURL, CBN_KILLFOCUS, L"cmbServerURL_LostFocus", &frmSaveTo::cmbServerURL_LostFocus),
        Handle(cmdGo, BN_CLICKED, L"cmdGo_Click", &frmSaveTo::cmdGo_Click),
        Handle(cmdFilter, BN_CLICKED, L"cmdFilter_Click", &frmSaveTo::cmdFilter_Click),
        Handle(cmdOK, BN_CLICKED, L"cmdOK_Click", &frmSaveTo::cmdOK_Click),
        Handle(cmdCancel, BN_CLICKED, L"cmdCancel_Click", &frmSaveTo::Hide),
        Handle(cmdHelp, BN_CLICKED, L"cmdHelp_Click", &frmSaveTo::cmdHelp_Click),
        Handle(TreeView1, static_cast<UINT>(NM_DBLCLK), L"TreeView1_DblClick", &frmSaveTo::TreeView1_DblClick),
    };
    return kHandlers;
}

int frmSaveTo::HelpControl() const noexcept { return cmdHelp; }

void frmSaveTo::Form_Load()
{
    if (!FilterActive) {
        FilterProjectSearchName.clear();
        FilterClassID = 0;
    }
    m_treeLoaded = false;
    m_servers.emplace();
    FillServers();

    m_captions = TreeCaptionsFor(Mode(), &CustomName);
    SetCaption(m_captions.caption);
    ShowTreeLabel();
    SetText(lblServerURL, m_captions.serverLabel);
    SetStatus(StatusBar1, L"Ready");
    m_tree.emplace(Control(TreeView1), Mode(),
                   [this](TreeImages& images, const std::wstring& iconSet) { LoadIconSet(images, iconSet); });
}

void frmSaveTo::ShowTreeLabel()
{
    SetText(lblTree, FilterActive ? WithFilterMark(m_captions.treeLabel) : m_captions.treeLabel);
}

void frmSaveTo::FillServers()
{
    const auto urls = m_servers->GetURLs();
    for (const std::wstring& url : urls) {
        if (!url.empty()) FormList{Control(cmbServerURL)}.Add(url);
    }
    std::wstring text = ServerURL;
    if (text.empty() && !urls.empty()) text = urls.front();
    SetText(cmbServerURL, text.empty() ? std::wstring{kSchemeOnly} : text);
}

void frmSaveTo::ShowWait(const std::wstring& text) { SetStatusDetail(StatusBar1, text); }

void frmSaveTo::Form_Unload()
{
    m_tree.reset();
    m_filter.reset();
    KeepServers();
}

void frmSaveTo::KeepServers() noexcept
{
    Reporting([this] {
        if (m_servers) m_servers->SaveURLs();
    });
    m_servers.reset();
}

void frmSaveTo::Form_Activate()
{
    // Only the first time: coming back from a message is no reason to contact the server again.
    if (std::exchange(m_activated, true) || m_treeLoaded) return;
    Go();
}

void frmSaveTo::cmbServerURL_Click()
{
    const FormList servers{Control(cmbServerURL)};
    const auto chosen = servers.Selected();
    if (!chosen) return;
    SetText(cmbServerURL, servers.Text(*chosen));
    // On the way through the list by keys nothing is chosen yet; Enter goes.
    for (const int key : {VK_UP, VK_DOWN, VK_PRIOR, VK_NEXT, VK_HOME, VK_END}) {
        if (::GetKeyState(key) < 0) return;
    }
    // The list has to close before the server is asked.
    ::PostMessageW(Window(), WM_COMMAND, MAKEWPARAM(cmdGo, BN_CLICKED), reinterpret_cast<LPARAM>(Control(cmdGo)));
}

void frmSaveTo::cmbServerURL_GotFocus() { SetDefaultButton(cmdGo); }

void frmSaveTo::cmbServerURL_LostFocus() { SetDefaultButton(cmdOK); }

void frmSaveTo::cmdGo_Click() { Go(); }

void frmSaveTo::SetWorking(bool working)
{
    Enable(std::array{TreeView1, txtTree, cmdFilter, cmdOK}, !working && m_treeLoaded);
    Enable(std::array{cmbServerURL, cmdGo}, !working);
    if (!working) SetStatus(StatusBar1, L"Ready");
}

bool frmSaveTo::Work(const std::function<void()>& work)
{
    SetWorking(true);
    const auto failure = Catch(work);
    if (failure && IsWanted()) ReportError(*failure);
    SetWorking(false);
    if (IsWanted()) FocusTree();
    return IsWanted() && !failure;
}

bool frmSaveTo::Go()
{
    if (!m_tree || Text(cmbServerURL).size() <= kSchemeOnly.size()) return true;
    const ServerDecision decision = DecideServer(m_servers->VerifyURL(Text(cmbServerURL)));
    const std::wstring& server = decision.address;
    const bool isRefused = decision.refusal != ServerRefusal::None;
    SetText(cmbServerURL, server);
    if (server != m_currentServer || isRefused) { // another server's targets are none of this one's
        m_tree->Clear();
        ShowTree(true);
        m_treeLoaded = false;
    }
    m_currentServer = server;
    Work([&] {
        if (isRefused) ShowMessage(RefusalText(decision), kStyleExclamation);
        if (isRefused || !CheckEntryCount()) return;
        LoadTree(server);
        m_servers->AddURL(Trim(server));
    });
    return !isRefused;
}

void frmSaveTo::cmdFilter_Click()
{
    if (Text(cmbServerURL) != m_currentServer && !Go()) return;
    if (!IsWanted()) return;
    Work([this] {
        ShowFilter(false);
        if (IsWanted() && CheckEntryCount() && !FilterCanceled && m_filterPending) LoadTree(Text(cmbServerURL));
    });
}

// The controls were out of use meanwhile, and the keyboard went astray.
void frmSaveTo::FocusTree()
{
    const int loaded = IsShown(TreeView1) ? TreeView1 : txtTree;
    SetFocusTo(m_treeLoaded ? loaded : cmbServerURL);
}

void frmSaveTo::cmdOK_Click()
{
    if (Text(cmbServerURL) != m_currentServer) return static_cast<void>(Go());
    if (!m_tree) return; // it could not be made
    const auto picked = TargetOfKey(Mode(), m_tree->SelectedKey());
    if (!picked) {
        ShowMessage(m_captions.nothingSelected, Kind().refusalIsCritical ? kStyleCritical : kStylePlain);
        return;
    }
    // When this fails, or the user leaves meanwhile, nothing is chosen.
    if (!Work([this] { CustomNames().RefreshOnce(m_currentServer, kServicePage); })) return;
    ServerURL = m_currentServer;
    target = *picked;
    Hide();
}

void frmSaveTo::TreeView1_DblClick()
{
    if (!m_tree || !m_tree->IsPointed() || m_tree->SelectedHasChildren() || !TargetOfKey(Mode(), m_tree->SelectedKey()))
        return;
    cmdOK_Click();
}

void frmSaveTo::cmdHelp_Click() { ShowHelpTopic(Window(), Kind().helpTopic); }

} // namespace corvane
