// The add-in's library, loaded for one test.
#pragma once

#include <windows.h>

#include <oleauto.h>

#include <addin.h>
#include <gtest/gtest.h>
#include <string>

// Loads the library and initializes COM for the thread; a test that leaves an object behind fails at the end.
class AddInLibrary : public testing::Test
{
protected:
    AddInLibrary() : m_module{(::CoInitialize(nullptr), ::LoadLibraryW(ADDIN_LIBRARY))} {}
    ~AddInLibrary() override
    {
        ::FreeLibrary(m_module);
        ::CoUninitialize();
    }

    void SetUp() override { ASSERT_NE(m_module, nullptr); }
    void TearDown() override { EXPECT_EQ(CanUnload(), S_OK) << "an object is left"; }

    template<class Function>
    Function Entry(const char* name) const
    {
        return reinterpret_cast<Function>(reinterpret_cast<void*>(::GetProcAddress(m_module, name)));
    }
    HRESULT CanUnload() const { return Entry<HRESULT(STDAPICALLTYPE*)()>("DllCanUnloadNow")(); }
    HRESULT ClassObject(REFCLSID classId, REFIID id, void** object) const
    {
        return Entry<LPFNGETCLASSOBJECT>("DllGetClassObject")(classId, id, object);
    }
    // A new object of a class, through its factory; null when it cannot be made.
    template<class Interface>
    Interface* Create(REFCLSID classId) const
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
