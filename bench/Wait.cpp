// The processor time of waiting for a slow answer, and of an idle message loop for as long.
#include "Benchmarks.h"
#include "Measure.h"
#include "platform/MessageLoop.h"
#include "webservice/WebService.h"

#include <stdexcept>

namespace bench
{
namespace
{

// A clock that stands still would make every wait look free.
void RequireThatTheClockCounts()
{
    constexpr double kWork = 500;
    constexpr double kLeast = 10; // what a busy machine grants of it at least, in steps of the system's clock
    const double before = ProcessorTime();
    const Stopwatch watch;
    while (watch.Milliseconds() < kWork) {
    }
    if (ProcessorTime() - before < kLeast) throw std::logic_error{"the processor's clock stands still"};
}

} // namespace

void WaitForAnswer(const Words& words)
{
    using namespace corvane;
    RequireThatTheClockCounts();
    SetAccessLogged(true);
    static_cast<void>(QueryText(words[1], Operations::kMaxFileUploadSize, {std::wstring{L"MaxFileUploadSize"}}));
    const double before = ProcessorTime();
    const Stopwatch watch;
    if (words[0] == L"add-in")
        static_cast<void>(QueryText(words[1], Operations::kGetUserId, {}));
    else
        PumpFor(std::chrono::seconds{5});
    Tell("processor", ProcessorTime() - before);
    Tell("time", watch.Milliseconds());
}

} // namespace bench
