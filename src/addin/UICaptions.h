// The texts of the add-in's commands in the customer's words.
#pragma once

#include <functional>
#include <string>
#include <string_view>

namespace corvane
{

// Read by the ribbon and the command bars; in the order in which they are built.
struct UICaptions
{
    std::wstring saveToCorvane;
    std::wstring saveToCorvaneTip;
    std::wstring saveAsDelivActMenu;
    std::wstring saveAsDelivActLabel;
    std::wstring saveAsGateDocMenu;
    std::wstring saveAsGateDocLabel;
    std::wstring saveToCorvaneTitle;
    std::wstring delivActTip;
    std::wstring gateDocTip;
    std::wstring relatedTip;
    std::wstring productName;
    std::wstring helpMenu;
    std::wstring helpLabel;
    std::wstring helpTip;
    std::wstring helpTopicsLabel;
    std::wstring helpTopicsTip;
    std::wstring aboutLabel;
    std::wstring aboutTip;
};

// Builds the captions; name gives the customer's word for a term.
[[nodiscard]] UICaptions BuildUICaptions(const std::function<std::wstring(std::wstring_view term)>& name);

// The title of every message without one of its own.
[[nodiscard]] std::wstring ApplicationTitleFor(std::wstring_view productName);

} // namespace corvane
