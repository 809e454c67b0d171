// The commands in hosts without a ribbon, and in Excel.
#include "FakeRequest.h"
#include "HostTest.h"
#include "MessageBox.h"
#include "OfferedClass.h"

#include "addin/CAddInMenus.h"
#include "platform/Procedure.h"
#include "resources/resource.h"
#include "shared/DocumentProperties.h"
#include "support/CCustomNames.h"
#include "support/CTraceLog.h"
#include "support/ErrorReport.h"

#include "objects/CommandBars.h"

#include <commctrl.h>

using namespace corvane;

namespace
{

// Counts the procedures that begin and the errors that are reported.
class Listener final : public ProcedureWatch
{
public:
    Listener() { SetProcedureWatch(this); }
    ~Listener() override { SetProcedureWatch(nullptr); }

    void Enter(std::wstring_view) noexcept override { ++entered; }
    void Leave(std::wstring_view) noexcept override {}
    void Report(const Error&) noexcept override { ++reported; }

    int entered = 0;
    int reported = 0;
};

class Menus : public host::test::HostTest
{
protected:
    Menus()
    {
        g_oCustomNames = std::make_unique<CCustomNames>([](const auto&...) { return Rows{}; });
    }
    ~Menus() override { g_oCustomNames.reset(); }

    LateBound Bar() { return Application().Object(L"CommandBars").Object(L"Item", L"Menu Bar"); }
    // A menu's entries that the add-in made, each with what was done to it.
    std::wstring MadeIn(host::CommandBarObject& menu)
    {
        std::wstring text;
        for (const auto& entry : menu.Entries()) {
            if (entry->Id() == 1) text += entry->History() + L"\n";
            if (entry->Menu()) text += MadeIn(*entry->Menu());
        }
        return text;
    }
    host::CommandBarObject& MenuBar() { return session->CommandBars().MenuBar(); }

    using Rows = std::vector<CustomNameRow>;
    Apartment m_apartment;
};

// What is done to the entries: the menu's arguments of Add (type, id, parameter, position, temporary), and the
// properties in the order in which they are written.
std::wstring HistoryWith(const std::wstring& savePosition)
{
    return L"Add 10 1 KRXSaveToCorvane " + savePosition +
           LR"( True, Enabled True, Visible True, Tag KRXSaveToCorvane, Caption Save to Corvane
Add 1 - - - -, Enabled True, Visible True, Style 1, Caption Save as Deliverable or Activity..., Tag KRXSaveAssignement
Add 1 - - - -, Enabled True, Visible True, Style 1, Caption Save as Related Document..., Tag KRXSaveRelatedDoc
Add 1 - - - -, Enabled True, Visible True, Style 1, Caption Save as Gate Document..., Tag KRXSaveGateDoc
Add 1 - KRXMSOHelp 2 True, Enabled True, Visible True, Style 1, Caption Corvane for MS Office Help, Tag KRXMSOHelp
Add 1 - KRXAboutMSO - True, Enabled True, Visible True, Style 1, Caption About Corvane for MS Office, Tag KRXAboutMSO
)";
}

TEST_F(Menus, AreMadeWithEveryPropertyInOrderAndHiddenBeforeTheyAreDeleted)
{
    for (const auto& [kind, savePosition] : {std::pair{"", L"6"}, std::pair{"bare", L"5"}}) {
        Start("powerpoint", L"11.0", {{"menus", kind}});
        CAddInMenus menus{{}};
        menus.SetApplication(Application());
        menus.SetUICaptions();
        menus.CreateMenus(Bar());
        EXPECT_EQ(MadeIn(MenuBar()), HistoryWith(savePosition)) << kind;

        const host::ComPtr<host::BarControlObject> help{MenuBar().FindTag(L"KRXMSOHelp")};
        host::CommandBarObject& helpMenu = *MenuBar().Entries().back()->Menu();
        helpMenu.Insert(host::kBarButton, 1, L"", 0).SetTag(L"KRXAboutMSO"); // in front of the other
        helpMenu.Insert(host::kBarButton, host::kUntoldId, L"", 99);         // behind all that is looked for
        MenuBar().Insert(host::kBarButton, host::kUntoldId, L"", 0);         // is passed over
        menus.DeleteMenus(Bar());
        EXPECT_TRUE(help->History().ends_with(L", Visible False, Enabled False")) << kind;
        EXPECT_EQ(MenuBar().FindTag(L"KRXSaveToCorvane"), nullptr);
        EXPECT_EQ(helpMenu.FindTag(L"KRXMSOHelp"), nullptr);
        EXPECT_NE(helpMenu.FindTag(L"KRXAboutMSO"), nullptr) << "more than the first was removed";
    }
}

