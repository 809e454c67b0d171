// The pages that links of notifications lead to.
#pragma once

#include "core/Answers.h"
#include "core/Service.h"

#include <string>

namespace server
{

// HTML pages without any outside reference; the last one with its status.
[[nodiscard]] Answer IndexPage(Service& service);
[[nodiscard]] Answer TargetPage(const Place& place, TargetKind kind);
[[nodiscard]] Answer NotFoundPage();

// Target of the link that shows a deliverable, activity, gate document or related document.
[[nodiscard]] std::string PageLink(TargetKind kind, int projectId, int targetId);

} // namespace server
