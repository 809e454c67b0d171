// The hosts and the states of a document that a save is tried in, and where each leaves it.
#pragma once

#include "base/Options.h"

enum Hosts : unsigned
{
    kPowerPoint = 1,
    kWord = 2,
    kExcel = 4,
    kOutlook = 8,
    kFiles = kPowerPoint | kWord | kExcel
};

enum class Document
{
    None,
    New,
    File,   // opened from a file
    Shared, // the same, by the share that every Windows makes of its disk
    Renamed // opened from a file that was given this name, without an extension of its own
};

// Where a save leaves the document; or what it says instead. In names "*" is the extension of a new document.
struct State
{
    const char* name;
    unsigned hosts;
    host::Settings settings;
    Document document;
    const char* outcome; // "in place", "in Documents", "a copy", or a part of the message
    const wchar_t* uploadName = nullptr;
    const wchar_t* fileName = L"plan"; // of one that is opened
    int firstVersion = 0;
};

inline const State kStates[] = {
    {"no document", kFiles | kOutlook, {}, Document::None, "no document"},
    {"never saved, PowerPoint", kPowerPoint, {}, Document::New, "in Documents", L"Presentation1*"},
    {"never saved, Word", kWord, {}, Document::New, "in Documents", L"Document1*"},
    {"never saved, Excel", kExcel, {}, Document::New, "in Documents", L"Book1*"},
    {"name with a point", kFiles, {{"document.name", "Plan v1.2"}}, Document::New, "in Documents", L"Plan v1.2*"},
    {"name of a device", kFiles, {{"document.name", "con"}}, Document::New, "in Documents", L"_con*"},
    {"name no file can have", kFiles, {{"document.name", " Q1/Q2: ? "}}, Document::New, "in Documents", L"Q1_Q2_ _*"},
    {"never saved, with macros",
     kFiles,
     {{"document.macros", "true"}, {"document.name", "Plan"}},
     Document::New,
     "in Documents",
     L"Plan*"},
    {"saved", kFiles, {}, Document::File, "in place", L"plan*"},
    {"changed", kFiles, {{"document.changed", "true"}}, Document::File, "in place", L"plan*"},
    {"two windows", kFiles, {{"document.windows", "2"}}, Document::File, "in place", L"plan*"},
    {"no window", kFiles, {{"document.windows", "0"}}, Document::File, "no document"},
    {"Protected View", kFiles, {{"document.view", "protected"}}, Document::File, "no document"},
    {"read-only", kFiles, {{"document.readonly", "true"}}, Document::File, "a copy", L"plan*"},
    {"marked as final", kFiles, {{"document.final", "true"}}, Document::File, "marked as final", nullptr, L"plan", 12},
    {"at a web address",
     kFiles,
     {{"document.url", "https://h/Shared%20Documents/R&D/plan"}},
     Document::File,
     "a copy",
     L"plan*"},
    {"beyond the code page",
     kFiles,
     {},
     Document::File,
     "in place",
     L"\x043F\x043B\x0430\x043D \x20AC \x4E2D*",
     L"\x043F\x043B\x0430\x043D \x20AC \x4E2D"},
    {"signs in the name", kFiles, {}, Document::File, "in place", L"it's 50% + #1 & co;*", L"it's 50% + #1 & co;"},
    {"blanks around the name", kFiles, {}, Document::File, "in place", L" plan *", L" plan "},
    {"two points", kFiles, {}, Document::File, "in place", L"plan.v2*", L"plan.v2"},
    {"on a share", kFiles, {}, Document::Shared, "in place", L"plan*"},
    {"no extension", kFiles, {}, Document::Renamed, "in place", L"plan*"},
    {"path beyond 260 letters",
     kFiles,
     {},
     Document::Renamed,
     "in place",
     L"plan*",
     L"a folder with a name of eighty letters, which is as long as many a project's own\\"
     L"a folder with a name of eighty letters, which is as long as many a project's own\\"
     L"a folder with a name of eighty letters, which is as long as many a project's own\\plan"},
    {"file in use", kFiles, {{"save.fault", "locked"}}, Document::File, "."},
    {"save taken back", kFiles, {{"save.fault", "refused"}}, Document::File, "not written to disk"},
    {"disk full", kFiles, {{"save.fault", "full"}}, Document::File, "."},
    {"folder not to be written", kFiles, {{"save.fault", "denied"}}, Document::File, "."},
    {"editing a cell", kExcel, {{"editing", "800AC472"}}, Document::File, "editing"},
    {"editing, not answering", kExcel, {{"editing", "8001010A"}}, Document::File, "editing"},
    {"mail", kOutlook, {{"mail.subject", "Costs of May"}}, Document::New, "a copy", L"Costs of May.msg"},
    {"mail, signs", kOutlook, {{"mail.subject", "Re: 1/2 \"x\" & y"}}, Document::New, "a copy", L"Re_ 1_2 _x_ & y.msg"},
    {"mail, no subject", kOutlook, {}, Document::New, "a copy", L"_.msg"},
};

struct HostRow
{
    unsigned bit;
    const char* option;
    const wchar_t* name;
};
inline constexpr HostRow kHostRows[] = {{kPowerPoint, "powerpoint", L"Microsoft PowerPoint"},
                                        {kWord, "word", L"Microsoft Word"},
                                        {kExcel, "excel", L"Microsoft Excel"},
                                        {kOutlook, "outlook", L"Outlook"}};
