#include "judge/Checks.h"

#include "judge/Documents.h"
#include "judge/Failure.h"
#include "judge/Text.h"
#include "judge/Zip.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdio>

namespace verify
{
namespace
{

using nlohmann::json;

constexpr const char* kProperties[] = {"KRX_SYS_Server",         "KRX_SYS_ProjectID",        "KRX_SYS_DeliverableID",
                                       "KRX_SYS_ActivityID",     "KRX_SYS_RelatedFileID",    "KRX_SYS_GateDocumentID",
                                       "HALVEX_MSExcelReportID", "KRX_SYS_TemplateLibraryID"};
constexpr double kMargin = 0.3; // seconds left out at both ends of a delay when the processor's use is measured
constexpr double kWhole = 0.9;  // a smaller part of what is left is told

// The checks of one scenario, one after the other.
struct Checking
{
    const Outcome& outcome;
    std::vector<std::string> remarks{};
    std::vector<std::string> trace{}; // what the checks of the trace have not yet passed
    bool traced = false;

    [[nodiscard]] std::string File(const std::string& name) const
    {
        auto bytes = outcome.file(name);
        Require(bytes.has_value(), "there is no file " + name);
        return std::move(*bytes);
    }

    [[nodiscard]] std::vector<const Request*> RequestsWith(const std::string& text) const
    {
        std::vector<const Request*> fitting;
        for (const auto& request : outcome.requests)
            if (RequestLine(request).find(text) != std::string::npos) fitting.push_back(&request);
        return fitting;
    }

