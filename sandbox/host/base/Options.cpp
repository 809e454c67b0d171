#include "base/Options.h"

#include <cwchar>
#include <stdexcept>

#include "base/Text.h"

namespace host
{
namespace
{

long ToNumber(const std::wstring& text)
{
    wchar_t* end = nullptr;
    const long number = std::wcstol(text.c_str(), &end, 10);
    if (text.empty() || *end != L'\0') throw std::invalid_argument{Narrow(text) + " is not a number"};
    return number;
}

HostKind ToHost(const std::wstring& option)
{
    if (const HostFacts* facts = FindHost(option)) return facts->kind;
    throw std::invalid_argument{"there is no host " + Narrow(option)};
}

void AddSetting(Options& options, const std::wstring& word)
{
    const std::string text = Narrow(word);
    const std::size_t equals = text.find('=');
    if (equals == std::string::npos || equals == 0) throw std::invalid_argument{"--set needs NAME=VALUE"};
    options.settings[text.substr(0, equals)] = text.substr(equals + 1);
}

} // namespace

int Options::MajorVersion() const { return static_cast<int>(std::wcstol(version.c_str(), nullptr, 10)); }

std::string Options::Setting(std::string_view name) const
{
    const auto found = settings.find(name);
    return found == settings.end() ? std::string{} : found->second;
}

Options ParseOptions(const std::vector<std::wstring>& words)
{
    Options options;
    for (std::size_t i = 0; i < words.size(); ++i) {
        const std::wstring& name = words[i];
        if (i + 1 == words.size()) throw std::invalid_argument{Narrow(name) + " lacks its value or is unknown"};
        const std::wstring& value = words[++i];
        if (name == L"--host")
            options.host = ToHost(value);
        else if (name == L"--version")
            options.version = value;
        else if (name == L"--connect-mode")
            options.connectMode = ToNumber(value);
        else if (name == L"--play")
            options.playFile = value;
        else if (name == L"--out")
            options.outFolder = value;
        else if (name == L"--set")
            AddSetting(options, value);
        else
            throw std::invalid_argument{"unknown option " + Narrow(name)};
    }
    if (options.MajorVersion() < 8) throw std::invalid_argument{"the version must be 8.0 or later"};
    return options;
}

} // namespace host
