// A procedure that opens a trace scope while the trace is off, against one that does nothing.
#include "Benchmarks.h"
#include "Measure.h"
#include "platform/Procedure.h"
#include "support/CTraceLog.h"
#include "support/ErrorReport.h"

namespace bench
{
namespace
{

constexpr int kCalls = 20'000; // short enough to be left alone by other programs
constexpr int kRounds = 201;

[[gnu::noinline]] void Empty() { asm volatile(""); }
[[gnu::noinline]] void Scoped() { const corvane::ProcedureScope scope{L"Bench.Scoped"}; }

double NanosecondsPerCall(void (*procedure)())
{
    constexpr double kNanosecondsPerMillisecond = 1e6;
    const Stopwatch watch;
    for (int call = 0; call < kCalls; ++call)
        procedure();
    return watch.Milliseconds() * kNanosecondsPerMillisecond / kCalls;
}

} // namespace

void TraceScopes(const Words& /*words*/)
{
    corvane::g_oTraceLog = std::make_unique<corvane::CTraceLog>(corvane::Settings{});
    corvane::WatchProcedures();
    for (int round = 0; round < kRounds; ++round) {
        Tell("bare", NanosecondsPerCall(&Empty));
        Tell("add-in", NanosecondsPerCall(&Scoped));
    }
}

} // namespace bench
