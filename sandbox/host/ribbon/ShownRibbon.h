// An add-in's ribbon as it is to be shown now.
#pragma once

#include <map>
#include <optional>

#include "ribbon/Ribbon.h"

namespace host
{

// What an add-in's callbacks answered for one control whose XML names them.
struct DynamicState
{
    std::optional<std::wstring> label;
    std::optional<bool> enabled;
    std::optional<bool> visible;
};

// The answers of the callbacks, by the controls' ids, count before what the XML says.
struct ShownRibbon
{
    Ribbon ribbon;
    std::map<std::string, DynamicState> answers{};

    [[nodiscard]] std::wstring Label(const RibbonControl& control) const;
    [[nodiscard]] bool IsShown(const RibbonControl& control) const;
    [[nodiscard]] bool IsEnabled(const RibbonControl& control) const;

private:
    [[nodiscard]] DynamicState AnswerFor(const RibbonControl& control) const;
};

} // namespace host
