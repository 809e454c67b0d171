#include "app/Companions.h"

namespace host
{
namespace
{

constexpr CLSID kLoginClass{0x5E0C1A7B, 0x3B0E, 0x4C57, {0x9A, 0x41, 0x6D, 0x2F, 0x70, 0xB3, 0x8C, 0x15}};
constexpr CLSID kOutlookClass{0x7D1F92C4, 0x58A3, 0x4B0D, {0x8E, 0x26, 0x11, 0xC5, 0x9F, 0x3A, 0x60, 0xB2}};
constexpr wchar_t kLoginProgId[] = L"CorvaneMSOfficeExcel.CLogin";
constexpr wchar_t kOutlookProgId[] = L"Outlook.Application";

} // namespace

Companions::Companions(const Options& options)
{
    const std::string login = options.Setting("sibling.login");
    if (login == "true" || login == "false")
        m_login.emplace(kLoginClass, kLoginProgId,
                        [loggedIn = login == "true"] { return ComPtr<IDispatch>{MakeObject<LoginObject>(loggedIn)}; });
    const std::string outlook = options.Setting("outlook");
    if (outlook != "new" && outlook != "running") return;
    m_outlook = MakeObject<OutlookObject>();
    m_outlookClass.emplace(kOutlookClass, kOutlookProgId, [this] { return ComPtr<IDispatch>{m_outlook}; });
    if (outlook == "running")
        ThrowIfFailed(::RegisterActiveObject(m_outlook.Get(), kOutlookClass, ACTIVEOBJECT_STRONG, &m_running),
                      L"The running mail program cannot be offered.");
}

Companions::~Companions()
{
    if (m_running) ::RevokeActiveObject(m_running, nullptr);
}

const MailFields* Companions::LastMail() const
{
    return m_outlook && !m_outlook->Displayed().empty() ? &m_outlook->Displayed().back() : nullptr;
}

void Companions::RemoveTraces() const
{
    if (m_login) m_login->RemoveTraces();
    if (m_outlookClass) m_outlookClass->RemoveTraces();
}

} // namespace host
