// What the steps of one scenario have in common: how they wait and which window they address.
#pragma once

#include <chrono>
#include <functional>
#include <optional>
#include <string>
#include <type_traits>
#include <vector>

#include "player/Stage.h"
#include "player/Usage.h"

namespace corvane::player
{

// What a check found: nothing when it is satisfied, otherwise what is there instead.
using Finding = std::wstring;

[[nodiscard]] inline Finding Unless(bool satisfied, Finding instead)
{
    return satisfied ? Finding{} : std::move(instead);
}

[[noreturn]] void Fail(std::wstring why); // throws Error

// One playing of a scenario, on the player's own thread.
class Run
{
public:
    explicit Run(Stage& stage) : m_stage{stage} {}

    // How many seconds a step waits; empty for the usual time.
    void SetPatience(const std::wstring& seconds);

    // Asks until the check is satisfied; throws Error with its last finding when the patience is over.
    void WaitFor(const std::function<Finding()>& check);

    // Works on the user interface's thread and gives what comes out; throws when that thread does not answer.
    template<class Work>
    auto OnUi(Work work)
    {
        if constexpr (std::is_void_v<std::invoke_result_t<Work>>) {
            RunOnUi(work);
        } else {
            std::invoke_result_t<Work> result{};
            RunOnUi([&] { result = work(); });
            return result;
        }
    }

    // Begins work there that may open windows which later steps close, and so end it.
    void BeginOnUi(std::function<void()> work);

    // Waits until the messages posted so far are handled.
    void Settle();

    void AwaitReady();

    // Throws the first thing that went wrong with the add-in.
    void CheckFaults();
    bool faultsExpected = false;

    // The window that the next steps address: a form by its class, or the topmost message box. Address waits for it,
    // Form gives it or null, Control gives its control, or null while either is not there.
    void Address(const std::wstring& window);
    void LeaveMessage() { m_onMessage = false; } // for the form addressed before
    [[nodiscard]] bool IsOnMessage() const { return m_onMessage; }
    [[nodiscard]] const std::wstring& FormName() const { return m_form; }
    [[nodiscard]] HWND Form() const;
    [[nodiscard]] HWND Control(const std::wstring& name) const;

    // Asks about the control that the window has of this name, as soon as there is one, until the check is satisfied.
    void WaitOn(const std::wstring& control, const std::function<Finding(HWND)>& check);

    // Waits until a person could use the control: it and its window are visible and enabled.
    [[nodiscard]] HWND UsableControl(const std::wstring& name);

    void Focus(HWND control);
    [[nodiscard]] HWND FocusedWindow() const;        // of the user interface; null for none
    [[nodiscard]] bool HasFocus(HWND control) const; // or one in it
    void AwaitClosed(const std::wstring& form);

    // "host", "message", or a form's name; null while there is none.
    [[nodiscard]] HWND NamedWindow(const std::wstring& name) const;

    // A file of the player's; throws where the host has no folder for them.
    [[nodiscard]] std::wstring OutFile(const std::wstring& name) const;

    std::vector<Usage> measured; // by the steps "usage N"

    // Waits for a running command and makes the host quit; Leave is for a step that has ended it otherwise.
    void Quit();
    void Leave() { m_hasQuit = true; }
    [[nodiscard]] bool HasQuit() const { return m_hasQuit; }

private:
    void RunOnUi(const std::function<void()>& work);

    Stage& m_stage;
    std::chrono::seconds m_patience{30};
    std::wstring m_form;
    bool m_onMessage = false; // until its button is pressed
    bool m_hasQuit = false;
};

} // namespace corvane::player
