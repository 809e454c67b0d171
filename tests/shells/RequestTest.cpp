// Requests whose transport fails in ways that only real Windows shows, and waits that end early.
#include "FakeRequest.h"
#include "OfferedClass.h"
#include "automation/OfferedClass.h"
#include "objects/Companions.h"

#include "platform/Files.h"
#include "platform/LateBound.h"
#include "platform/MessageLoop.h"
#include "platform/OwnerlessRequests.h"
#include "platform/Procedure.h"
#include "webservice/AnswerRules.h"
#include "webservice/Exchange.h"
#include "webservice/Transfer.h"
#include "webservice/WebService.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <optional>
#include <set>

#include <windows.h>

#include <wininet.h>

using namespace corvane;
using namespace std::chrono_literals;

namespace
{

constexpr CLSID kXmlHttp6 = {0x88D96A0A, 0xF192, 0x11D4, {0xA6, 0x5F, 0x00, 0x40, 0x96, 0x32, 0x51, 0xE5}};

// The copies of files that were in the temporary folder at some tick.
std::set<std::filesystem::path> g_copies;

void CALLBACK NoteCopies(HWND, UINT, UINT_PTR, DWORD)
{
    for (const auto& entry : std::filesystem::directory_iterator{TemporaryFolder()})
        if (entry.path().extension() == L".tmp") g_copies.insert(entry.path());
}

class Request : public testing::Test
{
protected:
    Request() { SetRequestTimeout(20s); }
    ~Request() override
    {
        SetRequestTimeout(0s);
        AbortOwnerless();
        EXPECT_EQ(m_transport.references, 0U);
    }

    // Sends a query and tells how it failed; number 0 when it did not.
    static Error Query(const Operation& operation = Operations::kGetUserId)
    {
        return Catch([&] { static_cast<void>(QueryText(L"http://h", operation, Parameters{})); })
            .value_or(Error{0, L"", L""});
    }
    static void ExpectSendError()
    {
        const Error error = Query();
        EXPECT_EQ(error.Number(), kTransportError);
        EXPECT_EQ(error.Description(), L"Unable to contact server http://h.");
    }

