#include "platform/Procedure.h"

#include <new>

namespace corvane
{
namespace
{
constexpr std::int32_t kErrorOutOfMemory = 7;
constexpr std::int32_t kErrorInternal = 51;

ProcedureWatch* g_watch = nullptr;

// What any other exception becomes; made while there is memory.
const Error g_outOfMemory{kErrorOutOfMemory, L"CorvaneMSOfficePowerPoint", L"Out of memory"};
const Error g_internalError{kErrorInternal, L"CorvaneMSOfficePowerPoint", L"Internal error"};
} // namespace

void SetProcedureWatch(ProcedureWatch* watch) noexcept { g_watch = watch; }

ProcedureScope::ProcedureScope(std::wstring_view procedure) noexcept : m_procedure{procedure}
{
    if (g_watch != nullptr) g_watch->Enter(m_procedure);
}

ProcedureScope::~ProcedureScope()
{
    if (g_watch != nullptr) g_watch->Leave(m_procedure);
}

void ReportError(const Error& error) noexcept
{
    if (g_watch != nullptr) g_watch->Report(error);
}

Error CurrentError() noexcept
{
    try {
        throw;
    } catch (const Error& error) {
        return error;
    } catch (const std::bad_alloc&) {
        return g_outOfMemory;
    } catch (...) {
        return g_internalError;
    }
}

} // namespace corvane
