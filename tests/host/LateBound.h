#pragma once

#include <vector>

#include "automation/AutomationError.h"
#include "automation/Value.h"

namespace host::test
{

// Calls a member by its name as a script does. Throws AutomationError with what the object reported.
inline Value CallByName(IDispatch& object, const wchar_t* name, WORD flags, const std::vector<Value>& arguments = {})
{
    DISPID id = 0;
    auto* text = const_cast<LPOLESTR>(name);
    ThrowIfFailed(object.GetIDsOfNames(IID_NULL, &text, 1, 0, &id), name);
    std::vector<VARIANT> reversed;
    for (auto at = arguments.rbegin(); at != arguments.rend(); ++at)
        reversed.push_back(at->Get());
    DISPID put = DISPID_PROPERTYPUT;
    const bool isPut = flags == DISPATCH_PROPERTYPUT;
    DISPPARAMS parameters{reversed.data(), isPut ? &put : nullptr, static_cast<UINT>(reversed.size()), isPut ? 1u : 0u};
    Value result;
    EXCEPINFO report{};
    const HRESULT done = object.Invoke(id, IID_NULL, 0, flags, &parameters, result.Put(), &report, nullptr);
    const std::wstring why = report.bstrDescription ? report.bstrDescription : name;
    ::SysFreeString(report.bstrSource);
    ::SysFreeString(report.bstrDescription);
    if (FAILED(done)) throw AutomationError{done == DISP_E_EXCEPTION ? report.scode : done, why};
    return result;
}

} // namespace host::test
