#pragma once

#include "core/Service.h"

#include <string>
#include <string_view>

namespace server
{

// HTML pages without any outside reference. All texts are escaped.
[[nodiscard]] std::string IndexPage(Service& service);
[[nodiscard]] std::string TargetPage(const Place& place, TargetKind kind);
[[nodiscard]] std::string NotFoundPage();

[[nodiscard]] std::string EscapeHtml(std::string_view text);

// Target of the link that shows a deliverable, activity, gate document or related document.
[[nodiscard]] std::string PageLink(TargetKind kind, int projectId, int targetId);

} // namespace server
