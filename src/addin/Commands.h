// The add-in's five commands: the names, texts and pictures by which ribbon, command bars and CController know them.
#pragma once

#include "addin/SaveCommand.h"
#include "addin/UICaptions.h"

#include <span>
#include <string>
#include <string_view>

namespace corvane
{

enum class CommandKind
{
    SaveAssignment,
    SaveRelatedDoc,
    SaveGateDoc,
    HelpTopics,
    HelpAbout
};

// A text of a command: one of the captions, or one that is the same for every customer.
struct CommandText
{
    std::wstring UICaptions::*caption;
    const wchar_t* fixed = L""; // where there is no caption

    [[nodiscard]] std::wstring In(const UICaptions& captions) const
    {
        return caption != nullptr ? captions.*caption : fixed;
    }
};

struct Command
{
    CommandKind kind;
    const SaveCommand* save;    // null for those of Help
    const wchar_t* controlId;   // in the ribbon
    const wchar_t* tag;         // in the command bars
    const wchar_t* method;      // of CController; empty for none
    const wchar_t* ribbonClick; // the trace names of its clicks
    const wchar_t* barClick;
    const wchar_t* image;
    CommandText menuText;   // in menus: of the Office button, of command bars
    CommandText ribbonText; // in Backstage and on the tab
    CommandText tip;
    const wchar_t* screentip = L""; // on the tab
};

// In the order in which they are shown.
[[nodiscard]] std::span<const Command> SaveCommands() noexcept;
[[nodiscard]] std::span<const Command> HelpCommands() noexcept;

[[nodiscard]] const Command& CommandOf(CommandKind kind) noexcept;

// The command by the id of its ribbon control, compared exactly; null for another id.
[[nodiscard]] const Command* FindCommand(std::wstring_view controlId) noexcept;

} // namespace corvane
