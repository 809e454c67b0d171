// An add-in's library in a host that does only what it is told.
#pragma once

#include "LoadedAddIn.h"
#include "objects/Session.h"

#include <optional>
#include <string>

namespace bench
{

// Loads a library that offers the add-in's class, connects the add-in to a host of version 16 as at its start, and
// takes its ribbon.
class AddInUnderTest
{
public:
    AddInUnderTest();
    ~AddInUnderTest();
    AddInUnderTest(const AddInUnderTest&) = delete;
    AddInUnderTest& operator=(const AddInUnderTest&) = delete;

    void Load(const std::wstring& library);
    // Presses a button of the ribbon; returns when the command has ended.
    void Press(const std::wstring& control);

    [[nodiscard]] host::Session& Host() { return m_session; }

private:
    host::Session m_session{host::Options{}};
    std::optional<LoadedAddIn> m_library;
    host::ComPtr<::IDTExtensibility2> m_addIn; // gone before its library
};

} // namespace bench
