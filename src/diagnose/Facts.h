// What is found on a machine, and what it means.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace diagnose
{

inline constexpr const wchar_t* kProgId = L"CorvaneMSOfficePowerPoint.Connect";
inline constexpr const wchar_t* kLibraryName = L"CorvaneMSOfficePowerPoint.dll";
inline constexpr const wchar_t* kAddInKey =
    L"Software\\Microsoft\\Office\\PowerPoint\\Addins\\CorvaneMSOfficePowerPoint.Connect";
inline constexpr const wchar_t* kLoadBehavior = L"LoadBehavior";
inline constexpr std::int32_t kLoadsAtStart = 3;

// The library as one view of the registry names it.
struct Registration
{
    std::wstring where; // "user, 64-bit"
    int bits = 0;       // of the view
    bool isUsers = false;
    std::wstring library;
    bool libraryExists = false;
    int libraryBits = 0;         // 0 when it cannot be told
    std::wstring libraryVersion; // empty when it cannot be told
};

// The add-in in one of PowerPoint's lists.
struct AddInEntry
{
    std::wstring where;
    int bits = 0; // of the PowerPoint that reads the list; 0 for either
    bool isUsers = false;
    std::int32_t loadBehavior = 0;
};

struct PowerPoint
{
    std::wstring program; // empty when Windows knows of none
    int bits = 0;         // 0 when it cannot be told
};

// An entry of PowerPoint's or a policy's that names the add-in.
struct OfficeEntry
{
    std::wstring where;
    bool blocks = false; // it keeps the add-in from loading
    std::wstring key;    // where the user's own entry stands, which may be removed; empty for any other
    std::wstring value;
};

struct ServerAnswer
{
    std::wstring server;  // without user name and password
    std::wstring outcome; // one line, the exact error included
    int status = 0;       // of HTTP; 0 without an answer
    bool good = false;
};

struct Facts
{
    PowerPoint powerPoint;
    std::vector<Registration> registrations;
    std::vector<AddInEntry> addIns; // the one that counts first
    std::vector<OfficeEntry> officeEntries;
    std::vector<std::wstring> missingComponents;
    std::optional<ServerAnswer> server;
};

// What keeps the add-in from working, each with its remedy, the likeliest cause first; empty when nothing does.
[[nodiscard]] std::vector<std::wstring> FindingsOf(const Facts& facts);

// A value of the user's registry that keeps the add-in from loading: removed, or set to "loads at start".
struct SwitchOnStep
{
    std::wstring what;
    std::wstring key;
    std::wstring value;
    bool removes = false;

    bool operator==(const SwitchOnStep&) const = default;
};

// What has to be changed so that PowerPoint loads the add-in at its next start, of what is the user's own.
[[nodiscard]] std::vector<SwitchOnStep> StepsToSwitchOn(const Facts& facts);

// The name of Windows; its product name alone says 10 on Windows 11 too.
[[nodiscard]] std::wstring WindowsName(std::wstring productName, std::int32_t build);

} // namespace diagnose