    [[nodiscard]] const Request& FirstWith(const std::string& text) const
    {
        const auto fitting = RequestsWith(text);
        if (fitting.empty()) throw Failure{"there is no request with \"" + text + "\""};
        return *fitting.front();
    }
};

template<class Number>
Number ToNumber(const std::string& text)
{
    Number number{};
    const auto read = std::from_chars(text.data(), text.data() + text.size(), number);
    Require(read.ec == std::errc{} && read.ptr == text.data() + text.size(), "\"" + text + "\" is no number");
    return number;
}

void CheckAllRequests(const std::vector<std::string>& lines, const Outcome& outcome)
{
    std::vector<std::string> wanted;
    if (lines != std::vector<std::string>{"nothing"})
        for (const auto& line : lines)
            std::ranges::move(Repeated(line), std::back_inserter(wanted));
    std::vector<std::string> found;
    std::ranges::transform(outcome.requests, std::back_inserter(found), RequestLine);
    if (!wanted.empty() && wanted.front() == "...") {
        wanted.erase(wanted.begin());
        found.erase(found.begin(), found.end() - static_cast<std::ptrdiff_t>(std::min(wanted.size(), found.size())));
    }
    for (std::size_t at = 0; at < std::max(wanted.size(), found.size()); ++at)
        RequireEqual("request " + std::to_string(at + 1), at < found.size() ? found[at] : "none",
                     at < wanted.size() ? wanted[at] : "none");
}

void CheckRequests(Checking& checking, const std::string& rest)
{
    const auto [number, text] = CutAt(rest, " ");
    RequireEqual("requests with \"" + text + "\"", std::to_string(checking.RequestsWith(text).size()), number);
}

void CheckHeader(Checking& checking, const std::string& rest)
{
    const auto [text, header] = CutAt(rest, " ");
    std::string all;
    for (const auto& [name, value] : checking.FirstWith(text).headers) {
        const auto one = Joined({name, value}, ": ");
        if (header.ends_with(':') ? one.starts_with(header) : one == header) return;
        all.append("\n  ").append(one);
    }
    throw Failure{"no header \"" + header + "\" among" + all};
}

void CheckVersions(Checking& checking, const std::string& rest)
{
    RequireEqual("versions", std::to_string(checking.outcome.versions.size()), rest);
}

bool HasMembers(const json& version, const json& wanted)
{
    return std::ranges::all_of(wanted.items(), [&](const auto& member) {
        return version.contains(member.key()) && version[member.key()] == member.value();
    });
}

void CheckVersion(Checking& checking, const std::string& rest)
{
    const auto wanted = json::parse(rest);
    const auto& versions = checking.outcome.versions;
    const auto fitting = std::ranges::count_if(versions, [&](const json& one) { return HasMembers(one, wanted); });
    Require(fitting == 1, std::to_string(fitting) + " versions fit " + rest + " among\n" + versions.dump(1));
}

void CheckUploaded(Checking& checking, const std::string& rest)
{
    const auto file = checking.File(rest);
    const auto& versions = checking.outcome.versions;
    const auto sent = checking.RequestsWith("POST UploadToTransfer.ashx");
    Require(!sent.empty() && !versions.empty(), "nothing was uploaded and recorded");
    const auto upload = SplitUpload(sent.back()->body);
    Require(upload && upload->file == file, "the bytes sent are not those of the file");
    const auto stored = checking.File("data/" + versions.back().at("storedAs").get<std::string>());
    Require(stored == upload->file, "the bytes recorded are not those sent");
    (void)UnpackZip(rest, file);
}

std::string Shown(const std::vector<CustomProperty>& properties)
{
    std::string shown;
    for (const auto& [name, type, value] : properties)
        shown.append("\n  ").append(name).append(" ").append(type).append(" ").append(value);
    return shown;
}

void CheckBound(Checking& checking, const std::string& rest)
{
    const auto words = Words(rest);
    Require(words.size() == std::size(kProperties), "a binding is a file and seven ids");
    std::vector<CustomProperty> wanted{{kProperties[0], "lpwstr", checking.outcome.server}};
    for (std::size_t at = 1; at < words.size(); ++at)
        wanted.push_back({kProperties[at], "i4", words[at]});
    RequireEqual("properties", Shown(CustomProperties(words[0], checking.File(words[0]))), Shown(wanted));
}

void CheckUnbound(Checking& checking, const std::string& rest)
{
    RequireEqual("properties", Shown(CustomProperties(rest, checking.File(rest))), "");
}

void CheckRibbon(Checking& checking, const std::string& rest)
{
    (void)checking.File("customUI.xml");
    const auto faults = checking.outcome.ribbonFaults(rest);
    if (!faults) return checking.remarks.push_back("ribbon " + rest + " was not checked: no grammar can be asked here");
    Require(faults->empty(), "the ribbon is not sound:\n" + *faults);
}

void CheckRibbonTexts(Checking& checking, const std::string& rest)
{
    RequireEqual("texts of the ribbon", Joined(RibbonTexts(checking.File("customUI.xml")), "\n"),
                 Joined(Words(rest), "\n"));
}

void CheckTrace(Checking& checking, const std::string& rest)
{
    const auto& traces = checking.outcome.traces;
    RequireEqual("trace files", std::to_string(traces.size()), rest == "none" ? "0" : "1");
    if (rest == "none") return;
    if (!std::exchange(checking.traced, true)) checking.trace = Lines(FromWindows1252(traces.front()));
    auto& left = checking.trace;
    const auto line = std::ranges::find_if(left, [&](const auto& one) { return one.ends_with("\t" + rest); });
    Require(line != left.end(), "no line \"" + rest + "\" in its turn in the trace");
    left.erase(left.begin(), line + 1);
}

void CheckCpuBelow(Checking& checking, const std::string& rest)
{
    const auto [percent, text] = CutAt(rest, " ");
    const double delay = json::parse(checking.File("faults.json")).at(0).at("delayMs").get<double>() / 1000;
    const double start = checking.FirstWith(text).time;
    std::vector<ProcessorNote> notes;
    std::ranges::copy_if(checking.outcome.processor, std::back_inserter(notes), [&](const ProcessorNote& note) {
        return note.time >= start + kMargin && note.time <= start + delay - kMargin;
    });
    const double measured = notes.size() > 1 ? notes.back().time - notes.front().time : 0;
    Require(measured > delay / 2, "the delay was not measured");
    const double used = 100 * (notes.back().used - notes.front().used) / measured;
    std::array<char, 96> said{};
    const auto end = std::snprintf(said.data(), said.size(), "the host used %.2f %% of a core", used);
    Require(used < ToNumber<double>(percent), said.data());
    if (measured < kWhole * (delay - 2 * kMargin)) // a busy machine notes late, or not at all
        std::snprintf(said.data() + end, said.size() - static_cast<std::size_t>(end), ", measured for %.1f of %.1f s",
                      measured, delay);
    checking.remarks.emplace_back(said.data());
}

struct Row
{
    const char* word;
    void (*make)(Checking& checking, const std::string& rest);
};
constexpr Row kChecks[] = {
    {"requests", &CheckRequests},        {"header", &CheckHeader},     {"versions", &CheckVersions},
    {"version", &CheckVersion},          {"uploaded", &CheckUploaded}, {"bound", &CheckBound},
    {"unbound", &CheckUnbound},          {"ribbon", &CheckRibbon},     {"trace", &CheckTrace},
    {"ribbon-texts", &CheckRibbonTexts}, {"cpu-below", &CheckCpuBelow}};

} // namespace

std::vector<std::string> Check(const Scenario& scenario, const Outcome& outcome)
{
    Checking checking{outcome};
    if (!scenario.requests.empty()) CheckAllRequests(scenario.requests, outcome);
    const auto host = CutAt(outcome.server, "//").second;
    for (const auto& [word, rest] : scenario.checks) {
        const auto row = std::ranges::find(kChecks, word, [](const Row& one) { return std::string{one.word}; });
        Require(row != std::end(kChecks), "no check is named " + word);
        row->make(checking, Replaced(rest, "${HOST}", host));
    }
    return std::move(checking.remarks);
}

} // namespace verify
