#include "ribbon/Ribbon.h"

#include <algorithm>
#include <set>
#include <stdexcept>

#include "base/HostFacts.h"

namespace host
{
namespace
{

constexpr std::string_view kNamespace2007 = "http://schemas.microsoft.com/office/2006/01/customui";
constexpr std::string_view kNamespace2010 = "http://schemas.microsoft.com/office/2009/07/customui";
constexpr std::size_t kLongestText = 1024;
constexpr std::size_t kLongestDescription = 4096;

[[noreturn]] void Refuse(const std::string& why) { throw std::runtime_error{"the ribbon XML is not valid: " + why}; }

std::string Quoted(const std::string& text) { return '"' + text + '"'; }

// The attributes that elements have in common.
enum Attributes : unsigned
{
    kNone = 0,
    kLoad = 1,
    kControl = 2,
    kPicture = 4,
    kTips = 8,
    kState = 16,
    kAction = 32,
    kDescription = 64,
    kSize = 128,
    kItemSize = 256,
    kTitle = 512,
    kDefinitive = 1024,
    kButton = kControl | kPicture | kTips | kState | kAction | kDescription,
    kMenu = kControl | kPicture | kTips | kState | kItemSize,
};

// An element by its path from the root, and the edition that has it and all below it. One without an id stands there
// once.
struct ElementRule
{
    std::string_view path;
    unsigned attributes;
    std::optional<Edition> edition{}; // the one whose schema alone knows it
};

constexpr ElementRule kElements[] = {
    {"/customUI", kLoad},
    {"/customUI/ribbon", kNone},
    {"/customUI/ribbon/officeMenu", kNone, Edition::OfficeButton},
    {"/customUI/ribbon/officeMenu/menu", kMenu | kTitle},
    {"/customUI/ribbon/officeMenu/menu/button", kButton},
    {"/customUI/ribbon/tabs", kNone},
    {"/customUI/ribbon/tabs/tab", kControl},
    {"/customUI/ribbon/tabs/tab/group", kControl | kPicture | kTips},
    {"/customUI/ribbon/tabs/tab/group/menu", kMenu | kDescription | kSize},
    {"/customUI/ribbon/tabs/tab/group/menu/button", kButton},
    {"/customUI/ribbon/tabs/tab/group/button", kButton | kSize},
    {"/customUI/backstage", kNone, Edition::Backstage},
    {"/customUI/backstage/tab", kControl | kState},
    {"/customUI/backstage/tab/firstColumn", kNone},
    {"/customUI/backstage/tab/firstColumn/taskGroup", kControl},
    {"/customUI/backstage/tab/firstColumn/taskGroup/category", kControl},
    {"/customUI/backstage/tab/firstColumn/taskGroup/category/task",
     kControl | kPicture | kState | kAction | kDescription | kDefinitive},
};

enum class Value
{
    Text,
    LongText,
    Name,
    QualifiedName,
    Truth,
    Size
};

struct AttributeRule
{
    std::string_view name;
    Attributes group;
    Value value;
};

constexpr AttributeRule kAttributes[] = {
    {"onLoad", kLoad, Value::Text},
    {"id", kControl, Value::Name},
    {"idQ", kControl, Value::QualifiedName},
    {"label", kControl, Value::Text},
    {"getLabel", kControl, Value::Text},
    {"insertAfterMso", kControl, Value::Name},
    {"insertAfterQ", kControl, Value::QualifiedName},
    {"visible", kControl, Value::Truth},
    {"getVisible", kControl, Value::Text},
    {"tag", kControl, Value::Text},
    {"imageMso", kPicture, Value::Name},
    {"screentip", kTips, Value::Text},
    {"getScreentip", kTips, Value::Text},
    {"supertip", kTips, Value::Text},
    {"getSupertip", kTips, Value::Text},
    {"enabled", kState, Value::Truth},
    {"getEnabled", kState, Value::Text},
    {"onAction", kAction, Value::Text},
    {"description", kDescription, Value::LongText},
    {"size", kSize, Value::Size},
    {"itemSize", kItemSize, Value::Size},
    {"title", kTitle, Value::Text},
    {"isDefinitive", kDefinitive, Value::Truth},
};

bool IsOneOf(std::string_view value, std::initializer_list<std::string_view> words)
{
    return std::ranges::find(words, value) != words.end();
}

std::size_t LettersOf(std::string_view utf8)
{
    return static_cast<std::size_t>(std::ranges::count_if(utf8, [](char c) { return (c & 0xc0) != 0x80; }));
}

bool IsText(std::string_view value, std::size_t longest) { return !value.empty() && LettersOf(value) <= longest; }

// A name of XML without a colon. Every letter outside ASCII is taken for one of a name.
bool IsName(std::string_view value)
{
    const auto isIn = [](char c, char first, char last) { return c >= first && c <= last; };
    const auto begins = [&](char c) { return (c & 0x80) != 0 || c == '_' || isIn(c, 'A', 'Z') || isIn(c, 'a', 'z'); };
    const auto goesOn = [&](char c) { return begins(c) || isIn(c, '0', '9') || c == '-' || c == '.'; };
    return !value.empty() && begins(value.front()) && std::ranges::all_of(value, goesOn);
}

// The two parts of a qualified name, the first of them empty where it has no prefix.
std::pair<std::string_view, std::string_view> SplitName(std::string_view name)
{
    const std::size_t colon = name.find(':');
    if (colon == std::string_view::npos) return {{}, name};
    return {name.substr(0, colon), name.substr(colon + 1)};
}

class Checker
{
public:
    explicit Checker(std::string_view space) : m_space{space} {}

