#include "ribbon/Ribbon.h"

#include <algorithm>
#include <set>
#include <stdexcept>

namespace host
{
namespace
{

constexpr std::string_view kNamespace2007 = "http://schemas.microsoft.com/office/2006/01/customui";
constexpr std::string_view kNamespace2010 = "http://schemas.microsoft.com/office/2009/07/customui";
constexpr int kBackstageVersion = 14;
constexpr std::size_t kLongestText = 1024;

[[noreturn]] void Refuse(const std::string& why) { throw std::runtime_error{"the ribbon XML is not valid: " + why}; }

struct PlaceRule
{
    std::string_view kind;
    std::string_view parents; // blank-separated
};

// Where the elements that carry commands may stand.
constexpr PlaceRule kPlaces[] = {
    {"ribbon", "customUI"},
    {"backstage", "customUI"},
    {"commands", "customUI"},
    {"contextMenus", "customUI"},
    {"officeMenu", "ribbon"},
    {"qat", "ribbon"},
    {"tabs", "ribbon"},
    {"contextualTabs", "ribbon"},
    {"tab", "tabs backstage tabSet"},
    {"group", "tab firstColumn secondColumn"},
    {"firstColumn", "tab"},
    {"secondColumn", "tab"},
    {"taskGroup", "firstColumn secondColumn"},
    {"taskFormGroup", "firstColumn"},
    {"category", "taskGroup taskFormGroup"},
    {"task", "category"},
    {"menu", "officeMenu group menu box buttonGroup splitButton"},
    {"button", "officeMenu group menu box buttonGroup splitButton backstage primaryItem topItems bottomItems"},
};

bool HasWord(std::string_view words, std::string_view word)
{
    for (std::size_t at = 0; at < words.size();) {
        const std::size_t end = std::min(words.find(' ', at), words.size());
        if (words.substr(at, end - at) == word) return true;
        at = end + 1;
    }
    return false;
}

std::string IdOf(const XmlElement& element)
{
    for (const std::string_view name : {"id", "idQ", "idMso"})
        if (std::string id = element.Attribute(name); !id.empty()) return id;
    return {};
}

class Checker
{
public:
    void Check(const XmlElement& element, const XmlElement* parent)
    {
        const std::string kind{element.LocalName()};
        CheckPlace(kind, parent);
        CheckTexts(element, kind);
        const std::string id = IdOf(element);
        if (!id.empty() && !m_ids.insert(id).second) Refuse("the id \"" + id + "\" is given twice");
        for (const XmlElement& child : element.children)
            Check(child, &element);
    }

private:
    static void CheckPlace(const std::string& kind, const XmlElement* parent)
    {
        const auto rule = std::ranges::find(kPlaces, kind, &PlaceRule::kind);
        if (!parent || rule == std::end(kPlaces) || HasWord(rule->parents, parent->LocalName())) return;
        Refuse("\"" + kind + "\" may not stand in \"" + parent->name + "\"");
    }

    static void CheckTexts(const XmlElement& element, const std::string& kind)
    {
        static constexpr std::string_view kTexts[] = {"label", "screentip", "supertip", "description", "title", "id"};
        for (const auto& [name, value] : element.attributes) {
            if (std::ranges::find(kTexts, name) == std::end(kTexts)) continue;
            if (value.empty()) Refuse("\"" + kind + "\" has an empty " + name);
            if (value.size() > kLongestText) Refuse("the " + name + " of \"" + kind + "\" is too long");
        }
        if (kind == "tabs" && element.children.empty()) Refuse("\"tabs\" is empty");
        const bool needsId = kind == "button" || kind == "task" || kind == "tab" || kind == "group" || kind == "menu";
        if (needsId && IdOf(element).empty()) Refuse("\"" + kind + "\" has no id");
    }

    std::set<std::string> m_ids;
};

void CheckRoot(const XmlElement& root, int hostVersion)
{
    if (root.LocalName() != "customUI") Refuse("the root is not customUI");
    const std::size_t colon = root.name.find(':');
    const std::string space =
        root.Attribute(colon == std::string::npos ? "xmlns" : "xmlns:" + root.name.substr(0, colon));
    const bool known = space == kNamespace2007 || (hostVersion >= kBackstageVersion && space == kNamespace2010);
    if (!known) Refuse("the namespace \"" + space + "\" is not known to this version");

    int last = 0;
    for (const XmlElement& child : root.children) {
        static constexpr std::string_view kOrder[] = {"commands", "ribbon", "backstage", "contextMenus"};
        const auto place = std::ranges::find(kOrder, child.LocalName());
        if (place == std::end(kOrder)) Refuse("\"" + child.name + "\" under the root");
        const int position = static_cast<int>(place - kOrder) + 1;
        if (position <= last) Refuse("\"" + child.name + "\" is out of order");
        if (position > 2 && space == kNamespace2007) Refuse("\"" + child.name + "\" needs the newer namespace");
        last = position;
    }
}

RibbonControl ToControl(const XmlElement& element)
{
    RibbonControl control{std::string{element.LocalName()}, IdOf(element), element, {}};
    control.element.children.clear();
    for (const XmlElement& child : element.children)
        control.children.push_back(ToControl(child));
    return control;
}

void AppendChildren(std::vector<RibbonControl>& out, const XmlElement* parent)
{
    if (!parent) return;
    for (const XmlElement& child : parent->children)
        out.push_back(ToControl(child));
}

const RibbonControl* FindIn(const std::vector<RibbonControl>& controls, std::string_view id)
{
    for (const RibbonControl& control : controls) {
        if (control.id == id) return &control;
        if (const RibbonControl* found = FindIn(control.children, id)) return found;
    }
    return nullptr;
}

} // namespace

std::string PlainLabel(std::string_view label)
{
    std::string out;
    for (std::size_t i = 0; i < label.size(); ++i) {
        if (label[i] == '&' && ++i == label.size()) break;
        out += label[i];
    }
    return out;
}

std::string RibbonControl::Label() const { return PlainLabel(Attribute("label")); }

const RibbonControl* Ribbon::Find(std::string_view id) const
{
    for (const auto* part : {&tabs, &officeMenu, &backstage})
        if (const RibbonControl* found = FindIn(*part, id)) return found;
    return nullptr;
}

Ribbon ReadRibbon(std::string_view xml, int hostVersion)
{
    const XmlElement root = ParseXml(xml);
    CheckRoot(root, hostVersion);
    Checker{}.Check(root, nullptr);

    Ribbon ribbon;
    ribbon.onLoad = root.Attribute("onLoad");
    if (const XmlElement* part = root.Child("ribbon")) {
        AppendChildren(ribbon.officeMenu, part->Child("officeMenu"));
        AppendChildren(ribbon.tabs, part->Child("tabs"));
    }
    AppendChildren(ribbon.backstage, root.Child("backstage"));
    return ribbon;
}

} // namespace host
