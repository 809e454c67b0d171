// Calls members of Automation objects by name, as the host object models are used.
#pragma once

#include "platform/Variant.h"

#include <span>
#include <string>
#include <string_view>

namespace corvane
{

// Holds one reference to an Automation object. Every call throws Error: the object's own (number, source,
// description) when it raised one, number 91 when there is no object; a source that the object leaves out is the
// member.
class LateBound
{
public:
    LateBound() = default;
    explicit LateBound(ComPtr<IDispatch> object) noexcept : m_object{std::move(object)} {}

    // A new object of a class named by its programmatic id; throws Error when it cannot be created.
    [[nodiscard]] static LateBound Create(const wchar_t* programmaticId);

    // The object that a running program offers under the id; throws Error when none does.
    [[nodiscard]] static LateBound Running(const wchar_t* programmaticId);

    explicit operator bool() const noexcept { return m_object != nullptr; }
    [[nodiscard]] IDispatch* Get() const noexcept { return m_object.Get(); }
    void Release() noexcept { m_object.Reset(); }

    // A property's value; arguments index it.
    template<class... Arguments>
    [[nodiscard]] Variant Property(const wchar_t* name, Arguments&&... arguments) const
    {
        return InvokeWith(name, DISPATCH_PROPERTYGET | DISPATCH_METHOD, std::forward<Arguments>(arguments)...);
    }
    // A property that holds an object; an empty LateBound when it holds none.
    template<class... Arguments>
    [[nodiscard]] LateBound Object(const wchar_t* name, Arguments&&... arguments) const
    {
        return LateBound{Property(name, std::forward<Arguments>(arguments)...).Object()};
    }
    [[nodiscard]] std::wstring Text(const wchar_t* name) const { return Property(name).Text(); }
    [[nodiscard]] std::int32_t Number(const wchar_t* name) const;

    template<class... Arguments>
    Variant Call(const wchar_t* name, Arguments&&... arguments) const
    {
        return InvokeWith(name, DISPATCH_METHOD, std::forward<Arguments>(arguments)...);
    }
    void Put(const wchar_t* name, Variant value) const;

    // Writes a copy of a document in its own format, by the system's interface for objects that live in files; the
    // document stays where it was. Number 438 when the object has no such interface.
    void SavePersistedCopy(const std::wstring& path) const;

private:
    template<class... Arguments>
    Variant InvokeWith(const wchar_t* name, int kind, Arguments&&... arguments) const
    {
        Variant values[sizeof...(arguments) + 1] = {Variant{std::forward<Arguments>(arguments)}..., Variant{}};
        return Invoke(name, kind, {values, sizeof...(arguments)});
    }
    Variant Invoke(const wchar_t* name, int kind, std::span<Variant> arguments) const;

    ComPtr<IDispatch> m_object;
};

} // namespace corvane
