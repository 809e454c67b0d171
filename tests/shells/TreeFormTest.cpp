// The window of the target tree where its host, its user or its start go another way.
#include "FakeRequest.h"
#include "OfferedClass.h"

#include "platform/ComObject.h"
#include "resources/resource.h"
#include "selection/frmSaveTo.h"
#include "support/CCustomNames.h"
#include "support/Registry.h"
#include "webservice/WebService.h"

#include <commctrl.h>
#include <gtest/gtest.h>

using namespace corvane;

namespace
{

constexpr CLSID kXmlHttp3 = {0xF5078F35, 0xC551, 0x11D3, {0x89, 0xB9, 0x00, 0x00, 0xF8, 0x1F, 0xE2, 0x21}};
constexpr wchar_t kListKey[] = L"Software\\Halvex\\Corvane\\ServerURLMRU";

// Looks at every tick whether a form's text in place of the tree has come, and destroys the form's window then.
class HostThatCloses
{
public:
    explicit HostThatCloses(const Form& form)
    {
        s_form = &form;
        m_timer = ::SetTimer(nullptr, 0, 10, &Tick);
    }
    ~HostThatCloses() { ::KillTimer(nullptr, m_timer); }
    HostThatCloses(const HostThatCloses&) = delete;
    HostThatCloses& operator=(const HostThatCloses&) = delete;

private:
    static void CALLBACK Tick(HWND, UINT, UINT_PTR, DWORD)
    {
        if (::IsWindowVisible(::GetDlgItem(s_form->Window(), txtTree))) ::DestroyWindow(s_form->Window());
    }

    static inline const Form* s_form = nullptr;
    UINT_PTR m_timer;
};

class TreeForm : public testing::Test
{
protected:
    TreeForm()
    {
        Library::SetModule(::GetModuleHandleW(nullptr));
        Registry::DeleteTree(kListKey);
        SetAccessLogged(true);
        g_oCustomNames = std::make_unique<CCustomNames>([](auto&&...) { return std::vector<CustomNameRow>{}; });
    }
    ~TreeForm() override
    {
        g_oCustomNames.reset();
        Registry::DeleteTree(kListKey);
    }

    static void Press(const Form& form, int button)
    {
        ::PostMessageW(form.Window(), WM_COMMAND, MAKEWPARAM(button, BN_CLICKED), 0);
    }

    Apartment m_apartment;
    FakeRequest m_transport;
    const OfferedClass m_class{kXmlHttp3,
                               [this](REFIID id, void** object) { return m_transport.QueryInterface(id, object); }};
};

TEST_F(TreeForm, KeepsItsServersAlsoWhenTheHostClosesIt)
{
    m_transport.text = L"<xml/>";
    {
        frmSaveTo tree;
        tree.ServerURL = L"http://h";
        tree.Load();
        Press(tree, cmdGo);
        const HostThatCloses host{tree};
        tree.ShowModal();
        EXPECT_EQ(tree.Window(), nullptr);
    }
    EXPECT_EQ(Registry::ReadText(kListKey, L"MRUServerURL1"), L"http://h");
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
    Press(tree, cmdGo);
    Press(tree, cmdCancel);
    tree.ShowModal();
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

} // namespace
