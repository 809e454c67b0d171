#include "addin/RibbonElement.h"

#include "addin/Commands.h"
#include "forms/ShownText.h"
#include "shared/HostVersion.h"
#include "support/Conversions.h"

namespace corvane
{
namespace
{

constexpr const wchar_t* kHandler = L"RibbonHandler";

std::wstring Esc(const std::wstring& text) { return EscapeAmpersands(text); }

void FillOfficeMenu(RibbonElement& ribbon, const UICaptions& captions)
{
    RibbonElement& menu = ribbon.Add(L"officeMenu")
                              .Add(L"menu", {{L"id", L"SaveToCorvane"},
                                             {L"insertAfterMso", L"FileSaveAsMenu"},
                                             {L"label", Esc(captions.saveToCorvane)},
                                             {L"imageMso", L"SaveAndClose"},
                                             {L"title", Esc(captions.saveToCorvaneTitle)},
                                             {L"visible", L"true"},
                                             {L"enabled", L"true"},
                                             {L"itemSize", L"large"}});
    RibbonButton button;
    for (const Command& command : SaveCommands()) {
        button.id = command.controlId;
        button.label = Esc(command.menuText.In(captions));
        button.imageMso = command.image;
        button.description = command.tip.In(captions);
        button.onAction = kHandler;
        AddButton(menu, button);
    }
}

void FillBackstage(RibbonElement& root, const UICaptions& captions)
{
    RibbonElement& category =
        root.Add(L"backstage")
            .Add(L"tab", {{L"id", L"TabSaveToCorvane"},
                          {L"label", Esc(captions.saveToCorvane)},
                          {L"insertAfterMso", L"TabPrint"}})
            .Add(L"firstColumn")
            .Add(L"taskGroup", {{L"id", L"TaskGroupSaveToCorvane"}, {L"label", L" "}})
            .Add(L"category", {{L"id", L"CategorySaveToCorvane"}, {L"label", captions.saveToCorvaneTip}});
    for (const Command& command : SaveCommands())
        category.Add(L"task", {{L"id", command.controlId},
                               {L"label", command.ribbonText.In(captions)},
                               {L"imageMso", command.image},
                               {L"onAction", kHandler},
                               {L"isDefinitive", L"true"}});
}

void FillHelpTab(RibbonElement& tabs, const UICaptions& captions, RibbonTab kind)
{
    const bool shared = kind == RibbonTab::Shared;
    const std::wstring idName = shared ? L"idQ" : L"id";
    const auto id = [&](const wchar_t* name) { return std::pair{idName, (shared ? L"a:" : L"") + std::wstring{name}}; };

    RibbonElement& tab = tabs.Add(L"tab", {id(L"CorvaneOffice"), {L"label", Esc(captions.productName)}});
    RibbonElement& group = tab.Add(L"group", {id(L"MSHelp"), {L"label", Esc(captions.helpLabel)}});
    if (shared) group.attributes.emplace_back(L"insertAfterQ", L"a:GoToCorvane");
    group.attributes.emplace_back(L"supertip", captions.helpMenu);
    RibbonElement& menu = group.Add(L"menu", {id(L"AccHelp"),
                                              {L"label", Esc(captions.helpMenu)},
                                              {L"imageMso", L"FunctionsLogicalInsertGallery"},
                                              {L"size", L"large"}});
    RibbonButton button;
    for (const Command& command : HelpCommands()) {
        button.id = command.controlId;
        button.label = Esc(command.ribbonText.In(captions));
        button.imageMso = command.image;
        button.screentip = Esc(command.screentip);
        button.supertip = command.tip.In(captions);
        button.onAction = kHandler;
        AddButton(menu, button);
    }
}

// One attribute that the grammar does not take costs all commands. It takes neither an empty text nor one of more than
// 1,024 letters, and wants no text.
void FitToGrammar(RibbonElement& element)
{
    constexpr std::size_t kLongestText = 1024;
    std::erase_if(element.attributes, [](const auto& attribute) { return attribute.second.empty(); });
    for (auto& [name, text] : element.attributes)
        text = ShortenedTo(kLongestText, text);
    for (RibbonElement& child : element.children)
        FitToGrammar(child);
}

} // namespace

const wchar_t* CustomUINamespaceFor(int hostVersion) noexcept
{
    return HasBackstage(hostVersion) ? kCustomUI2010 : kCustomUI2007;
}

RibbonElement& RibbonElement::Add(std::wstring childName,
                                  std::vector<std::pair<std::wstring, std::wstring>> childAttributes)
{
    return children.emplace_back(RibbonElement{std::move(childName), std::move(childAttributes), {}});
}

void RibbonButton::Clear()
{
    for (std::wstring* text :
         {&description, &id, &getEnabled, &getLabel, &getSupertip, &getScreentip, &imageMso, &onAction, &size})
        text->clear();
}

void AddButton(RibbonElement& parent, RibbonButton& button)
{
    const std::pair<const wchar_t*, const std::wstring&> attributes[] = {
        {L"id", button.id},
        {L"label", button.label},
        {L"imageMso", button.imageMso},
        {L"description", button.description},
        {L"screentip", button.screentip},
        {L"supertip", button.supertip},
        {L"getEnabled", button.getEnabled},
        {L"getLabel", button.getLabel},
        {L"getScreentip", button.getScreentip},
        {L"getSupertip", button.getSupertip},
        {L"onAction", button.onAction},
        {L"size", button.size},
    };
    RibbonElement& element = parent.Add(L"button");
    for (const auto& [name, text] : attributes) {
        if (!text.empty()) element.attributes.emplace_back(name, text);
    }
    button.Clear();
}

RibbonElement BuildRibbon(int hostVersion, const UICaptions& captions, RibbonTab tab)
{
    RibbonElement root{L"customUI", {}, {}};
    if (tab == RibbonTab::Shared) root.attributes = {{L"xmlns:a", L"CorvaneNameSpace"}, {L"onLoad", L"onLoad"}};
    RibbonElement& ribbon = root.Add(L"ribbon");
    if (!HasBackstage(hostVersion)) FillOfficeMenu(ribbon, captions);
    FillHelpTab(ribbon.Add(L"tabs"), captions, tab);
    if (HasBackstage(hostVersion)) FillBackstage(root, captions);
    FitToGrammar(root);
    return root;
}

} // namespace corvane
