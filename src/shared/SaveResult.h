// How the last save command ended, for macros that started it.
#pragma once

#include "platform/Error.h"
#include "shared/Target.h"

#include <string>

namespace corvane
{

// The numbers of the public interface.
enum class SaveOutcome
{
    None = 0, // no command has ended yet, or one is running
    Saved = 1,
    Cancelled = 2, // the user left a window
    Refused = 3,   // the rules, the server or the state of the document forbade it, and the user was told why
    Failed = 4     // an error was shown
};

// What a saved version is, and where.
struct SavedVersion
{
    std::wstring server; // kept without the name and password of an address
    Target target;
    std::wstring link;     // to the target's page
    std::wstring fileName; // on the server
};

// Follows a command to its end. A version stands whatever fails behind it; else the last refusal or failure counts, so
// that a save that succeeds in the end is a success, and a dialog that is left after an error a failure.
class SaveResult
{
public:
    void Begin();
    void Save(SavedVersion version);
    void Refuse(const std::wstring& why, std::int32_t number = 0);
    void Fail(const Error& error);
    void End() noexcept;

    [[nodiscard]] SaveOutcome Outcome() const noexcept { return m_running ? SaveOutcome::None : m_outcome; }
    // Of a refusal or failure; 0 and empty otherwise. A refusal by the add-in itself has no number.
    [[nodiscard]] std::int32_t ErrorNumber() const noexcept { return m_errorNumber; }
    [[nodiscard]] const std::wstring& ErrorDescription() const noexcept { return m_errorDescription; }
    // Of a save; empty and 0 otherwise.
    [[nodiscard]] const SavedVersion& Version() const noexcept { return m_version; }

private:
    void Told(SaveOutcome outcome, std::int32_t number, const std::wstring& description);

    SaveOutcome m_outcome = SaveOutcome::None;
    bool m_running = false;
    std::int32_t m_errorNumber = 0;
    std::wstring m_errorDescription;
    SavedVersion m_version;
};

// The process's result.
[[nodiscard]] SaveResult& LastSave() noexcept;

} // namespace corvane
