#include "judge/Report.h"

#include "judge/PageText.h"
#include "judge/Text.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <nlohmann/json.hpp>

namespace verify
{
namespace
{

struct VerdictWords
{
    const char* line;
    const char* json;
    const char* style; // a class of the page
};

const VerdictWords& WordsOf(Verdict verdict)
{
    static constexpr std::array<VerdictWords, 3> kWords{
        {{"ok", "passed", "passed"}, {"FAILED", "failed", "failed"}, {"not here", "not here", "absent"}}};
    return kWords.at(static_cast<std::size_t>(verdict));
}

std::string SecondsText(double seconds)
{
    std::array<char, 32> text{};
    std::snprintf(text.data(), text.size(), "%.1f s", seconds);
    return text.data();
}

std::string Escaped(const std::string& text)
{
    return Replaced(Replaced(Replaced(Replaced(text, "&", "&amp;"), "<", "&lt;"), ">", "&gt;"), "\"", "&quot;");
}

std::string PictureHtml(const Result& result, const Picture& picture)
{
    const auto name = Escaped(picture.name);
    return "<figure><img tabindex=\"0\" alt=\"" + Escaped(result.name) + ": " + name +
           "\" src=\"data:image/png;base64," + ToBase64(picture.png) + "\"><figcaption>" + name +
           "</figcaption></figure>";
}

std::string DetailsHtml(const Result& result)
{
    std::string html;
    for (const auto& remark : result.remarks)
        html += "<p class=\"remark\">" + Escaped(remark) + "</p>";
    if (!result.words.empty() && result.verdict == Verdict::NotHere)
        html += "<p class=\"remark\">" + Escaped(result.words) + "</p>";
    else if (!result.words.empty())
        html += "<pre tabindex=\"0\">" + Escaped(result.words) + "</pre>";
    if (result.pictures.empty()) return html;
    html += "<div class=\"pictures\">";
    for (const auto& picture : result.pictures)
        html += PictureHtml(result, picture);
    return html + "</div>";
}

std::string ResultHtml(const Result& result)
{
    const auto& words = WordsOf(result.verdict);
    const auto time = result.verdict == Verdict::NotHere ? "" : SecondsText(result.seconds);
    return std::string{"<li class=\""} + words.style + "\"><div class=\"line\"><span class=\"verdict\">" + words.json +
           "</span><h2>" + Escaped(result.name) + "</h2><span class=\"time\">" + time + "</span></div><p>" +
           Escaped(result.about) + "</p>" + DetailsHtml(result) + "</li>\n";
}

std::string FactsHtml(const Report& report)
{
    std::string html;
    for (const auto& [name, value] : report.facts)
        html += "<div><dt>" + Escaped(name) + "</dt><dd>" + Escaped(value) + "</dd></div>";
    return html;
}

// What failed comes first.
std::string ResultsHtml(const Report& report)
{
    std::string html;
    for (const Verdict verdict : {Verdict::Failed, Verdict::Passed, Verdict::NotHere})
        for (const auto& result : report.results)
            if (result.verdict == verdict) html += ResultHtml(result);
    return html;
}

std::string QuestionHtml(const ReportedQuestion& question)
{
    return std::string{"<li class=\""} + (question.answered ? "passed" : "absent") +
           "\"><div class=\"line\"><span class=\"verdict\">" + (question.answered ? "answered" : "open") +
           "</span><h2>" + Escaped(question.name) + "</h2><span class=\"time\">" + Escaped(question.area) +
           "</span></div><p>" + Escaped(question.words) + "</p></li>\n";
}

std::string QuestionsHtml(const Report& report)
{
    if (report.questions.empty()) return {};
    std::string html = "<section><h2>What only Windows and PowerPoint can answer</h2><ul>\n";
    for (const auto& question : report.questions)
        html += QuestionHtml(question);
    return html + "</ul></section>\n";
}

} // namespace

std::size_t Report::Count(Verdict verdict) const
{
    return static_cast<std::size_t>(std::ranges::count(results, verdict, &Result::verdict));
}

bool Report::AllPassed() const { return Count(Verdict::Failed) == 0 && Count(Verdict::Passed) != 0; }

std::string ResultText(const Result& result)
{
    std::string text = std::string{WordsOf(result.verdict).line} + " " + result.name;
    if (result.verdict == Verdict::NotHere) return text + ": " + result.words + "\n";
    text += " " + SecondsText(result.seconds) + "\n";
    return result.words.empty() ? text : text + result.words + "\n";
}

std::string SummaryText(const Report& report)
{
    const auto absent = report.Count(Verdict::NotHere);
    return std::to_string(report.Count(Verdict::Passed)) + " passed, " + std::to_string(report.Count(Verdict::Failed)) +
           " failed" + (absent == 0 ? "" : ", " + std::to_string(absent) + " not here");
}

std::string QuestionsText(const Report& report)
{
    std::string text;
    std::string area;
    for (const auto& one : report.questions) {
        if (one.area != area) text.append("\n").append(one.area).append("\n");
        area = one.area;
        text.append(one.answered ? "  [x] " : "  [ ] ").append(one.name + ": " + one.words + "\n");
    }
    return text;
}

std::string ReportText(const Report& report)
{
    std::string text;
    for (const auto& [name, value] : report.facts)
        text.append(name).append(": ").append(value).append("\n");
    text += "\n";
    for (const auto& result : report.results) {
        text += ResultText(result);
        for (const auto& remark : result.remarks)
            text.append("  ").append(remark).append("\n");
    }
    return text + SummaryText(report) + "\n" + QuestionsText(report);
}

std::string ReportJson(const Report& report)
{
    nlohmann::ordered_json json;
    for (const auto& [name, value] : report.facts)
        json["facts"][name] = value;
    for (const Verdict verdict : {Verdict::Passed, Verdict::Failed, Verdict::NotHere})
        json[WordsOf(verdict).json] = report.Count(verdict);
    json["results"] = nlohmann::ordered_json::array();
    for (const auto& result : report.results) {
        auto pictures = nlohmann::ordered_json::array();
        for (const auto& picture : result.pictures)
            pictures.push_back(result.name + "/" + picture.name);
        json["results"].push_back({{"name", result.name},
                                   {"verdict", WordsOf(result.verdict).json},
                                   {"seconds", std::round(result.seconds * 10) / 10},
                                   {"words", result.words},
                                   {"remarks", result.remarks},
                                   {"pictures", std::move(pictures)}});
    }
    for (const auto& question : report.questions)
        json["questions"].push_back({{"area", question.area},
                                     {"question", question.name},
                                     {"answered", question.answered},
                                     {"words", question.words}});
    return json.dump(1, ' ', false, nlohmann::ordered_json::error_handler_t::replace) + "\n";
}

std::string ReportPage(const Report& report)
{
    std::string page{PageText()};
    page = Replaced(std::move(page), "{{verdict}}", report.AllPassed() ? "passed" : "failed");
    page = Replaced(std::move(page), "{{passed}}", std::to_string(report.Count(Verdict::Passed)));
    page = Replaced(std::move(page), "{{failed}}", std::to_string(report.Count(Verdict::Failed)));
    page = Replaced(std::move(page), "{{absent}}", std::to_string(report.Count(Verdict::NotHere)));
    page = Replaced(std::move(page), "{{all}}", std::to_string(report.results.size()));
    page = Replaced(std::move(page), "{{facts}}", FactsHtml(report));
    page = Replaced(std::move(page), "{{questions}}", QuestionsHtml(report));
    return Replaced(std::move(page), "{{results}}", ResultsHtml(report));
}

} // namespace verify
