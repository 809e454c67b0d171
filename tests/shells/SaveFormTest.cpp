// The dialog of a deliverable or activity, by what the server tells of its target.
#include "FakeRequest.h"
#include "HostTest.h"
#include "OfferedClass.h"

#include "dialogs/frmSaveAssignment.h"
#include "forms/FormLayout.h"
#include "platform/AnswerWait.h"
#include "platform/ComObject.h"
#include "platform/MessageLoop.h"
#include "resources/resource.h"
#include "support/CCustomNames.h"
#include "webservice/WebService.h"

#include <commctrl.h>

using namespace corvane;

namespace
{

struct TargetCase
{
    const char* name;
    bool isActivity;
    const wchar_t* row;
    bool mayComplete;
};

// All may be saved to, by user 7.
constexpr TargetCase kCases[] = {
    {"Deliverable", false, L"RoutingTypeID='1' OwnerID='7'", true},
    {"RoutedDeliverable", false, L"RoutingTypeID='2' OwnerID='7'", false},
    {"DeliverableWithWorkflow", false, L"RoutingTypeID='1' OwnerID='7' HasWorkflow='1'", false},
    {"DeliverableInWorkflow", false, L"RoutingTypeID='1' OwnerID='7' WorkflowState='1'", false},
    {"DeliverableOfTheLeader", false, L"RoutingTypeID='1' TeamLeaderID='7'", true},
    {"RoutedActivity", true, L"RoutingTypeID='2' ActivityOwnerID='7'", true},
    {"ActivityWithWorkflow", true, L"ActivityOwnerID='7' HasWorkflow='1'", false},
    {"ActivityInWorkflow", true, L"ActivityOwnerID='7' WorkflowState='1'", false},
    {"ActivityBelowAWorkflow", true, L"DeliverableWorkflowState='1'", true},
    {"CompletedActivity", true, L"ActivityOwnerID='7' ActivityStatusCode='1'", false},
    {"ActivityOfTheLeader", true, L"ProjectTeamLeaderID='7'", true},
    {"ActivityBelowAnOwnDeliverable", true, L"OwnerID='7'", true},
};

// A refusal would be told in a box.
void CALLBACK CloseBox(HWND, UINT, UINT_PTR, DWORD) { ::EndDialog(::FindWindowW(L"#32770", nullptr), IDOK); }

class AssignmentForm : public host::test::HostTest
{
protected:
    AssignmentForm()
    {
        Library::SetModule(::GetModuleHandleW(nullptr));
        SetAccessLogged(true);
        g_oCustomNames = std::make_unique<CCustomNames>([](auto&&...) { return std::vector<CustomNameRow>{}; });
        m_transport.answers = {{L"GetUserID", L"7"}, {L"TeamMember", L"True"}, {L"PERMISSIONS", L"2"}};
        Start("powerpoint");
        session->New();
    }
    ~AssignmentForm() override { g_oCustomNames.reset(); }

    void Load(frmSaveAssignment& dialog, const TargetCase& target)
    {
        const std::wstring answer =
            std::wstring{L"<xml xmlns:z='#RowsetSchema'><z:row "} + target.row + L" ActivityStatusNote='n'/></xml>";
        m_transport.text = answer.c_str();
        dialog.ServerURL = L"http://h";
        dialog.ProjectID = 1;
        (target.isActivity ? dialog.ActivityID : dialog.DeliverableID) = 1;
        dialog.Document = HostDocument{Application()};
        dialog.Load();
    }
    static bool IsWaiting() { return ::GetCursor() == ::LoadCursorW(nullptr, IDC_WAIT); }

    Apartment m_apartment;
    FakeRequest m_transport;
    const OfferedClass m_class{kXmlHttp3, m_transport.Creator()};
};

TEST_F(AssignmentForm, OffersWhatItsTargetAllows)
{
    const UINT_PTR timer = ::SetTimer(nullptr, 0, 50, &CloseBox);
    for (const TargetCase& target : kCases) {
        SCOPED_TRACE(target.name);
        frmSaveAssignment dialog;
        bool waited = false;
        m_transport.onSend = [&] { waited = IsWaiting(); };
        Load(dialog, target);
        EXPECT_TRUE(waited && !IsWaiting());
        EXPECT_TRUE(::IsWindowEnabled(::GetDlgItem(dialog.Window(), cmdSave)));
        EXPECT_EQ(::IsWindowEnabled(::GetDlgItem(dialog.Window(), chkComplete)) != FALSE, target.mayComplete);
        EXPECT_EQ(::GetWindowTextLengthW(::GetDlgItem(dialog.Window(), txtNotes)), target.isActivity ? 1 : 0);
        EXPECT_EQ(HeightOf(dialog.Window()) == PixelsOfTwips(7875), !target.isActivity);
    }
    ::KillTimer(nullptr, timer);
}

TEST_F(AssignmentForm, MayBeMadeWhileTheServerIsAsked)
{
    frmSaveAssignment dialog;
    static_cast<void>(Meanwhile{[&] { dialog.MakeWindow(); }});
    static_cast<void>(QueryText(L"http://h", Operations::kGetUserId, {}));
    EXPECT_EQ(dialog.Window(), nullptr); // nothing waited before it went
    m_transport.onSend = [&] { EXPECT_EQ(dialog.Window(), nullptr); };
    {
        const Meanwhile window{[&] { dialog.MakeWindow(); }};
        static_cast<void>(QueryText(L"http://h", Operations::kGetUserId, {}));
    }
    m_transport.onSend = {};
    const HWND made = dialog.Window();
    ASSERT_NE(made, nullptr);
    Load(dialog, kCases[5]);
    EXPECT_EQ(dialog.Window(), made);
    EXPECT_EQ(::GetWindowTextLengthW(::GetDlgItem(made, txtNotes)), 1); // its target was loaded
}

// Not every edition of the control knows the key.
LRESULT CALLBACK IgnoreCharacters(HWND box, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR, DWORD_PTR)
{
    return message == WM_CHAR ? 0 : ::DefSubclassProc(box, message, wParam, lParam);
}

TEST_F(AssignmentForm, SelectsATextWithCtrlA)
{
    constexpr WPARAM kCtrlA = 1;
    frmSaveAssignment dialog;
    Load(dialog, kCases[5]);
    const HWND notes = ::GetDlgItem(dialog.Window(), txtNotes);
    ::SetWindowSubclass(notes, &IgnoreCharacters, 1, 0);
    for (const auto& [character, end] : {std::pair{kCtrlA + 1, 0}, std::pair{kCtrlA, 1}}) {
        ::PostMessageW(notes, WM_CHAR, character, 0);
        PumpPending();
        EXPECT_EQ(HIWORD(::SendMessageW(notes, EM_GETSEL, 0, 0)), end);
    }
    ::RemoveWindowSubclass(notes, &IgnoreCharacters, 1);
}

} // namespace
