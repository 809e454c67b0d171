#include "ribbon/Ribbon.h"

#include "base/Text.h"
#include "ribbon/RibbonRules.h"

namespace host
{
namespace
{

std::string IdOf(const XmlElement& element)
{
    const std::string id = element.Attribute("id");
    return id.empty() ? element.Attribute("idQ") : id;
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
    if (parent == nullptr) return;
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

std::string RibbonControl::Label() const { return Narrow(WithoutMark(Widen(Attribute("label")))); }

bool RibbonControl::IsFalse(std::string_view name) const
{
    const std::string value = Attribute(name);
    return value == "false" || value == "0";
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
