// A JSON object as text.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace diagnose
{

// Is written member by member, in order. Names are taken as they stand, texts are escaped.
class JsonObject
{
public:
    JsonObject& Text(const wchar_t* name, std::wstring_view text);
    JsonObject& Number(const wchar_t* name, std::int64_t number);
    JsonObject& Flag(const wchar_t* name, bool flag);
    JsonObject& Object(const wchar_t* name, const JsonObject& object);
    JsonObject& Texts(const wchar_t* name, const std::vector<std::wstring>& texts);
    JsonObject& Objects(const wchar_t* name, const std::vector<JsonObject>& objects);

    [[nodiscard]] std::wstring Written() const { return L"{" + m_members + L"}"; }

private:
    JsonObject& Add(const wchar_t* name, std::wstring_view value);

    std::wstring m_members;
};

} // namespace diagnose
