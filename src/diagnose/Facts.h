// What is found on a machine, and what it means.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace diagnose
{

// The library as one view of the registry names it.
struct Registration
{
    std::wstring where; // "user, 64-bit"
    int bits = 0;       // of the view
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
};

struct ServerAnswer
{
    std::wstring server;  // without user name and password
    std::wstring outcome; // one line, the exact error included
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

} // namespace diagnose
