#pragma once

#include <stdexcept>
#include <string>

#include <windows.h>

namespace host
{

// What a host object reports to its caller: an error number with a source and a description.
class AutomationError : public std::exception
{
public:
    explicit AutomationError(HRESULT number, std::wstring description = {})
        : m_number{number}, m_description{std::move(description)}
    {
    }

    [[nodiscard]] HRESULT Number() const noexcept { return m_number; }
    [[nodiscard]] const std::wstring& Description() const noexcept { return m_description; }
    [[nodiscard]] const char* what() const noexcept override { return "automation error"; }

private:
    HRESULT m_number;
    std::wstring m_description;
};

// PowerPoint's number for a request that its state does not allow.
constexpr HRESULT kInvalidRequest = static_cast<HRESULT>(0x80048240L);

inline void ThrowIfFailed(HRESULT result, const wchar_t* what)
{
    if (FAILED(result)) throw AutomationError{result, what};
}

} // namespace host
