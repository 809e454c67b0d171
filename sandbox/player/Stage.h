// How a player sees any host: the stand-in, or another that it is loaded into.
#pragma once

#include <map>
#include <optional>
#include <string>
#include <vector>

#include <windows.h>

#include "player/UiQueue.h"

namespace corvane::player
{

using Mail = std::map<std::wstring, std::wstring, std::less<>>; // texts by the names of their fields

// What a user does with a host's documents and commands, and what is to be learnt of it beyond its windows. Queue,
// Window, OutFolder, TakeFaults and Tell are for any thread, all else is for the user interface's. What the host cannot
// do is thrown as Error or std::runtime_error.
class Stage
{
public:
    [[nodiscard]] virtual const UiQueue& Queue() const = 0;
    [[nodiscard]] virtual HWND Window() const = 0;            // the host's own
    [[nodiscard]] virtual std::wstring OutFolder() const = 0; // for the player's files; empty where there is none

    // What went wrong with the add-in since it was asked last.
    [[nodiscard]] virtual std::vector<std::wstring> TakeFaults() = 0;

    // Writes a line for whoever plays.
    virtual void Tell(const std::wstring& line) = 0;

    // Whether the add-ins are loaded as far as they will be, what became of them ("loaded", "failed" or "absent"), and
    // whether one of their commands is running.
    [[nodiscard]] virtual bool IsReady() const = 0;
    [[nodiscard]] virtual std::wstring AddInState() const = 0;
    [[nodiscard]] virtual bool IsBusy() const = 0;

    // Saving, closing and the property are the active document's, and throw where none is.
    virtual void New() = 0;
    virtual void Open(const std::wstring& path) = 0;
    virtual void Save() = 0;
    virtual void SaveAs(const std::wstring& path, std::optional<long> format) = 0;
    virtual void Close() = 0;
    virtual void Activate(const std::wstring& name) = 0;
    [[nodiscard]] virtual std::optional<std::wstring> ActiveName() const = 0;
    [[nodiscard]] virtual std::optional<std::wstring> Property(const std::wstring& name) const = 0;
    virtual void SetProperty(const std::wstring& name, const std::wstring& text) = 0;

    // A command is named by its ribbon control's id or its menu entry's tag; pressing it returns when its windows are
    // closed, as does a call of the add-in's public controller.
    [[nodiscard]] virtual bool HasCommand(const std::wstring& name) const = 0;
    virtual void Press(const std::wstring& name) = 0;
    virtual void CallController(const std::wstring& method) = 0;

    // Runs a procedure of a macro's text; returns like Press.
    virtual void RunMacro(const std::wstring& text, const std::wstring& procedure) = 0;

    // The captions below the menu of this path, as lines; nothing where there is no such menu.
    [[nodiscard]] virtual std::optional<std::wstring> MenuEntries(const std::vector<std::wstring>& path) const = 0;

    // Opens a page of the host's own window by its label; false where it has none such.
    [[nodiscard]] virtual bool ShowPage(const std::wstring& page) = 0;

    [[nodiscard]] virtual bool HasRun(const std::wstring& macro) const = 0;
    [[nodiscard]] virtual Mail LastMail() const = 0; // the one that was shown last; empty when none was

    // Changes what the host offers and how its documents are; which names it knows is told by its own pages.
    virtual void Set(const std::wstring& name, const std::wstring& value) = 0;

    // A text of a scenario as this host says it: its language has another word for a new presentation.
    [[nodiscard]] virtual std::wstring InItsWords(const std::wstring& text) const { return text; }

    virtual void DisconnectAddIns() = 0;
    virtual void Quit() = 0; // closes all and ends

protected:
    ~Stage() = default;
};

} // namespace corvane::player
