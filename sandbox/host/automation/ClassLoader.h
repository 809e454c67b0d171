// Classes of add-ins, created from the registry.
#pragma once

#include <map>
#include <string>

#include <windows.h>

#include "automation/AutomationObject.h"

namespace host
{

// Creates in-process objects from the user's registrations, which win over the machine's. It reads the user's part of
// the registry itself, because not every COM run time looks there, and keeps the libraries that it loaded.
class ClassLoader
{
public:
    ClassLoader() = default;
    ClassLoader(const ClassLoader&) = delete;
    ClassLoader& operator=(const ClassLoader&) = delete;
    ~ClassLoader();

    // Throws Error when the ProgID is not registered.
    [[nodiscard]] static CLSID ClassOf(const std::wstring& progId);

    // Throws Error when the class cannot be created.
    [[nodiscard]] ComPtr<IUnknown> Create(REFCLSID classId);

    // Asks each loaded library whether it is still needed, says so, and unloads those that are not.
    void UnloadUnused();

private:
    [[nodiscard]] HMODULE Load(const std::wstring& path);

    std::map<std::wstring, HMODULE> m_libraries;
};

} // namespace host
