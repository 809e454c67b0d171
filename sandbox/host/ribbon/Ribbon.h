// The ribbon that an add-in asks for.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "package/Xml.h"

namespace host
{

// An element of a ribbon description: a tab, group, menu, button, task ... Texts are UTF-8.
struct RibbonControl
{
    std::string kind; // the element's name
    std::string id;   // id or idQ, whichever is given; empty where the kind has none
    XmlElement element;
    std::vector<RibbonControl> children;

    [[nodiscard]] std::string Attribute(std::string_view name) const { return element.Attribute(name); }

    // Whether the attribute is there and says no.
    [[nodiscard]] bool IsFalse(std::string_view name) const;

    // The label as shown: "&&" is an ampersand, a single "&" marks an access key and is not shown.
    [[nodiscard]] std::string Label() const;
};

// What an add-in contributes to the ribbon.
struct Ribbon
{
    std::string onLoad;
    std::vector<RibbonControl> tabs;
    std::vector<RibbonControl> officeMenu;
    std::vector<RibbonControl> backstage;

    // The control with this id anywhere in the ribbon, or null.
    [[nodiscard]] const RibbonControl* Find(std::string_view id) const;
};

// Reads the XML as a host of this major version does. Throws std::runtime_error with the reason when such a host would
// refuse it: not well formed, or against its rules (CheckRibbon).
[[nodiscard]] Ribbon ReadRibbon(std::string_view xml, int hostVersion);

} // namespace host
