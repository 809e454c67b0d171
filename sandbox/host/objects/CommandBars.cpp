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

Value CommandBarObject::GetName(const Arguments&) { return Value{m_name}; }

Value CommandBarObject::GetControls(const Arguments& arguments)
{
    if (!arguments.Has(0)) return Value{Controls().Get()};
    return Value{m_entries[ItemPosition(arguments.At(0), m_entries.size()) - 1].Get()};
}

// FindControl(Type, Id, Tag, Visible, Recursive): Nothing when there is no such control.
Value CommandBarObject::FindControl(const Arguments& arguments)
{
    const long type = arguments.Has(0) ? arguments.At(0).Number() : 0;
    const long id = arguments.Has(1) ? arguments.At(1).Number() : 0;
    const std::wstring tag = arguments.Has(2) ? arguments.At(2).Text() : std::wstring{};
    const bool recursive = arguments.Has(4) && arguments.At(4).Boolean();
    for (const auto& entry : m_entries) {
        const bool matches = (type == 0 || entry->m_type == type) && (id == 0 || entry->m_id == id) &&
                             (tag.empty() || entry->m_tag == tag);
        if (matches) return Value{entry.Get()};
        if (!recursive || !entry->Menu()) continue;
        Value below = entry->Menu()->FindControl(arguments);
        if (below.Object()) return below;
    }
    return Value{static_cast<IDispatch*>(nullptr)};
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

Value BarControlsObject::Item(const Arguments& arguments)
{
    const Value index = arguments.At(0);
    const auto& entries = m_bar->m_entries;
    if (index.Type() != VT_BSTR) return Value{entries[ItemPosition(index, entries.size()) - 1].Get()};
    const std::wstring caption = WithoutMark(index.Text());
    for (const auto& entry : entries)
        if (SameText(WithoutMark(entry->Caption()), caption)) return Value{entry.Get()};
    throw AutomationError{E_INVALIDARG, L"There is no control " + caption + L"."};
}

Value BarControlsObject::Count(const Arguments&) { return Value{static_cast<long>(m_bar->m_entries.size())}; }

// Add(Type, Id, Parameter, Before, Temporary)
Value BarControlsObject::Add(const Arguments& arguments)
{
    const long type = arguments.Has(0) ? arguments.At(0).Number() : kBarButton;
    const long id = arguments.Has(1) ? arguments.At(1).Number() : 1;
    if (type != kBarButton && type != kBarPopup) throw AutomationError{E_INVALIDARG, L"Unknown control type."};
    const std::size_t count = m_bar->m_entries.size();
    // One past the last position is allowed: it appends.
    const std::size_t position = arguments.Has(3) ? ItemPosition(arguments.At(3), count + 1) - 1 : count;
    // What is not temporary stays in the user's menus for good when the add-in is gone.
    const bool isBuiltIn = std::ranges::any_of(m_bar->m_entries, [](const auto& one) { return one->Id() != 1; });
    if (isBuiltIn && !(arguments.Has(4) && arguments.At(4).Boolean()))
        throw AutomationError{E_INVALIDARG, L"This host's own menus take temporary controls only."};
    BarControlObject& control = m_bar->Insert(type, id, {}, position);
    if (arguments.Has(2)) control.SetParameter(arguments.At(2).Text());
    control.NoteAdded(arguments);
    return Value{&control};
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

Value CommandBarsObject::Item(const Arguments& arguments)
{
    const Value index = arguments.At(0);
    const bool known = index.Type() == VT_BSTR ? SameText(index.Text(), m_name) : ItemPosition(index, 1) == 1;
    if (!known) throw AutomationError{E_INVALIDARG, L"There is no command bar " + index.Text() + L"."};
    return Value{m_menuBar.Get()};
}

Value CommandBarsObject::Count(const Arguments&) { return Value{1L}; }

} // namespace host
