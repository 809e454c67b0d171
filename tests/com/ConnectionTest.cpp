#include "AddInLibrary.h"
#include "FakeHost.h"
#include "MessageBox.h"

namespace
{

constexpr LONG kAfterStartup = 0;
constexpr LONG kStartup = 1;
constexpr DISPID kWindowActivate = 2009;

class Connection : public AddInLibrary
{
protected:
    void SetUp() override
    {
        AddInLibrary::SetUp();
        m_connect = Loaded().Create<IDTExtensibility2>(CLSID_Connect);
        ASSERT_NE(m_connect, nullptr);
    }
    void TearDown() override
    {
        EXPECT_EQ(m_connect->Release(), 0U);
        EXPECT_EQ(m_instance.References(), 0U);
        AddInLibrary::TearDown();
    }

    void ConnectTo(FakePowerPoint& host, LONG mode) { m_connect->OnConnection(&host, mode, &m_instance, nullptr); }
    void Disconnect() { EXPECT_EQ(m_connect->OnDisconnection(0, nullptr), S_OK); }
    // Calls the ribbon's callback for a control with this id.
    void Press(const wchar_t* id) const
    {
        FakeObject control{{{L"Id", id}}};
        EXPECT_EQ(PressControl(*m_connect, control), S_OK);
    }
    std::wstring Ribbon() const { return RibbonOf(*m_connect); }

    IDTExtensibility2* m_connect = nullptr;
    FakeObject m_instance{{{L"ProgId", L"CorvaneMSOfficePowerPoint.Connect"}, {L"Guid", L"{}"}}};
};

TEST_F(Connection, AtStartUpHoldsTheHostAndLetsItGoAtDisconnection)
{
    FakePowerPoint host{L"16.0"};
    ConnectTo(host, kStartup);
    EXPECT_TRUE(host.HasListener());
    EXPECT_NE(Ribbon().find(L"TabSaveToCorvane"), std::wstring::npos);

    FakeObject window{{{L"Caption", L"Presentation1"}}};
    EXPECT_EQ(host.Raise(kWindowActivate, &window), S_OK);
    EXPECT_EQ(window.References(), 0U);

    Disconnect();
    EXPECT_FALSE(host.HasListener());
    EXPECT_EQ(host.References(), 0U);
}

TEST_F(Connection, AfterStartUpKeepsNothingAndOffersNoRibbon)
{
    FakePowerPoint host{L"16.0"};
    ConnectTo(host, kAfterStartup);
    EXPECT_FALSE(host.HasListener());
    EXPECT_EQ(host.References(), 0U);

    const MessageBoxAnswer box{L"ERROR\r\nNumber: 91\r\n"};
    EXPECT_EQ(Ribbon(), L"");
    EXPECT_TRUE(box.Appeared()) << "the missing commands are reported";
    Disconnect();
}

TEST_F(Connection, CallbacksBeforeAConnectionAndAfterItsEndAreNotServed)
{
    {
        const MessageBoxAnswer box{L"ERROR\r\nNumber: 91\r\n"};
        EXPECT_EQ(Ribbon(), L"");
        EXPECT_TRUE(box.Appeared());
    }
    FakePowerPoint host{L"16.0"};
    ConnectTo(host, kStartup);
    auto* const other = Loaded().Create<IDTExtensibility2>(CLSID_Connect);
    EXPECT_EQ(other->OnDisconnection(0, nullptr), S_OK); // of what never was
    other->Release();
    EXPECT_NE(Ribbon(), L"");
    Disconnect();
    const MessageBoxAnswer box{L"ERROR\r\nNumber: 91\r\n"};
    EXPECT_EQ(Ribbon(), L"");
    EXPECT_TRUE(box.Appeared());
    EXPECT_EQ(host.References(), 0U);
}

TEST_F(Connection, ASecondConnectionReplacesTheFirst)
{
    FakePowerPoint first{L"16.0"};
    FakePowerPoint second{L"12.0"};
    ConnectTo(first, kStartup);
    ConnectTo(second, kStartup);
    EXPECT_FALSE(first.HasListener());
    EXPECT_EQ(first.References(), 0U);
    EXPECT_NE(Ribbon().find(L"officeMenu"), std::wstring::npos);
    Disconnect();
    EXPECT_EQ(second.References(), 0U);
    Disconnect(); // once too often is no error
}

TEST_F(Connection, WhereTheMenusCannotBeRemovedEverythingIsLetGoAllTheSame)
{
    FakePowerPoint host{L"11.0"}; // it has no command bars
    {
        const MessageBoxAnswer box{L"ERROR\r\nNumber: "};
        ConnectTo(host, kStartup);
        EXPECT_TRUE(box.Appeared());
    }
    const MessageBoxAnswer box{L"ERROR\r\nNumber: "};
    Disconnect();
    EXPECT_TRUE(box.Appeared());
    EXPECT_FALSE(host.HasListener());
    EXPECT_EQ(host.References(), 0U);
}

TEST_F(Connection, AFormKeepsTheOtherWindowsOutOfUseAndEndsItsCommandWhenTheHostTakesItAway)
{
    static HWND owner;
    static HWND other;
    static bool otherWasInUse;
    const auto window = [] {
        return ::CreateWindowW(L"STATIC", L"", WS_POPUP | WS_VISIBLE, 0, 0, 9, 9, nullptr, nullptr, nullptr, nullptr);
    };
    other = window();
    owner = window();
    ::SetActiveWindow(owner);
    FakePowerPoint host{L"16.0"};
    ConnectTo(host, kStartup);
    struct Timer
    {
        static void CALLBACK Look(HWND, UINT, UINT_PTR timer, DWORD)
        {
            if (!::IsWindowVisible(::FindWindowW(L"frmAbout", nullptr))) return;
            otherWasInUse = ::IsWindowEnabled(other) != FALSE;
            ::KillTimer(nullptr, timer);
            ::DestroyWindow(owner);
        }
    };
    ::SetTimer(nullptr, 0, 20, &Timer::Look);
    Press(L"AboutCorvaneOffice");
    EXPECT_FALSE(otherWasInUse);
    EXPECT_TRUE(::IsWindowEnabled(other));
    EXPECT_EQ(::FindWindowW(L"frmAbout", nullptr), nullptr);
    ::DestroyWindow(other);
    Disconnect();
    EXPECT_EQ(host.References(), 0U);
}

TEST_F(Connection, AHostThatIsNoPowerPointIsReported)
{
    FakeObject other{{{L"Name", L"Other"}, {L"Version", L"16.0"}, {L"Build", L"1"}}};
    const MessageBoxAnswer box{L"ERROR\r\nNumber: "};
    EXPECT_EQ(m_connect->OnConnection(&other, kStartup, &m_instance, nullptr), S_OK);
    EXPECT_TRUE(box.Appeared());
    Disconnect();
    EXPECT_EQ(other.References(), 0U);
}

} // namespace
