#include "support/ErrorReport.h"

#include "forms/Messages.h"
#include "platform/Procedure.h"
#include "support/CTraceLog.h"
#include "support/ServerRules.h"

namespace corvane
{
namespace
{

ErrorListener g_listener = nullptr;

class TracingWatch final : public ProcedureWatch
{
public:
    void Enter(std::wstring_view procedure) noexcept override
    {
        if (g_oTraceLog != nullptr) g_oTraceLog->WriteEventStart(procedure);
    }
    void Leave(std::wstring_view procedure) noexcept override
    {
        if (g_oTraceLog != nullptr) g_oTraceLog->WriteEventEnd(procedure);
    }
    void Report(const Error& error) noexcept override
    {
        if (g_oTraceLog != nullptr) g_oTraceLog->WriteError(error);
        if (g_listener != nullptr) g_listener(error);
        Ignoring([&] { ShowMessage(WithoutCredentialsInText(ErrorReportText(error)), kStyleCritical); });
    }
};

} // namespace

void SetErrorListener(ErrorListener listener) noexcept { g_listener = listener; }

void WatchProcedures() noexcept
{
    static TracingWatch watch;
    SetProcedureWatch(&watch);
}

} // namespace corvane
