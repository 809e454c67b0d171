// The registry, value by value. Written is the user's part (HKEY_CURRENT_USER) where no other is named.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace corvane::Registry
{

enum class Hive
{
    User,
    Machine,
    Classes, // what the user's and the machine's classes are together
};

// Windows keeps some keys (Software of the machine, Software\Classes\CLSID of both) once for each bitness.
enum class View
{
    Own, // that of the running program
    Bits32,
    Bits64,
};

struct Place
{
    Hive hive = Hive::User;
    View view = View::Own;
};

// False also for a key that may not be read.
[[nodiscard]] bool KeyExists(const std::wstring& key, Place place = {}) noexcept;

// Creates the key with every level above it that is missing; throws Error.
void CreateKey(const std::wstring& key);

// A value's content; nothing when the value does not exist or is of another type.
[[nodiscard]] std::optional<std::wstring> ReadText(const std::wstring& key, const std::wstring& name, Place place = {});
[[nodiscard]] std::optional<std::int32_t> ReadNumber(const std::wstring& key, const std::wstring& name,
                                                     Place place = {}) noexcept;

// The names of the keys directly below a key, and of its values; none when it does not exist.
[[nodiscard]] std::vector<std::wstring> KeyNames(const std::wstring& key, Place place = {});
[[nodiscard]] std::vector<std::wstring> ValueNames(const std::wstring& key, Place place = {});

// A value's bytes, whatever its type; none when it does not exist.
[[nodiscard]] std::vector<std::byte> ReadBytes(const std::wstring& key, const std::wstring& name, Place place = {});

// Write into a key, which is created when missing; an empty name is the key's default value. Both throw Error.
void WriteText(const std::wstring& key, const std::wstring& name, const std::wstring& text, Hive hive = Hive::User);
void WriteNumber(const std::wstring& key, const std::wstring& name, std::int32_t number);

// Remove a key with everything under it, or a value; what is missing is no error.
void DeleteTree(const std::wstring& key, Hive hive = Hive::User) noexcept;
void DeleteValue(const std::wstring& key, const std::wstring& name, Hive hive = Hive::User) noexcept;

} // namespace corvane::Registry
