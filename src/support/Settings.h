// The settings file that an administrator may lay beside the add-in.
#pragma once

#include <chrono>
#include <optional>
#include <string>

namespace corvane
{

// What "settings.config" switches. A missing, unreadable or malformed file leaves every default.
struct Settings
{
    bool traceEnabled = false;                            // setting "EnableTraceLogs"
    std::chrono::seconds requestTimeout{kDefaultTimeout}; // setting "RequestTimeoutSeconds"; 0 for none

    static constexpr int kDefaultTimeout = 300;

    // Reads the file in the add-in's folder. Never throws.
    [[nodiscard]] static Settings Read() noexcept;
};

} // namespace corvane
