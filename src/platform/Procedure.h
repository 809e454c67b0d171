// How procedures are watched (traced), and the one barrier at which errors stop.
#pragma once

#include "platform/Error.h"

#include <cstddef>
#include <optional>
#include <string_view>
#include <utility>

namespace corvane
{

// Hears when procedures of the add-in begin and end, and of the errors that reach the edge of the add-in.
class ProcedureWatch
{
public:
    virtual ~ProcedureWatch() = default;
    virtual void Enter(std::wstring_view procedure) noexcept = 0;
    virtual void Leave(std::wstring_view procedure) noexcept = 0;
    // Tells the user. May run a message loop (it shows a message box).
    virtual void Report(const Error& error) noexcept = 0;
};

// Makes watch hear everything from now on; null for nobody. The watch stays owned by the caller.
void SetProcedureWatch(ProcedureWatch* watch) noexcept;

// Opens the trace scope of a procedure and closes it on every way out. The name is "Class.Procedure" and must outlive
// the scope.
class ProcedureScope
{
public:
    explicit ProcedureScope(std::wstring_view procedure) noexcept;
    // A name written out has its length from the compiler: most scopes open while nobody listens, and counting letters
    // would be most of their cost.
    template<std::size_t Size>
    explicit ProcedureScope(const wchar_t (&procedure)[Size]) noexcept
        : ProcedureScope{std::wstring_view{procedure, Size - 1}}
    {}
    ProcedureScope(const ProcedureScope&) = delete;
    ProcedureScope& operator=(const ProcedureScope&) = delete;
    ~ProcedureScope();

private:
    std::wstring_view m_procedure;
};

// Hands an error to the watch, or drops it when nobody watches.
void ReportError(const Error& error) noexcept;

// The exception being handled, as an Error. Only inside a catch block.
[[nodiscard]] Error CurrentError() noexcept;

// Runs body and returns what it threw, or nothing. No exception leaves.
template<class Body>
[[nodiscard]] std::optional<Error> Catch(Body&& body) noexcept
{
    try {
        std::forward<Body>(body)();
        return std::nullopt;
    } catch (...) {
        return CurrentError();
    }
}

// The barrier without a trace scope: an error in body is reported and goes no further.
template<class Body>
void Reporting(Body&& body) noexcept
{
    if (const auto error = Catch(std::forward<Body>(body))) ReportError(*error);
}

// The barrier for every entry from the host (COM method, event, window procedure, timer): body runs in the trace scope
// of the procedure; an error is reported and goes no further.
template<class Body>
void AtHostBoundary(std::wstring_view procedure, Body&& body) noexcept
{
    const ProcedureScope scope{procedure};
    Reporting(std::forward<Body>(body));
}

// Runs body and drops any error: for steps that the interface defines as "errors ignored".
template<class Body>
void Ignoring(Body&& body) noexcept
{
    static_cast<void>(Catch(std::forward<Body>(body)));
}

} // namespace corvane
