#include "support/TraceText.h"

#include <algorithm>
#include <array>
#include <cwchar>

namespace corvane
{
namespace
{

// The six numbers of a time, from the year on, in a format of the C library.
std::wstring Formatted(const wchar_t* format, const LocalTime& time)
{
    std::array<wchar_t, 80> text{};
    const int length = std::swprintf(text.data(), text.size(), format, time.year, time.month, time.day, time.hour,
                                     time.minute, time.second);
    return {text.data(), static_cast<std::size_t>(length)};
}

} // namespace

std::wstring TraceFileName(std::wstring_view application, const LocalTime& time)
{
    return std::wstring{application} + Formatted(L"_%d_%d_%d__%d_%d_%d.log", time);
}

bool IsTraceFileName(std::wstring_view application, std::wstring_view name)
{
    constexpr std::wstring_view kShape = L"_0_0_0__0_0_0.log"; // a 0 for each number
    if (!name.starts_with(application)) return false;
    name.remove_prefix(application.size());
    for (const wchar_t part : kShape) {
        const std::size_t digits = std::min(name.find_first_not_of(L"0123456789"), name.size());
        if (part == L'0' ? digits == 0 : !name.starts_with(part)) return false;
        name.remove_prefix(part == L'0' ? digits : 1);
    }
    return name.empty();
}

std::wstring SortableTime(const LocalTime& time) { return Formatted(L"%04d-%02d-%02d %02d:%02d:%02d", time); }

std::wstring TraceTabs(std::int32_t level)
{
    return level < 0 ? L"" : std::wstring(static_cast<std::size_t>(level) + 1, L'\t');
}

std::wstring TraceLine(const LocalTime& time, std::int32_t level, std::int32_t extraIndent, std::wstring_view text)
{
    const std::wstring extra(static_cast<std::size_t>(std::max(extraIndent, 0)), L'\t');
    return SortableTime(time) + L"\t" + extra + TraceTabs(level) + std::wstring{text};
}

std::wstring TraceErrorBlock(std::int32_t number, std::wstring_view description, std::wstring_view source)
{
    std::wstring block = L"ERROR HAS OCCURED\r\n\r\n";
    block.append(L"\tNumber = ").append(std::to_wstring(number)).append(L"\r\n");
    block.append(L"\tDescription = ").append(description).append(L"\r\n");
    block.append(L"\tSource = ").append(source).append(L"\r\n");
    return block;
}

} // namespace corvane
