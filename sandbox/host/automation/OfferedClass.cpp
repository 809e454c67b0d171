#include "automation/OfferedClass.h"

#include "platform/ClassFactory.h"

namespace host
{

using corvane::Registry::Hive;

ClassObject::ClassObject(REFCLSID classId, Create create)
{
    const auto factory = corvane::MakeObject<corvane::ClassFactory<Create>>(std::move(create));
    ThrowIfFailed(::CoRegisterClassObject(classId, factory.Get(), CLSCTX_INPROC_SERVER | CLSCTX_LOCAL_SERVER,
                                          REGCLS_MULTIPLEUSE, &m_cookie),
                  L"A stand-in class cannot be offered.");
}

ClassObject::~ClassObject() { ::CoRevokeClassObject(m_cookie); }

OfferedClass::OfferedClass(REFCLSID classId, const std::wstring& progId, std::function<ComPtr<IDispatch>()> create)
    : m_id{corvane::GuidText(classId)}, m_key{L"Software\\Classes\\" + progId},
      m_class{classId, [create = std::move(create)](REFIID id, void** object) { return create().CopyTo(id, object); }}
{
    CLSID found{};
    // A COM run time that does not look at the user's classes finds it among the machine's.
    for (const Hive hive : {Hive::User, Hive::Machine})
        if (FAILED(::CLSIDFromProgID(progId.c_str(), &found)))
            corvane::Ignoring([&] { corvane::Registry::WriteText(m_key + L"\\CLSID", {}, m_id, hive); });
}

void OfferedClass::RemoveTraces() const
{
    for (const Hive hive : {Hive::User, Hive::Machine})
        if (corvane::Registry::ReadText(m_key + L"\\CLSID", {}, {hive}) == m_id)
            corvane::Registry::DeleteTree(m_key, hive);
}

} // namespace host
