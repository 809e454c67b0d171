// The mail that tells a project team about a new version: put before the user to send, never sent from here.
#pragma once

#include "shared/NotificationTexts.h"

#include <functional>
#include <string>

namespace corvane
{

// The addresses of a project's team, each followed by "; "; empty for a project without members. Throws Error.
[[nodiscard]] std::wstring TeamRecipients(std::int32_t projectId, const std::wstring& server);

// Displays a new mail item in Outlook, the running one or a new one, addressed to the project's team. The latest
// version is added when the recipients are known. Throws Error: number 287 when Outlook declines to be automated.
void DisplayNotification(NotificationFacts facts, const std::function<void(NotificationFacts&)>& addLatestVersion);

} // namespace corvane
