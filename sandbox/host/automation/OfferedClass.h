// Classes that the host puts in the place of the system's or of other programs'.
#pragma once

#include "automation/AutomationObject.h"
#include "platform/Registry.h"

#include <functional>
#include <string>

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

// Offers a class of another program to the add-in while it lives: its ProgID in the registry and its class object in
// this process. An installed class of the same ProgID is left alone in the registry and wins.
class OfferedClass
{
public:
    // Every creation asks for a new reference. Throws Error when COM does not take the class.
    OfferedClass(REFCLSID classId, const std::wstring& progId, std::function<ComPtr<IDispatch>()> create);
    OfferedClass(const OfferedClass&) = delete;
    OfferedClass& operator=(const OfferedClass&) = delete;
    ~OfferedClass() { RemoveTraces(); }

    // Removes the registry entries alone.
    void RemoveTraces() const;

private:
    std::wstring m_id;
    std::wstring m_key;
    ClassObject m_class;
};

} // namespace host
