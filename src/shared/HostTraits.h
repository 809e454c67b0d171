// What sets the hosts apart: names, extensions, file formats and object models.
#pragma once

#include <cstdint>
#include <limits>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace corvane
{

// A format that a host saves in, by the number its object model gives it, for the versions that write it so.
struct SaveFormat
{
    const wchar_t* extension;
    std::int32_t type;
    int firstVersion = 0;
    int lastVersion = 10000;
};

// The member by which a document writes a copy of itself; without a name there is none.
struct CopyMember
{
    const wchar_t* name = nullptr;
    bool takesFormat = false;
};

// One host. Members of object models that it does not have are null.
struct HostTraits
{
    const wchar_t* name;             // Application.Name
    const wchar_t* classicExtension; // of a new document up to version 11
    const wchar_t* extension;        // from version 12 on,
    const wchar_t* macroExtension;   // and then of one with macros, which the other cannot hold
    std::span<const SaveFormat> formats;

    const wchar_t* activeDocument = nullptr; // of the application; its items are else neither files nor carry
                                             // properties,
    const wchar_t* inspector = nullptr;      // and one of these shows the item
    const wchar_t* documents = nullptr;
    const wchar_t* documentName = L"Name";
    CopyMember copy{};
    const wchar_t* editingBar = nullptr; // whose New is out of use while a cell or an object is edited
    bool hasInteractive = false;         // the host's user can be kept out
    bool namesDocumentOfMacro = false;
    int versionWithoutMacros = 0; // the one in which the macros around a save do not run
    // From this version on a new property value alone does not count as a change.
    int firstBlindToProperties = std::numeric_limits<int>::max();
};

// The host of an application's name; null for a program that is none of the four.
[[nodiscard]] const HostTraits* FindHost(std::wstring_view applicationName) noexcept;

// The extension of a new document of this host's version.
[[nodiscard]] const wchar_t* DefaultExtension(const HostTraits& host, int version, bool hasMacros) noexcept;

// The number of the format that an extension (with its point, in any letter case) stands for in this version.
[[nodiscard]] std::optional<std::int32_t> SaveTypeFor(const HostTraits& host, int version, std::wstring_view extension);

// A document's title: its name with the host's default extension where it has none. A document that was never saved
// has only an extension that its host writes ("Plan v1.2" has none), and its title is fit to be a file's name.
[[nodiscard]] std::wstring TitleOf(const HostTraits& host, int version, const std::wstring& name, bool everSaved,
                                   bool hasMacros);

} // namespace corvane
