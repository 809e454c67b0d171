#include "objects/CommandBars.h"

#include "automation/OfficeInterfaces.h"

namespace host
{
namespace
{

constexpr DISPID kClick = 1; // of _CommandBarButtonEvents

} // namespace

BarControlObject::BarControlObject(long type, long id, std::wstring caption, CommandBarObject* parent)
    : AutomationObject{L"CommandBarControl", kCommandBarControlId}, m_type{type}, m_id{id},
      m_caption{std::move(caption)}, m_parent{parent}, m_clicks{*this, kCommandBarButtonEventsId}
{
    if (type == kBarPopup) m_menu = MakeObject<CommandBarObject>(m_caption);
}

BarControlObject::~BarControlObject() = default;

std::span<const Member> BarControlObject::Members() const
{
    using C = BarControlObject;
    static constexpr Member kMembers[] = {
        {0, L"Caption", kGetPut, Answer<&C::CaptionProperty>},
        {1, L"BeginGroup", kGetPut, Answer<&C::BeginGroup>},
        {2, L"Controls", kGet, Answer<&C::GetControls>},
        {3, L"CommandBar", kGet, Answer<&C::GetCommandBar>},
        {4, L"Delete", kMethod, Answer<&C::DoDelete>},
        {5, L"Enabled", kGetPut, Answer<&C::Enabled>},
        {6, L"Execute", kMethod, Answer<&C::DoExecute>},
        {7, L"Id", kGet, Answer<&C::GetId>},
        {8, L"Index", kGet, Answer<&C::GetIndex>},
        {9, L"Parameter", kGetPut, Answer<&C::Parameter>},
        {10, L"Parent", kGet, Answer<&C::GetParent>},
        {11, L"Style", kGetPut, Answer<&C::Style>},
        {12, L"Tag", kGetPut, Answer<&C::TagProperty>},
        {13, L"TooltipText", kGetPut, Answer<&C::TooltipText>},
        {14, L"Type", kGet, Answer<&C::GetType>},
        {15, L"Visible", kGetPut, Answer<&C::Visible>},
    };
    return kMembers;
}

void* BarControlObject::Interface(REFIID id)
{
    if (id == IID_IConnectionPointContainer && m_type == kBarButton)
        return static_cast<IConnectionPointContainer*>(&m_clicks);
    const bool own = id == (m_type == kBarPopup ? kCommandBarPopupId : kCommandBarButtonId);
    return own ? static_cast<IDispatch*>(this) : nullptr;
}

void BarControlObject::Press()
{
    const ComPtr<BarControlObject> alive{this};
    VARIANT_BOOL cancel = VARIANT_FALSE;
    const Variant self{this};
    VARIANT byReference{};
    byReference.vt = VT_BOOL | VT_BYREF;
    byReference.pboolVal = &cancel;
    VARIANT arguments[] = {self.Get(), byReference};
    m_clicks.Fire(kClick, arguments);
}

void BarControlObject::Detach()
{
    m_parent = nullptr;
    if (!m_menu) return;
    const auto entries = m_menu->Entries();
    for (const auto& entry : entries)
        m_menu->Remove(*entry.Get());
}

CommandBarObject& BarControlObject::MenuOrFail()
{
    if (!m_menu) throw Error{DISP_E_MEMBERNOTFOUND, {}, L"A button has no controls."};
    return *m_menu.Get();
}

void BarControlObject::NoteAdded(const Arguments& arguments)
{
    m_history = L"Add";
    for (UINT index = 0; index < 5; ++index)
        m_history += L" " + (arguments.Has(index) ? arguments.At(index).Text() : L"-");
}

Variant BarControlObject::Note(const wchar_t* property, const Variant& value)
{
    m_history.append(L", ").append(property).append(L" ").append(value.Text());
    return {};
}

Variant BarControlObject::TextProperty(const wchar_t* name, const Arguments& arguments, std::wstring& text)
{
    if (!arguments.IsPut()) return Variant{text};
    text = arguments.At(0).Text();
    return Note(name, arguments.At(0));
}

Variant BarControlObject::FlagProperty(const wchar_t* name, const Arguments& arguments, bool& flag)
{
    if (!arguments.IsPut()) return Variant{flag};
    flag = arguments.At(0).Boolean();
    return Note(name, arguments.At(0));
}

Variant BarControlObject::GetType(const Arguments&) { return Variant{m_type}; }
Variant BarControlObject::GetId(const Arguments&)
{
    if (m_id == kUntoldId) throw Error{E_FAIL, {}, L"The control does not tell its id."};
    return Variant{m_id};
}

Variant BarControlObject::GetIndex(const Arguments&)
{
    if (!m_parent) throw Error{kInvalidRequest, {}, L"The control was deleted."};
    return Variant{static_cast<long>(m_parent->PositionOf(*this))};
}

Variant BarControlObject::CaptionProperty(const Arguments& arguments)
{
    return TextProperty(L"Caption", arguments, m_caption);
}
Variant BarControlObject::TagProperty(const Arguments& arguments)
{
    if (m_id == kUntoldId) throw Error{E_FAIL, {}, L"The control does not tell its tag."};
    return TextProperty(L"Tag", arguments, m_tag);
}
Variant BarControlObject::Parameter(const Arguments& arguments)
{
    return TextProperty(L"Parameter", arguments, m_parameter);
}
Variant BarControlObject::TooltipText(const Arguments& arguments)
{
    return TextProperty(L"TooltipText", arguments, m_tip);
}
Variant BarControlObject::Enabled(const Arguments& arguments) { return FlagProperty(L"Enabled", arguments, m_enabled); }
Variant BarControlObject::Visible(const Arguments& arguments) { return FlagProperty(L"Visible", arguments, m_visible); }
Variant BarControlObject::BeginGroup(const Arguments& arguments)
{
    return FlagProperty(L"BeginGroup", arguments, m_beginGroup);
}

Variant BarControlObject::Style(const Arguments& arguments)
{
    if (!arguments.IsPut()) return Variant{m_style};
    m_style = arguments.At(0).Number();
    return Note(L"Style", arguments.At(0));
}

Variant BarControlObject::GetControls(const Arguments&) { return Variant{MenuOrFail().Controls().Get()}; }
Variant BarControlObject::GetCommandBar(const Arguments&) { return Variant{&MenuOrFail()}; }
Variant BarControlObject::GetParent(const Arguments&) { return Variant{m_parent}; }

Variant BarControlObject::DoDelete(const Arguments&)
{
    const ComPtr<BarControlObject> alive{this};
    if (m_parent) m_parent->Remove(*this);
    return {};
}

Variant BarControlObject::DoExecute(const Arguments&)
{
    Press();
    return {};
}

} // namespace host
