#include "core/Page.h"

#include "core/Dates.h"

namespace server
{

namespace
{

constexpr const char* kStyle = R"(
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

// An element of a page. It holds a text, be it empty, because a browser takes one without an end tag for open.
pugi::xml_node Add(pugi::xml_node parent, const char* name, const Row& attributes = {}, const std::string& text = {})
{
    auto element = AppendElement(parent, name, attributes);
    element.text().set(text.c_str());
    return element;
}

void AddLink(pugi::xml_node parent, const std::string& link, const std::string& text)
{
    Add(parent, "a", {{"href", link}}, text);
}

void AddText(pugi::xml_node parent, const std::string& text)
{
    parent.append_child(pugi::node_pcdata).set_value(text.c_str());
}

// A page without content, and the element for it.
pugi::xml_node StartPage(pugi::xml_document& page, const std::string& title)
{
    const auto html = AppendElement(page.root(), "html", {{"lang", "en"}});
    const auto head = AppendElement(html, "head", {});
    AppendElement(head, "meta", {{"charset", "utf-8"}});
    AppendElement(head, "meta", {{"name", "viewport"}, {"content", "width=device-width, initial-scale=1"}});
    Add(head, "title", {}, title + " - Corvane");
    Add(head, "style", {}, kStyle);
    const auto body = Add(html, "body");
    AddLink(Add(body, "header"), "/", "Corvane");
    return Add(body, "main");
}

std::string KindName(TargetKind kind)
{
    auto name = nlohmann::json(kind).get<std::string>();
    name.front() = static_cast<char>(name.front() - 'a' + 'A');
    return name;
}

void AddVersion(pugi::xml_node table, const Version& version, const std::string& link)
{
    const auto row = Add(table, "tr");
    const auto number = std::to_string(version.number);
    for (const auto& text : {number, DateWithTime(version.date), version.author, version.comments})
        Add(row, "td", {}, text);
    const auto state = Add(row, "td");
    if (version.published) Add(state, "span", {{"class", "tag"}}, "Published");
    if (version.storedAs.empty())
        Add(row, "td", {{"class", "none"}}, "no file kept");
    else
        AddLink(Add(row, "td"), link + "&Version=" + number, version.file);
}

void AddVersions(pugi::xml_node section, const Target& target, const std::string& link)
{
    if (target.versions.empty()) {
        Add(section, "p", {{"class", "none"}}, "No version has been saved yet.");
        return;
    }
    const auto table = Add(section, "table");
    const auto heads = Add(table, "tr");
    for (const char* head : {"Version", "Date", "Author", "Comments", "", "File"})
        Add(heads, "th", {}, head);
    for (auto version = target.versions.rbegin(); version != target.versions.rend(); ++version)
        AddVersion(table, *version, link);
}

std::string PathOf(const Place& place, TargetKind kind)
{
    std::string path = place.project->name;
    if (place.stage != nullptr) path += " / " + place.stage->name;
    if (place.activity != nullptr) path += " / " + place.deliverable->name;
    if (place.gate != nullptr) path += " / " + place.gate->name;
    return KindName(kind) + " in " + path;
}

void AddState(pugi::xml_node section, const Place& place)
{
    if (place.deliverable == nullptr) return;
    const auto& assignment = place.GetAssignment();
    const bool completed = assignment.statusCode == kStatusCompleted;
    if (assignment.statusNote.empty() && !completed) return;
    const auto line = Add(section, "p");
    if (completed) Add(line, "span", {{"class", "tag"}}, "Completed");
    AddText(line, (completed ? " " : "") + assignment.statusNote);
}

void AddItem(pugi::xml_node list, TargetKind kind, int projectId, const Target& target)
{
    const auto item = Add(list, "li");
    AddLink(item, PageLink(kind, projectId, target.id), target.name);
    AddText(item, " ");
    Add(item, "span", {{"class", "none"}},
        KindName(kind) + ", " + std::to_string(target.versions.size()) + " versions");
}

void AddProject(pugi::xml_node main, const Project& project)
{
    const auto section = Add(main, "section");
    Add(section, "h2", {}, project.name);
    const auto list = Add(section, "ul");
    for (const auto& stage : project.stages)
        for (const auto& deliverable : stage.deliverables) {
            AddItem(list, TargetKind::Deliverable, project.id, deliverable);
            for (const auto& activity : deliverable.activities)
                AddItem(list, TargetKind::Activity, project.id, activity);
        }
    for (const auto& gate : project.gates)
        for (const auto& document : gate.documents)
            AddItem(list, TargetKind::GateDocument, project.id, document);
    for (const auto& file : project.relatedFiles)
        AddItem(list, TargetKind::RelatedFile, project.id, file);
}

} // namespace

std::string PageLink(TargetKind kind, int projectId, int targetId)
{
    const bool assignment = kind == TargetKind::Deliverable || kind == TargetKind::Activity;
    const bool gate = kind == TargetKind::GateDocument;
    const char* page = assignment ? (kind == TargetKind::Activity ? "AD" : "DD") : (gate ? "GD" : "RFD");
    const char* field = assignment ? "DID" : (gate ? "GDID" : "RFID");
    return std::string{"/?P="} + page + "&PID=" + std::to_string(projectId) + '&' + field + '=' +
           std::to_string(targetId);
}

Answer IndexPage(Service& service)
{
    pugi::xml_document page;
    const auto main = StartPage(page, "Projects");
    Add(main, "p", {{"class", "path"}}, "Projects of " + service.CurrentUser().name);
    for (const auto& project : service.Shown().projects)
        if (Contains(project.team, service.CurrentUser().id)) AddProject(main, project);
    return HtmlAnswer(page);
}

Answer TargetPage(const Place& place, TargetKind kind)
{
    const auto& target = place.GetTarget();
    pugi::xml_document page;
    const auto section = Add(StartPage(page, target.name), "section");
    Add(section, "h1", {}, target.name);
    Add(section, "p", {{"class", "path"}}, PathOf(place, kind));
    AddState(section, place);
    AddVersions(section, target, PageLink(kind, place.project->id, target.id));
    return HtmlAnswer(page);
}

Answer NotFoundPage()
{
    pugi::xml_document page;
    const auto section = Add(StartPage(page, "Not found"), "section");
    Add(section, "h1", {}, "Not found");
    Add(section, "p", {}, "There is nothing at this address.");
    auto answer = HtmlAnswer(page);
    answer.status = 404;
    return answer;
}

} // namespace server
