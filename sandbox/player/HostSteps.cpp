#include "platform/Registry.h"
#include "platform/Utf8.h"
#include "player/Run.h"
#include "player/Script.h"

#include <sstream>

namespace corvane::player
{
namespace
{

void Set(Stage& stage, Run& run, const Step& step)
{
    if (step.At(0) == L"patience") return run.SetPatience(step.At(1));
    run.OnUi([&] { stage.Set(step.At(0), step.At(1)); });
}

// What the stage does by itself, with the step's word where it takes one.
template<auto work>
void Do(Stage& stage, Run& run, const Step& step)
{
    run.AwaitReady();
    run.OnUi([&] {
        if constexpr (std::is_invocable_v<decltype(work), Stage&>)
            (stage.*work)();
        else
            (stage.*work)(step.At(0));
    });
}

void SaveAs(Stage& stage, Run& run, const Step& step)
{
    std::optional<long> format;
    if (step.words.size() > 1) format = std::stol(step.At(1));
    run.OnUi([&] { stage.SaveAs(step.At(0), format); });
}

void Quit(Stage&, Run& run, const Step&) { run.Quit(); }

void Exit(Stage& stage, Run& run, const Step&)
{
    run.Leave();
    ::PostMessageW(stage.Window(), WM_CLOSE, 0, 0);
}

void Command(Stage& stage, Run& run, const Step& step)
{
    run.AwaitReady();
    const std::wstring name = step.At(0);
    run.WaitFor([&] { return Unless(run.OnUi([&] { return stage.HasCommand(name); }), L"no control " + name); });
    run.BeginOnUi([&stage, name] { stage.Press(name); });
    if (step.words.size() > 1) run.Address(step.At(1));
}

void Controller(Stage& stage, Run& run, const Step& step)
{
    run.AwaitReady();
    run.BeginOnUi([&stage, method = step.At(0)] { stage.CallController(method); });
}

// The samples of a Markdown text, one below the other.
std::wstring CodeIn(const std::wstring& markdown)
{
    std::wistringstream lines{markdown};
    std::wstring code;
    bool inside = false;
    for (std::wstring line; std::getline(lines, line);) {
        if (line.starts_with(L"```"))
            inside = line.starts_with(L"```vb");
        else if (inside)
            code += line + L"\r\n";
    }
    return code;
}

void Macro(Stage& stage, Run& run, const Step& step)
{
    run.AwaitReady();
    const std::wstring text = FromUtf8(ReadText(step.At(0)));
    run.BeginOnUi([&stage, text = step.At(0).ends_with(L".md") ? CodeIn(text) : text, procedure = step.At(1)] {
        stage.RunMacro(text, procedure);
    });
}

void Show(Stage& stage, Run& run, const Step& step)
{
    run.AwaitReady();
    if (!run.OnUi([&] { return stage.ShowPage(step.At(0)); })) Fail(L"the ribbon has no such page");
}

void Property(Stage& stage, Run& run, const Step& step)
{
    run.WaitFor([&, wanted = step.At(1)] {
        const auto value = run.OnUi([&] { return stage.Property(step.At(0)); });
        if (!value && !wanted.empty()) return L"the presentation has no property " + step.At(0);
        return Unless(value.value_or(L"") == wanted, L"the property is \"" + value.value_or(L"") + L"\"");
    });
}

void Give(Stage& stage, Run& run, const Step& step)
{
    run.OnUi([&] { stage.SetProperty(step.At(0), step.At(1)); });
}

bool HasRun(Stage& stage, Run& run, const Step& step)
{
    return run.OnUi([&] { return stage.HasRun(step.At(0)); });
}

void Ran(Stage& stage, Run& run, const Step& step)
{
    run.WaitFor([&] { return Unless(HasRun(stage, run, step), L"the macro was not run"); });
}

void NoMacro(Stage& stage, Run& run, const Step& step)
{
    run.Settle();
    if (HasRun(stage, run, step)) Fail(L"the macro was run");
}

void RegistryValue(Stage&, Run& run, const Step& step)
{
    run.WaitFor([&] {
        const std::wstring text = Registry::ReadText(step.At(0), step.At(1)).value_or(L"");
        return Unless(text == step.At(2), L"it is \"" + text + L"\"");
    });
}

constexpr StepRow kSteps[] = {
    {"set", 2, 2, &Set},
    {"new", 0, 0, &Do<&Stage::New>},
    {"open", 1, 1, &Do<&Stage::Open>},
    {"save", 0, 0, &Do<&Stage::Save>},
    {"saveas", 1, 2, &SaveAs},
    {"activate", 1, 1, &Do<&Stage::Activate>},
    {"close", 0, 0, &Do<&Stage::Close>},
    {"quit", 0, 0, &Quit},
    {"exit", 0, 0, &Exit},
    {"disconnect", 0, 0, &Do<&Stage::DisconnectAddIns>},
    {"command", 1, 2, &Command},
    {"controller", 1, 1, &Controller},
    {"macro", 2, 2, &Macro},
    {"show", 1, 1, &Show},
    {"property", 2, 2, &Property},
    {"ran", 1, 1, &Ran},
    {"no macro", 1, 1, &NoMacro},
    {"registry", 3, 3, &RegistryValue},
    {"give", 2, 2, &Give},
};

} // namespace

std::span<const StepRow> HostSteps() { return kSteps; }

} // namespace corvane::player
