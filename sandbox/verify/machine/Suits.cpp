#include "machine/Suits.h"

#include "companion/Agreement.h"
#include "judge/Text.h"
#include "platform/Utf8.h"

#include <array>
#include <cstdio>

namespace verify
{
namespace
{

constexpr std::string_view kEncodedPoint = "%2E";    // in what a form encodes
constexpr std::string_view kLatinLeads = "\xC2\xC3"; // of letters up to U+00FF, which the add-in sends as they are

std::string Encoded(std::string_view name)
{
    std::string encoded;
    for (std::size_t at = 0; at < name.size(); ++at) {
        const char byte = name[at];
        std::array<char, 4> code{byte};
        if (kLatinLeads.find(byte) != std::string_view::npos)
            code[1] = name[++at];
        else if (byte == ' ')
            code[0] = '+';
        else if ((byte | ' ') < 'a' || (byte | ' ') > 'z')
            std::snprintf(code.data(), code.size(), "%%%02X", static_cast<unsigned>(static_cast<unsigned char>(byte)));
        encoded += code.data();
    }
    return encoded;
}

std::string WordedLine(const std::string& line, const std::string& newName)
{
    const bool encoded = line.find(kEncodedPoint) != std::string::npos;
    return corvane::companion::Renamed(line, corvane::ToUtf8(corvane::companion::kNewName),
                                       encoded ? Encoded(newName) : newName);
}

} // namespace

std::string WhyNotInForeignHost(const Scenario& scenario, bool addInIsInstalled)
{
    const auto words = corvane::ToUtf8(corvane::companion::kMisfitWords);
    if (scenario.Wants("host")) return words + ("its host is another: " + scenario.One("host"));
    for (const auto& set : scenario.All("set"))
        if (const auto name = CutAt(set, "=").first; name != kMailClient && !corvane::companion::IsForPlayer(name))
            return std::string{words}.append("set ").append(set).append(
                ": only a stand-in is told what to offer and how to fail");
    if (addInIsInstalled && scenario.text.find("\ndisconnect") != std::string::npos)
        return words + "the installed add-in stays switched on";
    if (addInIsInstalled && scenario.Wants("run"))
        return words + ("the installed add-in keeps its settings: " + scenario.One("run"));
    return {};
}

std::string MailClientOf(const Scenario& scenario)
{
    constexpr std::pair<const char*, const char*> kCommands[] = {
        {"outlook", R"("C:\Program Files\Microsoft Office\root\Office16\OUTLOOK.EXE" -c IPM.Note /mailto "%1")"},
        {"express", R"("C:\Program Files\Outlook Express\msimn.exe" /mailurl:%1)"}};
    for (const auto& set : scenario.All("set"))
        for (const auto& [client, command] : kCommands)
            if (set == std::string{kMailClient} + "=" + client) return command;
    return {};
}

Scenario Worded(Scenario scenario, const std::string& newName)
{
    for (auto& check : scenario.checks)
        check.rest = WordedLine(check.rest, newName);
    for (auto& request : scenario.requests)
        request = WordedLine(request, newName);
    return scenario;
}

} // namespace verify