    void Check(const XmlElement& element, const std::string& above)
    {
        const std::size_t outer = m_prefixes.size();
        DeclarePrefixes(element);
        const std::string path = above + '/' + std::string{element.LocalName()};
        const auto rule = std::ranges::find(kElements, path, &ElementRule::path);
        const Edition edition = m_space == kNamespace2007 ? Edition::OfficeButton : Edition::Backstage;
        const bool known = rule != std::end(kElements) && rule->edition.value_or(edition) == edition;
        if (!known || NamespaceOf(SplitName(element.name).first) != m_space) Refuse(path + " has no place there");
        if (element.text.find_first_not_of(" \t\r\n") != std::string::npos) Refuse("words inside of " + path);
        CheckAttributes(element, *rule);
        CheckChildren(element, path);
        m_prefixes.resize(outer);
    }

private:
    void DeclarePrefixes(const XmlElement& element)
    {
        for (const auto& [name, value] : element.attributes) {
            const auto [prefix, rest] = SplitName(name);
            if (name == "xmlns") m_prefixes.emplace_back("", value);
            if (prefix == "xmlns") m_prefixes.emplace_back(rest, value);
        }
    }

    // The namespace that the prefix stands for, or an empty text.
    [[nodiscard]] std::string NamespaceOf(std::string_view prefix) const
    {
        const auto found = std::find_if(m_prefixes.rbegin(), m_prefixes.rend(),
                                        [&](const auto& declared) { return declared.first == prefix; });
        return found == m_prefixes.rend() ? std::string{} : found->second;
    }

    void CheckAttributes(const XmlElement& element, const ElementRule& rule)
    {
        int ids = 0;
        for (const auto& [name, value] : element.attributes) {
            if (name == "xmlns" || name.starts_with("xmlns:")) continue;
            const std::string where = std::string{rule.path} + '/' + name;
            const auto known = std::ranges::find(kAttributes, name, &AttributeRule::name);
            if (known == std::end(kAttributes) || (known->group & rule.attributes) == 0)
                Refuse(where + " has no place there");
            if (!IsValue(value, known->value)) Refuse(where + " may not be " + Quoted(value));
            if (name != "id" && name != "idQ") continue;
            ++ids;
            if (!m_ids.insert(value).second) Refuse("the id " + Quoted(value) + " is given twice");
        }
        if (ids != ((rule.attributes & kControl) != 0 ? 1 : 0)) Refuse(std::string{rule.path} + " has no id, or two");
    }

    [[nodiscard]] bool IsValue(std::string_view value, Value kind) const
    {
        switch (kind) {
        case Value::Text:
            return IsText(value, kLongestText);
        case Value::LongText:
            return IsText(value, kLongestDescription);
        case Value::Name:
            return IsText(value, kLongestText) && IsName(value);
        case Value::QualifiedName: {
            const auto [prefix, name] = SplitName(value);
            return IsName(name) && (value == name || !NamespaceOf(prefix).empty());
        }
        case Value::Truth:
            return IsOneOf(value, {"true", "false", "1", "0"});
        case Value::Size:
            return IsOneOf(value, {"normal", "large"});
        }
        return false;
    }

    void CheckChildren(const XmlElement& element, const std::string& path)
    {
        std::set<std::string_view> containers;
        for (const XmlElement& child : element.children) {
            Check(child, path);
            const bool container = child.Attribute("id").empty() && child.Attribute("idQ").empty();
            const bool again = container && !containers.insert(child.LocalName()).second;
            if (again || (child.LocalName() == "ribbon" && containers.contains("backstage")))
                Refuse(path + '/' + child.name + " comes again, or too late");
        }
        if (element.LocalName() == "tabs" && element.children.empty()) Refuse(path + " is empty");
    }

    std::string_view m_space;
    std::vector<std::pair<std::string, std::string>> m_prefixes;
    std::set<std::string> m_ids;
};

} // namespace

void CheckRibbon(const XmlElement& root, int hostVersion)
{
    const std::string_view prefix = SplitName(root.name).first;
    const std::string space = root.Attribute(prefix.empty() ? "xmlns" : "xmlns:" + std::string{prefix});
    const bool known =
        space == kNamespace2007 || (EditionOf(hostVersion) >= Edition::Backstage && space == kNamespace2010);
    if (!known) Refuse("the namespace " + Quoted(space) + " is not known to this version");
    Checker{space}.Check(root, "");
}

} // namespace host
