// The ribbon that an add-in asks for, and how it is to be shown now.
#pragma once

#include <map>
#include <optional>

#include "package/Xml.h"

namespace host
{

using RibbonControl = XmlElement; // of a ribbon description: a tab, group, menu, button, task ...

// The control's id or idQ, whichever is given; empty where its kind has none.
[[nodiscard]] std::string IdOf(const RibbonControl& control);

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

// Throws std::runtime_error with the reason when a host of this major version would refuse the ribbon: a wrong
// namespace, an element out of place, an attribute that the element does not have or whose value is none of its kind,
// an id that is missing or given twice. Of what Office knows, the elements and attributes that the stand-in has a use
// for are allowed.
void CheckRibbon(const XmlElement& root, int hostVersion);

// What an add-in's callbacks answered for one control whose XML names them.
struct DynamicState
{
    std::optional<std::wstring> label;
    std::optional<bool> enabled;
    std::optional<bool> visible;
};

// The answers of the callbacks, by the controls' ids, count before what the XML says. Of a label, "&&" is an ampersand,
// and a single "&" marks an access key and is not shown.
struct ShownRibbon
{
    Ribbon ribbon;
    std::map<std::string, DynamicState> answers{};

    [[nodiscard]] std::wstring Label(const RibbonControl& control) const;
    [[nodiscard]] bool IsShown(const RibbonControl& control) const;
    [[nodiscard]] bool IsEnabled(const RibbonControl& control) const;

private:
    [[nodiscard]] DynamicState AnswerFor(const RibbonControl& control) const;
};

} // namespace host
