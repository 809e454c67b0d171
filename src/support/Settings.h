// The settings of one installation: the file beside the add-in, and the administrators' policy above it.
#pragma once

#include <chrono>
#include <cstdint>
#include <optional>
#include <string>

namespace corvane
{

// Policy values that decide about settings; an absent one leaves the decision to the file.
struct SettingsPolicy
{
    std::optional<std::int32_t> trace{};          // 0 off, anything else on
    std::optional<std::int32_t> requestTimeout{}; // seconds, 0 for none; a negative number decides nothing
};

// What "settings.config" switches. A missing, unreadable or malformed file leaves every default.
struct Settings
{
    bool traceEnabled = false;                            // setting "EnableTraceLogs"
    std::chrono::seconds requestTimeout{kDefaultTimeout}; // setting "RequestTimeoutSeconds"; 0 for none

    static constexpr int kDefaultTimeout = 300;

    // Reads the file in the add-in's folder and the policy. Never throws.
    [[nodiscard]] static Settings Read() noexcept;
    // The same for the add-in in this folder.
    [[nodiscard]] static Settings ReadFrom(const std::wstring& folder) noexcept;

    // These settings with the policy's decisions in their place.
    [[nodiscard]] Settings Under(const SettingsPolicy& policy) const noexcept
    {
        Settings decided = *this;
        if (policy.trace) decided.traceEnabled = *policy.trace != 0;
        if (policy.requestTimeout.value_or(-1) >= 0)
            decided.requestTimeout = std::chrono::seconds{*policy.requestTimeout};
        return decided;
    }
};

} // namespace corvane
