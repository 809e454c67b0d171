// The add-in's library as a host holds it, for tests and benchmarks.
#pragma once

#include <windows.h>

#include <oleauto.h>

#include <addin.h>
#include <string>

// Loads a library that offers the add-in's classes, and lets it go at the end. Nothing throws: a library or a class
// that is missing shows as null.
class LoadedAddIn
{
public:
    explicit LoadedAddIn(const std::wstring& path) : m_module{::LoadLibraryW(path.c_str())} {}
    LoadedAddIn(const LoadedAddIn&) = delete;
    LoadedAddIn& operator=(const LoadedAddIn&) = delete;
    ~LoadedAddIn() { ::FreeLibrary(m_module); }

    [[nodiscard]] bool IsThere() const { return m_module != nullptr; }
    template<class Function>
    [[nodiscard]] Function Entry(const char* name) const
    {
        return reinterpret_cast<Function>(reinterpret_cast<void*>(::GetProcAddress(m_module, name)));
    }
    [[nodiscard]] HRESULT ClassObject(REFCLSID classId, REFIID id, void** object) const
    {
        const auto entry = Entry<LPFNGETCLASSOBJECT>("DllGetClassObject");
        return entry == nullptr ? CO_E_ERRORINDLL : entry(classId, id, object);
    }
    // A new object of a class, through its factory.
    template<class Interface>
    [[nodiscard]] Interface* Create(REFCLSID classId) const
    {
        IClassFactory* factory = nullptr;
        if (FAILED(ClassObject(classId, IID_PPV_ARGS(&factory)))) return nullptr;
        Interface* object = nullptr;
        factory->CreateInstance(nullptr, IID_PPV_ARGS(&object));
        factory->Release();
        return object;
    }

private:
    HMODULE m_module;
};
