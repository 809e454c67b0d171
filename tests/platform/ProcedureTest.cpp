#include "platform/Procedure.h"

#include <cstdlib>
#include <gtest/gtest.h>
#include <new>
#include <stdexcept>
#include <tuple>
#include <vector>

namespace
{
bool g_memoryIsOut = false;
} // namespace

void* operator new(std::size_t size)
{
    void* const memory = g_memoryIsOut ? nullptr : std::malloc(size);
    return memory != nullptr ? memory : throw std::bad_alloc{};
}
void operator delete(void* memory) noexcept { std::free(memory); }
void operator delete(void* memory, std::size_t /*size*/) noexcept { std::free(memory); }

namespace corvane
{
namespace
{

class Recorder : public ProcedureWatch
{
public:
    Recorder() { SetProcedureWatch(this); }
    ~Recorder() override { SetProcedureWatch(nullptr); }

    void Enter(std::wstring_view procedure) noexcept override { Add(L"enter", procedure); }
    void Leave(std::wstring_view procedure) noexcept override { Add(L"leave", procedure); }
    void Report(const Error& error) noexcept override { Add(L"report", std::to_wstring(error.Number())); }

    std::vector<std::wstring> heard;

private:
    void Add(const wchar_t* what, std::wstring_view of)
    {
        heard.push_back(std::wstring{what} + L" " + std::wstring{of});
    }
};

using Heard = std::vector<std::wstring>;

[[noreturn]] void Fail() { throw Error{225, L"Source", L"Description"}; }

} // namespace

TEST(HostBoundary, ReportsAnErrorOnceInsideItsScope)
{
    Recorder recorder;
    bool ranOn = false;
    AtHostBoundary(L"Outer", [&] {
        AtHostBoundary(L"Inner", [] { Fail(); });
        ranOn = true;
    });
    EXPECT_TRUE(ranOn);
    EXPECT_EQ(recorder.heard, (Heard{L"enter Outer", L"enter Inner", L"report 225", L"leave Inner", L"leave Outer"}));
}

TEST(HostBoundary, ClosesEveryScopeThatAnErrorPasses)
{
    Recorder recorder;
    AtHostBoundary(L"Outer", [] {
        const ProcedureScope scope{L"Inner"};
        Fail();
    });
    EXPECT_EQ(recorder.heard, (Heard{L"enter Outer", L"enter Inner", L"leave Inner", L"report 225", L"leave Outer"}));
}

TEST(HostBoundary, ReportsWithoutAScopeOrNotAtAllWhereAsked)
{
    Recorder recorder;
    Reporting([] { Fail(); });
    Ignoring([] { Fail(); });
    Reporting([] {});
    EXPECT_EQ(recorder.heard, Heard{L"report 225"});
}

TEST(HostBoundary, HoldsWithoutAWatch)
{
    bool ran = false;
    AtHostBoundary(L"Alone", [&] {
        ran = true;
        Fail();
    });
    EXPECT_TRUE(ran);
}

TEST(HostBoundary, MakesAnErrorOfEveryException)
{
    constexpr std::tuple<const char*, void (*)(), std::int32_t, const wchar_t*> kCases[] = {
        {"Own", [] { Fail(); }, 225, L"Description"},
        {"Standard", [] { throw std::runtime_error{"secret"}; }, 51, L"Internal error"},
        {"NoObject", [] { throw 5; }, 51, L"Internal error"},
    };
    for (const auto& [name, body, number, description] : kCases) {
        SCOPED_TRACE(name);
        const auto error = Catch(body);
        ASSERT_TRUE(error.has_value());
        EXPECT_EQ(error->Number(), number);
        EXPECT_EQ(error->Description(), description);
    }
    EXPECT_FALSE(Catch([] {}).has_value());
}

TEST(HostBoundary, NeedsNoMemoryForAnError)
{
    const Error own{225, L"ExecuteASPWebService", L"Unable to contact server."};
    g_memoryIsOut = true;
    const auto lack = Catch([] { static_cast<void>(std::wstring(100, L'x')); });
    const auto caught = Catch([&] { throw own; });
    g_memoryIsOut = false;
    EXPECT_EQ(lack->Number(), 7);
    EXPECT_EQ(lack->Description(), L"Out of memory");
    EXPECT_EQ(caught->Description(), own.Description());
}

TEST(ErrorNumber, IsTheScriptsNumberOfAnAutomationError)
{
    constexpr std::pair<std::uint32_t, std::uint32_t> kCases[] = {
        {0x800A011FU, 287},         {0x800A005EU, 94},          {0x800AFFFFU, 0xFFFF},      {0x80004005U, 0x80004005U},
        {0x8004C6A3U, 0x8004C6A3U}, {0x000A005BU, 0x000A005BU}, {0x800B0001U, 0x800B0001U}, {0, 0},
    };
    for (const auto& [result, number] : kCases)
        EXPECT_EQ(ErrorNumberOf(static_cast<std::int32_t>(result)), static_cast<std::int32_t>(number))
            << std::hex << result;
}

} // namespace corvane
