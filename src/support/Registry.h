// The user's registry (HKEY_CURRENT_USER), value by value.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace corvane::Registry
{

[[nodiscard]] bool KeyExists(const std::wstring& key) noexcept;

// Creates the key with every level above it that is missing; throws Error.
void CreateKey(const std::wstring& key);

// A value's content; nothing when the value does not exist or is of another type.
[[nodiscard]] std::optional<std::wstring> ReadText(const std::wstring& key, const std::wstring& name);
[[nodiscard]] std::optional<std::int32_t> ReadNumber(const std::wstring& key, const std::wstring& name) noexcept;

// Write into a key, which is created when missing; an empty name is the key's default value. Both throw Error.
void WriteText(const std::wstring& key, const std::wstring& name, const std::wstring& text);
void WriteNumber(const std::wstring& key, const std::wstring& name, std::int32_t number);

// Removes a key with everything under it; a missing key is no error.
void DeleteTree(const std::wstring& key) noexcept;

} // namespace corvane::Registry
