// The connection class in a host: what it keeps of the host, what it answers it, and what it traces.
#include "HostTest.h"
#include "MessageBox.h"
#include "OfferedClass.h"

#include "addin/CAddInMenus.h"
#include "addin/CRbnBtnInfo.h"
#include "addin/Connect.h"
#include "platform/Procedure.h"
#include "platform/Registry.h"
#include "support/CCustomNames.h"
#include "support/CTraceLog.h"

#include "automation/OfficeInterfaces.h"
#include "documents/Files.h"
#include "objects/AddInObjects.h"

#include <algorithm>
#include <regex>
#include <thread>

using namespace corvane;

namespace
{

constexpr LONG kStartUp = 1;
constexpr wchar_t kPolicies[] = L"Software\\Policies\\Halvex\\Corvane";

// A ribbon of which one thing can be asked.
class CountingRibbon final : public host::AutomationObject<IDispatch>
{
public:
    CountingRibbon() : AutomationObject{L"Ribbon", kMembers, __uuidof(host::IRibbonUI)} {}

    int invalidated = 0;

private:
    static const host::Member kMembers[1];
};

const host::Member CountingRibbon::kMembers[] = {
    {1, L"Invalidate", host::kMethod, host::Answer<[](CountingRibbon& ribbon) { ++ribbon.invalidated; }>}};

class ConnectTest : public host::test::HostTest
{
protected:
    ConnectTest() { ::SetEnvironmentVariableW(L"APPDATA", folder.Path().c_str()); }
    ~ConnectTest() override
    {
        g_oTraceLog.reset();
        g_oCustomNames.reset();
        SetProcedureWatch(nullptr);
        Registry::DeleteTree(kPolicies);
    }

    static void SwitchTraceOn() { Registry::WriteNumber(kPolicies, L"EnableTraceLogs", 1); }
    void ConnectTo(const wchar_t* version, LONG mode)
    {
        Start("powerpoint", version);
        const auto entry = host::MakeObject<host::ComAddInObject>(L"CorvaneMSOfficePowerPoint.Connect", L"");
        EXPECT_EQ(m_connect->OnConnection(&session->Application(), mode, entry.Get(), nullptr), S_OK);
    }
    void Disconnect()
    {
        EXPECT_EQ(m_connect->OnDisconnection(0, nullptr), S_OK);
        EXPECT_EQ(g_oAddInMenus, nullptr);
    }
    [[nodiscard]] std::wstring Ribbon() const
    {
        Bstr xml;
        EXPECT_EQ(m_connect->GetCustomUI(nullptr, xml.Put()), S_OK);
        return xml.Text();
    }
    // Whether a step tells of an error with this number.
    template<class Step>
    static bool Tells(const wchar_t* number, Step&& step)
    {
        const MessageBoxAnswer box{std::wstring{L"ERROR\r\nNumber: "} + number};
        step();
        return box.Appeared();
    }
    void OfferRibbon()
    {
        VARIANT answer{};
        answer.vt = VT_I4;
        EXPECT_EQ(m_connect->onLoad(m_ribbon.Get(), &answer), S_OK);
        EXPECT_EQ(answer.vt, VT_EMPTY);
    }
    // The window of what is active, told of without a presentation.
    void ActivateWindowOfNothing()
    {
        constexpr DISPID kWindowActivate = 2009;
        session->Application().Events().Fire(kWindowActivate, {nullptr, session->Active()->Window(1).Get()});
    }
    // The names of the trace files.
    [[nodiscard]] std::vector<std::wstring> TraceFiles() const
    {
        std::vector<std::wstring> names;
        WIN32_FIND_DATAW found{};
        const HANDLE search = ::FindFirstFileW((TraceFolder() + L"*").c_str(), &found);
        for (bool more = search != INVALID_HANDLE_VALUE; more; more = ::FindNextFileW(search, &found) != FALSE)
            if (found.cFileName[0] != L'.') names.emplace_back(found.cFileName);
        ::FindClose(search);
        return names;
    }
    // A trace file's lines, "T" for the time and "|" for each tab.
    [[nodiscard]] std::string TraceIn(const std::wstring& name) const
    {
        const std::string text = host::ReadWholeFile(TraceFolder() + name);
        const std::string lines =
            std::regex_replace(text, std::regex{R"((^|\n)\d{4}-\d\d-\d\d \d\d:\d\d:\d\d)"}, "$1T");
        return std::regex_replace(std::regex_replace(lines, std::regex{"\t"}, "|"), std::regex{"\r\n"}, "\n");
    }
    [[nodiscard]] std::string OnlyTrace() const
    {
        const auto names = TraceFiles();
        EXPECT_EQ(names.size(), 1U);
        return names.empty() ? std::string{} : TraceIn(names.front());
    }
    [[nodiscard]] std::wstring TraceFolder() const { return folder.File(L"Halvex\\Corvane for MS Office\\"); }

