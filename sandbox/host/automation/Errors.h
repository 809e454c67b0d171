// What host objects report to their callers: the platform's errors in the words of the host.
#pragma once

#include "base/Text.h"
#include "platform/Error.h"

#include <windows.h>

namespace host
{

using corvane::Error;

// PowerPoint's number for a request that its state does not allow.
constexpr HRESULT kInvalidRequest = static_cast<HRESULT>(0x80048240L);

// Throws Error with these words when the result is a failure.
inline void ThrowIfFailed(HRESULT result, const wchar_t* what)
{
    if (FAILED(result)) throw Error{result, {}, what};
}

// What an exception of any kind says.
[[nodiscard]] inline std::wstring ReasonOf(const std::exception& exception)
{
    const auto* error = dynamic_cast<const Error*>(&exception);
    return error != nullptr ? error->Description() : Widen(exception.what());
}

} // namespace host
