#include "ribbon/Ribbon.h"

#include "base/Text.h"

namespace host
{
namespace
{

std::vector<RibbonControl> ChildrenOf(const XmlElement* parent)
{
    return parent != nullptr ? parent->children : std::vector<RibbonControl>{};
}

const RibbonControl* FindIn(const std::vector<RibbonControl>& controls, std::string_view id)
{
    for (const RibbonControl& control : controls) {
        if (IdOf(control) == id) return &control;
        if (const RibbonControl* found = FindIn(control.children, id)) return found;
    }
    return nullptr;
}

// Whether an attribute is there and says no.
bool IsFalse(const std::string& value) { return value == "false" || value == "0"; }

} // namespace

std::string IdOf(const RibbonControl& control)
{
    const std::string id = control.Attribute("id");
    return id.empty() ? control.Attribute("idQ") : id;
}

const RibbonControl* Ribbon::Find(std::string_view id) const
{
    for (const auto* part : {&tabs, &officeMenu, &backstage})
        if (const RibbonControl* found = FindIn(*part, id)) return found;
    return nullptr;
}

Ribbon ReadRibbon(std::string_view xml, int hostVersion)
{
    const XmlElement root = ParseXml(xml);
    CheckRibbon(root, hostVersion);
    Ribbon ribbon{root.Attribute("onLoad"), {}, {}, ChildrenOf(root.Child("backstage"))};
    if (const XmlElement* part = root.Child("ribbon")) {
        ribbon.officeMenu = ChildrenOf(part->Child("officeMenu"));
        ribbon.tabs = ChildrenOf(part->Child("tabs"));
    }
    return ribbon;
}

DynamicState ShownRibbon::AnswerFor(const RibbonControl& control) const
{
    const auto found = answers.find(IdOf(control));
    return found == answers.end() ? DynamicState{} : found->second;
}

std::wstring ShownRibbon::Label(const RibbonControl& control) const
{
    return AnswerFor(control).label.value_or(WithoutMark(Widen(control.Attribute("label"))));
}

bool ShownRibbon::IsShown(const RibbonControl& control) const
{
    return AnswerFor(control).visible.value_or(!IsFalse(control.Attribute("visible")));
}

bool ShownRibbon::IsEnabled(const RibbonControl& control) const
{
    return AnswerFor(control).enabled.value_or(!IsFalse(control.Attribute("enabled")));
}

} // namespace host
