#include "automation/ClassObject.h"

#include <utility>

#include "automation/Errors.h"

namespace host
{

ClassObject::ClassObject(REFCLSID classId, Create create) : m_create{std::move(create)}
{
    ThrowIfFailed(::CoRegisterClassObject(classId, this, CLSCTX_INPROC_SERVER | CLSCTX_LOCAL_SERVER, REGCLS_MULTIPLEUSE,
                                          &m_cookie),
                  L"A stand-in class cannot be offered.");
}

ClassObject::~ClassObject() { ::CoRevokeClassObject(m_cookie); }

HRESULT ClassObject::QueryInterface(REFIID id, void** object)
{
    if (!object) return E_POINTER;
    *object = id == IID_IUnknown || id == IID_IClassFactory ? this : nullptr;
    return *object ? S_OK : E_NOINTERFACE;
}

HRESULT ClassObject::CreateInstance(IUnknown* outer, REFIID id, void** object)
{
    if (!object) return E_POINTER;
    *object = nullptr;
    return outer ? CLASS_E_NOAGGREGATION : m_create(id, object);
}

} // namespace host
