// The windows of the selection, and the About box: what no scenario sees of them.
#include "FakeRequest.h"
#include "OfferedClass.h"

#include "platform/ComObject.h"
#include "platform/MessageLoop.h"
#include "platform/Registry.h"
#include "resources/resource.h"
#include "selection/frmBusy.h"
#include "selection/frmSaveTo.h"
#include "support/CCustomNames.h"
#include "support/frmAbout.h"
#include "webservice/WebService.h"

#include <commctrl.h>
#include <gtest/gtest.h>

using namespace corvane;

namespace
{

constexpr wchar_t kListKey[] = L"Software\\Halvex\\Corvane\\ServerURLMRU";
constexpr wchar_t kPolicies[] = L"Software\\Policies\\Halvex\\Corvane";

// Looks at a form at every tick of a timer, and acts on it once it is ready.
class User
{
public:
    User(const Form& form, std::function<bool(HWND)> ready, std::function<void(HWND)> act, UINT milliseconds = 10)
    {
        s_tick = [&form, ready = std::move(ready), act = std::move(act), done = false]() mutable {
            if (!done && (done = ready(form.Window()))) act(form.Window());
        };
        m_timer = ::SetTimer(nullptr, 0, milliseconds, &Tick);
    }
    ~User() { ::KillTimer(nullptr, m_timer); }
    User(const User&) = delete;
    User& operator=(const User&) = delete;

private:
    static void CALLBACK Tick(HWND, UINT, UINT_PTR, DWORD) { s_tick(); }

    static inline std::function<void()> s_tick;
    UINT_PTR m_timer;
};

// The nodes of a tree from one on, those below each behind it, with the numbers of their pictures; the selected one has
// a star.
std::wstring NodesOf(HWND tree, HTREEITEM item)
{
    std::wstring nodes;
    for (; item != nullptr; item = TreeView_GetNextSibling(tree, item)) {
        wchar_t text[64] = L"";
        TVITEMW node{TVIF_TEXT | TVIF_IMAGE | TVIF_SELECTEDIMAGE, item, 0, 0, text, 64, 0, 0, 0, 0};
        TreeView_GetItem(tree, &node);
        const bool isSelected = item == TreeView_GetSelection(tree);
        nodes += text + std::to_wstring(isSelected ? node.iSelectedImage : node.iImage) + (isSelected ? L"* " : L" ");
        nodes += NodesOf(tree, TreeView_GetChild(tree, item));
    }
    return nodes;
}

class TreeForm : public testing::Test
{
protected:
    TreeForm()
    {
        Library::SetModule(::GetModuleHandleW(nullptr));
        ForgetServers();
        SetAccessLogged(true);
        g_oCustomNames = std::make_unique<CCustomNames>([](auto&&...) { return std::vector<CustomNameRow>{}; });
    }
    ~TreeForm() override
    {
        g_oCustomNames.reset();
        ForgetServers();
    }

    static void ForgetServers()
    {
        for (const wchar_t* key : {kListKey, kPolicies})
            Registry::DeleteTree(key);
    }
    static std::wstring Kept(int number)
    {
        return Registry::ReadText(kListKey, L"MRUServerURL" + std::to_wstring(number)).value_or(L"none");
    }
    static void Press(const Form& form, int button)
    {
        ::PostMessageW(form.Window(), WM_COMMAND, MAKEWPARAM(button, BN_CLICKED), 0);
    }

