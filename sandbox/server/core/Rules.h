// Who may record a new version of what.
#pragma once

#include "core/Catalogue.h"
#include "core/ServiceError.h"

#include <optional>

namespace server
{

// Why a user may not record a new version, nothing when it may. All look at the state the recording meets, whatever the
// client was shown before.
[[nodiscard]] std::optional<ErrorNumber> RefuseAssignment(const Place& place, const User& user);
[[nodiscard]] std::optional<ErrorNumber> RefuseGateDocument(const Place& place, const User& user);
[[nodiscard]] std::optional<ErrorNumber> RefuseRelatedFile(const Project& project, const User& user);

[[nodiscard]] const char* Describe(ErrorNumber number);

[[nodiscard]] bool MayActInWorkflow(const Assignment& assignment, const User& user);
[[nodiscard]] bool MayUpdate(const GateDocument& document, const User& user);
[[nodiscard]] bool MayManage(const Project& project, const User& user);
[[nodiscard]] bool MayUploadRelatedFiles(const User& user);

} // namespace server
