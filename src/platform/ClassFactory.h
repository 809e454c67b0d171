// The class factory that COM asks for new objects of a class.
#pragma once

#include "platform/ComObject.h"

namespace corvane
{

// Makes objects of one class by a function (REFIID, void**) that gives the first reference to a new one.
template<class Create>
class ClassFactory final : public ComObject<ClassFactory<Create>, IClassFactory>
{
public:
    explicit ClassFactory(Create create) : m_create{std::move(create)} {}

    STDMETHODIMP CreateInstance(IUnknown* outer, REFIID id, void** object) noexcept override
    {
        if (object == nullptr) return E_POINTER;
        *object = nullptr;
        return outer != nullptr ? CLASS_E_NOAGGREGATION : m_create(id, object);
    }
    STDMETHODIMP LockServer(BOOL lock) noexcept override
    {
        lock ? Library::AddObject() : Library::RemoveObject();
        return S_OK;
    }

private:
    Create m_create;
};

} // namespace corvane