    Apartment m_apartment;
    FakeRequest m_transport;
    std::optional<OfferedClass> m_class{std::in_place, kXmlHttp3, m_transport.Creator()};
};

TEST_F(Request, AStatusThatIsNoneOfHttpOrCannotBeReadIsAFailureToSend)
{
    for (const long status : {0L, 99L, 600L, 12002L, 12007L, 12029L, 12030L, 12152L}) {
        SCOPED_TRACE(status);
        m_transport.status = status;
        ExpectSendError();
    }
    m_transport.status = 1223; // what the component makes of "no content"
    EXPECT_EQ(Query().Number(), 204);
    m_transport.statusResult = E_FAIL;
    ExpectSendError();
}

TEST_F(Request, KnowsHowItEnded)
{
    const auto facts = [] {
        HttpRequest request;
        request.Open(L"POST", L"http://server");
        request.Send(L"P1=\x00E9");
        static_cast<void>(Catch([&] { request.Wait(std::chrono::milliseconds{1}); }));
        return request.Facts();
    };
    m_transport.status = 12007;
    EXPECT_EQ(facts().end, RequestEnd::TransportFailed);
    EXPECT_EQ(facts().status, 12007);
    EXPECT_EQ(facts().sent, 5U) << "in UTF-8";
    m_transport.readyState = 1;
    EXPECT_EQ(facts().end, RequestEnd::TimedOut);
}

TEST_F(Request, AnAnswerShorterThanItSaysIsAFailureToSendUnlessItWasEncoded)
{
    m_transport.headers = {{L"Content-Length", L"5"}};
    ExpectSendError();
    for (const auto& encoded :
         {std::pair{L"Content-Encoding", L"gzip"}, std::pair{L"Vary", L"cookie, accept-encoding"}}) {
        m_transport.headers = {{L"Content-Length", L"5"}, encoded};
        EXPECT_EQ(Query().Number(), 0) << encoded.first;
    }
}

TEST_F(Request, AnAnswerOfMoreThan64MiBIsAFailureToSendAsSoonAsTheComponentTellsItsLength)
{
    m_transport.bytes.resize(67108864);
    EXPECT_EQ(Query().Number(), 0);
    m_transport.bytes.push_back('b');
    ExpectSendError();
    m_transport.readyState = 3;
    m_transport.headers = {{L"Content-Length", L"67108865"}};
    const ULONGLONG start = ::GetTickCount64();
    ExpectSendError();
    EXPECT_LT(::GetTickCount64() - start, 10000U) << "it was waited for";
}

TEST_F(Request, TellsItsTimeInLettersThatAHeaderCanCarry)
{
    wchar_t format[80] = L"";
    ::GetLocaleInfoW(LOCALE_USER_DEFAULT, LOCALE_SSHORTDATE, format, 80);
    ::SetLocaleInfoW(LOCALE_USER_DEFAULT, LOCALE_SSHORTDATE, L"yyyy/MM/dd\x200F");
    EXPECT_EQ(Query(Operations::kIsProjectTeamMember).Number(), 0);
    ::SetLocaleInfoW(LOCALE_USER_DEFAULT, LOCALE_SSHORTDATE, format);
    EXPECT_EQ(m_transport.lastCached.find(L'/'), 2U) << m_transport.lastCached;
}

TEST_F(Request, OnlyPostsAndUploadsCarryHeadersAndTheAccessIsLoggedOnce)
{
    SetAccessLogged(false);
    const TemporaryFile file{L"bin"};
    WriteFile(file.Path(), std::vector<std::byte>(1, std::byte{7}));
    ExecuteASPWSUploadFile(L"http://h", file.Path(), L"n.bin");
    EXPECT_EQ(Query(Operations::kIsProjectTeamMember).Number(), 0);
    const std::wstring pages = L" http://h/WebServices/";
    EXPECT_EQ(m_transport.asked,
              (std::vector{L"POST" + pages + L"offi.asp?Op=UPDATEUSERACCESSLOG&P1=v6",
                           L"GET" + pages + L"offi.asp?Op=MaxFileUploadSize&P1=v6&P2=MaxFileUploadSize",
                           L"POST" + pages + L"UploadToTransfer.ashx Content-Type CharSet",
                           L"POST" + pages + L"offi.asp lastCached Content-Type|Op=IsProjectTeamMember&P1=v6"}));
    SetAccessLogged(false);
    m_transport.refusesDocuments = true; // of which the log sends an empty one
    EXPECT_EQ(Query().Number(), 0);
}

TEST_F(Request, TheSiblingLearnsOfTheAccessAndThatAServerTookItBack)
{
    const ComPtr<IDispatch> object{host::MakeObject<host::LoginObject>(false)};
    const host::OfferedClass sibling{kXmlHttp6, L"CorvaneMSOfficeExcel.CLogin", [&] { return object; }};
    SetAccessLogged(false);
    EXPECT_EQ(Query().Number(), 0);
    EXPECT_NE(LateBound{object}.Number(L"IsLoggedIn"), 0);
    SetAccessLogged(false);
    m_transport.onSend = [] { SetAccessLogged(true); }; // another request, in the wait for this one
    m_transport.status = 424;
    EXPECT_EQ(Query().Source(), L"UpdateUserLog");
    EXPECT_TRUE(AccessLogPending());
}

TEST_F(Request, NoQuestionIsAnsweredByWhatTheSystemHasKept)
{
    constexpr wchar_t kUrl[] = L"http://h/WebServices/offi.asp?Op=GetUserID&P1=v6";
    const auto isKept = [&] {
        DWORD size = 0;
        return !::GetUrlCacheEntryInfoW(kUrl, nullptr, &size) && ::GetLastError() == ERROR_INSUFFICIENT_BUFFER;
    };
    wchar_t path[MAX_PATH] = L"";
    ::CreateUrlCacheEntryW(kUrl, 1, L"txt", path, 0);
    WriteFile(path, std::vector<std::byte>(1));
    ::CommitUrlCacheEntryW(kUrl, path, {}, {}, NORMAL_CACHE_ENTRY, nullptr, 0, nullptr, nullptr);
    ASSERT_TRUE(isKept());
    EXPECT_EQ(Query().Number(), 0);
    EXPECT_FALSE(isKept());
}

TEST_F(Request, OnlyAnUnspecifiedFailureToOpenOrToSetAHeaderMeansTheAddress)
{
    for (HRESULT* const result : {&m_transport.openResult, &m_transport.headerResult}) {
        *result = E_FAIL;
        EXPECT_EQ(Query(Operations::kIsProjectTeamMember).Description(), L"Invalid URL.");
        *result = E_INVALIDARG;
        EXPECT_EQ(Query(Operations::kIsProjectTeamMember).Description(), L"Unable to contact server.");
        EXPECT_EQ(Query(Operations::kIsProjectTeamMember).Number(), kTransportError);
        *result = S_OK;
    }
}

TEST_F(Request, AFileOfJustTheServersLimitIsSentWithTheTimeItsSizeNeeds)
{
    EXPECT_EQ(RequestLimit(65536), 22s);
    const TemporaryFile file{L"bin"};
    const auto send = [&](std::size_t bytes) {
        WriteFile(file.Path(), std::vector<std::byte>(bytes, std::byte{7}));
        return Catch([&] { ExecuteASPWSUploadFile(L"http://h", file.Path(), L"n.bin"); });
    };
    EXPECT_FALSE(send(12)); // the answer to the question for the limit
    EXPECT_NE(m_transport.sent.find(std::string(12, 7)), std::string::npos);
    EXPECT_TRUE(send(13));
    EXPECT_TRUE(Catch([&] { ExecuteASPWSUploadFile(L"", file.Path(), L"n.bin"); })) << "no server, no limit to ask for";
    SetRequestTimeout(0s);
    EXPECT_EQ(RequestLimit(65536), std::nullopt);
}

TEST_F(Request, AnUnfinishedFileIsReadSixTimesEachFromACopyOfItsOwnWhereItsPathNeedsOne)
{
    NoteCopies(nullptr, 0, 0, 0);
    const std::size_t before = g_copies.size();
    const TemporaryFile file{L"\x4E2D"};
    WriteFile(file.Path(), std::vector<std::byte>(12));
    const UINT_PTR timer = ::SetTimer(nullptr, 0, 100, &NoteCopies);
    EXPECT_TRUE(Catch([&] { ExecuteASPWSUploadFile(L"http://h", file.Path(), L"n.bin"); }));
    ::KillTimer(nullptr, timer);
    EXPECT_EQ(g_copies.size() - before, 5U) << "seen in the pauses between six attempts";
}

TEST_F(Request, TheTimeOutIsAFailureToSendAndTheRequestGoesOnUntilItEnds)
{
    SetRequestTimeout(50ms);
    m_transport.readyState = 2;
    ExpectSendError();
    EXPECT_EQ(m_transport.aborted, 0) << "the next request would read its late answer under some platforms";
    EXPECT_EQ(m_transport.references, 1U);
    m_transport.readyState = 4;
    EXPECT_EQ(Query().Number(), 0);
}

TEST_F(Request, OnlySoManyGoOnAndNoneBeyondTheDisconnection)
{
    SetRequestTimeout(1ms);
    m_transport.readyState = 2;
    for (int i = 0; i < 260; ++i)
        ExpectSendError();
    EXPECT_EQ(m_transport.references, 256U);
    EXPECT_EQ(m_transport.aborted, 4);
    AbortOwnerless();
    EXPECT_EQ(m_transport.aborted, 260);
}

TEST_F(Request, AQuitMessageEndsTheWaitAndIsStillThere)
{
    m_transport.readyState = 2;
    ::PostQuitMessage(7);
    ExpectSendError();
    MSG message{};
    EXPECT_FALSE(::GetMessageW(&message, nullptr, 0, 0));
    EXPECT_EQ(message.wParam, 7U);
}

TEST_F(Request, TheComponentOfVersion6ServesWhereVersion3IsMissing)
{
    m_class.reset();
    const OfferedClass missing{kXmlHttp3};
    const OfferedClass newer{kXmlHttp6, m_transport.Creator()};
    EXPECT_EQ(Query().Number(), 0);
    EXPECT_GT(newer.TimesAsked(), 0);
}

TEST(Wait, HandlesMessagesUntilTheLimit)
{
    const UINT_PTR timer = ::SetTimer(nullptr, 0, 20, nullptr);
    int asked = 0;
    EXPECT_EQ(PumpUntil([&] { return ++asked, false; }, 200ms), WaitEnd::TimedOut);
    ::KillTimer(nullptr, timer);
    EXPECT_GE(asked, 3);  // woken by the timer's messages
    EXPECT_LE(asked, 60); // and asleep between them
}

bool g_came = false;
void CALLBACK Arrive(HWND, UINT, UINT_PTR timer, DWORD) { g_came = ::KillTimer(nullptr, timer) != FALSE; }

// As another command may take.
void CALLBACK RunForLong(HWND, UINT, UINT_PTR timer, DWORD)
{
    ::SetTimer(nullptr, timer, 10, &Arrive);
    ::Sleep(600);
}

TEST(Wait, SeesWhatCameWhileAHandlerRanForLongerThanTheLimit)
{
    ::SetTimer(nullptr, 0, 10, &RunForLong);
    EXPECT_EQ(PumpUntil([] { return g_came; }, 500ms), WaitEnd::Done);
}

} // namespace