    Apartment m_apartment;
    FakeRequest m_transport;
    const OfferedClass m_class{kXmlHttp3, m_transport.Creator()};
};

TEST_F(TreeForm, AsksTheServerInItsBoxAndKeepsItAlsoWhenTheHostClosesIt)
{
    m_transport.text = L"<xml/>";
    const HWND other = ::CreateWindowW(WC_STATICW, L"", WS_VISIBLE, 0, 0, 9, 9, nullptr, nullptr, nullptr, nullptr);
    bool otherWasInUse = true;
    {
        frmSaveTo tree;
        tree.ServerURL = L"http://h";
        tree.Load();
        ::SetDlgItemTextW(tree.Window(), cmbServerURL, L" HTTP://Other/a ");
        Press(tree, cmdGo);
        const User host{tree, [](HWND form) { return ::IsWindowVisible(::GetDlgItem(form, txtTree)) != FALSE; },
                        [&](HWND form) {
                            ::EnableWindow(other, TRUE); // by what else runs in the host
                            ::SendMessageW(form, WM_ACTIVATE, WA_ACTIVE, 0);
                            otherWasInUse = ::IsWindowEnabled(other) != FALSE;
                            ::DestroyWindow(form);
                        }};
        tree.ShowModal();
        EXPECT_EQ(tree.Window(), nullptr);
    }
    EXPECT_TRUE(m_transport.asked.back().starts_with(L"GET http://other/a/WebServices/offi.asp?"));
    EXPECT_EQ(Kept(1), L"http://other/a");
    EXPECT_TRUE(!otherWasInUse && ::IsWindowEnabled(other));
    ::DestroyWindow(other);
}

TEST_F(TreeForm, IsLeftInTheMiddleOfALargeProject)
{
    constexpr int kDeliverables = 20000;
    std::wstring answer = L"<xml><project pid='1' name='P'><stage phaseid='1' name='S'>";
    for (int id = 1; id <= kDeliverables; ++id)
        answer += L"<deliverable deliverableid='" + std::to_wstring(id) + L"' name='D'/>";
    answer += L"</stage></project></xml>";
    m_transport.text = answer.c_str();
    frmSaveTo tree;
    tree.ServerURL = L"http://h";
    tree.Load();
    wchar_t status[64] = L"";
    const auto hasNodes = [](HWND form) { return TreeView_GetCount(::GetDlgItem(form, TreeView1)) > 0; };
    const User user{tree, hasNodes, [&](HWND form) {
                        ::SendDlgItemMessageW(form, StatusBar1, SB_GETTEXTW, 0, reinterpret_cast<LPARAM>(status));
                        m_transport.asked.clear();
                        Press(tree, cmdGo);
                        Press(tree, cmdCancel);
                    }};
    tree.ShowModal();
    EXPECT_TRUE(m_transport.asked.empty()) << "Go was pressed while it was out of use";
    EXPECT_STREQ(status, L"Contacting the server...");
    EXPECT_LT(TreeView_GetCount(::GetDlgItem(tree.Window(), TreeView1)), static_cast<UINT>(kDeliverables));
}

TEST_F(TreeForm, BearsADoubleClickWhenItCouldNotBeLoaded)
{
    g_oCustomNames.reset();
    frmSaveTo tree;
    tree.Load();
    NMHDR doubleClick{::GetDlgItem(tree.Window(), TreeView1), TreeView1, static_cast<UINT>(NM_DBLCLK)};
    ::SendMessageW(tree.Window(), WM_NOTIFY, TreeView1, reinterpret_cast<LPARAM>(&doubleClick));
    EXPECT_NE(tree.Window(), nullptr);
}

constexpr wchar_t kProjects[] =
    L"<xml><project pid='12' name='P' IconSet='Azure'>"
    L"<stage phaseid='3' name='S'><deliverable deliverableid='45' name='D'><activity activityid='678' name='A'/>"
    L"</deliverable></stage><relatedfile id='907' name='R'/>"
    L"<gate phaseid='5' name='G'><gateDocument gateDocumentID='1201' name='GD'/></gate></project></xml>";

TEST_F(TreeForm, ShowsEachNodeWithItsPictureAndSelectsTheTargetThatItWasGiven)
{
    // By mode: where the server has pictures of another kind, and with those of project, stage and gate behind the
    // fixed ones.
    constexpr const wchar_t* kNodes[][2] = {
        {L"P4 S4 D0 A1* ", L"P5 S6 D0 A1* "},
        {L"P4 [New Related Document]2 R2* ", L"P5 [New Related Document]2 R2* "},
        {L"P4 G4 GD3* ", L"P5 G7 GD3* "},
    };
    m_transport.text = kProjects;
    for (const bool isSetThere : {false, true}) {
        const int id = isSetThere ? IDR_IMAGE_DELIVERABLE : IDR_IMAGE_PLAIN; // a bitmap
        const HRSRC picture = ::FindResourceW(nullptr, MAKEINTRESOURCEW(id), RT_RCDATA);
        const auto* bytes = static_cast<const char*>(::LockResource(::LoadResource(nullptr, picture)));
        m_transport.bytes.assign(bytes, ::SizeofResource(nullptr, picture));
        for (const int mode : {0, 1, 2}) {
            frmSaveTo tree;
            tree.DialogType = mode;
            tree.ServerURL = L"http://h";
            tree.target = {12, 45, 678, 907, 1201};
            tree.Load();
            std::wstring nodes;
            int size = 0;
            int loads = 0;
            const auto isLoadedAgain = [&](HWND form) {
                if (::IsWindowEnabled(::GetDlgItem(form, cmdOK)) && loads++ == 0) Press(tree, cmdGo);
                return loads > 1;
            };
            const User user{tree, isLoadedAgain, [&](HWND form) {
                                const HWND view = ::GetDlgItem(form, TreeView1);
                                nodes = NodesOf(view, TreeView_GetRoot(view));
                                ::ImageList_GetIconSize(TreeView_GetImageList(view, TVSIL_NORMAL), &size, &size);
                                Press(tree, cmdCancel);
                            }};
            tree.ShowModal();
            EXPECT_EQ(nodes, kNodes[mode][isSetThere ? 1 : 0]);
            EXPECT_EQ(size, 17);
        }
    }
}

TEST_F(TreeForm, OffersTheGivenServerBeforeTheFirstOfTheListAndNoneWhereThatIsEmpty)
{
    const auto offered = [](const wchar_t* given) {
        frmSaveTo tree;
        tree.ServerURL = given;
        tree.Load();
        wchar_t text[64] = L"";
        ::GetDlgItemTextW(tree.Window(), cmbServerURL, text, 64);
        const HWND combo = ::GetDlgItem(tree.Window(), cmbServerURL);
        RECT box{};
        ::GetClientRect(combo, &box);
        EXPECT_GT(::SendMessageW(combo, CB_GETDROPPEDWIDTH, 0, 0), box.right) << "no room for the long address";
        return text + std::to_wstring(::SendMessageW(combo, CB_GETCOUNT, 0, 0));
    };
    Registry::WriteText(kListKey, L"MRUServerURL2", L"http://" + std::wstring(200, L'w'));
    EXPECT_EQ(offered(L""), L"http://1");
    Registry::WriteText(kListKey, L"MRUServerURL1", L"http://a");
    EXPECT_EQ(offered(L""), L"http://a2");
    EXPECT_EQ(offered(L"http://h"), L"http://h2");
}

TEST_F(TreeForm, KeepsAListOfItsCountWithItsHolesBehindTheAdministratorsServers)
{
    using Urls = std::vector<std::wstring>;
    EXPECT_EQ(CMRUServers{}.GetURLs(), Urls(5));
    Registry::WriteNumber(kListKey, L"MRUServerURLCount", 3);
    for (const std::wstring number : {L"1", L"3", L"4"})
        Registry::WriteText(kListKey, L"MRUServerURL" + number, number);
    EXPECT_EQ(CMRUServers{}.GetURLs(), (Urls{L"1", L"", L"3"}));
    Registry::WriteText(std::wstring{kPolicies} + L"\\ServerURLs", L"ServerURL1", L"http://p");
    CMRUServers list;
    list.AddURL(L"N");
    EXPECT_EQ(list.GetURLs(), (Urls{L"http://p", L"N", L"1"}));
    list.SaveURLs();
    EXPECT_EQ((Urls{Kept(1), Kept(2), Kept(3), Kept(4)}), (Urls{L"N", L"1", L"", L"4"}));
    EXPECT_EQ(Registry::ReadNumber(kListKey, L"MRUServerURLCount"), 3);
    Registry::WriteNumber(kPolicies, L"ServerURLCount", 2);
    EXPECT_EQ(CMRUServers{}.GetURLs(), (Urls{L"http://p", L"N"}));
    Registry::WriteNumber(kPolicies, L"OfferedServersOnly", 1);
    EXPECT_EQ(CMRUServers{}.GetURLs(), (Urls{L"http://p"}));
}

TEST_F(TreeForm, IsFollowedByABusyWindowThatStartsItsProcedureOnce)
{
    int started = 0;
    const auto work = [&](const frmBusy& busy) {
        if (++started > 1) return;
        ::SendMessageW(busy.Window(), WM_ACTIVATE, WA_ACTIVE, 0); // again, as after a message
        const HWND bar = ::GetDlgItem(busy.Window(), ProgressBar1);
        const auto progress = [bar] { return ::SendMessageW(bar, PBM_GETPOS, 0, 0); };
        int tenths = 0;
        const User clock{busy, [&](HWND) { return ++tenths < 0; }, {}, 100};
        EXPECT_EQ(PumpUntil([&] { return progress() >= 50; }, std::chrono::seconds{20}), WaitEnd::Done);
        EXPECT_NEAR(tenths, 10, 3);
        EXPECT_EQ(::SendMessageW(bar, PBM_GETRANGE, FALSE, 0), 100);
        for (LRESULT before = progress(); before < 100; before = progress()) {
            ::SendMessageW(busy.Window(), WM_TIMER, 1, 0);
            ASSERT_EQ(progress(), before + 5);
        }
        ::SendMessageW(busy.Window(), WM_TIMER, 1, 0);
        EXPECT_EQ(progress(), 0);
    };
    for (const int kind : {0, 3, -1}) {
        frmBusy busy{{work, work, work}};
        busy.lMethodType = kind;
        busy.ShowModal();
        EXPECT_EQ(started, 1);
    }
}

using AboutForm = TreeForm;

TEST_F(AboutForm, HasItsLabelsInVerdana)
{
    frmAbout about;
    about.Load();
    for (const int label : {lblComponentName, lblVersion, lblRights, lblLegalNotice}) {
        LOGFONTW font{};
        const LRESULT handle = ::SendDlgItemMessageW(about.Window(), label, WM_GETFONT, 0, 0);
        ::GetObjectW(reinterpret_cast<HFONT>(handle), sizeof font, &font);
        EXPECT_STREQ(font.lfFaceName, L"Verdana") << label;
    }
}

} // namespace
