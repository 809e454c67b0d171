#include "automation/AutomationObject.h"

#include <algorithm>
#include <map>
#include <new>

#include "base/Text.h"

namespace host
{
namespace
{

std::wstring& Source()
{
    static std::wstring source = L"Microsoft Office";
    return source;
}

std::set<std::wstring>*& Noted()
{
    static std::set<std::wstring>* noted = nullptr;
    return noted;
}

std::map<std::wstring, int>& Ledger()
{
    static std::map<std::wstring, int> ledger;
    return ledger;
}

HRESULT Report(EXCEPINFO* exception, HRESULT number, const std::wstring& description)
{
    if (exception == nullptr) return number;
    *exception = {};
    exception->scode = number;
    exception->bstrSource = Bstr{Source()}.Detach();
    exception->bstrDescription = Bstr{description}.Detach();
    return DISP_E_EXCEPTION;
}

} // namespace

Variant Arguments::At(std::size_t index) const
{
    if (index >= Count()) throw Error{DISP_E_BADPARAMCOUNT, {}, L"Wrong number of arguments."};
    return Variant::Of(m_parameters.rgvarg[Count() - 1 - index]);
}

ObjectCore::ObjectCore(const wchar_t* className, std::span<const Member> members)
    : m_className{className}, m_members{members}
{
    ++Ledger()[className];
}

ObjectCore::~ObjectCore() { --Ledger()[m_className]; }

void ObjectCore::SetSource(const std::wstring& source) { Source() = source; }

void ObjectCore::NoteNames(std::set<std::wstring>* names) { Noted() = names; }

std::wstring ObjectCore::StillReferenced()
{
    std::wstring text;
    for (const auto& [name, count] : Ledger())
        if (count > 0) text += (text.empty() ? L"" : L", ") + name + L" x" + std::to_wstring(count);
    return text;
}

HRESULT ObjectCore::FindNames(LPOLESTR* names, UINT count, DISPID* ids) const noexcept
{
    if (names == nullptr || ids == nullptr || count == 0) return E_INVALIDARG;
    if (Noted() != nullptr) Noted()->insert(names[0]);
    std::fill(ids, ids + count, DISPID_UNKNOWN);
    const auto found = std::ranges::find_if(m_members, [&](const Member& m) { return SameText(m.name, names[0]); });
    if (found == m_members.end()) return DISP_E_UNKNOWNNAME;
    ids[0] = found->id;
    return count == 1 ? S_OK : DISP_E_UNKNOWNNAME; // named arguments are not offered
}

HRESULT ObjectCore::Call(DISPID id, WORD flags, const DISPPARAMS* parameters, VARIANT* result,
                         EXCEPINFO* exception) noexcept
{
    const auto found = std::ranges::find(m_members, id, &Member::id);
    if (found == m_members.end() || (found->kinds & flags) == 0) return DISP_E_MEMBERNOTFOUND;
    const DISPPARAMS none{};
    try {
        return CallMember(*found, flags, parameters != nullptr ? *parameters : none, result);
    } catch (const Error& error) {
        if (error.Number() == DISP_E_TYPEMISMATCH || error.Number() == DISP_E_BADPARAMCOUNT) return error.Number();
        return Report(exception, error.Number(), error.Description());
    } catch (const std::bad_alloc&) {
        return E_OUTOFMEMORY;
    } catch (const std::exception& error) {
        return Report(exception, E_FAIL, Widen(error.what()));
    }
}

HRESULT ObjectCore::CallMember(const Member& member, WORD flags, const DISPPARAMS& parameters, VARIANT* result)
{
    const Arguments arguments{flags, parameters};
    if (parameters.cNamedArgs > (arguments.IsPut() ? 1u : 0u)) return DISP_E_NONAMEDARGS;
    Variant answer = member.call(*this, arguments);
    if (result != nullptr) *result = answer.Detach();
    return S_OK;
}

} // namespace host
