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

// What the host gets when it asks for the ribbon.
inline std::wstring RibbonOf(IUnknown& addIn)
{
    IRibbonExtensibility* ribbon = nullptr;
    BSTR xml = nullptr;
    if (FAILED(addIn.QueryInterface(IID_PPV_ARGS(&ribbon)))) return {};
    ribbon->GetCustomUI(nullptr, &xml);
    ribbon->Release();
    std::wstring text{xml, ::SysStringLen(xml)};
    ::SysFreeString(xml);
    return text;
}

// Presses a button of the ribbon, given as the control that its callback is about; returns when the command has ended.
inline HRESULT PressControl(IUnknown& addIn, IDispatch& control)
{
    IDispatch* callbacks = nullptr;
    HRESULT result = addIn.QueryInterface(IID_PPV_ARGS(&callbacks));
    if (FAILED(result)) return result;
    std::wstring name = L"RibbonHandler";
    LPOLESTR names[] = {name.data()};
    DISPID member = 0;
    result = callbacks->GetIDsOfNames(IID_NULL, names, 1, LOCALE_NEUTRAL, &member);
    VARIANTARG argument{};
    argument.vt = VT_DISPATCH;
    argument.pdispVal = &control;
    DISPPARAMS parameters{&argument, nullptr, 1, 0};
    if (SUCCEEDED(result))
        result = callbacks->Invoke(member, IID_NULL, LOCALE_NEUTRAL, DISPATCH_METHOD, &parameters, nullptr, nullptr,
                                   nullptr);
    callbacks->Release();
    return result;
}
