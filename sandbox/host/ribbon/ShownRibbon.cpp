#include "ribbon/ShownRibbon.h"

#include "platform/Utf8.h"

namespace host
{

DynamicState ShownRibbon::AnswerFor(const RibbonControl& control) const
{
    const auto found = answers.find(control.id);
    return found == answers.end() ? DynamicState{} : found->second;
}

std::wstring ShownRibbon::Label(const RibbonControl& control) const
{
    return AnswerFor(control).label.value_or(corvane::FromUtf8(control.Label()));
}

bool ShownRibbon::IsShown(const RibbonControl& control) const
{
    return AnswerFor(control).visible.value_or(!control.IsFalse("visible"));
}

bool ShownRibbon::IsEnabled(const RibbonControl& control) const
{
    return AnswerFor(control).enabled.value_or(!control.IsFalse("enabled"));
}

} // namespace host
