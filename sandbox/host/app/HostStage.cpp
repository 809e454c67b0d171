#include "app/Host.h"

#include <algorithm>
#include <stdexcept>

#include "base/Console.h"
#include "objects/DocumentProperties.h"

namespace host
{

void Host::Tell(const std::wstring& line) { Print(line); }

std::wstring Host::AddInState() const
{
    std::wstring state = L"absent";
    for (const auto& addIn : m_addIns) {
        if (addIn->State() == host::AddInState::Connected) state = L"loaded";
        if (addIn->State() == host::AddInState::Failed) state = L"failed";
    }
    return state;
}

DocumentObject& Host::Active() const
{
    if (DocumentObject* active = m_session.Active()) return *active;
    throw std::runtime_error{"no presentation is open"};
}

void Host::Activate(const std::wstring& name)
{
    for (const auto& document : m_session.OpenDocuments())
        if (document->File().Name() == name) return m_session.Activate(*document.Get());
    throw std::runtime_error{"no presentation of this name is open"};
}

std::optional<std::wstring> Host::ActiveName() const
{
    DocumentObject* active = m_session.Active();
    return active == nullptr ? std::nullopt : std::optional{active->File().Name()};
}

std::optional<std::wstring> Host::Property(const std::wstring& name) const
{
    for (const CustomProperty& property : Active().File().Custom())
        if (Widen(property.name) == name) return ToValue(property).Text();
    return std::nullopt;
}

void Host::SetProperty(const std::wstring& name, const std::wstring& text)
{
    auto& properties = Active().File().Custom();
    std::erase_if(properties, [wanted = Narrow(name)](const auto& one) { return one.name == wanted; });
    properties.push_back({Narrow(name), PropertyType::Text, Narrow(text)});
}

bool Host::HasCommand(const std::wstring& name) const
{
    const auto has = [id = Narrow(name)](const ShownRibbon* shown) { return shown->ribbon.Find(id) != nullptr; };
    if (std::ranges::any_of(Ribbons(), has)) return true;
    return Edition() == host::Edition::Menus && m_session.CommandBars().MenuBar().FindTag(name) != nullptr;
}

std::optional<std::wstring> Host::MenuEntries(const std::vector<std::wstring>& path) const
{
    CommandBarObject* menu = &m_session.CommandBars().MenuBar();
    for (const std::wstring& name : path) {
        const auto& entries = menu->Entries();
        const auto found = std::ranges::find_if(
            entries, [&](const auto& entry) { return entry->Menu() && WithoutMark(entry->Caption()) == name; });
        if (found == entries.end()) return std::nullopt;
        menu = (*found)->Menu();
    }
    std::wstring captions;
    for (const auto& entry : menu->Entries())
        captions += (captions.empty() ? L"" : L"\r\n") + entry->Caption();
    return captions;
}

bool Host::HasRun(const std::wstring& macro) const { return std::ranges::count(m_session.MacrosRun(), macro) > 0; }

corvane::player::Mail Host::LastMail() const
{
    const MailFields* mail = m_programs->LastMail();
    return mail == nullptr ? MailFields{} : *mail;
}

void Host::Set(const std::wstring& name, const std::wstring& value) { m_session.Set(Narrow(name), Narrow(value)); }

} // namespace host
