#include "app/OfferedClass.h"

#include "app/Registry.h"

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

} // namespace

// Belongs to the offered class, which outlives COM's use of it; the count is not kept.
class OfferedClass::Factory final : public IClassFactory
{
public:
    explicit Factory(std::function<ComPtr<IDispatch>()> create) : m_create{std::move(create)} {}
    virtual ~Factory() = default;

    STDMETHODIMP QueryInterface(REFIID id, void** object) override
    {
        if (!object) return E_POINTER;
        *object = id == IID_IUnknown || id == IID_IClassFactory ? this : nullptr;
        return *object ? S_OK : E_NOINTERFACE;
    }
    STDMETHODIMP_(ULONG) AddRef() override { return 2; }
    STDMETHODIMP_(ULONG) Release() override { return 1; }
    STDMETHODIMP CreateInstance(IUnknown* outer, REFIID id, void** object) override
    {
        return outer ? CLASS_E_NOAGGREGATION : m_create()->QueryInterface(id, object);
    }
    STDMETHODIMP LockServer(BOOL) override { return S_OK; }

private:
    std::function<ComPtr<IDispatch>()> m_create;
};

OfferedClass::OfferedClass(REFCLSID classId, std::wstring progId, std::function<ComPtr<IDispatch>()> create)
    : m_classId{classId}, m_key{L"Software\\Classes\\" + progId}, m_factory{
                                                                      std::make_unique<Factory>(std::move(create))}
{
    ThrowIfFailed(::CoRegisterClassObject(classId, m_factory.get(), CLSCTX_INPROC_SERVER | CLSCTX_LOCAL_SERVER,
                                          REGCLS_MULTIPLEUSE, &m_cookie),
                  L"A stand-in class cannot be offered.");
    CLSID found{};
    if (SUCCEEDED(::CLSIDFromProgID(progId.c_str(), &found))) return;
    WriteKey(HKEY_CURRENT_USER);
    // A COM run time that does not look at the user's classes finds it among the machine's.
    if (FAILED(::CLSIDFromProgID(progId.c_str(), &found))) WriteKey(HKEY_LOCAL_MACHINE);
}

OfferedClass::~OfferedClass()
{
    ::CoRevokeClassObject(m_cookie);
    RemoveTraces();
}

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
