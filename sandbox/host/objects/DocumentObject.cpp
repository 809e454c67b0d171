#include "objects/DocumentObject.h"

#include "documents/Refusal.h"
#include "objects/Application.h"
#include "objects/CommandBars.h"
#include "objects/DocumentProperties.h"

#include <shlobj.h>

#include <algorithm>

namespace host
{
namespace
{

std::wstring UserDocumentsFolder(HostKind host)
{
    wchar_t folder[MAX_PATH] = L"";
    const HRESULT found = ::SHGetFolderPathW(nullptr, CSIDL_PERSONAL, nullptr, SHGFP_TYPE_CURRENT, folder);
    if (FAILED(found) || folder[0] == L'\0') Refuse(host, Refusal::NotFound, L"the documents folder");
    return folder;
}

// Where the service keeps what is saved in a folder of its own: nothing comes back into that folder.
std::wstring PathInCloud(const std::wstring& path)
{
    const std::wstring folder = FolderOf(path) + L"\\cloud";
    ::CreateDirectoryW(folder.c_str(), nullptr);
    return folder + L"\\" + FileName(path);
}

std::optional<long> FormatArgument(const Arguments& arguments)
{
    return arguments.Has(1) ? std::optional<long>{arguments.At(1).Number()} : std::nullopt;
}

} // namespace

DocumentObject::DocumentObject(Session& session, Document document)
    : AutomationObject{session.Model().document.name, session.MembersOf(&HostModel::document),
                       session.Model().document.id},
      m_session{session}, m_document{std::move(document)},
      m_protected{session.Settings().Setting("document.view") == "protected"}, m_windows{session.WindowsOfNext()}
{}

void* DocumentObject::Interface(REFIID id)
{
    const bool persists = m_session.Kind() == HostKind::Word && (id == IID_IPersistFile || id == IID_IPersist);
    return persists ? static_cast<IPersistFile*>(&m_persistFile) : nullptr;
}

ComPtr<IDispatch> DocumentObject::Window(long number) { return MakeObject<DocumentWindowObject>(this, number); }

void DocumentObject::MarkClosed()
{
    m_closed = true;
    m_document = Document::New(m_session.Version(), m_document.Name(), {}); // lets go of the file
}

DocumentObject& DocumentObject::Opened()
{
    if (m_closed) Refuse(m_session.Kind(), Refusal::Closed);
    return *this;
}

void DocumentObject::Save()
{
    if (!Opened().m_document.HasFile()) {
        if (m_session.Facts().asksForName) Refuse(m_session.Kind(), Refusal::NotSaved, m_document.Name());
        return SaveAs(UserDocumentsFolder(m_session.Kind()) + L"\\" + m_document.Name(), {});
    }
    if (!m_session.MayBeSaved(*this)) return;
    m_document.Save(Fault());
    m_session.Changed();
}

void DocumentObject::SaveAs(const std::wstring& path, std::optional<long> format)
{
    const SaveFormat& chosen = Opened().Format(format);
    if (!m_session.MayBeSaved(*this)) return;
    const std::wstring address = Widen(m_session.Settings().Setting("documents.url"));
    const bool inCloud = !address.empty() && FolderOf(path) == UserDocumentsFolder(m_session.Kind());
    m_document.SaveAs(inCloud ? PathInCloud(path) : path, chosen, Fault());
    if (inCloud) m_document.ShowAs(address + L"/" + m_document.Name());
    m_session.Changed();
}

void DocumentObject::WriteCopy(const std::wstring& path) { Opened().m_document.CopyTo(path, Format({}), Fault()); }

const SaveFormat& DocumentObject::Format(std::optional<long> number) const
{
    const int version = m_session.Version().major;
    if (number) return FormatOfNumber(m_session.Kind(), *number, version);
    const bool keeps = m_document.Format() != nullptr && m_session.Kind() != HostKind::PowerPoint;
    return keeps ? *m_document.Format() : DefaultFormat(m_session.Kind(), version);
}

SaveFault DocumentObject::Fault() const { return SaveFaultNamed(m_session.Settings().Setting("save.fault")); }

Variant DocumentObject::Saved(const Arguments& arguments)
{
    if (!arguments.IsPut()) return Opened().m_document.IsSaved();
    Opened().m_document.SetSaved(arguments.At(0).Number() != 0);
    m_session.Changed();
    return {};
}

Variant DocumentObject::Final(const Arguments& arguments)
{
    if (!arguments.IsPut()) return Opened().m_document.IsFinal();
    Opened().m_document.SetFinal(arguments.At(0).Boolean());
    m_document.SetSaved(false);
    m_session.Changed();
    return {};
}

bool DocumentObject::HasVBProject() { return Opened().m_session.Settings().Setting("document.macros") == "true"; }

ComPtr<IDispatch> DocumentObject::Windows()
{
    std::vector<ComPtr<IDispatch>> windows;
    for (long number = 1; number <= Opened().m_windows; ++number)
        windows.push_back(Window(number));
    return m_session.WindowList(std::move(windows));
}

Variant DocumentObject::Properties(PropertySet set, const Arguments& arguments)
{
    const auto properties = MakeObject<DocumentPropertiesObject>(&Opened(), set);
    if (!arguments.Has(0)) return properties;
    return properties->Item(arguments);
}

void DocumentObject::SaveUnder(const Arguments& arguments)
{
    SaveAs(arguments.At(0).Text(), FormatArgument(arguments));
}

void DocumentObject::SaveCopyAs(const Arguments& arguments)
{
    m_session.AskUser();
    Opened().m_document.SaveCopyAs(arguments.At(0).Text(), Format(FormatArgument(arguments)), Fault());
}

void DocumentObject::SaveCopyAsItIs(const Arguments& arguments)
{
    if (arguments.Count() != 1) throw Error{DISP_E_BADPARAMCOUNT, {}, L"Wrong number of arguments."};
    WriteCopy(arguments.At(0).Text());
}

void DocumentObject::CloseSaving(const Arguments& arguments)
{
    if (arguments.Has(0) && arguments.At(0).Number() == -1) Save();
    Close();
}

Variant DocumentObject::Field(const char* name, const Arguments& arguments)
{
    CustomProperty& field = *std::ranges::find(Opened().m_document.BuiltIn(), name, &CustomProperty::name);
    if (!arguments.IsPut()) return Widen(field.value);
    field.value = Narrow(arguments.At(0).Text());
    m_document.SetSaved(false);
    m_session.Changed();
    return {};
}

STDMETHODIMP PersistFile::QueryInterface(REFIID id, void** object) { return m_document.QueryInterface(id, object); }
STDMETHODIMP_(ULONG) PersistFile::AddRef() { return m_document.AddRef(); }
STDMETHODIMP_(ULONG) PersistFile::Release() { return m_document.Release(); }
STDMETHODIMP PersistFile::IsDirty() { return m_document.File().IsSaved() ? S_FALSE : S_OK; }

STDMETHODIMP PersistFile::Save(LPCOLESTR path, BOOL remember)
{
    if (path == nullptr || remember != FALSE) return E_INVALIDARG;
    const auto failure = corvane::Catch([&] { m_document.WriteCopy(path); });
    return failure ? failure->Number() : S_OK;
}

DocumentWindowObject::DocumentWindowObject(DocumentObject* document, long number)
    : AutomationObject{document->Owner().Model().window.name, document->Owner().MembersOf(&HostModel::window),
                       document->Owner().Model().window.id},
      m_document{document}, m_number{number}
{}

std::wstring DocumentWindowObject::Caption() const
{
    const std::wstring name = m_document->Name();
    return m_document->WindowCount() > 1 ? name + L":" + std::to_wstring(m_number) : name;
}

ComPtr<IDispatch> DocumentWindowObject::CommandBars() const { return &m_document->Owner().CommandBars(); }

} // namespace host
