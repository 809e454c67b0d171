#include "support/Settings.h"

namespace corvane
{

Settings Settings::Under(const SettingsPolicy& policy) const noexcept
{
    Settings decided = *this;
    if (policy.trace) decided.traceEnabled = *policy.trace != 0;
    if (policy.requestTimeout.value_or(-1) >= 0) decided.requestTimeout = std::chrono::seconds{*policy.requestTimeout};
    return decided;
}

} // namespace corvane
