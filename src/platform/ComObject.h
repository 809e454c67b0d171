// The COM plumbing that every object of the add-in shares: reference counts, the library's object count, interface
// lookup, and dispatch through the embedded type library.
#pragma once

#include "platform/OwnThread.h"
#include "platform/Owners.h"
#include "platform/Procedure.h"

#include <oleauto.h>

#include <atomic>
#include <tuple>
#include <type_traits>

namespace corvane
{

// Objects and locks that keep the library loaded.
class Library
{
public:
    static void AddObject() noexcept { ++s_count; }
    static void RemoveObject() noexcept { --s_count; }
    [[nodiscard]] static bool IsIdle() noexcept { return s_count == 0; }

    // The library's module handle, its full path and the folder it lies in (no closing backslash).
    static void SetModule(HINSTANCE module) noexcept { s_module = module; }
    [[nodiscard]] static HINSTANCE Module() noexcept { return s_module; }
    [[nodiscard]] static std::wstring Path();
    [[nodiscard]] static std::wstring Folder();

private:
    static std::atomic<long> s_count;
    static HINSTANCE s_module;
};

// Keeps the library loaded while its code runs without an object of its own, as a command does after a disconnection.
class LibraryInUse
{
public:
    LibraryInUse() noexcept { Library::AddObject(); }
    LibraryInUse(const LibraryInUse&) = delete;
    LibraryInUse& operator=(const LibraryInUse&) = delete;
    ~LibraryInUse() { Library::RemoveObject(); }
};

// The type information of one interface of the embedded type library; throws Error when it is not there.
[[nodiscard]] ComPtr<ITypeInfo> TypeInfoOf(REFIID interfaceId);

template<class Interface>
class Dispatched;

// The interface that a base class of a COM object implements.
template<class Base>
struct InterfaceOf
{
    using Type = Base;
};
template<class Interface>
struct InterfaceOf<Dispatched<Interface>>
{
    using Type = Interface;
};

// Base of the add-in's COM objects. Interfaces are dual interfaces described in the type library; the first is the one
// that a plain IDispatch query gets. Dispatch calls go through the type library of the interface they came in by.
template<class Derived, class... Interfaces>
class ComObject : public Interfaces...
{
public:
    ComObject() { Library::AddObject(); }
    ComObject(const ComObject&) = delete;
    ComObject& operator=(const ComObject&) = delete;

    STDMETHODIMP QueryInterface(REFIID id, void** object) noexcept override
    {
        if (object == nullptr) return E_POINTER;
        *object = nullptr;
        constexpr bool kHasDispatch = std::is_base_of_v<IDispatch, FirstInterface>;
        if (id == __uuidof(IUnknown) || (kHasDispatch && id == __uuidof(IDispatch)))
            *object = static_cast<FirstInterface*>(this);
        (Offer<Interfaces>(id, object), ...);
        if (*object == nullptr) return E_NOINTERFACE;
        AddRef();
        return S_OK;
    }
    STDMETHODIMP_(ULONG) AddRef() noexcept override { return static_cast<ULONG>(++m_references); }
    STDMETHODIMP_(ULONG) Release() noexcept override
    {
        const long left = --m_references;
        if (left == 0) delete static_cast<Derived*>(this);
        return static_cast<ULONG>(left);
    }

protected:
    virtual ~ComObject() { Library::RemoveObject(); }

private:
    using FirstInterface = std::tuple_element_t<0, std::tuple<Interfaces...>>;

    template<class Base>
    void Offer(REFIID id, void** object) noexcept
    {
        if (id == __uuidof(typename InterfaceOf<Base>::Type)) *object = static_cast<Base*>(this);
    }

    std::atomic<long> m_references{0};
};

// Adds the IDispatch methods of one dual interface, answered from the type library.
template<class Interface>
class Dispatched : public Interface
{
public:
    STDMETHODIMP GetTypeInfoCount(UINT* count) noexcept override { return HandOutValue(1U, count); }
    STDMETHODIMP GetTypeInfo(UINT index, LCID, ITypeInfo** info) noexcept override
    {
        if (info == nullptr) return E_POINTER;
        *info = nullptr;
        if (index != 0) return DISP_E_BADINDEX;
        return WithTypeInfo([&](ITypeInfo& own) {
            *info = &own;
            own.AddRef();
            return S_OK;
        });
    }
    STDMETHODIMP GetIDsOfNames(REFIID, LPOLESTR* names, UINT count, LCID, DISPID* ids) noexcept override
    {
        return WithTypeInfo([&](ITypeInfo& own) { return own.GetIDsOfNames(names, count, ids); });
    }
    STDMETHODIMP Invoke(DISPID member, REFIID, LCID, WORD kind, DISPPARAMS* parameters, VARIANT* result,
                        EXCEPINFO* exception, UINT* argument) noexcept override
    {
        return WithTypeInfo([&](ITypeInfo& own) {
            return own.Invoke(static_cast<Interface*>(this), member, kind, parameters, result, exception, argument);
        });
    }

private:
    template<class Body>
    HRESULT WithTypeInfo(Body&& body) noexcept
    {
        HRESULT result = TYPE_E_CANTLOADLIBRARY;
        Ignoring([&] {
            // Another thread, which the members refuse, is not to meet this one at what the object keeps.
            ComPtr<ITypeInfo> others;
            ComPtr<ITypeInfo>& own = m_thread.IsCalling() ? m_typeInfo : others;
            if (own == nullptr) own = TypeInfoOf(__uuidof(Interface));
            result = body(*own.Get());
        });
        return result;
    }

    OwnThread m_thread;
    ComPtr<ITypeInfo> m_typeInfo; // loaded at the first dispatch call
};

// Base of the classes that other programs use. Each of its methods runs in Serve, and so on one thread only.
template<class Derived, class... Interfaces>
class PublicObject : public ComObject<Derived, Interfaces..., ISupportErrorInfo>
{
public:
    STDMETHODIMP InterfaceSupportsErrorInfo(REFIID) noexcept override { return S_OK; }

protected:
    template<class Body>
    [[nodiscard]] HRESULT Serve(Body&& body) const noexcept
    {
        return m_thread.Serve(std::forward<Body>(body));
    }

private:
    OwnThread m_thread;
};

// Makes an object and returns the first reference to it.
template<class Object, class... Arguments>
[[nodiscard]] ComPtr<Object> MakeObject(Arguments&&... arguments)
{
    return ComPtr<Object>{new Object{std::forward<Arguments>(arguments)...}};
}

// Makes an object and hands out one of its interfaces; the result of a COM method that does so.
template<class Object, class... Arguments>
[[nodiscard]] HRESULT CreateObject(REFIID id, void** object, const Arguments&... arguments) noexcept
{
    HRESULT result = E_OUTOFMEMORY;
    Ignoring([&] { result = MakeObject<Object>(arguments...)->QueryInterface(id, object); });
    return result;
}

} // namespace corvane
