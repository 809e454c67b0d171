#include <algorithm>
#include <optional>
#include <stdexcept>

#include "automation/Text.h"
#include "base/Console.h"
#include "base/Registry.h"
#include "documents/Files.h"
#include "objects/DocumentObject.h"
#include "objects/PropertyValue.h"
#include "player/Player.h"
#include "player/Screen.h"
#include "player/Screenshot.h"
#include "ui/MainWindow.h"

namespace host
{
namespace
{

constexpr DWORD kPaintPatience = 2000; // milliseconds
constexpr DWORD kPaintPoll = 20;

bool IsUnpainted(HWND window) { return ::IsWindowVisible(window) && ::GetUpdateRect(window, nullptr, FALSE); }

// Whether any window of this process still waits to be painted.
bool AwaitsPaint()
{
    return std::ranges::any_of(VisibleWindows(), [](HWND window) {
        return IsUnpainted(window) || std::ranges::any_of(ChildrenOf(window), IsUnpainted);
    });
}

std::vector<std::wstring> FilesMatching(const std::wstring& pattern)
{
    std::vector<std::wstring> names;
    WIN32_FIND_DATAW data{};
    const HANDLE search = ::FindFirstFileW(pattern.c_str(), &data);
    if (search == INVALID_HANDLE_VALUE) return names;
    do {
        if (!(data.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY)) names.emplace_back(data.cFileName);
    } while (::FindNextFileW(search, &data));
    ::FindClose(search);
    return names;
}

DocumentObject& ActiveOf(Host& host)
{
    if (DocumentObject* active = host.Documents().Active()) return *active;
    throw std::runtime_error{"no presentation is open"};
}

} // namespace

void Player::WaitUntilLoaded()
{
    WaitFor([this] {
        bool loaded = false;
        OnUi([&] { loaded = m_host.IsLoaded(); });
        return loaded ? Finding{} : Finding{L"the host is still loading its add-ins"};
    });
}

void Player::New(const Step&)
{
    WaitUntilLoaded();
    OnUi([this] { m_host.Documents().New(); });
}

void Player::Set(const Step& step)
{
    OnUi([&] { m_host.Documents().Set(step.At(0), step.At(1)); });
}

void Player::Open(const Step& step)
{
    WaitUntilLoaded();
    OnUi([this, path = Widen(step.At(0))] { m_host.Documents().Open(path, false); });
}

void Player::Save(const Step&)
{
    OnUi([this] { ActiveOf(m_host).Save(); });
}

void Player::SaveAs(const Step& step)
{
    std::optional<long> type;
    if (step.words.size() > 1) type = std::stol(step.At(1));
    OnUi([this, type, path = Widen(step.At(0))] { ActiveOf(m_host).SaveAs(path, type); });
}

void Player::Activate(const Step& step)
{
    OnUi([this, name = Widen(step.At(0))] {
        for (const auto& presentation : m_host.Documents().OpenDocuments())
            if (presentation->File().Name() == name) return m_host.Documents().Activate(*presentation.Get());
        throw std::runtime_error{"no presentation of this name is open"};
    });
}

void Player::Close(const Step&)
{
    OnUi([this] { m_host.Documents().Close(ActiveOf(m_host)); });
}

void Player::Quit(const Step&)
{
    WaitFor([this] {
        bool busy = false;
        OnUi([&] { busy = m_host.IsBusy(); });
        return busy ? Finding{L"a command is still running"} : Finding{};
    });
    m_quit = true;
    m_host.Queue().Post([&host = m_host] { host.Quit(); });
}

void Player::Exit(const Step&)
{
    m_quit = true;
    ::PostMessageW(m_host.Window().Handle(), WM_CLOSE, 0, 0);
}

void Player::Disconnect(const Step&)
{
    OnUi([this] { m_host.DisconnectAddIns(); });
}

// The command runs in modal windows that later steps work on, so only its start is waited for.
void Player::StartCommand(std::function<void()> command)
{
    m_host.Queue().Post(std::move(command));
    Settle();
}

void Player::Command(const Step& step)
{
    WaitUntilLoaded();
    const std::string name = step.At(0);
    WaitFor([&] {
        bool there = false;
        OnUi([&] { there = m_host.HasCommand(name); });
        return there ? Finding{} : Finding{L"no control " + Widen(name)};
    });
    StartCommand([&host = m_host, name] { host.Press(name); });
}

void Player::Controller(const Step& step)
{
    WaitUntilLoaded();
    StartCommand([&host = m_host, method = Widen(step.At(0))] { host.CallController(method); });
}

void Player::Show(const Step& step)
{
    WaitUntilLoaded();
    OnUi([this, page = Widen(step.At(0))] {
        if (!m_host.Window().ShowPage(page)) throw std::runtime_error{"the ribbon has no such page"};
    });
}

Player::Finding Player::PropertyFinding(const std::wstring& name, const std::wstring& wanted)
{
    std::optional<std::wstring> value;
    OnUi([&] {
        for (const CustomProperty& property : ActiveOf(m_host).File().Custom())
            if (Widen(property.name) == name) value = ToValue(property).As(VT_BSTR).Text();
    });
    if (!value && !wanted.empty()) return L"the presentation has no property " + name;
    return value.value_or(L"") == wanted ? Finding{} : Finding{L"the property is \"" + *value + L"\""};
}

void Player::Property(const Step& step)
{
    WaitFor([&] { return PropertyFinding(Widen(step.At(0)), Widen(step.At(1))); });
}

bool Player::HasRun(const std::string& macro)
{
    bool ran = false;
    OnUi([&] { ran = std::ranges::count(m_host.Documents().MacrosRun(), Widen(macro)) > 0; });
    return ran;
}

void Player::Ran(const Step& step)
{
    WaitFor([&] { return HasRun(step.At(0)) ? Finding{} : Finding{L"the macro was not run"}; });
}

void Player::Registry(const Step& step)
{
    WaitFor([&, wanted = Widen(step.At(2))] {
        const std::wstring text =
            RegistryKey::Open(HKEY_CURRENT_USER, Widen(step.At(0))).Text(Widen(step.At(1)).c_str());
        return text == wanted ? Finding{} : L"it is \"" + text + L"\"";
    });
}

void Player::File(const Step& step)
{
    const bool wanted = step.At(0) == "exists";
    if (!wanted && step.At(0) != "missing") throw std::runtime_error{"a file exists or is missing"};
    WaitFor([&] {
        const auto names = FilesMatching(Widen(step.At(1)));
        if (names.empty() != wanted) return Finding{};
        return wanted ? Finding{L"there is no such file"} : L"there is " + names.front();
    });
}

// The server reads its rules again at each request.
// Takes its name when it is whole, because the server reads it at any time.
void Player::Faults(const Step& step)
{
    const std::wstring file = OutFile("faults.json");
    WriteWholeFile(file + L".new", step.At(0));
    if (!::MoveFileExW((file + L".new").c_str(), file.c_str(), MOVEFILE_REPLACE_EXISTING))
        throw std::runtime_error{"the rules cannot be put in place"};
}

void Player::Mail(const Step& step)
{
    WaitFor([&, field = Widen(step.At(0)), wanted = Widen(step.Lines(1))] {
        std::optional<std::wstring> value;
        OnUi([&] {
            const MailFields* mail = m_host.LastMail();
            const auto found = mail ? mail->find(field) : MailFields::const_iterator{};
            if (mail && found != mail->end()) value = found->second;
        });
        if (!value) return L"no mail with a field " + field + L" is displayed";
        return *value == wanted ? Finding{} : L"it is \"" + *value + L"\"";
    });
}

// The displayed mail as a file that mail programs read.
void Player::Letter(const Step& step)
{
    MailFields mail;
    WaitFor([&] {
        OnUi([&] {
            if (const MailFields* last = m_host.LastMail()) mail = *last;
        });
        return mail.empty() ? Finding{L"no mail is displayed"} : Finding{};
    });
    std::wstring letter;
    for (const wchar_t* header : {L"To", L"CC", L"Subject"})
        if (mail.contains(header)) letter += header + (L": " + mail[header]) + L"\r\n";
    letter +=
        L"MIME-Version: 1.0\r\nContent-Type: text/plain; charset=utf-8\r\nContent-Transfer-Encoding: 8bit\r\n\r\n";
    WriteWholeFile(OutFile(step.At(0) + ".eml"), Narrow(letter + mail[L"Body"]));
}

std::wstring Player::OutFile(const std::string& name) const
{
    const std::wstring& folder = m_host.Documents().Settings().outFolder;
    if (folder.empty()) throw std::runtime_error{"this step needs --out"};
    return folder + L"\\" + Widen(name);
}

void Player::Shot(const Step& step)
{
    const std::wstring file = OutFile(step.At(0) + ".png");
    HWND window = nullptr;
    WaitFor([&] {
        window = step.At(1).empty() ? nullptr : NamedWindow(step.At(1));
        return window || step.At(1).empty() ? Finding{} : L"no window " + Widen(step.At(1));
    });
    for (DWORD waited = 0; waited < kPaintPatience && AwaitsPaint(); waited += kPaintPoll)
        ::Sleep(kPaintPoll);
    // Painted surfaces reach the screen when their thread waits for messages again. A busy thread is shown as it is.
    for (int i = 0; i < 3; ++i)
        if (!m_host.Queue().Run([] { ::GdiFlush(); }, std::chrono::seconds{1})) break;
    ::Sleep(kPaintPoll);
    SaveScreenshot(file, window);
}

void Player::MeasuredUsage(const Step& step)
{
    Settle();
    const Usage now = MeasureUsage();
    Print(L"usage: " + DescribeUsage(now));
    if (step.words.empty()) return;
    ++m_measured;
    const int settled = std::stoi(step.At(0));
    if (m_measured == settled) m_settledUsage = now;
    if (m_measured <= settled) return;
    WaitFor([&] { // the system's threads hold some of it for a moment
        const Usage held = MeasureUsage();
        if (IsLevel(m_settledUsage, held)) return Finding{};
        return L"it has grown from " + DescribeUsage(m_settledUsage) + L" to " + DescribeUsage(held);
    });
}

} // namespace host
