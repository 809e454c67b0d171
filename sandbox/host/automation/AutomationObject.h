// Objects that answer Automation calls from tables of members.
#pragma once

#include "automation/Errors.h"
#include "platform/ComObject.h"
#include "platform/Variant.h"

#include <functional>
#include <set>
#include <span>
#include <string>
#include <string_view>
#include <type_traits>

namespace host
{

using corvane::Bstr;
using corvane::ComPtr;
using corvane::MakeObject;
using corvane::Variant;

// The arguments of one call, in the order in which they are written.
class Arguments
{
public:
    Arguments(WORD flags, const DISPPARAMS& parameters) : m_flags{flags}, m_parameters{parameters} {}

    [[nodiscard]] bool IsPut() const { return (m_flags & (DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF)) != 0; }
    [[nodiscard]] std::size_t Count() const { return m_parameters.cArgs; }
    [[nodiscard]] bool Has(std::size_t index) const { return index < Count() && !At(index).IsMissing(); }
    [[nodiscard]] Variant At(std::size_t index) const; // throws when there are fewer

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
    Variant (*call)(ObjectCore&, const Arguments&);
};

constexpr WORD kGet = DISPATCH_PROPERTYGET;
constexpr WORD kGetPut = DISPATCH_PROPERTYGET | DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF;
constexpr WORD kMethod = DISPATCH_METHOD;
// Items and the like: scripts call them as methods, compiled code as properties.
constexpr WORD kEither = DISPATCH_METHOD | DISPATCH_PROPERTYGET;

// What all host objects share whatever interface they carry: the member table and the ledger of those that are
// referred to.
class ObjectCore
{
public:
    ObjectCore(const wchar_t* className, std::span<const Member> members);
    ObjectCore(const ObjectCore&) = delete;
    ObjectCore& operator=(const ObjectCore&) = delete;
    virtual ~ObjectCore();

    // The interfaces of the object beyond IDispatch and its own, or null.
    [[nodiscard]] virtual void* Interface(REFIID) { return nullptr; }

    HRESULT FindNames(LPOLESTR* names, UINT count, DISPID* ids) const noexcept;
    HRESULT Call(DISPID id, WORD flags, const DISPPARAMS* parameters, VARIANT* result, EXCEPINFO* exception) noexcept;

    // What all objects of this process name as the source of their errors.
    static void SetSource(const std::wstring& source);

    // Adds the names of members that programs ask for to a set that the caller owns; null ends it.
    static void NoteNames(std::set<std::wstring>* names);

    // The objects that are still referred to, as "Application x1, Presentation x2"; an empty text where none is.
    static std::wstring StillReferenced();

private:
    HRESULT CallMember(const Member& member, WORD flags, const DISPPARAMS& parameters, VARIANT* result);

    const wchar_t* m_className;
    std::span<const Member> m_members;
};

// A host object with the dispatch-based interface I, found under an id of its own as well. Its members live on.
template<class I>
class AutomationObject : public corvane::ComObject<AutomationObject<I>, I>, public ObjectCore
{
public:
    explicit AutomationObject(const wchar_t* className, std::span<const Member> members = {},
                              REFIID ownId = __uuidof(I))
        : ObjectCore{className, members}, m_ownId{ownId}
    {}

    STDMETHODIMP QueryInterface(REFIID id, void** object) noexcept override
    {
        void* const part = object != nullptr ? Interface(id) : nullptr;
        if (part == nullptr) return Base::QueryInterface(id == m_ownId ? IID_IUnknown : id, object);
        *object = part;
        this->AddRef();
        return S_OK;
    }
    STDMETHODIMP GetTypeInfoCount(UINT* count) override { return corvane::HandOutValue(0U, count); }
    STDMETHODIMP GetTypeInfo(UINT, LCID, ITypeInfo** info) override
    {
        if (info != nullptr) *info = nullptr;
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
    using Base = corvane::ComObject<AutomationObject<I>, I>;

    IID m_ownId;
};

// A property that programs read and write: its value, or nothing once it is written.
template<class Value>
Variant ReadOrWrite(const Arguments& arguments, Value& value)
{
    if (!arguments.IsPut()) return value;
    if constexpr (std::is_same_v<Value, std::wstring>)
        value = arguments.At(0).Text();
    else if constexpr (std::is_same_v<Value, bool>)
        value = arguments.At(0).Boolean();
    else
        value = arguments.At(0).Number();
    return {};
}

// A pointer to the class whose method answers, or whose objects a function answers for.
template<class T, class Result, class... Rest>
T* AnsweringOf(Result (T::*)(Rest...));
template<class T, class Result, class... Rest>
T* AnsweringOf(Result (T::*)(Rest...) const);
template<class T, class Result, class... Rest>
T* AnsweringOf(Result (*)(T&, Rest...));

template<auto answer>
auto& AsAnswering(ObjectCore& object)
{
    if constexpr (std::is_member_pointer_v<decltype(answer)>)
        return *static_cast<decltype(AnsweringOf(answer))>(&object);
    else
        return *static_cast<decltype(AnsweringOf(+answer))>(&object);
}

// Makes a method, or a function of an object, the answer of a member table's row. It takes the arguments if it needs
// them and returns what a Variant can hold, or nothing.
template<auto answer>
Variant Answer(ObjectCore& object, const Arguments& arguments)
{
    auto& self = AsAnswering<answer>(object);
    const auto ask = [&]() -> decltype(auto) {
        if constexpr (std::is_invocable_v<decltype(answer), decltype(self), const Arguments&>)
            return std::invoke(answer, self, arguments);
        else
            return std::invoke(answer, self);
    };
    if constexpr (std::is_void_v<decltype(ask())>)
        return ask(), Variant{};
    else
        return Variant{ask()};
}

} // namespace host
