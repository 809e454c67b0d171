#include "objects/CommandBars.h"

#include "automation/OfficeInterfaces.h"
#include "objects/Collections.h"

namespace host
{

CommandBarObject::CommandBarObject(std::wstring name)
    : AutomationObject{L"CommandBar", kMembers, kCommandBarId}, m_name{std::move(name)}
{}

CommandBarObject::~CommandBarObject()
{
    for (const auto& entry : m_entries)
        entry->Detach();
}

const Member CommandBarObject::kMembers[] = {
    {0, L"Name", kGet, Answer<[](const CommandBarObject& bar) { return bar.m_name; }>},
    {1, L"Controls", kEither, Answer<&CommandBarObject::ControlsOrOne>},
    {2, L"FindControl", kMethod, Answer<&CommandBarObject::FindControl>},
};

template<class Matches>
BarControlObject* CommandBarObject::Find(bool recursive, const Matches& matches)
{
    for (const auto& entry : m_entries) {
        if (matches(*entry.Get())) return entry.Get();
        BarControlObject* const below =
            recursive && entry->Menu() != nullptr ? entry->Menu()->Find(recursive, matches) : nullptr;
        if (below != nullptr) return below;
    }
    return nullptr;
}

BarControlObject* CommandBarObject::FindTag(const std::wstring& tag)
{
    return Find(true, [&](const BarControlObject& entry) { return entry.Tag() == tag; });
}

BarControlObject* CommandBarObject::FindId(long id)
{
    return Find(true, [&](const BarControlObject& entry) { return entry.Id() == id; });
}

BarControlObject& CommandBarObject::Insert(long type, long id, const std::wstring& caption, std::size_t position)
{
    const auto at = m_entries.begin() + static_cast<std::ptrdiff_t>(std::min(position, m_entries.size()));
    return *m_entries.insert(at, MakeObject<BarControlObject>(type, id, caption, this))->Get();
}

void CommandBarObject::Remove(BarControlObject& control)
{
    const ComPtr<BarControlObject> removed{&control};
    std::erase_if(m_entries, [&](const auto& entry) { return entry.Get() == &control; });
    removed->Detach();
}

std::size_t CommandBarObject::PositionOf(const BarControlObject& control) const
{
    const auto found = std::ranges::find(m_entries, &control, [](const auto& entry) { return entry.Get(); });
    return static_cast<std::size_t>(found - m_entries.begin()) + 1;
}

ComPtr<IDispatch> CommandBarObject::Controls() { return MakeObject<BarControlsObject>(this); }

Variant CommandBarObject::ControlsOrOne(const Arguments& arguments)
{
    if (!arguments.Has(0)) return Controls();
    return m_entries[ItemPosition(arguments.At(0), m_entries.size()) - 1];
}

// FindControl(Type, Id, Tag, Visible, Recursive): Nothing when there is no such control.
BarControlObject* CommandBarObject::FindControl(const Arguments& arguments)
{
    const long type = arguments.Has(0) ? arguments.At(0).Number() : 0;
    const long id = arguments.Has(1) ? arguments.At(1).Number() : 0;
    const std::wstring tag = arguments.Has(2) ? arguments.At(2).Text() : std::wstring{};
    const bool recursive = arguments.Has(4) && arguments.At(4).Boolean();
    return Find(recursive, [&](const BarControlObject& entry) {
        return (type == 0 || entry.Type() == type) && (id == 0 || entry.Id() == id) &&
               (tag.empty() || entry.Tag() == tag);
    });
}

BarControlsObject::BarControlsObject(CommandBarObject* bar)
    : AutomationObject{L"CommandBarControls", kMembers, kCommandBarControlsId}, m_bar{bar}
{}

const Member BarControlsObject::kMembers[] = {
    {0, L"Item", kEither, Answer<[](const BarControlsObject& own, const Arguments& arguments) {
         Variant index = arguments.At(0);
         if (index.Type() == VT_BSTR) index = WithoutMark(index.Text());
         return ItemOf(own.m_bar->Entries(), index, [](const auto& one) { return WithoutMark(one->Caption()); });
     }>},
    {1, L"Add", kMethod, Answer<&BarControlsObject::Add>},
    {2, L"Count", kGet,
     Answer<[](const BarControlsObject& own) { return static_cast<long>(own.m_bar->Entries().size()); }>},
};

// Add(Type, Id, Parameter, Before, Temporary)
BarControlObject* BarControlsObject::Add(const Arguments& arguments)
{
    const long type = arguments.Has(0) ? arguments.At(0).Number() : kBarButton;
    const long id = arguments.Has(1) ? arguments.At(1).Number() : 1;
    if (type != kBarButton && type != kBarPopup) throw Error{E_INVALIDARG, {}, L"Unknown control type."};
    const std::size_t count = m_bar->Entries().size();
    // One past the last position is allowed: it appends.
    const std::size_t position = arguments.Has(3) ? ItemPosition(arguments.At(3), count + 1) - 1 : count;
    // What is not temporary stays in the user's menus for good when the add-in is gone.
    const bool isBuiltIn = std::ranges::any_of(m_bar->Entries(), [](const auto& one) { return one->Id() != 1; });
    if (isBuiltIn && !(arguments.Has(4) && arguments.At(4).Boolean()))
        throw Error{E_INVALIDARG, {}, L"This host's own menus take temporary controls only."};
    BarControlObject& control = m_bar->Insert(type, id, {}, position);
    control.NoteAdded(arguments);
    return &control;
}

CommandBarsObject::CommandBarsObject(std::wstring menuBar)
    : AutomationObject{L"CommandBars", kMembers, kCommandBarsId}, m_name{std::move(menuBar)},
      m_menuBar{MakeObject<CommandBarObject>(m_name)}
{}

const Member CommandBarsObject::kMembers[] = {
    {0, L"Item", kEither, Answer<[](const CommandBarsObject& own, const Arguments& arguments) {
         return ItemOf(std::span{own.m_menuBar.GetAddressOf(), 1}, arguments.At(0),
                       [&](const auto&) { return own.m_name; });
     }>},
    {1, L"Count", kGet, Answer<[](const CommandBarsObject&) { return 1L; }>},
};

} // namespace host
