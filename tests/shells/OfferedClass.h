// Classes of the system replaced in this process.
#pragma once

#include "automation/OfferedClass.h"

#include <objbase.h>
#include <utility>

// COM for the thread of a test.
class Apartment
{
public:
    Apartment() { ::CoInitialize(nullptr); }
    ~Apartment() { ::CoUninitialize(); }
    Apartment(const Apartment&) = delete;
    Apartment& operator=(const Apartment&) = delete;
};

// Takes a class's place for as long as the object lives. Creation goes to create, or fails as for a class that the
// machine does not have when create is empty.
class OfferedClass
{
public:
    using Create = host::ClassObject::Create;

    explicit OfferedClass(REFCLSID classId, Create create = {})
        : m_class{classId, [this, create = std::move(create)](REFIID id, void** object) {
                      ++m_asked;
                      return create ? create(id, object) : REGDB_E_CLASSNOTREG;
                  }}
    {}

    // How often the class was asked for.
    [[nodiscard]] int TimesAsked() const { return m_asked; }

private:
    int m_asked = 0;
    host::ClassObject m_class;
};
