// From the library's loading to the ribbon's text.
#include "AddInUnderTest.h"
#include "Benchmarks.h"
#include "Measure.h"

namespace bench
{
namespace
{

// Files that are not there: looking for them marks, in a trace of the files a program opens, where the part measured
// begins and ends.
constexpr const wchar_t* kBegin = L"C:\\bench-begins";
constexpr const wchar_t* kEnd = L"C:\\bench-ends";

void Mark(const wchar_t* name)
{
    const HANDLE file = ::CreateFileW(name, GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr);
    if (file != INVALID_HANDLE_VALUE) ::CloseHandle(file);
}

} // namespace

void LoadAddIn(const Words& words)
{
    AddInUnderTest addIn;
    Mark(kBegin);
    const Stopwatch watch;
    addIn.Load(words[0]);
    const double time = watch.Milliseconds();
    Mark(kEnd);
    Tell("time", time);
}

} // namespace bench
