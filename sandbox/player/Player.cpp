#include "player/Player.h"

#include "platform/Procedure.h"
#include "platform/Utf8.h"
#include "player/Run.h"
#include "player/Screen.h"
#include "player/Script.h"

namespace corvane::player
{
namespace
{

void PerformAll(Stage& stage, const std::vector<Step>& steps, const Settings& settings, const Step*& current)
{
    Run run{stage};
    if (const auto patience = settings.find("patience"); patience != settings.end())
        run.SetPatience(FromUtf8(patience->second));
    const bool tells = settings.contains("progress");
    for (const Step& step : steps) {
        current = &step;
        const std::wstring number = std::to_wstring(&step - steps.data() + 1);
        if (tells) stage.Tell(L"[" + number + L"/" + std::to_wstring(steps.size()) + L"] " + step.source);
        if (run.HasQuit()) Fail(L"the host has quit");
        Step worded = step;
        for (Word& word : worded.words)
            word.text = stage.InItsWords(word.text);
        step.row->perform(stage, run, worded);
        run.CheckFaults();
    }
    if (!run.HasQuit()) run.Quit();
}

std::wstring At(const std::wstring& path, int line, const std::wstring& source, const std::wstring& why)
{
    return path + L":" + std::to_wstring(line) + L": " + source + L"\n  " + why;
}

// The host's window and what stands before it, for whoever reads of the failure.
void KeepPicture(const Stage& stage)
{
    const std::wstring folder = stage.OutFolder();
    if (!folder.empty()) Ignoring([&] { SaveScreenshot(folder + L"\\failed.png", stage.Window()); });
}

} // namespace

std::vector<StepRow> AllSteps()
{
    std::vector<StepRow> all;
    for (const auto& rows :
         {HostSteps(), OutputSteps(), FormSteps(), MessageSteps(), InspectionSteps(), Expectations()})
        all.insert(all.end(), rows.begin(), rows.end());
    return all;
}

Outcome Play(Stage& stage, const std::wstring& path, const Settings& settings)
{
    const std::vector<StepRow> rows = AllSteps();
    std::vector<Step> steps;
    const Step none;
    const Step* current = &none;
    const auto failed = [&](const std::wstring& why) {
        KeepPicture(stage);
        return Outcome{0, At(path, current->line, current->source, why) + L"\n" + DescribeScreen()};
    };
    try {
        steps = ParseScript(ReadText(path), settings, rows);
        PerformAll(stage, steps, settings, current);
        return {steps.size(), {}};
    } catch (const ScriptError& error) {
        return {0, At(path, error.Line(), error.Source(), error.Description())};
    } catch (const Error& error) {
        return failed(error.Description());
    } catch (const std::exception& error) {
        return failed(FromUtf8(error.what()));
    }
}

} // namespace corvane::player
