#include "objects/CommandBars.h"

#include <algorithm>

#include "automation/OfficeInterfaces.h"
#include "automation/Text.h"
#include "objects/Collections.h"

namespace host
{
namespace
{

bool SameText(const std::wstring& a, const std::wstring& b) { return ::lstrcmpiW(a.c_str(), b.c_str()) == 0; }

} // namespace

CommandBarObject::CommandBarObject(std::wstring name)
    : AutomationObject{L"CommandBar", kCommandBarId}, m_name{std::move(name)}
{}

CommandBarObject::~CommandBarObject()
{
    for (const auto& entry : m_entries)
        entry->Detach();
}

std::span<const Member> CommandBarObject::Members() const
{
    static constexpr Member kMembers[] = {
        {0, L"Name", kGet, Answer<&CommandBarObject::GetName>},
        {1, L"Controls", kEither, Answer<&CommandBarObject::GetControls>},
        {2, L"FindControl", kMethod, Answer<&CommandBarObject::FindControl>},
    };
    return kMembers;
}

BarControlObject* CommandBarObject::FindTag(const std::wstring& tag)
{
    for (const auto& entry : m_entries) {
        if (entry->Tag() == tag) return entry.Get();
        BarControlObject* below = entry->Menu() ? entry->Menu()->FindTag(tag) : nullptr;
        if (below) return below;
    }
    return nullptr;
}

BarControlObject* CommandBarObject::FindId(long id)
{
    for (const auto& entry : m_entries) {
        if (entry->Id() == id) return entry.Get();
        BarControlObject* below = entry->Menu() ? entry->Menu()->FindId(id) : nullptr;
        if (below) return below;
    }
    return nullptr;
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

Variant CommandBarObject::GetName(const Arguments&) { return Variant{m_name}; }

Variant CommandBarObject::GetControls(const Arguments& arguments)
{
    if (!arguments.Has(0)) return Variant{Controls().Get()};
    return Variant{m_entries[ItemPosition(arguments.At(0), m_entries.size()) - 1].Get()};
}

// FindControl(Type, Id, Tag, Visible, Recursive): Nothing when there is no such control.
Variant CommandBarObject::FindControl(const Arguments& arguments)
{
    const long type = arguments.Has(0) ? arguments.At(0).Number() : 0;
    const long id = arguments.Has(1) ? arguments.At(1).Number() : 0;
    const std::wstring tag = arguments.Has(2) ? arguments.At(2).Text() : std::wstring{};
    const bool recursive = arguments.Has(4) && arguments.At(4).Boolean();
    for (const auto& entry : m_entries) {
        const bool matches = (type == 0 || entry->m_type == type) && (id == 0 || entry->m_id == id) &&
                             (tag.empty() || entry->m_tag == tag);
        if (matches) return Variant{entry.Get()};
        if (!recursive || !entry->Menu()) continue;
        Variant below = entry->Menu()->FindControl(arguments);
        if (below.Object()) return below;
    }
    return Variant{static_cast<IDispatch*>(nullptr)};
}

BarControlsObject::BarControlsObject(CommandBarObject* bar)
    : AutomationObject{L"CommandBarControls", kCommandBarControlsId}, m_bar{bar}
{}

std::span<const Member> BarControlsObject::Members() const
{
    static constexpr Member kMembers[] = {
        {0, L"Item", kEither, Answer<&BarControlsObject::Item>},
        {1, L"Add", kMethod, Answer<&BarControlsObject::Add>},
        {2, L"Count", kGet, Answer<&BarControlsObject::Count>},
    };
    return kMembers;
}

Variant BarControlsObject::Item(const Arguments& arguments)
{
    const Variant index = arguments.At(0);
    const auto& entries = m_bar->m_entries;
    if (index.Type() != VT_BSTR) return Variant{entries[ItemPosition(index, entries.size()) - 1].Get()};
    const std::wstring caption = WithoutMark(index.Text());
    for (const auto& entry : entries)
        if (SameText(WithoutMark(entry->Caption()), caption)) return Variant{entry.Get()};
    throw Error{E_INVALIDARG, {}, L"There is no control " + caption + L"."};
}

Variant BarControlsObject::Count(const Arguments&) { return Variant{static_cast<long>(m_bar->m_entries.size())}; }

// Add(Type, Id, Parameter, Before, Temporary)
Variant BarControlsObject::Add(const Arguments& arguments)
{
    const long type = arguments.Has(0) ? arguments.At(0).Number() : kBarButton;
    const long id = arguments.Has(1) ? arguments.At(1).Number() : 1;
    if (type != kBarButton && type != kBarPopup) throw Error{E_INVALIDARG, {}, L"Unknown control type."};
    const std::size_t count = m_bar->m_entries.size();
    // One past the last position is allowed: it appends.
    const std::size_t position = arguments.Has(3) ? ItemPosition(arguments.At(3), count + 1) - 1 : count;
    // What is not temporary stays in the user's menus for good when the add-in is gone.
    const bool isBuiltIn = std::ranges::any_of(m_bar->m_entries, [](const auto& one) { return one->Id() != 1; });
    if (isBuiltIn && !(arguments.Has(4) && arguments.At(4).Boolean()))
        throw Error{E_INVALIDARG, {}, L"This host's own menus take temporary controls only."};
    BarControlObject& control = m_bar->Insert(type, id, {}, position);
    if (arguments.Has(2)) control.SetParameter(arguments.At(2).Text());
    control.NoteAdded(arguments);
    return Variant{&control};
}

CommandBarsObject::CommandBarsObject(std::wstring menuBar)
    : AutomationObject{L"CommandBars", kCommandBarsId}, m_name{std::move(menuBar)}, m_menuBar{
                                                                                        MakeObject<CommandBarObject>(
                                                                                            m_name)}
{}

std::span<const Member> CommandBarsObject::Members() const
{
    static constexpr Member kMembers[] = {
        {0, L"Item", kEither, Answer<&CommandBarsObject::Item>},
        {1, L"Count", kGet, Answer<&CommandBarsObject::Count>},
    };
    return kMembers;
}

Variant CommandBarsObject::Item(const Arguments& arguments)
{
    const Variant index = arguments.At(0);
    const bool known = index.Type() == VT_BSTR ? SameText(index.Text(), m_name) : ItemPosition(index, 1) == 1;
    if (!known) throw Error{E_INVALIDARG, {}, L"There is no command bar " + index.Text() + L"."};
    return Variant{m_menuBar.Get()};
}

Variant CommandBarsObject::Count(const Arguments&) { return Variant{1L}; }

} // namespace host
