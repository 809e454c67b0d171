// The add-in's library, loaded for one test.
#pragma once

#include "LoadedAddIn.h"

#include <gtest/gtest.h>

// Initializes COM for the thread; a test that leaves an object behind fails at the end.
class AddInLibrary : public testing::Test
{
protected:
    void SetUp() override { ASSERT_TRUE(m_library.IsThere()); }
    void TearDown() override { EXPECT_EQ(CanUnload(), S_OK) << "an object is left"; }

    [[nodiscard]] const LoadedAddIn& Loaded() const { return m_library; }
    [[nodiscard]] HRESULT Run(const char* entry) const { return m_library.Entry<HRESULT(STDAPICALLTYPE*)()>(entry)(); }
    [[nodiscard]] HRESULT CanUnload() const { return Run("DllCanUnloadNow"); }

private:
    struct Apartment
    {
        Apartment() { ::CoInitialize(nullptr); }
        ~Apartment() { ::CoUninitialize(); }
    };

    Apartment m_apartment;
    LoadedAddIn m_library{ADDIN_LIBRARY};
};
