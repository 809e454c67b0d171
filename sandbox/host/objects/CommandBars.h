// The menus of versions before the ribbon, as add-ins reach and change them.
#pragma once

#include "automation/EventSource.h"

#include <vector>

namespace host
{

class CommandBarObject;

// The numbers of MsoControlType.
constexpr long kBarButton = 1;
constexpr long kUntoldId = -1; // of an entry that refuses to tell its id and its tag
constexpr long kBarPopup = 10;

// One entry of a menu: a button, or a popup with a menu of its own. It is the menu model itself, so that the object an
// add-in keeps is the entry that is pressed.
class BarControlObject final : public AutomationObject<IDispatch>
{
public:
    BarControlObject(long type, long id, std::wstring caption, CommandBarObject* parent);
    ~BarControlObject() override;

    [[nodiscard]] void* Interface(REFIID id) override;

    [[nodiscard]] long Type() const { return m_type; }
    [[nodiscard]] long Id() const { return m_id; }
    [[nodiscard]] const std::wstring& Caption() const { return m_caption; }
    [[nodiscard]] const std::wstring& Tag() const { return m_tag; }
    [[nodiscard]] bool IsEnabled() const { return m_enabled; }
    [[nodiscard]] bool IsVisible() const { return m_visible; }
    [[nodiscard]] CommandBarObject* Menu() { return m_menu.Get(); } // null for a button

    void SetTag(std::wstring tag) { m_tag = std::move(tag); }
    void SetEnabled(bool enabled) { m_enabled = enabled; }

    // Keeps the arguments of the Add that made it.
    void NoteAdded(const Arguments& arguments);
    // How a program made it and what it wrote since, in order: "Add 1 - - 2 True, Visible True". Empty for the host's.
    [[nodiscard]] const std::wstring& History() const { return m_history; }

    // Fires Click to whoever listens to this button.
    void Press();

    // The entry is no longer part of a menu.
    void Detach();

private:
    static const Member kMembers[10];

    void CheckTells(const wchar_t* what) const;
    ComPtr<IDispatch> Controls();
    long Index() const;
    void Delete();

    template<auto value>
    Variant Property(const Arguments& arguments, const wchar_t* name);

    long m_type;
    long m_id;
    std::wstring m_caption;
    std::wstring m_tag;
    std::wstring m_history;
    bool m_enabled = true;
    bool m_visible = true;
    long m_style = 0;
    CommandBarObject* m_parent; // null once detached
    ComPtr<CommandBarObject> m_menu;
    EventSource m_clicks;
};

// A menu bar or a popup's menu with its entries.
class CommandBarObject final : public AutomationObject<IDispatch>
{
public:
    explicit CommandBarObject(std::wstring name);
    ~CommandBarObject() override;

    [[nodiscard]] const std::vector<ComPtr<BarControlObject>>& Entries() const { return m_entries; }

    // The first entry with this tag, or the first command with this id, here or in a menu below; null when there is
    // none.
    [[nodiscard]] BarControlObject* FindTag(const std::wstring& tag);
    [[nodiscard]] BarControlObject* FindId(long id);

    BarControlObject& Insert(long type, long id, const std::wstring& caption, std::size_t position);
    void Remove(BarControlObject& control);
    [[nodiscard]] std::size_t PositionOf(const BarControlObject& control) const; // 1 for the first

    [[nodiscard]] ComPtr<IDispatch> Controls();

private:
    static const Member kMembers[3];

    template<class Matches>
    BarControlObject* Find(bool recursive, const Matches& matches);
    Variant ControlsOrOne(const Arguments& arguments);
    BarControlObject* FindControl(const Arguments& arguments);

    std::wstring m_name;
    std::vector<ComPtr<BarControlObject>> m_entries;
};

// The Controls collection of a menu.
class BarControlsObject final : public AutomationObject<IDispatch>
{
public:
    explicit BarControlsObject(CommandBarObject* bar);

private:
    static const Member kMembers[3];

    BarControlObject* Add(const Arguments& arguments);

    ComPtr<CommandBarObject> m_bar;
};

// The host's command bars: the menu bar alone.
class CommandBarsObject final : public AutomationObject<IDispatch>
{
public:
    explicit CommandBarsObject(std::wstring menuBar);

    [[nodiscard]] CommandBarObject& MenuBar() { return *m_menuBar.Get(); }

private:
    static const Member kMembers[2];

    std::wstring m_name; // of the menu bar
    ComPtr<CommandBarObject> m_menuBar;
};

// Puts in the own menus of the host of this product name, with the control ids that Office gives them. The kind changes
// them: "leftover" adds entries of an add-in's earlier run, "bare" leaves out the entries beside which an add-in puts
// its own, "helpless" the Help menu.
void FillMenuBar(CommandBarObject& bar, const std::wstring& product, std::string_view kind);

} // namespace host
