#pragma once

#include <stdexcept>
#include <string>

#include <windows.h>

#include "automation/Text.h"

namespace host
{

// What a host object reports to its caller: an error number with a source and a description.
class AutomationError : public std::exception
{
public:
    explicit AutomationError(HRESULT number, std::wstring description = {})
        : m_number{number}, m_description{std::move(description)}, m_text{Narrow(m_description)}
    {}

    [[nodiscard]] HRESULT Number() const noexcept { return m_number; }
    [[nodiscard]] const std::wstring& Description() const noexcept { return m_description; }
    [[nodiscard]] const char* what() const noexcept override { return m_text.c_str(); }

private:
    HRESULT m_number;
    std::wstring m_description;
    std::string m_text;
};

// PowerPoint's number for a request that its state does not allow.
constexpr HRESULT kInvalidRequest = static_cast<HRESULT>(0x80048240L);

inline void ThrowIfFailed(HRESULT result, const wchar_t* what)
{
    if (FAILED(result)) throw AutomationError{result, what};
}

} // namespace host
