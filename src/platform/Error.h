// The one exception of the add-in: what Automation calls an error.
#pragma once

#include <cstdint>
#include <exception>
#include <memory>
#include <string>
#include <utility>

namespace corvane
{

// Run-time error numbers as Automation clients know them.
inline constexpr std::int32_t kErrorOverflow = 6;
inline constexpr std::int32_t kErrorSubscriptOutOfRange = 9;
inline constexpr std::int32_t kErrorTypeMismatch = 13;
inline constexpr std::int32_t kErrorInvalidUseOfNull = 94;

// An error with its number, the procedure that raised it and the text shown to the user. Its copies share the texts: an
// error is copied where nothing may fail, also when memory is out.
class Error : public std::exception
{
public:
    Error(std::int32_t number, std::wstring source, std::wstring description)
        : m_number{number}, m_texts{std::make_shared<const Texts>(std::move(source), std::move(description))}
    {}

    [[nodiscard]] std::int32_t Number() const noexcept { return m_number; }
    [[nodiscard]] const std::wstring& Source() const noexcept { return m_texts->first; }
    [[nodiscard]] const std::wstring& Description() const noexcept { return m_texts->second; }
    [[nodiscard]] const char* what() const noexcept override { return "corvane::Error"; }

private:
    using Texts = std::pair<std::wstring, std::wstring>;

    std::int32_t m_number;
    std::shared_ptr<const Texts> m_texts;
};

// What Automation says of an object that is used without being there.
inline Error ObjectNotSet(std::wstring source)
{
    constexpr std::int32_t kNumber = 91;
    return {kNumber, std::move(source), L"Object variable or With block variable not set"};
}

// The number a script sees for an HRESULT: its low 16 bits in the facility of Automation errors (0x800A), else itself.
[[nodiscard]] constexpr std::int32_t ErrorNumberOf(std::int32_t result) noexcept
{
    const auto bits = static_cast<std::uint32_t>(result);
    return (bits >> 16U) == 0x800AU ? static_cast<std::int32_t>(bits & 0xFFFFU) : result;
}

} // namespace corvane
