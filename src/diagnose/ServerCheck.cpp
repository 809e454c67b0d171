#include "diagnose/ServerCheck.h"

#include "platform/Owners.h"
#include "platform/SystemLibrary.h"
#include "support/ServerList.h"
#include "support/ServerRules.h"
#include "webservice/AnswerRules.h"
#include "webservice/Operations.h"
#include "webservice/RequestText.h"
#include "webservice/RequestTrace.h"

#include <wininet.h>

#include <algorithm>
#include <array>

namespace diagnose
{
namespace
{

// The system's functions of that name; a library that the program links would be looked for beside it first.
struct Internet
{
    decltype(&::InternetOpenW) open = Named("InternetOpenW");
    decltype(&::InternetOpenUrlW) openUrl = Named("InternetOpenUrlW");
    decltype(&::InternetReadFile) readFile = Named("InternetReadFile");
    decltype(&::InternetSetOptionW) setOption = Named("InternetSetOptionW");
    decltype(&::InternetCloseHandle) closeHandle = Named("InternetCloseHandle");
    decltype(&::HttpQueryInfoW) queryInfo = Named("HttpQueryInfoW");

    static corvane::SystemFunction Named(const char* name) { return {L"wininet.dll", name}; }
};

const Internet& WinInet()
{
    static const Internet functions;
    return functions;
}

void Close(HINTERNET handle) noexcept { WinInet().closeHandle(handle); }
using UniqueInternet = corvane::Unique<HINTERNET, Close>;

struct Meaning
{
    DWORD code;
    const wchar_t* text;
};

constexpr Meaning kStatuses[] = {
    {401, L"it wants a sign-in that Windows did not give"},
    {403, L"it refuses this user, or wants https"},
    {404, L"there is no Corvane at this address"},
    {407, L"the proxy wants a sign-in"},
};

std::wstring MeaningOfStatus(DWORD status)
{
    const auto* const found = std::ranges::find(kStatuses, status, &Meaning::code);
    return found == std::end(kStatuses) ? std::wstring{} : std::wstring{L", "} + found->text;
}

std::wstring LastError()
{
    const DWORD code = ::GetLastError();
    const auto [meaning, remedy] = corvane::MeaningOfTransport(static_cast<long>(code));
    std::wstring text = L"error " + std::to_wstring(code);
    if (*meaning != L'\0') text.append(L", ").append(meaning).append(L". ").append(remedy);
    return text;
}

DWORD StatusOf(const UniqueInternet& answer)
{
    DWORD status = 0;
    DWORD size = sizeof status;
    WinInet().queryInfo(answer.Get(), HTTP_QUERY_STATUS_CODE | HTTP_QUERY_FLAG_NUMBER, &status, &size, nullptr);
    return status;
}

// The answer's first bytes, letter by letter; enough to see what it is.
std::wstring BeginningOf(const UniqueInternet& answer)
{
    std::array<char, 4096> bytes{};
    DWORD length = 0;
    WinInet().readFile(answer.Get(), bytes.data(), static_cast<DWORD>(bytes.size()), &length);
    return {bytes.begin(), bytes.begin() + length};
}

void Judge(const UniqueInternet& answer, ServerAnswer& result)
{
    const DWORD status = StatusOf(answer);
    result.status = static_cast<int>(status);
    result.outcome = L"HTTP " + std::to_wstring(status) + MeaningOfStatus(status);
    if (status != HTTP_STATUS_OK) return;
    const std::wstring text = BeginningOf(answer);
    // The answer to this question is a number.
    result.good = !text.empty() && text.find_first_not_of(L"0123456789 \r\n") == std::wstring::npos;
    if (result.good)
        result.outcome += L", answered";
    else if (corvane::IsErrorDocument(text))
        result.outcome += L", it reports an error of its own";
    else
        result.outcome += L", but the answer is not Corvane's";
}

UniqueInternet OpenSession(std::chrono::seconds limit)
{
    UniqueInternet session{WinInet().open(L"corvane-diagnose", INTERNET_OPEN_TYPE_PRECONFIG, nullptr, nullptr, 0)};
    auto milliseconds = static_cast<DWORD>(std::chrono::milliseconds{limit}.count());
    for (const DWORD option : {DWORD{INTERNET_OPTION_CONNECT_TIMEOUT}, DWORD{INTERNET_OPTION_RECEIVE_TIMEOUT}})
        WinInet().setOption(session.Get(), option, &milliseconds, sizeof milliseconds);
    return session;
}

} // namespace

ServerAnswer AskServer(const std::wstring& server, std::chrono::seconds limit)
{
    const std::wstring address = corvane::VerifyServerURL(server);
    ServerAnswer result{.server = corvane::WithoutCredentials(address), .outcome = {}, .status = 0, .good = false};
    const std::wstring question = corvane::Endpoint(address, corvane::kServicePage) + L"?" +
                                  corvane::RequestQuery(corvane::Operations::kGetUserId.name, {});
    const UniqueInternet session = OpenSession(limit);
    constexpr DWORD kFlags = INTERNET_FLAG_RELOAD | INTERNET_FLAG_NO_CACHE_WRITE | INTERNET_FLAG_NO_UI;
    const UniqueInternet answer{WinInet().openUrl(session.Get(), question.c_str(), nullptr, 0, kFlags, 0)};
    if (answer)
        Judge(answer, result);
    else
        result.outcome = LastError();
    return result;
}

} // namespace diagnose
