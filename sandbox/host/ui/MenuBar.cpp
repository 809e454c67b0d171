#include "ui/MenuBar.h"

#include <algorithm>

#include "base/Text.h"

namespace host
{
namespace
{

constexpr UINT kFirstId = 1000;

struct OwnEntry
{
    long barId; // the control id that Office gives the entry on command bars
    const wchar_t* label;
    HostCommand command;
};

constexpr OwnEntry kOwnEntries[] = {
    {18, L"&New", HostCommand::New},      {23, L"&Open...", HostCommand::Open},
    {3, L"&Save", HostCommand::Save},     {748, L"Save &As...", HostCommand::SaveAs},
    {106, L"&Close", HostCommand::Close}, {752, L"E&xit", HostCommand::Exit},
};

} // namespace

void MenuBuilder::FillFromBar(HMENU menu, CommandBarObject& bar)
{
    for (const auto& entry : bar.Entries()) {
        if (!entry->IsVisible()) continue;
        if (CommandBarObject* below = entry->Menu(); below != nullptr) {
            const HMENU popup = ::CreatePopupMenu(); // the menu it is put into owns it
            FillFromBar(popup, *below);
            AppendPopup(menu, popup, entry->Caption());
        } else {
            Append(menu, entry->Caption(), entry->IsEnabled(), ActionOf(*entry.Get()));
        }
    }
}

std::function<void()> MenuBuilder::ActionOf(BarControlObject& entry)
{
    const auto own = std::ranges::find(kOwnEntries, entry.Id(), &OwnEntry::barId);
    if (own != std::end(kOwnEntries)) return [this, command = own->command] { m_desk.Perform(command); };
    if (entry.Tag().empty()) return nullptr;
    return [this, tag = Narrow(entry.Tag())] { m_desk.Press(tag); };
}

void MenuBuilder::FillFromRibbon(HMENU menu, const ShownRibbon& shown, const std::vector<RibbonControl>& controls)
{
    for (const RibbonControl& control : controls) {
        if (!shown.IsShown(control)) continue;
        // A label's own access key marks are gone; what is left is plain text.
        const std::wstring label = Replaced(shown.Label(control), L"&", L"&&");
        if (control.LocalName() == "menu") {
            const HMENU popup = ::CreatePopupMenu();
            FillFromRibbon(popup, shown, control.children);
            AppendPopup(menu, popup, label);
        } else {
            Append(menu, label, shown.IsEnabled(control), [this, id = IdOf(control)] { m_desk.Press(id); });
        }
    }
}

void MenuBuilder::FillOfficeMenu(HMENU menu)
{
    for (const OwnEntry& own : kOwnEntries) {
        Append(menu, own.label, true, [this, command = own.command] { m_desk.Perform(command); });
        if (own.command != HostCommand::SaveAs) continue;
        for (const ShownRibbon* shown : m_desk.Ribbons())
            FillFromRibbon(menu, *shown, shown->ribbon.officeMenu);
    }
}

void MenuBuilder::Perform(UINT id)
{
    if (id < kFirstId || id - kFirstId >= m_actions.size()) return;
    const auto action = m_actions[id - kFirstId]; // the menu may be built anew meanwhile
    if (action) action();
}

void MenuBuilder::Append(HMENU menu, const std::wstring& label, bool enabled, std::function<void()> action)
{
    const bool usable = enabled && action;
    const UINT_PTR id = kFirstId + m_actions.size();
    m_actions.push_back(std::move(action));
    ::AppendMenuW(menu, MF_STRING | (usable ? MF_ENABLED : MF_GRAYED), id, label.c_str());
}

void MenuBuilder::AppendPopup(HMENU menu, HMENU popup, const std::wstring& label)
{
    ::AppendMenuW(menu, MF_POPUP, reinterpret_cast<UINT_PTR>(popup), label.c_str());
}

} // namespace host
