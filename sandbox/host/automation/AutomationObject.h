#pragma once

#include <span>
#include <string>
#include <string_view>
#include <type_traits>

#include <wrl/client.h>

#include "automation/AutomationError.h"
#include "automation/Value.h"

namespace host
{

using Microsoft::WRL::ComPtr;

// The arguments of one call, in the order in which they are written.
class Arguments
{
public:
    Arguments(WORD flags, const DISPPARAMS& parameters) : m_flags{flags}, m_parameters{parameters} {}

    [[nodiscard]] bool IsPut() const { return (m_flags & (DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF)) != 0; }
    [[nodiscard]] std::size_t Count() const { return m_parameters.cArgs; }
    [[nodiscard]] bool Has(std::size_t index) const { return index < Count() && !At(index).IsMissing(); }
    [[nodiscard]] Value At(std::size_t index) const; // throws when there are fewer

private:
    WORD m_flags;
    const DISPPARAMS& m_parameters;
};

class ObjectCore;

// One member of a class: its dispatch id, its name, how it may be called, and what answers.
struct Member
{
    DISPID id;
    std::wstring_view name;
    WORD kinds;
    Value (*call)(ObjectCore&, const Arguments&);
};

constexpr WORD kGet = DISPATCH_PROPERTYGET;
constexpr WORD kGetPut = DISPATCH_PROPERTYGET | DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF;
constexpr WORD kMethod = DISPATCH_METHOD;
// Items and the like: scripts call them as methods, compiled code as properties.
constexpr WORD kEither = DISPATCH_METHOD | DISPATCH_PROPERTYGET;

// What all host objects share whatever interface they carry: the count, the member table, the ledger of living objects.
class ObjectCore
{
public:
    explicit ObjectCore(const wchar_t* className);
    ObjectCore(const ObjectCore&) = delete;
    ObjectCore& operator=(const ObjectCore&) = delete;
    virtual ~ObjectCore();

    [[nodiscard]] virtual std::span<const Member> Members() const = 0;

    // The interfaces of the object beyond IDispatch, or null.
    [[nodiscard]] virtual void* Interface(REFIID) { return nullptr; }

    HRESULT FindNames(LPOLESTR* names, UINT count, DISPID* ids) const noexcept;
    HRESULT Call(DISPID id, WORD flags, const DISPPARAMS* parameters, VARIANT* result, EXCEPINFO* exception) noexcept;

    // What all objects of this process name as the source of their errors.
    static void SetSource(const wchar_t* source);

    // The living objects as "Application x1, Presentation x2", or an empty text.
    static std::wstring Living();

protected:
    ULONG m_references = 1;

private:
    HRESULT CallMember(const Member& member, WORD flags, const DISPPARAMS& parameters, VARIANT* result);

    const wchar_t* m_className;
};

// A host object with the dispatch-based interface I, found under its own id as well.
template<class I>
class AutomationObject : public I, public ObjectCore
{
public:
    AutomationObject(const wchar_t* className, REFIID ownId) : ObjectCore{className}, m_ownId{ownId} {}

    STDMETHODIMP QueryInterface(REFIID id, void** object) override
    {
        if (!object) return E_POINTER;
        *object = nullptr;
        if (id == IID_IUnknown || id == IID_IDispatch || id == m_ownId)
            *object = static_cast<I*>(this);
        else
            *object = Interface(id);
        if (!*object) return E_NOINTERFACE;
        AddRef();
        return S_OK;
    }
    STDMETHODIMP_(ULONG) AddRef() override { return ++m_references; }
    STDMETHODIMP_(ULONG) Release() override
    {
        const ULONG left = --m_references;
        if (left == 0) delete this;
        return left;
    }
    STDMETHODIMP GetTypeInfoCount(UINT* count) override
    {
        if (!count) return E_POINTER;
        *count = 0;
        return S_OK;
    }
    STDMETHODIMP GetTypeInfo(UINT, LCID, ITypeInfo** info) override
    {
        if (info) *info = nullptr;
        return DISP_E_BADINDEX;
    }
    STDMETHODIMP GetIDsOfNames(REFIID, LPOLESTR* names, UINT count, LCID, DISPID* ids) override
    {
        return FindNames(names, count, ids);
    }
    STDMETHODIMP Invoke(DISPID id, REFIID, LCID, WORD flags, DISPPARAMS* parameters, VARIANT* result,
                        EXCEPINFO* exception, UINT*) override
    {
        return Call(id, flags, parameters, result, exception);
    }

private:
    IID m_ownId;
};

// Makes an object with the one reference that is returned. ComPtr::Attach is avoided: MinGW's adds a reference.
template<class T, class... A>
ComPtr<T> MakeObject(A&&... arguments)
{
    ComPtr<T> object;
    *object.GetAddressOf() = new T(std::forward<A>(arguments)...);
    return object;
}

template<class>
struct MethodTraits;
template<class T>
struct MethodTraits<Value (T::*)(const Arguments&)>
{
    using Class = T;
};

// Makes a method of an object the answer of a member table's row.
template<auto Method>
Value Answer(ObjectCore& object, const Arguments& arguments)
{
    using T = typename MethodTraits<decltype(Method)>::Class;
    return (static_cast<T&>(object).*Method)(arguments);
}

} // namespace host
