#include "app/Host.h"

#include <algorithm>

#include <commdlg.h>

#include "automation/Macros.h"
#include "base/Console.h"
#include "base/Text.h"
#include "objects/Application.h"
#include "platform/LateBound.h"

namespace host
{
namespace
{

constexpr wchar_t kControllerProgId[] = L"CorvaneMSOfficePowerPoint.CController";

// The path that the user picks, or an empty text.
std::wstring AskForPath(HWND owner, const HostFacts& facts, bool toSave, const std::wstring& proposal)
{
    wchar_t path[MAX_PATH] = L"";
    ::lstrcpynW(path, proposal.c_str(), MAX_PATH);
    OPENFILENAMEW dialog{};
    dialog.lStructSize = sizeof dialog;
    dialog.hwndOwner = owner;
    dialog.lpstrFilter = facts.fileTypes.data();
    dialog.lpstrFile = path;
    dialog.nMaxFile = MAX_PATH;
    dialog.Flags = OFN_EXPLORER | OFN_HIDEREADONLY | (toSave ? OFN_OVERWRITEPROMPT : OFN_FILEMUSTEXIST);
    const BOOL chosen = toSave ? ::GetSaveFileNameW(&dialog) : ::GetOpenFileNameW(&dialog);
    return chosen ? path : L"";
}

} // namespace

Host::Host(Options options)
    : m_session{std::move(options)}, m_programs{std::make_unique<OtherPrograms>(m_session.Settings())}
{
    m_window = std::make_unique<MainWindow>(*this);
    m_session.window = m_window->Handle();
    m_session.onChanged = [this] { m_window->Refresh(); };
    m_session.onQuit = [this] { Perform(HostCommand::Exit); };
    m_annotations.emplace(m_window->Handle());
    m_mail = std::make_unique<MailWindow>(m_window->Handle());
    m_programs->OnMail([this](const MailFields& mail) { m_mail->Show(mail); });
}

Host::~Host() = default;

void Host::Show() { m_window->Show(); }

void Host::LoadAddIns()
{
    const auto entries = RegisteredAddIns(m_session.Facts());
    if (entries.empty()) Print(std::wstring{L"no add-in is registered for "} + m_session.Facts().product);
    for (const auto& [name, entry] : entries) {
        if (!entry.LoadsAtStart()) {
            Print(entry.progId + L" is registered, but not to be loaded at start-up");
            continue;
        }
        m_addIns.push_back(std::make_unique<AddIn>(m_session, m_classes, entry));
        m_addIns.back()->onFault = [this](const std::wstring& fault) { AddFault(fault); };
        m_addIns.back()->Load();
    }
    m_loaded = true;
    m_window->Refresh();
}

bool Host::RunMessages()
{
    MSG message;
    while (::GetMessageW(&message, nullptr, 0, 0) > 0) {
        ::TranslateMessage(&message);
        ::DispatchMessageW(&message);
    }
    m_session.onChanged = nullptr;
    m_programs->OnMail(nullptr);
    m_mail.reset();
    m_annotations.reset();
    m_window.reset();
    m_addIns.clear();
    m_programs.reset();
    m_session.Release();
    m_classes.UnloadUnused(); // what was running when the add-ins were disconnected
    const std::wstring living = ObjectCore::StillReferenced();
    if (!living.empty()) PrintError(L"still referenced by the add-in: " + living);
    return living.empty();
}

void Host::Quit()
{
    while (DocumentObject* active = m_session.Active())
        m_session.Close(*active);
    DisconnectAddIns();
    ::PostQuitMessage(0);
}

std::vector<const ShownRibbon*> Host::Ribbons() const
{
    std::vector<const ShownRibbon*> ribbons;
    for (const auto& addIn : m_addIns)
        if (addIn->Ribbon() != nullptr) ribbons.push_back(addIn->Ribbon());
    return ribbons;
}

void Host::Press(const std::string& name)
{
    Guarded([&] {
        for (const auto& addIn : m_addIns) {
            const RibbonControl* control = addIn->Ribbon() == nullptr ? nullptr : addIn->Ribbon()->ribbon.Find(name);
            if (control != nullptr) return addIn->Press(RibbonControl{*control});
        }
        if (BarControlObject* entry = MenuBar().FindTag(Widen(name))) entry->Press();
    });
}

void Host::Perform(HostCommand command)
{
    Guarded([&] {
        DocumentObject* active = m_session.Active();
        switch (command) {
        case HostCommand::New:
            m_session.New();
            break;
        case HostCommand::Open:
            OpenWithDialog();
            break;
        case HostCommand::Save:
            active != nullptr && active->File().HasFile() ? active->Save() : SaveWithName();
            break;
        case HostCommand::SaveAs:
            SaveWithName();
            break;
        case HostCommand::Close:
            if (active != nullptr) m_session.Close(*active);
            break;
        case HostCommand::Exit:
            m_queue.Post([this] { Quit(); });
            break;
        }
    });
}

void Host::OpenWithDialog()
{
    const std::wstring path = AskForPath(m_window->Handle(), m_session.Facts(), false, {});
    if (!path.empty()) m_session.Open(path, false);
}

void Host::SaveWithName()
{
    const ComPtr<DocumentObject> active{m_session.Active()};
    if (active == nullptr) return;
    const std::wstring path = AskForPath(m_window->Handle(), m_session.Facts(), true, active->File().FullName());
    if (!path.empty()) active->SaveAs(path, {});
}

void Host::CallController(const std::wstring& method)
{
    Guarded([&] {
        const ComPtr<IUnknown> object = m_classes.Create(ClassLoader::ClassOf(kControllerProgId));
        ComPtr<IDispatch> controller;
        ThrowIfFailed(object.As(&controller), L"the controller offers no IDispatch");
        corvane::LateBound{controller}.Call(method.c_str());
    });
}

void Host::RunMacro(const std::wstring& text, const std::wstring& procedure)
{
    Guarded([&] { host::RunMacro(text, procedure, m_session.Application(), m_classes, m_window->Handle()); });
}

void Host::DisconnectAddIns()
{
    for (const auto& addIn : m_addIns)
        addIn->Disconnect();
    m_classes.UnloadUnused();
}

void Host::Guarded(const std::function<void()>& action)
{
    ++m_running;
    try {
        action();
    } catch (const std::exception& error) {
        AddFault(ReasonOf(error));
        if (m_session.Settings().playFile.empty())
            ::MessageBoxW(m_window->Handle(), ReasonOf(error).c_str(), L"Stand-in host", MB_ICONEXCLAMATION);
    }
    --m_running;
}

void Host::AddFault(const std::wstring& fault)
{
    PrintError(L"fault: " + fault);
    const std::lock_guard lock{m_faultsMutex};
    m_faults.push_back(fault);
}

std::vector<std::wstring> Host::TakeFaults()
{
    const std::lock_guard lock{m_faultsMutex};
    return std::exchange(m_faults, {});
}

} // namespace host
