#include "app/HostStage.h"

#include <algorithm>
#include <stdexcept>

#include "base/Console.h"
#include "objects/PropertyValue.h"
#include "platform/Utf8.h"

namespace host
{

std::wstring HostStage::OutFolder() const { return m_host.CurrentSession().Settings().outFolder; }
void HostStage::Tell(const std::wstring& line) { Print(line); }

std::wstring HostStage::AddInState() const
{
    std::wstring state = L"absent";
    for (const auto& addIn : m_host.AddIns()) {
        if (addIn->State() == AddInState::Connected) state = L"loaded";
        if (addIn->State() == AddInState::Failed) state = L"failed";
    }
    return state;
}

DocumentObject& HostStage::Active() const
{
    if (DocumentObject* active = m_host.ActiveDocument()) return *active;
    throw std::runtime_error{"no presentation is open"};
}

void HostStage::New() { m_host.CurrentSession().New(); }
void HostStage::Open(const std::wstring& path) { m_host.CurrentSession().Open(path, false); }
void HostStage::Save() { Active().Save(); }
void HostStage::SaveAs(const std::wstring& path, std::optional<long> format) { Active().SaveAs(path, format); }
void HostStage::Close() { m_host.CurrentSession().Close(Active()); }

void HostStage::Activate(const std::wstring& name)
{
    for (const auto& document : m_host.CurrentSession().OpenDocuments())
        if (document->File().Name() == name) return m_host.CurrentSession().Activate(*document.Get());
    throw std::runtime_error{"no presentation of this name is open"};
}

std::optional<std::wstring> HostStage::ActiveName() const
{
    DocumentObject* active = m_host.ActiveDocument();
    return active == nullptr ? std::nullopt : std::optional{active->File().Name()};
}

std::optional<std::wstring> HostStage::Property(const std::wstring& name) const
{
    for (const CustomProperty& property : Active().File().Custom())
        if (corvane::FromUtf8(property.name) == name) return ToValue(property).Text();
    return std::nullopt;
}

void HostStage::SetProperty(const std::wstring& name, const std::wstring& text)
{
    auto& properties = Active().File().Custom();
    std::erase_if(properties, [wanted = corvane::ToUtf8(name)](const auto& one) { return one.name == wanted; });
    properties.push_back({corvane::ToUtf8(name), PropertyType::Text, corvane::ToUtf8(text)});
}

bool HostStage::HasCommand(const std::wstring& name) const { return m_host.HasCommand(corvane::ToUtf8(name)); }
void HostStage::Press(const std::wstring& name) { m_host.Press(corvane::ToUtf8(name)); }

std::optional<std::wstring> HostStage::MenuEntries(const std::vector<std::wstring>& path) const
{
    CommandBarObject* menu = &m_host.MenuBar();
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

bool HostStage::HasRun(const std::wstring& macro) const
{
    return std::ranges::count(m_host.CurrentSession().MacrosRun(), macro) > 0;
}

corvane::player::Mail HostStage::LastMail() const
{
    const MailFields* mail = m_host.LastMail();
    return mail == nullptr ? MailFields{} : *mail;
}

void HostStage::Set(const std::wstring& name, const std::wstring& value)
{
    m_host.CurrentSession().Set(corvane::ToUtf8(name), corvane::ToUtf8(value));
}

} // namespace host
