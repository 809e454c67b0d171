// Requests whose owners are gone before their answers. On Windows such a request is aborted. Wine cannot bear that: it
// gives the connection of an aborted request to the next one, which then reads the late answer of the other. There they
// go on without their owners until they come to an end.
#pragma once

#include "platform/Owners.h"

#include <msxml2.h>

namespace corvane
{

// Takes over a request under way that nobody waits for.
void LetGoOf(ComPtr<IXMLHTTPRequest> request) noexcept;

// Ends the requests that go on.
void AbortOwnerless() noexcept;

} // namespace corvane
