#include "diagnose/JsonObject.h"

namespace diagnose
{
namespace
{

std::wstring Quoted(std::wstring_view text)
{
    constexpr std::wstring_view kDigits = L"0123456789abcdef";
    std::wstring quoted = L"\"";
    for (const wchar_t letter : text) {
        const auto code = static_cast<unsigned>(letter);
        if (letter == L'"' || letter == L'\\')
            quoted.append(L"\\").append(1, letter);
        else if (code < L' ')
            quoted.append(L"\\u00").append(1, kDigits[code >> 4U]).append(1, kDigits[code & 0xFU]);
        else
            quoted += letter;
    }
    return quoted + L'"';
}

template<class Value, class ToText>
std::wstring Listed(const std::vector<Value>& values, ToText toText)
{
    std::wstring list;
    for (const Value& value : values)
        list += (list.empty() ? L"" : L",") + toText(value);
    return L"[" + list + L"]";
}

} // namespace

JsonObject& JsonObject::Add(const wchar_t* name, std::wstring_view value)
{
    m_members.append(m_members.empty() ? L"" : L",").append(Quoted(name)).append(L":").append(value);
    return *this;
}

JsonObject& JsonObject::Text(const wchar_t* name, std::wstring_view text) { return Add(name, Quoted(text)); }

JsonObject& JsonObject::Number(const wchar_t* name, std::int64_t number) { return Add(name, std::to_wstring(number)); }

JsonObject& JsonObject::Flag(const wchar_t* name, bool flag) { return Add(name, flag ? L"true" : L"false"); }

JsonObject& JsonObject::Object(const wchar_t* name, const JsonObject& object) { return Add(name, object.Written()); }

JsonObject& JsonObject::Texts(const wchar_t* name, const std::vector<std::wstring>& texts)
{
    return Add(name, Listed(texts, Quoted));
}

JsonObject& JsonObject::Objects(const wchar_t* name, const std::vector<JsonObject>& objects)
{
    return Add(name, Listed(objects, [](const JsonObject& object) { return object.Written(); }));
}

} // namespace diagnose
