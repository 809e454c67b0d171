#include "app/SiblingLogin.h"

#include "app/Registry.h"
#include "automation/AutomationObject.h"

namespace host
{
namespace
{

constexpr CLSID kLoginClass{0x5E0C1A7B, 0x3B0E, 0x4C57, {0x9A, 0x41, 0x6D, 0x2F, 0x70, 0xB3, 0x8C, 0x15}};
constexpr wchar_t kLoginClassText[] = L"{5E0C1A7B-3B0E-4C57-9A41-6D2F70B38C15}";
constexpr wchar_t kLoginProgId[] = L"CorvaneMSOfficeExcel.CLogin";
constexpr wchar_t kLoginKey[] = L"Software\\Classes\\CorvaneMSOfficeExcel.CLogin";

void WriteKey(HKEY root)
{
    RegistryKey::Create(root, std::wstring{kLoginKey} + L"\\CLSID").SetText(nullptr, kLoginClassText);
}

// Removes the key only when it is ours: a real sibling add-in may be installed.
void RemoveKey(HKEY root)
{
    if (RegistryKey::Open(root, std::wstring{kLoginKey} + L"\\CLSID").Text(nullptr) == kLoginClassText)
        ::RegDeleteTreeW(root, kLoginKey);
}

class LoginObject final : public AutomationObject<IDispatch>
{
public:
    explicit LoginObject(bool loggedIn) : AutomationObject{L"CLogin", IID_IDispatch}, m_loggedIn{loggedIn} {}

    [[nodiscard]] std::span<const Member> Members() const override
    {
        static constexpr Member kMembers[] = {{1, L"IsLoggedIn", kEither, Answer<&LoginObject::IsLoggedIn>}};
        return kMembers;
    }

private:
    Value IsLoggedIn(const Arguments&) { return Value::OfBoolean(m_loggedIn); }

    bool m_loggedIn;
};

// Lives as long as the process; COM's counting of it is of no use.
class LoginFactory final : public IClassFactory
{
public:
    explicit LoginFactory(bool loggedIn) : m_loggedIn{loggedIn} {}

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
        if (outer) return CLASS_E_NOAGGREGATION;
        return MakeObject<LoginObject>(m_loggedIn)->QueryInterface(id, object);
    }
    STDMETHODIMP LockServer(BOOL) override { return S_OK; }

private:
    bool m_loggedIn;
};

} // namespace

SiblingLogin::SiblingLogin(const std::string& answer)
{
    if (answer != "true" && answer != "false") return;
    static LoginFactory factory{answer == "true"};
    m_offered = SUCCEEDED(::CoRegisterClassObject(kLoginClass, &factory, CLSCTX_INPROC_SERVER, REGCLS_MULTIPLEUSE,
                                                  &m_cookie));
    WriteKey(HKEY_CURRENT_USER);
    // A COM run time that does not look at the user's classes finds it among the machine's.
    CLSID found{};
    if (FAILED(::CLSIDFromProgID(kLoginProgId, &found))) WriteKey(HKEY_LOCAL_MACHINE);
}

SiblingLogin::~SiblingLogin()
{
    if (!m_offered) return;
    ::CoRevokeClassObject(m_cookie);
    RemoveTraces();
}

void SiblingLogin::RemoveTraces() const
{
    if (!m_offered) return;
    RemoveKey(HKEY_CURRENT_USER);
    RemoveKey(HKEY_LOCAL_MACHINE);
}

} // namespace host
