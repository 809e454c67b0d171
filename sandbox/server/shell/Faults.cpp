#include "shell/Faults.h"

#include "core/Files.h"

#include <nlohmann/json.hpp>
#include <stdexcept>

namespace server
{

namespace
{

using Json = nlohmann::json;

Drop ParseDrop(const std::string& text)
{
    if (text.empty()) return Drop::Nowhere;
    if (text == "before") return Drop::BeforeAnswer;
    if (text == "status") return Drop::WithinStatus;
    if (text == "headers") return Drop::WithinHeaders;
    if (text == "body") return Drop::WithinBody;
    throw std::runtime_error{"The faults file has an unknown drop '" + text + "'."};
}

Fault ParseFault(const Json& rule)
{
    Fault fault{.delayMs = rule.value("delayMs", 0),
                .status = {},
                .body = {},
                .contentType = rule.value("contentType", ""),
                .location = rule.value("location", ""),
                .drop = ParseDrop(rule.value("drop", "")),
                .heldIn = {}};
    if (rule.contains("status")) fault.status = rule["status"].get<int>();
    if (rule.contains("body")) fault.body = rule["body"].get<std::string>();
    if (rule.contains("file")) fault.body = ReadIfThere(PathOf(rule["file"].get<std::string>())).value_or("");
    return fault;
}

bool Matches(const Json& rule, std::string_view target, std::string_view body)
{
    const auto part = rule.value("match", "");
    return target.find(part) != std::string_view::npos || body.find(part) != std::string_view::npos;
}

} // namespace

std::optional<Fault> Faults::Next(std::string_view target, std::string_view body)
{
    if (m_file.empty()) return std::nullopt;
    Read();
    if (m_content.find_first_not_of(" \t\r\n") == std::string::npos) return std::nullopt;
    const auto rules = Json::parse(m_content);
    for (std::size_t at = 0; at < rules.size(); ++at) {
        const auto& rule = rules.at(at);
        if (!Matches(rule, target, body)) continue;
        if (rule.contains("times") && m_uses[at] >= rule["times"].get<int>()) continue;
        ++m_uses[at];
        Fault fault = ParseFault(rule);
        if (rule.value("hold", false)) fault.heldIn = m_edition;
        return fault;
    }
    return std::nullopt;
}

bool Faults::Holds(const Fault& fault)
{
    if (!fault.heldIn) return false;
    try {
        Read();
    } catch (const std::runtime_error&) {
        return true; // it is looked at again
    }
    return m_edition == *fault.heldIn;
}

void Faults::Read()
{
    auto content = ReadIfThere(m_file).value_or("");
    if (content == m_content) return;
    m_content = std::move(content);
    m_uses.clear();
    ++m_edition;
}

} // namespace server