TEST_F(Menus, ThatCannotBeMadeLeaveTheTracesLevelAsItWas)
{
    g_oTraceLog = std::make_unique<CTraceLog>(Settings{});
    WatchProcedures();
    Start("powerpoint", L"11.0", {{"menus", "helpless"}});
    CAddInMenus menus{{}};
    menus.SetApplication(Application());
    EXPECT_TRUE(Catch([&] { menus.CreateMenus(Bar()); }));
    EXPECT_EQ(g_oTraceLog->GetTabs(), L"\t");
    SetProcedureWatch(nullptr);
    g_oTraceLog.reset();
}

TEST_F(Menus, HaveARibbonOfTheirOwnForOutlook)
{
    Start("outlook", L"14.0");
    CAddInMenus menus{{}};
    menus.SetApplication(Application());
    menus.SetUICaptions();
    const std::wstring ribbon = menus.GetOutlookRibbonXML();
    EXPECT_NE(ribbon.find(L" id=\"CorvaneOffice\""), std::wstring::npos) << host::Narrow(ribbon);
    EXPECT_EQ(ribbon.find(L"onLoad"), std::wstring::npos);
}

TEST_F(Menus, SaveNothingInExcelWhileACellIsEdited)
{
    Start("excel", L"16.0", {{"editing", "800AC472"}});
    CAddInMenus menus{{}};
    menus.SetApplication(Application());
    const Listener listener;
    const MessageBoxAnswer box{
        L"You are currently editing a cell or object. Please finish editing before saving to Corvane.",
        L"Save to Corvane"};
    menus.SaveAssignmentClickHelper(L"Custom");
    EXPECT_TRUE(box.Appeared());
    EXPECT_FALSE(box.HadIcon());
    EXPECT_EQ(listener.entered + listener.reported, 0);
}

// Picks the tree's last leaf as soon as it can be picked.
void CALLBACK PickTarget(HWND, UINT, UINT_PTR timer, DWORD)
{
    const HWND form = ::FindWindowW(L"frmSaveTo", nullptr);
    const HWND ok = form == nullptr ? nullptr : ::GetDlgItem(form, cmdOK);
    if (ok == nullptr || !::IsWindowEnabled(ok)) return;
    ::KillTimer(nullptr, timer);
    const HWND tree = ::GetDlgItem(form, TreeView1);
    HTREEITEM item = TreeView_GetRoot(tree);
    while (const HTREEITEM child = TreeView_GetChild(tree, item))
        item = child;
    TreeView_SelectItem(tree, item);
    ::PostMessageW(form, WM_COMMAND, MAKEWPARAM(cmdOK, BN_CLICKED), reinterpret_cast<LPARAM>(ok));
}

TEST_F(Menus, KeepExcelFromItsUserWhileTheDialogRunsAfterTheTree)
{
    FakeRequest transport;
    transport.text = L"<projects><project pid='12' IconSet='1' name='P'><stage phaseid='1' name='S'>"
                     L"<deliverable deliverableid='45' name='D'/></stage></project></projects>";
    const OfferedClass http{kXmlHttp3, transport.Creator()};
    for (const bool fails : {false, true}) {
        Start("excel");
        session->New();
        SetBindingProperties(HostDocument{Application()}, {{.projectId = 12}, L"http://h"});
        int dialogs = 0;
        CAddInMenus menus{{[&](frmBusy& busy) {
            ++dialogs;
            EXPECT_EQ(busy.lDeliverableID, 45);
            EXPECT_EQ(Application().Number(L"Interactive"), 0);
            if (fails) throw Error{5, L"", L"The dialog failed."};
        }}};
        menus.SetApplication(Application());
        const Listener listener;
        ::SetTimer(nullptr, 0, 20, &PickTarget);
        menus.SaveAssignmentClickHelper(L"Custom");
        EXPECT_EQ(dialogs, 1);
        EXPECT_EQ(listener.reported, fails ? 1 : 0);
        EXPECT_NE(Application().Number(L"Interactive"), 0);
    }
}

} // namespace
