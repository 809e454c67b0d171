#include "core/Page.h"

#include "core/Dates.h"

namespace server
{

namespace
{

constexpr std::string_view kStyle = R"(
:root { color-scheme: light; --ink: #1d2733; --soft: #5c6b7a; --line: #dde4ea; --brand: #184e8c; }
* { box-sizing: border-box; }
body { margin: 0; font: 15px/1.5 "Segoe UI", system-ui, sans-serif; color: var(--ink); background: #f4f6f8; }
header { background: var(--brand); color: #fff; padding: 14px 32px; font-weight: 600; letter-spacing: .02em; }
header a { color: inherit; text-decoration: none; }
main { max-width: 960px; margin: 28px auto; padding: 0 24px; }
section { background: #fff; border: 1px solid var(--line); border-radius: 8px; padding: 22px 26px; margin-bottom: 18px; }
h1 { font-size: 24px; margin: 0 0 2px; } h2 { font-size: 18px; margin: 0 0 8px; }
p, td { white-space: pre-line; }
p.path { color: var(--soft); margin: 0 0 18px; }
table { width: 100%; border-collapse: collapse; }
th { text-align: left; color: var(--soft); font-weight: 600; font-size: 13px; }
th, td { padding: 8px 10px 8px 0; border-bottom: 1px solid var(--line); vertical-align: top; }
tr:last-child td { border-bottom: 0; }
a { color: var(--brand); } ul { margin: 0; padding-left: 20px; }
.tag { background: #e8f1ea; color: #2e6034; border-radius: 10px; padding: 1px 9px; font-size: 12px; }
.none { color: var(--soft); }
)";

std::string Document(std::string_view title, std::string_view content)
{
    std::string page = "<!DOCTYPE html>\n<html lang=\"en\"><head><meta charset=\"utf-8\">";
    page += "<meta name=\"viewport\" content=\"width=device-width, initial-scale=1\">";
    page += "<title>" + EscapeHtml(title) + " - Corvane</title><style>";
    page += kStyle;
    page += "</style></head><body><header><a href=\"/\">Corvane</a></header><main>";
    page += content;
    return page + "</main></body></html>\n";
}

std::string KindName(TargetKind kind)
{
    auto name = nlohmann::json(kind).get<std::string>();
    name.front() = static_cast<char>(name.front() - 'a' + 'A');
    return name;
}

std::string Cell(std::string_view text) { return "<td>" + EscapeHtml(text) + "</td>"; }

std::string VersionRow(const Version& version, std::string_view link)
{
    std::string row = "<tr>" + Cell(std::to_string(version.number)) + Cell(DateWithTime(version.date)) +
                      Cell(version.author) + Cell(version.comments);
    row += version.published ? "<td><span class=\"tag\">Published</span></td>" : "<td></td>";
    if (version.storedAs.empty()) return row + "<td class=\"none\">no file kept</td></tr>";
    return row + "<td><a href=\"" + EscapeHtml(link) + "&amp;Version=" + std::to_string(version.number) + "\">" +
           EscapeHtml(version.file) + "</a></td></tr>";
}

std::string VersionTable(const Target& target, std::string_view link)
{
    if (target.versions.empty()) return "<p class=\"none\">No version has been saved yet.</p>";
    std::string table =
        "<table><tr><th>Version</th><th>Date</th><th>Author</th><th>Comments</th><th></th><th>File</th></tr>";
    for (auto version = target.versions.rbegin(); version != target.versions.rend(); ++version)
        table += VersionRow(*version, link);
    return table + "</table>";
}

std::string PathOf(const Place& place, TargetKind kind)
{
    std::string path = place.project->name;
    if (place.stage) path += " / " + place.stage->name;
    if (place.activity) path += " / " + place.deliverable->name;
    if (place.gate) path += " / " + place.gate->name;
    return KindName(kind) + " in " + path;
}

std::string StateLine(const Place& place)
{
    if (!place.deliverable) return {};
    const auto& assignment = place.GetAssignment();
    std::string line;
    if (assignment.statusCode == kStatusCompleted) line += "<span class=\"tag\">Completed</span> ";
    return assignment.statusNote.empty() && line.empty() ? line
                                                         : "<p>" + line + EscapeHtml(assignment.statusNote) + "</p>";
}

std::string Item(TargetKind kind, int projectId, const Target& target)
{
    return "<li><a href=\"" + EscapeHtml(PageLink(kind, projectId, target.id)) + "\">" + EscapeHtml(target.name) +
           "</a> <span class=\"none\">" + KindName(kind) + ", " + std::to_string(target.versions.size()) +
           " versions</span></li>";
}

std::string ProjectSection(const Project& project)
{
    std::string items;
    for (const auto& stage : project.stages)
        for (const auto& deliverable : stage.deliverables) {
            items += Item(TargetKind::Deliverable, project.id, deliverable);
            for (const auto& activity : deliverable.activities)
                items += Item(TargetKind::Activity, project.id, activity);
        }
    for (const auto& gate : project.gates)
        for (const auto& document : gate.documents)
            items += Item(TargetKind::GateDocument, project.id, document);
    for (const auto& file : project.relatedFiles)
        items += Item(TargetKind::RelatedFile, project.id, file);
    return "<section><h2>" + EscapeHtml(project.name) + "</h2><ul>" + items + "</ul></section>";
}

} // namespace

std::string EscapeHtml(std::string_view text)
{
    std::string escaped;
    for (const char c : text) {
        switch (c) {
        case '&':
            escaped += "&amp;";
            break;
        case '<':
            escaped += "&lt;";
            break;
        case '>':
            escaped += "&gt;";
            break;
        case '"':
            escaped += "&quot;";
            break;
        case '\'':
            escaped += "&#39;";
            break;
        default:
            escaped += c;
        }
    }
    return escaped;
}

std::string PageLink(TargetKind kind, int projectId, int targetId)
{
    const bool assignment = kind == TargetKind::Deliverable || kind == TargetKind::Activity;
    const bool gate = kind == TargetKind::GateDocument;
    const char* page = assignment ? (kind == TargetKind::Activity ? "AD" : "DD") : (gate ? "GD" : "RFD");
    const char* field = assignment ? "DID" : (gate ? "GDID" : "RFID");
    return std::string{"/?P="} + page + "&PID=" + std::to_string(projectId) + '&' + field + '=' +
           std::to_string(targetId);
}

std::string IndexPage(Service& service)
{
    std::string sections;
    for (const auto& project : service.Shown().projects)
        if (Contains(project.team, service.CurrentUser().id)) sections += ProjectSection(project);
    return Document("Projects",
                    "<p class=\"path\">Projects of " + EscapeHtml(service.CurrentUser().name) + "</p>" + sections);
}

std::string TargetPage(const Place& place, TargetKind kind)
{
    const auto& target = place.GetTarget();
    const auto link = PageLink(kind, place.project->id, target.id);
    return Document(target.name, "<section><h1>" + EscapeHtml(target.name) + "</h1><p class=\"path\">" +
                                     EscapeHtml(PathOf(place, kind)) + "</p>" + StateLine(place) +
                                     VersionTable(target, link) + "</section>");
}

std::string NotFoundPage()
{
    return Document("Not found", "<section><h1>Not found</h1><p>There is nothing at this address.</p></section>");
}

} // namespace server
