#include <algorithm>
#include <filesystem>

#include <windows.h>

#include <shlwapi.h>

#include "platform/Files.h"
#include "platform/Utf8.h"
#include "player/Run.h"
#include "player/Screen.h"
#include "player/Script.h"

namespace corvane::player
{
namespace
{

constexpr DWORD kPaintPatience = 2000; // milliseconds
constexpr DWORD kPaintPoll = 20;

bool IsUnpainted(HWND window) { return ::IsWindowVisible(window) && ::GetUpdateRect(window, nullptr, FALSE); }

// Whether any window of this process still waits to be painted.
bool AwaitsPaint()
{
    return std::ranges::any_of(VisibleWindows(), [](HWND window) {
        return IsUnpainted(window) || std::ranges::any_of(ChildrenOf(window), IsUnpainted);
    });
}

// The first file of the pattern's, or an empty text.
std::wstring FileMatching(const std::wstring& pattern)
{
    const std::filesystem::path path{pattern};
    std::error_code none; // of a folder that is not there
    for (const auto& entry : std::filesystem::directory_iterator{path.parent_path(), none})
        if (const auto name = entry.path().filename();
            entry.is_regular_file() && ::PathMatchSpecW(name.c_str(), path.filename().c_str()))
            return name;
    return {};
}

void WriteText(const std::wstring& path, const std::wstring& text)
{
    const std::string bytes = ToUtf8(text);
    WriteFile(path, std::as_bytes(std::span{bytes}));
}

void FileExists(Stage&, Run& run, const Step& step)
{
    run.WaitFor([&] { return Unless(!FileMatching(step.At(0)).empty(), L"there is no such file"); });
}

void FileMissing(Stage&, Run& run, const Step& step)
{
    run.WaitFor([&] {
        const std::wstring name = FileMatching(step.At(0));
        return Unless(name.empty(), L"there is " + name);
    });
}

// The server reads its rules again at each request. They take their name when they are whole, and when it does not read
// them just then.
void Faults(Stage&, Run& run, const Step& step)
{
    const std::wstring file = run.OutFile(L"faults.json");
    WriteText(file + L".new", step.At(0));
    run.WaitFor([&] {
        const bool moved = ::MoveFileExW((file + L".new").c_str(), file.c_str(), MOVEFILE_REPLACE_EXISTING) != FALSE;
        return Unless(moved, L"the rules cannot be put in place");
    });
}

void MailField(Stage& stage, Run& run, const Step& step)
{
    run.WaitFor([&, field = step.At(0)] {
        const Mail mail = run.OnUi([&] { return stage.LastMail(); });
        const auto found = mail.find(field);
        if (found == mail.end()) return L"no mail with a field " + field + L" is displayed";
        return Unless(found->second == step.Lines(1), L"it is \"" + found->second + L"\"");
    });
}

// The displayed mail as a file that mail programs read.
void Letter(Stage& stage, Run& run, const Step& step)
{
    Mail mail;
    run.WaitFor([&] {
        mail = run.OnUi([&] { return stage.LastMail(); });
        return Unless(!mail.empty(), L"no mail is displayed");
    });
    std::wstring letter;
    for (const wchar_t* header : {L"To", L"CC", L"Subject"})
        if (mail.contains(header)) letter += header + (L": " + mail[header]) + L"\r\n";
    letter +=
        L"MIME-Version: 1.0\r\nContent-Type: text/plain; charset=utf-8\r\nContent-Transfer-Encoding: 8bit\r\n\r\n";
    WriteText(run.OutFile(step.At(0) + L".eml"), letter + mail[L"Body"]);
}

void Shot(Stage& stage, Run& run, const Step& step)
{
    const std::wstring file = run.OutFile(step.At(0) + L".png");
    const std::wstring name = step.At(1);
    HWND window = nullptr;
    run.WaitFor([&] {
        window = name.empty() ? nullptr : run.NamedWindow(name);
        return Unless(window != nullptr || name.empty(), L"no window " + name);
    });
    for (DWORD waited = 0; waited < kPaintPatience && AwaitsPaint(); waited += kPaintPoll)
        ::Sleep(kPaintPoll);
    // Painted surfaces reach the screen when their thread waits for messages again. A busy thread is shown as it is.
    for (int i = 0; i < 3; ++i)
        if (!stage.Queue().Run([] { ::GdiFlush(); }, std::chrono::seconds{1})) break;
    ::Sleep(kPaintPoll);
    SaveScreenshot(file, window);
}

void MeasuredUsage(Stage& stage, Run& run, const Step& step)
{
    run.Settle();
    const Usage now = MeasureUsage();
    stage.Tell(L"usage: " + DescribeUsage(now));
    if (step.words.empty()) return;
    run.measured.push_back(now);
    const auto settled = static_cast<std::size_t>(std::stoi(step.At(0)));
    if (run.measured.size() <= settled) return;
    run.WaitFor([&, &before = run.measured[settled - 1]] { // the system's threads hold some of it for a moment
        const Usage held = MeasureUsage();
        return Unless(IsLevel(before, held),
                      L"it has grown from " + DescribeUsage(before) + L" to " + DescribeUsage(held));
    });
}

constexpr StepRow kSteps[] = {
    {"file exists", 1, 1, &FileExists}, {"file missing", 1, 1, &FileMissing},
    {"faults", 1, 1, &Faults},          {"mail", 2, kAny, &MailField},
    {"letter", 1, 1, &Letter},          {"shot", 1, 2, &Shot},
    {"usage", 0, 1, &MeasuredUsage},
};

} // namespace

std::span<const StepRow> OutputSteps() { return kSteps; }

} // namespace corvane::player
