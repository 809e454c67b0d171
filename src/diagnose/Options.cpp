#include "diagnose/Options.h"

#include <algorithm>

namespace diagnose
{
namespace
{

// Digits and nothing else: a number that is read leniently would remove what nobody named.
std::optional<int> WholeNumber(const std::wstring& text)
{
    constexpr std::size_t kMostDigits = 6;
    const bool isNumber = !text.empty() && text.size() <= kMostDigits &&
                          std::ranges::all_of(text, [](wchar_t letter) { return letter >= L'0' && letter <= L'9'; });
    return isNumber ? std::optional{std::stoi(text)} : std::nullopt;
}

struct Switch
{
    const wchar_t* name;
    bool Options::*flag;
};
constexpr Switch kSwitches[] = {
    {L"--switch-on", &Options::switchesOn},
    {L"--json", &Options::asJson},
    {L"--desktop", &Options::toDesktop},
};

// Takes a name with its value; false when it is not understood.
bool Take(Options& options, const std::wstring& name, const std::wstring& value)
{
    const auto number = WholeNumber(value);
    if (name == L"--server")
        options.server = value;
    else if (name == L"--out")
        options.archive = value;
    else if (name == L"--timeout" && number.value_or(0) > 0)
        options.limit = std::chrono::seconds{*number};
    else if (name == L"--remove-traces" && number)
        options.oldestTraceDays = number;
    else
        return false;
    return !value.empty() && !value.starts_with(L"--");
}

bool GoTogether(const Options& options, std::size_t arguments)
{
    constexpr std::size_t kRemovalAlone = 2;
    if (options.oldestTraceDays) return arguments == kRemovalAlone;
    return !options.toDesktop || (options.archive.empty() && !options.asJson);
}

} // namespace

std::optional<Options> ReadOptions(std::span<const std::wstring> arguments)
{
    Options options;
    for (std::size_t index = 0; index < arguments.size(); ++index) {
        const std::wstring& name = arguments[index];
        const auto* const known = std::ranges::find(kSwitches, name, &Switch::name);
        if (known != std::end(kSwitches))
            options.*known->flag = true;
        else if (++index == arguments.size() || !Take(options, name, arguments[index]))
            return std::nullopt;
    }
    return GoTogether(options, arguments.size()) ? std::optional{options} : std::nullopt;
}

} // namespace diagnose
