// The parts of a line stand where a reader of the trace looks for them.
#include "support/TraceText.h"
#include "Input.h"

void Fuzz(Input& input)
{
    using namespace corvane;
    const LocalTime time{input.Number(), input.Number(), input.Number(),
                         input.Number(), input.Number(), input.Number()};
    constexpr std::int32_t kDeepest = 1000;
    const std::int32_t level = input.Number(-kDeepest, kDeepest);
    const std::int32_t extra = input.Number(-kDeepest, kDeepest);
    const std::wstring source = input.Text();
    const std::wstring text = input.Rest();
    const std::wstring line = TraceLine(time, level, extra, text);
    Require(line.starts_with(SortableTime(time) + L"\t") && line.ends_with(text));
    Require(line.size() == SortableTime(time).size() + 1 + static_cast<std::size_t>(std::max(extra, 0)) +
                               static_cast<std::size_t>(std::max(level + 1, 0)) + text.size());
    Require(TraceErrorBlock(level, text, source).ends_with(L"\tSource = " + source + L"\r\n"));
    Require(TraceFileName(text, time).ends_with(L".log"));
}
