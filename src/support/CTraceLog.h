// The add-in's diagnostic trace.
#pragma once

#include "platform/Error.h"
#include "platform/Owners.h"
#include "support/Settings.h"

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

namespace corvane
{

// Writes the entry and exit of procedures, named values, free lines and caught errors to a file of its own, when the
// settings switch tracing on; else every call costs almost nothing. No line holds the user name or password of an
// address. Nothing here throws or tells the user anything.
class CTraceLog
{
public:
    explicit CTraceLog(const Settings& settings) noexcept;

    void WriteError(const Error& error) noexcept;
    // Entry and exit of a procedure, named "Class.Procedure"; what lies between is indented one tab more.
    void WriteEventStart(std::wstring_view procedure) noexcept;
    void WriteEventEnd(std::wstring_view procedure) noexcept;
    // level + 1 tabs.
    [[nodiscard]] std::wstring GetTabs() const;
    void WriteVariable(std::wstring_view name, std::wstring_view value) noexcept;
    void WriteLine(std::wstring_view text, std::int32_t extraIndent = 0) noexcept;
    // Whether lines carry the time: always.
    [[nodiscard]] bool bTimeStamp() const noexcept { return true; }
    [[nodiscard]] bool IsEnabled() const noexcept { return m_enabled; }

private:
    void Open();

    UniqueFile m_file; // empty while tracing is off, or when the file could not be made
    bool m_enabled = false;
    std::int32_t m_level = 0;
};

// The process's trace; made first of all when the add-in connects, null before.
extern std::unique_ptr<CTraceLog> g_oTraceLog;

// Writes a named value or a line to the process's trace, if there is one.
void TraceVariable(std::wstring_view name, std::wstring_view value) noexcept;
void TraceText(std::wstring_view text) noexcept;

} // namespace corvane
