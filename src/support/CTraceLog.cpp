#include "support/CTraceLog.h"

#include "platform/CodePage.h"
#include "platform/Files.h"
#include "platform/Procedure.h"
#include "support/ServerRules.h"
#include "support/TraceText.h"

namespace corvane
{
namespace
{

LocalTime Now() noexcept
{
    SYSTEMTIME now{};
    ::GetLocalTime(&now);
    return {now.wYear, now.wMonth, now.wDay, now.wHour, now.wMinute, now.wSecond};
}

} // namespace

std::unique_ptr<CTraceLog> g_oTraceLog;

CTraceLog::CTraceLog(const Settings& settings) noexcept : m_enabled{settings.traceEnabled}
{
    if (m_enabled) Ignoring([this] { Open(); });
}

void CTraceLog::Open()
{
    std::wstring folder = ApplicationDataFolder();
    for (const wchar_t* name : kTraceFolders)
        ::CreateDirectoryW((folder += name).c_str(), nullptr);
    const HANDLE file =
        ::CreateFileW((folder + L"\\" + TraceFileName(kTraceApplication, Now())).c_str(), GENERIC_WRITE,
                      FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr, CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (file != INVALID_HANDLE_VALUE) m_file = UniqueFile{file};
}

void CTraceLog::WriteLine(std::wstring_view text, std::int32_t extraIndent) noexcept
{
    if (!m_enabled) return;
    Ignoring([&] {
        const std::string line =
            ToCodePage(TraceLine(Now(), m_level, extraIndent, WithoutCredentialsInText(text)) + L"\r\n");
        DWORD written = 0;
        if (m_file) ::WriteFile(m_file.Get(), line.data(), static_cast<DWORD>(line.size()), &written, nullptr);
    });
}

void CTraceLog::WriteError(const Error& error) noexcept
{
    if (!m_enabled) return;
    Ignoring([&] { WriteLine(TraceErrorBlock(error.Number(), error.Description(), error.Source())); });
}

void CTraceLog::WriteEventStart(std::wstring_view procedure) noexcept
{
    if (m_enabled) Ignoring([&] { WriteLine(L"--> " + std::wstring{procedure}); });
    ++m_level;
}

void CTraceLog::WriteEventEnd(std::wstring_view procedure) noexcept
{
    --m_level;
    if (!m_enabled) return;
    Ignoring([&] { WriteLine(L"<-- " + std::wstring{procedure}); });
    WriteLine({});
}

std::wstring CTraceLog::GetTabs() const { return TraceTabs(m_level); }

void CTraceLog::WriteVariable(std::wstring_view name, std::wstring_view value) noexcept
{
    if (!m_enabled) return;
    Ignoring([&] { WriteLine(std::wstring{name} + L" = " + std::wstring{value}); });
}

void TraceVariable(std::wstring_view name, std::wstring_view value) noexcept
{
    if (g_oTraceLog != nullptr) g_oTraceLog->WriteVariable(name, value);
}

void TraceText(std::wstring_view text) noexcept
{
    if (g_oTraceLog != nullptr) g_oTraceLog->WriteLine(text);
}

} // namespace corvane
