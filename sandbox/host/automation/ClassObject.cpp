#include "automation/ClassObject.h"

#include "automation/Errors.h"
#include "platform/ClassFactory.h"

namespace host
{

ClassObject::ClassObject(REFCLSID classId, Create create)
{
    const auto factory = corvane::MakeObject<corvane::ClassFactory<Create>>(std::move(create));
    ThrowIfFailed(::CoRegisterClassObject(classId, factory.Get(), CLSCTX_INPROC_SERVER | CLSCTX_LOCAL_SERVER,
                                          REGCLS_MULTIPLEUSE, &m_cookie),
                  L"A stand-in class cannot be offered.");
}

ClassObject::~ClassObject() { ::CoRevokeClassObject(m_cookie); }

} // namespace host
