#include "automation/OfferedClass.h"

#include "base/Registry.h"

namespace host
{
namespace
{

std::wstring TextOf(REFCLSID classId)
{
    wchar_t text[64] = L"";
    ::StringFromGUID2(classId, text, static_cast<int>(std::size(text)));
    return text;
}

ClassObject::Create CreateBy(std::function<ComPtr<IDispatch>()> create)
{
    return [create = std::move(create)](REFIID id, void** object) { return create()->QueryInterface(id, object); };
}

} // namespace

OfferedClass::OfferedClass(REFCLSID classId, std::wstring progId, std::function<ComPtr<IDispatch>()> create)
    : m_classId{classId}, m_key{L"Software\\Classes\\" + progId}, m_class{classId, CreateBy(std::move(create))}
{
    CLSID found{};
    if (SUCCEEDED(::CLSIDFromProgID(progId.c_str(), &found))) return;
    WriteKey(HKEY_CURRENT_USER);
    // A COM run time that does not look at the user's classes finds it among the machine's.
    if (FAILED(::CLSIDFromProgID(progId.c_str(), &found))) WriteKey(HKEY_LOCAL_MACHINE);
}

OfferedClass::~OfferedClass() { RemoveTraces(); }

void OfferedClass::RemoveTraces() const
{
    RemoveKey(HKEY_CURRENT_USER);
    RemoveKey(HKEY_LOCAL_MACHINE);
}

void OfferedClass::WriteKey(HKEY root) const
{
    RegistryKey::Create(root, m_key + L"\\CLSID").SetText(nullptr, TextOf(m_classId));
}

void OfferedClass::RemoveKey(HKEY root) const
{
    if (RegistryKey::Open(root, m_key + L"\\CLSID").Text(nullptr) == TextOf(m_classId))
        ::RegDeleteTreeW(root, m_key.c_str());
}

} // namespace host
