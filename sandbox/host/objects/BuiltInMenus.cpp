#include "base/Text.h"
#include "objects/CommandBars.h"

namespace host
{
namespace
{

constexpr long kSaveAs = 748;
constexpr long kHelpTopics = 984;
constexpr long kHelpMenu = 30010;
constexpr long kCustom = 1; // the id of every control that an add-in makes

struct BuiltInEntry
{
    long id;
    const wchar_t* caption;
};

struct BuiltInMenu
{
    BuiltInEntry menu;
    std::vector<BuiltInEntry> entries;
};

const std::vector<BuiltInMenu>& BuiltInMenus()
{
    static const std::vector<BuiltInMenu> kMenus = {
        {{30002, L"&File"},
         {{18, L"&New"},
          {23, L"&Open..."},
          {106, L"&Close"},
          {3, L"&Save"},
          {kSaveAs, L"Save &As..."},
          {752, L"E&xit"}}},
        {{30003, L"&Edit"}, {{128, L"&Undo"}}},
        {{30004, L"&View"}, {{6, L"&Normal"}}},
        {{30007, L"&Tools"}, {{797, L"&Customize..."}}},
        {{kHelpMenu, L"&Help"}, {{kHelpTopics, L"Microsoft %1 &Help"}, {927, L"&About Microsoft %1"}}},
    };
    return kMenus;
}

BarControlObject& Append(CommandBarObject& bar, long type, long id, const std::wstring& caption)
{
    return bar.Insert(type, id, caption, bar.Entries().size());
}

CommandBarObject& AddLeftover(CommandBarObject& bar, long type, const wchar_t* tag)
{
    BarControlObject& entry = Append(bar, type, kCustom, L"Left over");
    entry.SetTag(tag);
    return entry.Menu() != nullptr ? *entry.Menu() : bar;
}

// Entries as an earlier run of the add-in made them: they have its tags, but nobody listens to them.
void AddLeftovers(CommandBarObject& file, CommandBarObject& help)
{
    CommandBarObject& saves = AddLeftover(file, kBarPopup, L"KRXSaveToCorvane");
    for (const wchar_t* tag : {L"KRXSaveAssignement", L"KRXSaveRelatedDoc", L"KRXSaveGateDoc"})
        AddLeftover(saves, kBarButton, tag);
    for (const wchar_t* tag : {L"KRXMSOHelp", L"KRXAboutMSO"})
        AddLeftover(help, kBarButton, tag);
}

} // namespace

void FillMenuBar(CommandBarObject& bar, const std::wstring& product, std::string_view kind)
{
    for (const BuiltInMenu& menu : BuiltInMenus()) {
        if (menu.menu.id == kHelpMenu && kind == "helpless") continue;
        CommandBarObject& below = *Append(bar, kBarPopup, menu.menu.id, menu.menu.caption).Menu();
        for (const BuiltInEntry& entry : menu.entries)
            if (kind != "bare" || (entry.id != kSaveAs && entry.id != kHelpTopics))
                Append(below, kBarButton, entry.id, Replaced<std::wstring>(entry.caption, L"%1", product));
    }
    if (kind == "leftover") AddLeftovers(*bar.Entries().front()->Menu(), *bar.Entries().back()->Menu());
}

} // namespace host
