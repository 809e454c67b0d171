#include "automation/OfficeInterfaces.h"
#include "objects/CommandBars.h"

namespace host
{
namespace
{

using C = BarControlObject;
using A = const Arguments&;

constexpr DISPID kClick = 1; // of _CommandBarButtonEvents

} // namespace

BarControlObject::BarControlObject(long type, long id, std::wstring caption, CommandBarObject* parent)
    : AutomationObject{L"CommandBarControl", kMembers, kCommandBarControlId}, m_type{type}, m_id{id},
      m_caption{std::move(caption)}, m_parent{parent}, m_clicks{*this, kCommandBarButtonEventsId}
{
    if (type == kBarPopup) m_menu = MakeObject<CommandBarObject>(m_caption);
}

BarControlObject::~BarControlObject() = default;

template<auto value>
Variant BarControlObject::Property(const Arguments& arguments, const wchar_t* name)
{
    Variant answer = ReadOrWrite(arguments, this->*value);
    if (arguments.IsPut()) m_history.append(L", ").append(name).append(L" ").append(arguments.At(0).Text());
    return answer;
}

const Member BarControlObject::kMembers[] = {
    {0, L"Caption", kGetPut, Answer<[](C& own, A value) { return own.Property<&C::m_caption>(value, L"Caption"); }>},
    {2, L"Controls", kGet, Answer<&C::Controls>},
    {4, L"Delete", kMethod, Answer<&C::Delete>},
    {5, L"Enabled", kGetPut, Answer<[](C& own, A value) { return own.Property<&C::m_enabled>(value, L"Enabled"); }>},
    {7, L"Id", kGet, Answer<[](C& own) { return own.CheckTells(L"id"), own.m_id; }>},
    {8, L"Index", kGet, Answer<&C::Index>},
    {11, L"Style", kGetPut, Answer<[](C& own, A value) { return own.Property<&C::m_style>(value, L"Style"); }>},
    {12, L"Tag", kGetPut,
     Answer<[](C& own, A value) { return own.CheckTells(L"tag"), own.Property<&C::m_tag>(value, L"Tag"); }>},
    {14, L"Type", kGet, Answer<&C::Type>},
    {15, L"Visible", kGetPut, Answer<[](C& own, A value) { return own.Property<&C::m_visible>(value, L"Visible"); }>},
};

void* BarControlObject::Interface(REFIID id)
{
    if (id == IID_IConnectionPointContainer && m_type == kBarButton)
        return static_cast<IConnectionPointContainer*>(&m_clicks);
    const bool own = id == (m_type == kBarPopup ? kCommandBarPopupId : kCommandBarButtonId);
    return own ? static_cast<IDispatch*>(this) : nullptr;
}

void BarControlObject::Press() { m_clicks.FireCancellable(kClick, *this); }

void BarControlObject::Detach()
{
    m_parent = nullptr;
    if (m_menu == nullptr) return;
    const auto entries = m_menu->Entries();
    for (const auto& entry : entries)
        m_menu->Remove(*entry.Get());
}

void BarControlObject::CheckTells(const wchar_t* what) const
{
    if (m_id == kUntoldId) throw Error{E_FAIL, {}, std::wstring{L"The control does not tell its "} + what + L"."};
}

ComPtr<IDispatch> BarControlObject::Controls()
{
    if (m_menu == nullptr) throw Error{DISP_E_MEMBERNOTFOUND, {}, L"A button has no controls."};
    return m_menu->Controls();
}

void BarControlObject::NoteAdded(const Arguments& arguments)
{
    m_history = L"Add";
    for (std::size_t index = 0; index < 5; ++index)
        m_history += L" " + (arguments.Has(index) ? arguments.At(index).Text() : L"-");
}

long BarControlObject::Index() const
{
    if (m_parent == nullptr) throw Error{kInvalidRequest, {}, L"The control was deleted."};
    return static_cast<long>(m_parent->PositionOf(*this));
}

void BarControlObject::Delete()
{
    const ComPtr<BarControlObject> alive{this};
    if (m_parent != nullptr) m_parent->Remove(*this);
}

} // namespace host
