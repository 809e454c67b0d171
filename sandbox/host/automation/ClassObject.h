// Classes that the host puts in the place of the system's or of other programs'.
#pragma once

#include <windows.h>

#include <functional>

namespace host
{

// Takes the place of a class in this process, before any that is registered, while it lives. Every creation asks the
// given function for a new reference. Throws Error when COM does not take the class.
class ClassObject
{
public:
    using Create = std::function<HRESULT(REFIID, void**)>;

    ClassObject(REFCLSID classId, Create create);
    ClassObject(const ClassObject&) = delete;
    ClassObject& operator=(const ClassObject&) = delete;
    ~ClassObject();

private:
    DWORD m_cookie = 0;
};

} // namespace host