    Apartment m_apartment;
    ComPtr<corvane::Connect> m_connect = MakeObject<corvane::Connect>();
    host::ComPtr<CountingRibbon> m_ribbon = host::MakeObject<CountingRibbon>();
};

// From its connection to its disconnection, and what a window's activation leads to.
constexpr char kTrace[] = R"(T||--> Connect.AddinInstance_OnConnection
T|||Application Name = Microsoft PowerPoint
T|||Application Version = 16.0
T|||Application Build = 16.0.4266
T|||ConnectMode = 1
T|||AddinInst.ProgId = CorvaneMSOfficePowerPoint.Connect
T|||AddinInst.Guid = {00000000-0000-0000-0000-000000000000}
T|||--> CAddInMenus.SetUICaptions
T|||<-- CAddInMenus.SetUICaptions
T|||
T||<-- Connect.AddinInstance_OnConnection
T||
T||--> Connect.onLoad
T||<-- Connect.onLoad
T||
T||--> Connect.m_oPowerPointApp_WindowActivate
T|||Wn.Caption = Presentation1
T|||Pres parameter is not Nothing
T|||Pres.Name = Presentation1
T|||PPT Version > 11
T|||--> CAddInMenus.InvalidateControls
T|||<-- CAddInMenus.InvalidateControls
T|||
T||<-- Connect.m_oPowerPointApp_WindowActivate
T||
T||--> Connect.m_oPowerPointApp_WindowActivate
T|||Wn.Caption = Presentation1
T||<-- Connect.m_oPowerPointApp_WindowActivate
T||
T||--> Connect.m_oPowerPointApp_PresentationClose
T||<-- Connect.m_oPowerPointApp_PresentationClose
T||
T||--> Connect.AddinInstance_OnDisconnection
T||<-- Connect.AddinInstance_OnDisconnection
T||
)";

TEST_F(ConnectTest, TracesWhatItIsCalledForAndInvalidatesTheRibbonForPresentationsOnly)
{
    SwitchTraceOn();
    ConnectTo(L"16.0", kStartUp);
    OfferRibbon();
    session->New();
    EXPECT_EQ(m_ribbon->invalidated, 1);
    ActivateWindowOfNothing();
    EXPECT_EQ(m_ribbon->invalidated, 1);
    session->Close(*session->Active());
    Disconnect();
    g_oTraceLog.reset();
    EXPECT_EQ(OnlyTrace(), kTrace);
}

TEST_F(ConnectTest, KeepsNoRibbonWhereThereAreMenus)
{
    SwitchTraceOn();
    ConnectTo(L"11.0", kStartUp);
    OfferRibbon();
    session->New();
    AddInMenus()->InvalidateControls();
    EXPECT_EQ(m_ribbon->invalidated, 0);
    Disconnect();
    g_oTraceLog.reset();
    EXPECT_EQ(OnlyTrace().find("PPT Version > 11"), std::string::npos);
}

TEST_F(ConnectTest, StartsNothingInAnyModeButTheStart)
{
    for (const LONG mode : {0, 2, 3}) {
        ConnectTo(L"16.0", mode);
        session->New();
        EXPECT_NE(g_oTraceLog, nullptr) << mode;
        EXPECT_EQ(g_oAddInMenus, nullptr) << mode;
        EXPECT_EQ(g_oCustomNames, nullptr) << mode;
        EXPECT_FALSE(session->Application().Events().HasSinks()) << mode;
        Disconnect();
        g_oTraceLog.reset();
    }
    EXPECT_TRUE(TraceFiles().empty());
}

