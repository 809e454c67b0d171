// Requests whose transport fails in ways that only real Windows shows, and waits that end early.
#include "FakeRequest.h"
#include "OfferedClass.h"

#include "platform/Files.h"
#include "platform/MessageLoop.h"
#include "platform/Procedure.h"
#include "webservice/AnswerRules.h"
#include "webservice/Exchange.h"
#include "webservice/Transfer.h"
#include "webservice/WebService.h"

#include <gtest/gtest.h>
#include <optional>

#include <windows.h>

#include <wininet.h>

using namespace corvane;
using namespace std::chrono_literals;

namespace
{

constexpr CLSID kXmlHttp3 = {0xF5078F35, 0xC551, 0x11D3, {0x89, 0xB9, 0x00, 0x00, 0xF8, 0x1F, 0xE2, 0x21}};
constexpr CLSID kXmlHttp6 = {0x88D96A0A, 0xF192, 0x11D4, {0xA6, 0x5F, 0x00, 0x40, 0x96, 0x32, 0x51, 0xE5}};

class Request : public testing::Test
{
protected:
    Request() { SetRequestTimeout(20s); }
    ~Request() override
    {
        SetRequestTimeout(0s);
        HttpRequest::AbortOwnerless();
        EXPECT_EQ(m_transport.references, 0U);
    }

    // Sends a query and tells how it failed; number 0 when it did not.
    static Error Query()
    {
        const auto failure =
            Catch([] { static_cast<void>(QueryText(L"http://h", Operations::kGetUserId, Parameters{})); });
        return failure.value_or(Error{0, L"", L""});
    }
    static void ExpectSendError()
    {
        const Error error = Query();
        EXPECT_EQ(error.Number(), kTransportError);
        EXPECT_EQ(error.Description(), L"Unable to contact server http://h.");
    }

    Apartment m_apartment;
    FakeRequest m_transport;
    const OfferedClass::Create m_create{
        [this](REFIID id, void** object) { return m_transport.QueryInterface(id, object); }};
    std::optional<OfferedClass> m_class{std::in_place, kXmlHttp3, m_create};
};

TEST_F(Request, AStatusThatIsNoneOfHttpIsAFailureToSend)
{
    for (const long status : {0L, 99L, 600L, 12002L, 12007L, 12029L, 12030L, 12152L}) {
        SCOPED_TRACE(status);
        m_transport.status = status;
        ExpectSendError();
    }
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

TEST_F(Request, WhatTheComponentMakesOfNoContentIsAnHttpStatus)
{
    m_transport.status = 1223;
    EXPECT_EQ(Query().Number(), 204);
}

TEST_F(Request, TheAccessIsLoggedEvenWhereTheEmptyDocumentIsRefused)
{
    SetAccessLogged(false);
    m_transport.refusesDocuments = true;
    EXPECT_EQ(Query().Number(), 0);
}

TEST_F(Request, AnAnswerThatRefusesToTellItsStatusIsAFailureToSend)
{
    m_transport.statusResult = E_FAIL;
    ExpectSendError();
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

TEST_F(Request, OnlyAnUnspecifiedFailureToOpenMeansTheAddress)
{
    m_transport.openResult = E_FAIL;
    EXPECT_EQ(Query().Description(), L"Invalid URL.");
    m_transport.openResult = E_INVALIDARG;
    EXPECT_EQ(Query().Description(), L"Unable to contact server.");
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
    SetRequestTimeout(0s);
    EXPECT_EQ(RequestLimit(65536), std::nullopt);
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
    HttpRequest::AbortOwnerless();
    EXPECT_EQ(m_transport.aborted, 260);
}

TEST_F(Request, AQuitMessageEndsTheWaitAndIsStillThere)
{
    constexpr int kExitCode = 7;
    m_transport.readyState = 2;
    ::PostQuitMessage(kExitCode);
    ExpectSendError();
    MSG message{};
    EXPECT_FALSE(::GetMessageW(&message, nullptr, 0, 0));
    EXPECT_EQ(message.wParam, static_cast<WPARAM>(kExitCode));
}

TEST_F(Request, TheComponentOfVersion6ServesWhereVersion3IsMissing)
{
    m_class.reset();
    const OfferedClass missing{kXmlHttp3};
    const OfferedClass newer{kXmlHttp6, m_create};
    EXPECT_EQ(Query().Number(), 0);
    EXPECT_GT(newer.Asked(), 0);
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

TEST(Wait, SeesWhatCameWhileAHandlerRanForLongerThanTheLimit)
{
    static bool came = false;
    ::SetTimer(nullptr, 0, 10, [](HWND, UINT, UINT_PTR timer, DWORD) {
        ::KillTimer(nullptr, timer);
        ::SetTimer(nullptr, 0, 10,
                   [](HWND, UINT, UINT_PTR other, DWORD) { came = ::KillTimer(nullptr, other) != FALSE; });
        ::Sleep(600); // as another command may take
    });
    EXPECT_EQ(PumpUntil([] { return came; }, 500ms), WaitEnd::Done);
}

} // namespace
