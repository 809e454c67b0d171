// The user's mail client.
#pragma once

namespace corvane
{

// Whether the command that opens mail links belongs to Outlook. A registry that does not tell means no. Never throws.
[[nodiscard]] bool IsMailClientOutlook() noexcept;

} // namespace corvane
