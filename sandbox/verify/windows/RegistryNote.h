// How a part of the registry was before it was changed, kept in a file until it is put back.
#pragma once

#include <filesystem>
#include <nlohmann/json.hpp>
#include <string>
#include <vector>

namespace verify
{

// A value of a key below HKEY_CURRENT_USER.
struct RegistryValue
{
    std::wstring key;
    std::wstring name;
};

// A note outlives the program that made it: whoever finds the file puts everything back.
class RegistryNote
{
public:
    explicit RegistryNote(std::filesystem::path file) : m_file{std::move(file)} {}

    // Whether something is noted that was not put back.
    [[nodiscard]] bool IsThere() const { return std::filesystem::exists(m_file); }

    // Notes these keys of HKEY_CURRENT_USER with all below them, and these values, beside what is noted already. Throws
    // std::runtime_error where the note cannot be written; nothing may be changed then.
    void Add(const std::vector<std::wstring>& keys, const std::vector<RegistryValue>& values);

    // Makes a noted key what it was.
    void PutBack(const std::wstring& key) const;

    // Makes everything what it was and forgets the note.
    void PutBackAll();

private:
    [[nodiscard]] nlohmann::json Read() const;

    std::filesystem::path m_file;
};

// The keys below this one, itself included, that hold values, none of them below another; relative to it.
[[nodiscard]] std::vector<std::wstring> KeysWithValues(const std::wstring& key);

// Below HKEY_CURRENT_USER, without right to write there: false.
[[nodiscard]] bool MayWriteBelow(const std::wstring& key);

} // namespace verify
