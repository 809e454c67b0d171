// What the program is asked to do.
#pragma once

#include <chrono>
#include <optional>
#include <span>
#include <string>

namespace diagnose
{

struct Options
{
    std::wstring server; // empty for the one that the add-in offers first
    std::chrono::seconds limit{20};
    bool switchesOn = false;
    bool asJson = false;
    bool toDesktop = false;
    std::wstring archive;               // empty for none
    std::optional<int> oldestTraceDays; // removes older trace files, and does nothing else
};

inline constexpr const wchar_t* kUsage = L"usage: corvane-diagnose [--server URL] [--timeout SECONDS] [--switch-on] "
                                         L"[--json] [--out FILE.zip | --desktop]\r\n"
                                         L"       corvane-diagnose --remove-traces DAYS\r\n";

// The options that these arguments (without the program's name) stand for; nothing for arguments that are not
// understood, or do not go together.
[[nodiscard]] std::optional<Options> ReadOptions(std::span<const std::wstring> arguments);

} // namespace diagnose
