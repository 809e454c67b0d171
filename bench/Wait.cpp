// The processor time of waiting for a slow answer, and of an idle message loop for as long.
#include "Benchmarks.h"
#include "Measure.h"
#include "platform/MessageLoop.h"
#include "webservice/WebService.h"

namespace bench
{

void WaitForAnswer(const Words& words)
{
    using namespace corvane;
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
