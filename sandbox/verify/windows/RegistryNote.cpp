#include "windows/RegistryNote.h"

#include "machine/Files.h"
#include "platform/Owners.h"
#include "platform/Registry.h"
#include "platform/Utf8.h"

#include <array>
#include <stdexcept>

namespace verify
{
namespace
{

using corvane::FromUtf8;
using corvane::ToUtf8;
using corvane::UniqueRegistryKey;
using nlohmann::json;
namespace Registry = corvane::Registry;

UniqueRegistryKey Opened(const std::wstring& key)
{
    UniqueRegistryKey opened;
    ::RegOpenKeyExW(HKEY_CURRENT_USER, key.c_str(), 0, KEY_READ, opened.Put());
    return opened;
}

std::wstring Below(std::wstring key, const std::wstring& name) { return key.append(L"\\").append(name); }

std::string Hex(const std::vector<std::byte>& bytes)
{
    constexpr std::string_view kDigits = "0123456789abcdef";
    std::string text;
    for (const std::byte byte : bytes)
        (text += kDigits[std::to_integer<std::size_t>(byte >> 4)]) +=
            kDigits[std::to_integer<std::size_t>(byte & std::byte{15})];
    return text;
}

std::vector<BYTE> Bytes(const std::string& hex)
{
    std::vector<BYTE> bytes;
    for (std::size_t at = 0; at + 1 < hex.size(); at += 2)
        bytes.push_back(static_cast<BYTE>(std::stoi(hex.substr(at, 2), nullptr, 16)));
    return bytes;
}

// A value's type and bytes; null where there is none.
json ValueCopy(const std::wstring& key, const std::wstring& name)
{
    DWORD type = REG_NONE;
    const auto opened = Opened(key);
    if (!opened || ::RegQueryValueExW(opened.Get(), name.c_str(), nullptr, &type, nullptr, nullptr) != ERROR_SUCCESS)
        return nullptr;
    return {{"type", type}, {"data", Hex(Registry::ReadBytes(key, name))}};
}

// A key with all below it; null where there is none.
json KeyCopy(const std::wstring& key)
{
    if (!Registry::KeyExists(key)) return nullptr;
    json copy{{"values", json::object()}, {"keys", json::object()}};
    for (const auto& name : Registry::ValueNames(key))
        copy["values"][ToUtf8(name)] = ValueCopy(key, name);
    for (const auto& name : Registry::KeyNames(key))
        copy["keys"][ToUtf8(name)] = KeyCopy(Below(key, name));
    return copy;
}

void WriteValue(const std::wstring& key, const std::wstring& name, const json& value)
{
    if (value.is_null()) return Registry::DeleteValue(key, name);
    const auto data = Bytes(value.at("data"));
    UniqueRegistryKey opened;
    ::RegCreateKeyExW(HKEY_CURRENT_USER, key.c_str(), 0, nullptr, 0, KEY_WRITE, nullptr, opened.Put(), nullptr);
    ::RegSetValueExW(opened.Get(), name.c_str(), 0, value.at("type").get<DWORD>(), data.data(),
                     static_cast<DWORD>(data.size()));
}

void WriteKey(const std::wstring& key, const json& copy)
{
    Registry::CreateKey(key);
    for (const auto& [name, value] : copy.at("values").items())
        WriteValue(key, FromUtf8(name), value);
    for (const auto& [name, below] : copy.at("keys").items())
        WriteKey(Below(key, FromUtf8(name)), below);
}

// What is as it was is not touched: it may be one that only administrators write.
void RestoreKey(const std::wstring& key, const json& copy)
{
    if (KeyCopy(key) == copy) return;
    Registry::DeleteTree(key);
    if (!copy.is_null()) WriteKey(key, copy);
}

std::wstring Parent(const std::wstring& key)
{
    const auto slash = key.rfind(L'\\');
    return slash == std::wstring::npos ? L"" : key.substr(0, slash);
}

// The keys above this one that are not there yet, the lowest first.
std::vector<std::string> MissingAbove(const std::wstring& key)
{
    std::vector<std::string> missing;
    for (auto above = Parent(key); !above.empty() && !Registry::KeyExists(above); above = Parent(above))
        missing.push_back(ToUtf8(above));
    return missing;
}

void DeleteIfEmpty(const std::wstring& key)
{
    if (Registry::KeyNames(key).empty() && Registry::ValueNames(key).empty()) Registry::DeleteTree(key);
}

void CollectKeys(const std::wstring& key, const std::wstring& below, std::vector<std::wstring>& found)
{
    if (!Registry::ValueNames(key).empty()) return found.push_back(below);
    for (const auto& name : Registry::KeyNames(key))
        CollectKeys(Below(key, name), below.empty() ? name : Below(below, name), found);
}

} // namespace

json RegistryNote::Read() const
{
    const auto text = ReadIfThere(m_file);
    return text ? json::parse(*text)
                : json{{"keys", json::object()}, {"values", json::array()}, {"missing", json::array()}};
}

void RegistryNote::Add(const std::vector<std::wstring>& keys, const std::vector<RegistryValue>& values)
{
    auto note = Read();
    const auto addMissing = [&](const std::wstring& key) {
        for (auto& above : MissingAbove(key))
            note["missing"].push_back(std::move(above));
    };
    for (const auto& key : keys) {
        note["keys"][ToUtf8(key)] = KeyCopy(key);
        addMissing(key);
    }
    for (const auto& [key, name] : values) {
        note["values"].push_back({{"key", ToUtf8(key)}, {"name", ToUtf8(name)}, {"value", ValueCopy(key, name)}});
        addMissing(key + L"\\");
    }
    auto fresh = m_file;
    fresh += ".new";
    WriteBytes(fresh, note.dump(1));
    std::filesystem::rename(fresh, m_file);
}

void RegistryNote::PutBack(const std::wstring& key) const { RestoreKey(key, Read().at("keys").at(ToUtf8(key))); }

void RegistryNote::PutBackAll()
{
    if (!IsThere()) return;
    const auto note = Read();
    for (const auto& [key, copy] : note.at("keys").items())
        RestoreKey(FromUtf8(key), copy);
    for (const auto& value : note.at("values"))
        WriteValue(FromUtf8(value.at("key").get<std::string>()), FromUtf8(value.at("name").get<std::string>()),
                   value.at("value"));
    for (const auto& key : note.at("missing"))
        DeleteIfEmpty(FromUtf8(key.get<std::string>()));
    std::filesystem::remove(m_file);
}

std::vector<std::wstring> KeysWithValues(const std::wstring& key)
{
    std::vector<std::wstring> found;
    CollectKeys(key, L"", found);
    return found;
}

bool MayWriteBelow(const std::wstring& key)
{
    UniqueRegistryKey opened;
    return ::RegOpenKeyExW(HKEY_CURRENT_USER, key.c_str(), 0, KEY_CREATE_SUB_KEY | KEY_SET_VALUE, opened.Put()) !=
           ERROR_ACCESS_DENIED;
}

} // namespace verify
