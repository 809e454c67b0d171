// Calls into the host while a form is shown.
#pragma once

#include "forms/Form.h"

namespace corvane
{

// Lives for a call in which the host may show a window of its own. At the end of that the host puts its windows back
// into use; this puts them out of use again.
class HostCall
{
public:
    HostCall() = default;
    HostCall(const HostCall&) = delete;
    HostCall& operator=(const HostCall&) = delete;
    ~HostCall() { Form::KeepOthersOut(); }
};

} // namespace corvane
