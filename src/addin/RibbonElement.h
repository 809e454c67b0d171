// The ribbon as data: what the customUI document holds for a host, and how one button is described.
#pragma once

#include "addin/UICaptions.h"

#include <string>
#include <utility>
#include <vector>

namespace corvane
{

// The customUI namespaces of Office 2007 and of Office 2010 and later.
inline constexpr const wchar_t* kCustomUI2007 = L"http://schemas.microsoft.com/office/2006/01/customui";
inline constexpr const wchar_t* kCustomUI2010 = L"http://schemas.microsoft.com/office/2009/07/customui";

// The namespace that a host of this version reads.
[[nodiscard]] const wchar_t* CustomUINamespaceFor(int hostVersion) noexcept;

// One element with its attributes in order.
struct RibbonElement
{
    std::wstring name;
    std::vector<std::pair<std::wstring, std::wstring>> attributes;
    std::vector<RibbonElement> children;

    // Appends a child and returns it; the reference holds until the next child is appended.
    RibbonElement& Add(std::wstring childName, std::vector<std::pair<std::wstring, std::wstring>> childAttributes = {});
};

// Describes one button. The four names starting with get are those of callbacks.
struct RibbonButton
{
    std::wstring id;
    std::wstring label;
    std::wstring imageMso;
    std::wstring screentip;
    std::wstring supertip;
    std::wstring getEnabled;
    std::wstring getLabel;
    std::wstring getSupertip;
    std::wstring getScreentip;
    std::wstring onAction;
    std::wstring description;
    std::wstring size;

    // Empties everything but label, screentip and supertip, which every user of a record sets anew.
    void Clear();
};

// Appends the button to a parent, each attribute only where it has a text, and clears the record for the next one.
void AddButton(RibbonElement& parent, RibbonButton& button);

// Whose tab the add-in's help goes to: one shared with the maker's other add-ins, or one of its own (Outlook).
enum class RibbonTab
{
    Shared,
    Own
};

// The customUI element for a host of this version.
[[nodiscard]] RibbonElement BuildRibbon(int hostVersion, const UICaptions& captions, RibbonTab tab);

} // namespace corvane