TEST_F(ConnectTest, WritesEachConnectionsTraceToAFileNamedByItsTime)
{
    SwitchTraceOn();
    std::vector<std::wstring> names;
    for (int connection = 0; connection < 2; ++connection) {
        SYSTEMTIME now{};
        ::GetLocalTime(&now);
        // A file's name tells whole seconds: begin with a new one.
        for (const WORD second = now.wSecond; now.wSecond == second; ::GetLocalTime(&now))
            ::Sleep(1);
        ConnectTo(L"16.0", 0);
        wchar_t name[MAX_PATH] = L"";
        ::swprintf_s(name, MAX_PATH, L"CorvaneMSOfficePowerPoint_%d_%d_%d__%d_%d_%d.log", now.wYear, now.wMonth,
                     now.wDay, now.wHour, now.wMinute, now.wSecond);
        names.emplace_back(name);
        Disconnect();
    }
    g_oTraceLog.reset();
    std::ranges::sort(names); // as folders are listed
    ASSERT_EQ(TraceFiles(), names);
    EXPECT_EQ(TraceIn(names[0]), TraceIn(names[1]));
}

TEST_F(ConnectTest, TellsOfCallbacksOutsideAConnectionAndServesItsThreadAloneInIt)
{
    const auto findNoRibbon = [this] { EXPECT_EQ(Ribbon(), L""); };
    auto answerElsewhere = [answer = S_FALSE]() mutable {
        std::thread{[&] { answer = MakeObject<corvane::CRbnBtnInfo>()->Clear(); }}.join();
        return answer;
    };
    EXPECT_TRUE(Tells(L"91", findNoRibbon));
    EXPECT_EQ(answerElsewhere(), S_OK) << "the thread that made it";
    ConnectTo(L"16.0", kStartUp);
    EXPECT_EQ(answerElsewhere(), RPC_E_WRONG_THREAD);
    EXPECT_EQ(MakeObject<corvane::Connect>()->OnDisconnection(0, nullptr), S_OK); // of what never was
    EXPECT_NE(Ribbon().find(L"TabSaveToCorvane"), std::wstring::npos);
    Disconnect();
    Disconnect(); // once too often is no error
    EXPECT_EQ(answerElsewhere(), S_OK);
    EXPECT_TRUE(Tells(L"91", findNoRibbon));
    session.reset();
    EXPECT_EQ(host::ObjectCore::StillReferenced(), L"Ribbon x1") << "of this test";
}

TEST_F(ConnectTest, ReplacesItsFirstHostByTheSecond)
{
    ConnectTo(L"16.0", kStartUp);
    const auto first = std::move(session);
    ConnectTo(L"12.0", kStartUp);
    EXPECT_FALSE(first->Application().Events().HasSinks());
    EXPECT_NE(Ribbon().find(L"officeMenu"), std::wstring::npos);
    Disconnect();
}

TEST_F(ConnectTest, LetsEverythingGoWhereTheMenusCannotBeRemoved)
{
    ConnectTo(L"11.0", kStartUp);
    g_oAddInMenus.reset();
    EXPECT_TRUE(Tells(L"91", [this] { Disconnect(); }));
    EXPECT_FALSE(session->Application().Events().HasSinks());
}

TEST_F(ConnectTest, TellsOfAHostThatIsNoPowerPoint)
{
    Start("word");
    const auto entry = host::MakeObject<host::ComAddInObject>(L"CorvaneMSOfficePowerPoint.Connect", L"");
    EXPECT_TRUE(Tells(L"", [&] {
        EXPECT_EQ(m_connect->OnConnection(&session->Application(), kStartUp, entry.Get(), nullptr), S_OK);
    }));
    Disconnect();
}

TEST_F(ConnectTest, AnswersCallbacksThatNoControlNames)
{
    for (const auto callback : {&_Connect::GetLabel, &_Connect::GetScreentip, &_Connect::GetSupertip}) {
        Bstr text{L"?"};
        EXPECT_EQ(((*m_connect.Get()).*callback)(nullptr, text.Put()), S_OK);
        EXPECT_NE(text.Get(), nullptr);
        EXPECT_EQ(text.Text(), L"");
    }
}

} // namespace
