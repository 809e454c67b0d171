// What the hosts that the stand-in can be are called, and where that is all that differs.
#pragma once

#include <cstddef>
#include <string_view>

namespace host
{

// The programs that the stand-in can be.
enum class HostKind
{
    PowerPoint,
    Word,
    Excel,
    Outlook,
};

// The generations of Office, by what shows an add-in's commands. The formats of Open XML and the mark of a final
// document came with the Office button.
enum class Edition
{
    Menus,
    OfficeButton,
    Backstage,
};

[[nodiscard]] constexpr Edition EditionOf(int majorVersion) noexcept
{
    if (majorVersion < 12) return Edition::Menus;
    return majorVersion < 14 ? Edition::OfficeButton : Edition::Backstage;
}

// What a host is called and calls things, wherever that is all that differs.
struct HostFacts
{
    HostKind kind;
    const wchar_t* name;     // Application.Name
    const wchar_t* product;  // in captions and messages; its key below Software\Microsoft\Office; its option
    const wchar_t* ribbonId; // handed to GetCustomUI
    const wchar_t* noun;     // one document
    const wchar_t* newName;  // of a never-saved document
    bool numbersNew = true;  // "Book1", "Book2"
    const wchar_t* menuBar = L"Menu Bar"; // the command bar with its menus
    const wchar_t* versionEnd = L"";      // behind the version that the options name, in Application.Version
    int pageWidth;                        // the shape of what the window shows
    int pageHeight;
    const wchar_t* status;         // the status line's first part
    std::wstring_view fileTypes;   // of its file dialogs
    std::size_t pathLimit = 259;   // letters of a path that it saves to
    int lastMarkingVersion = 0;    // the last version in which a written property makes the document a changed one
    bool savesOnlyChanges = false; // Save leaves an unchanged document's file alone
    bool asksForName = false;      // Save of a never-saved document opens a dialog instead of choosing the name
};

[[nodiscard]] const HostFacts& FactsOf(HostKind kind);

// The host of this --host option; null when there is none.
[[nodiscard]] const HostFacts* FindHost(std::wstring_view option);

} // namespace host
