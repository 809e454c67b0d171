#include "app/OtherPrograms.h"

#include <stdexcept>

#include "objects/HttpRequestObject.h"

namespace host
{
namespace
{

using corvane::Registry::Hive;
using corvane::Registry::ReadText;
using corvane::Registry::WriteText;

constexpr CLSID kLoginClass{0x5E0C1A7B, 0x3B0E, 0x4C57, {0x9A, 0x41, 0x6D, 0x2F, 0x70, 0xB3, 0x8C, 0x15}};
constexpr CLSID kOutlookClass{0x7D1F92C4, 0x58A3, 0x4B0D, {0x8E, 0x26, 0x11, 0xC5, 0x9F, 0x3A, 0x60, 0xB2}};
constexpr wchar_t kLoginProgId[] = L"CorvaneMSOfficeExcel.CLogin";
constexpr wchar_t kOutlookProgId[] = L"Outlook.Application";
constexpr wchar_t kMailLinkKey[] = L"mailto\\shell\\open\\command";
constexpr wchar_t kMailLinkClass[] = L"Software\\Classes\\mailto\\shell\\open\\command";

struct OutlookSetting
{
    const char* value;
    MailMood mood;
    bool running;
};
constexpr OutlookSetting kOutlookSettings[] = {
    {"new", MailMood::Willing, false},
    {"running", MailMood::Willing, true},
    {"refusing", MailMood::Refusing, false},
};

struct MailClientSetting
{
    const char* value;
    const wchar_t* command;
};
constexpr MailClientSetting kMailClientSettings[] = {
    {"outlook", LR"("C:\Program Files\Microsoft Office\root\Office16\OUTLOOK.EXE" -c IPM.Note /mailto "%1")"},
    {"express", LR"("C:\Program Files\Outlook Express\msimn.exe" /mailurl:%1)"},
    {"other", LR"("C:\Program Files\Post Office\post.exe" -compose "%1")"},
};

// The row of a setting; null when the setting is not given. Throws on a value that has no row.
template<class Row, std::size_t size>
const Row* RowOf(const Row (&rows)[size], const Options& options, const char* name)
{
    const std::string value = options.Setting(name);
    for (const Row& row : rows)
        if (row.value == value) return &row;
    if (!value.empty()) throw std::invalid_argument{std::string{name} + " cannot be " + value};
    return nullptr;
}

} // namespace

MailLinkCommand::MailLinkCommand(const std::wstring& command)
{
    // A merged view that leaves out the user's classes shows the machine's.
    for (const Hive hive : {Hive::User, Hive::Machine})
        if (ReadText(kMailLinkKey, {}, {Hive::Classes}) != command) {
            m_before.push_back({hive, ReadText(kMailLinkClass, {}, {hive})});
            corvane::Ignoring([&] { WriteText(kMailLinkClass, {}, command, hive); });
        }
}

void MailLinkCommand::RemoveTraces() const
{
    for (const Before& before : m_before)
        before.command ? corvane::Ignoring([&] { WriteText(kMailLinkClass, {}, *before.command, before.hive); })
                       : corvane::Registry::DeleteValue(kMailLinkClass, {}, before.hive);
}

OtherPrograms::OtherPrograms(const Options& options)
{
    const std::string login = options.Setting("sibling.login");
    if (login == "true" || login == "false")
        m_login.emplace(kLoginClass, kLoginProgId,
                        [loggedIn = login == "true"] { return ComPtr<IDispatch>{MakeObject<LoginObject>(loggedIn)}; });
    if (options.Setting("http") == "own")
        m_http.emplace(kXmlHttpClass, [](REFIID id, void** object) {
            return MakeObject<HttpRequestObject>()->QueryInterface(id, object);
        });
    if (const auto* client = RowOf(kMailClientSettings, options, "mail.client")) m_mailLinks.emplace(client->command);
    if (const auto* outlook = RowOf(kOutlookSettings, options, "outlook"))
        OfferOutlook(outlook->mood, outlook->running);
}

void OtherPrograms::OfferOutlook(MailMood mood, bool running)
{
    m_outlook = MakeObject<OutlookObject>(mood);
    // The running one is to be found, not created: a second one could not open the mail store.
    m_outlookClass.emplace(kOutlookClass, kOutlookProgId, [this, running] {
        return ComPtr<IDispatch>{running ? MakeObject<OutlookObject>(MailMood::Failing) : m_outlook};
    });
    if (running)
        ThrowIfFailed(::RegisterActiveObject(m_outlook.Get(), kOutlookClass, ACTIVEOBJECT_STRONG, &m_running),
                      L"The running mail program cannot be offered.");
}

OtherPrograms::~OtherPrograms()
{
    if (m_running != 0) ::RevokeActiveObject(m_running, nullptr);
}

const MailFields* OtherPrograms::LastMail() const
{
    return m_outlook != nullptr && !m_outlook->Displayed().empty() ? &m_outlook->Displayed().back() : nullptr;
}

void OtherPrograms::OnMail(std::function<void(const MailFields&)> show)
{
    if (m_outlook != nullptr) m_outlook->onDisplay = std::move(show);
}

void OtherPrograms::RemoveTraces() const
{
    if (m_login) m_login->RemoveTraces();
    if (m_outlookClass) m_outlookClass->RemoveTraces();
    if (m_mailLinks) m_mailLinks->RemoveTraces();
}

} // namespace host
