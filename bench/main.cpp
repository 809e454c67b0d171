// corvane-bench NAME WORDS...: runs one benchmark and prints its figures, a name and a number a line.
#include "Benchmarks.h"
#include "Measure.h"
#include "platform/Error.h"

#include <algorithm>
#include <string>

namespace
{

struct Entry
{
    const wchar_t* name;
    void (*run)(const bench::Words& words);
    std::size_t words;
};
constexpr Entry kEntries[] = {
    {L"encode", &bench::EncodeText, 0},      {L"trace", &bench::TraceScopes, 0},     {L"tree", &bench::FillTree, 2},
    {L"upload", &bench::Upload, 3},          {L"wait", &bench::WaitForAnswer, 2},    {L"load", &bench::LoadAddIn, 1},
    {L"save", &bench::SaveBoundDocument, 3}, {L"replay", &bench::ReplayRequests, 2},
};

} // namespace

int wmain(int count, wchar_t** arguments)
{
    const bench::Apartment apartment;
    try {
        const bench::Words words(arguments + std::min(count, 2), arguments + count);
        for (const Entry& entry : kEntries) {
            if (count < 2 || entry.name != std::wstring{arguments[1]} || entry.words != words.size()) continue;
            entry.run(words);
            return 0;
        }
        std::fputs("no such benchmark\n", stderr);
    } catch (const corvane::Error& error) {
        std::fwprintf(stderr, L"%ld %ls: %ls\n", static_cast<long>(error.Number()), error.Source().c_str(),
                      error.Description().c_str());
    } catch (const std::exception& error) {
        std::fprintf(stderr, "%s\n", error.what());
    }
    return 1;
}
