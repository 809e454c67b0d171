#pragma once

#include <functional>

#include "LateBound.h"
#include "automation/AutomationObject.h"

namespace host::test
{

// An object as a script holds it.
class Script
{
public:
    explicit Script(IDispatch* object) : m_object{object} {}

    Value Call(const wchar_t* name, const std::vector<Value>& arguments = {}) const
    {
        return CallByName(*m_object.Get(), name, DISPATCH_METHOD | DISPATCH_PROPERTYGET, arguments);
    }
    [[nodiscard]] Script Object(const wchar_t* name, const std::vector<Value>& arguments = {}) const
    {
        return Script{Call(name, arguments).Object()};
    }
    void Put(const wchar_t* name, const Value& value) const
    {
        CallByName(*m_object.Get(), name, DISPATCH_PROPERTYPUT, {value});
    }
    [[nodiscard]] IDispatch* Get() const { return m_object.Get(); }

private:
    ComPtr<IDispatch> m_object;
};

// The number of the error that the action ends with, or S_OK.
inline HRESULT FailureOf(const std::function<void()>& action)
{
    try {
        action();
    } catch (const AutomationError& error) {
        return error.Number();
    }
    return S_OK;
}

} // namespace host::test
