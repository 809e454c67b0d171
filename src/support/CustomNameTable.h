// The terms that a customer may rename: the default keys and the dictionary that holds their values.
#pragma once

#include <array>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace corvane
{

// A default key (also its default value) and the registry value that its cached value is read from.
struct CustomNameKey
{
    const wchar_t* key;
    const wchar_t* cachedAs;
};

// The default keys in loading order. The two gate-document keys are cached without their blank.
inline constexpr std::array kCustomNameKeys{
    CustomNameKey{L"Corvane", L"Corvane"},
    CustomNameKey{L"Deliverable", L"Deliverable"},
    CustomNameKey{L"Deliverables", L"Deliverables"},
    CustomNameKey{L"Activity", L"Activity"},
    CustomNameKey{L"Activities", L"Activities"},
    CustomNameKey{L"Stage", L"Stage"},
    CustomNameKey{L"Gate", L"Gate"},
    CustomNameKey{L"Gate Document", L"GateDocument"},
    CustomNameKey{L"Gate Documents", L"GateDocuments"},
    CustomNameKey{L"CorporateCurrencyCode", L"CorporateCurrencyCode"},
    CustomNameKey{L"CorporateCurrencyName", L"CorporateCurrencyName"},
    CustomNameKey{L"Completed", L"Completed"},
    CustomNameKey{L"In Progress", L"In Progress"},
    CustomNameKey{L"Not Started", L"Not Started"},
    CustomNameKey{L"In Trouble", L"In Trouble"},
    CustomNameKey{L"Not Required", L"Not Required"},
    CustomNameKey{L"Routed For Approval", L"Routed For Approval"},
};

// One term as the server's configuration service tells it.
struct CustomNameRow
{
    std::wstring token;
    std::wstring value;

    bool operator==(const CustomNameRow&) const = default;
};

// What is kept of the value of a term, at most 1,024 letters.
[[nodiscard]] std::wstring KeptValue(const std::wstring& value);

// What is kept of the rows that a server tells: the first 300 of those whose names have no more than 255 letters.
[[nodiscard]] std::vector<CustomNameRow> KeptRows(const std::vector<CustomNameRow>& rows);

// A dictionary of texts whose keys are compared without regard to letter case.
class CustomNameTable
{
public:
    // Replaces the value of a key, or adds the key.
    void Set(std::wstring_view key, std::wstring_view value);

    // The value of a key; an unknown key is added with an empty value, as the platform's dictionary does.
    [[nodiscard]] const std::wstring& Item(std::wstring_view key);

    // The value of a key, empty for an unknown one.
    [[nodiscard]] std::wstring Find(std::wstring_view key) const;

    [[nodiscard]] std::size_t Size() const noexcept { return m_values.size(); }

private:
    std::map<std::wstring, std::wstring> m_values; // keys in lower case
};

} // namespace corvane
