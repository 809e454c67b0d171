#include "objects/DocumentObject.h"

#include <algorithm>

#include <shlobj.h>

#include "automation/OfficeInterfaces.h"
#include "automation/Text.h"
#include "documents/Refusal.h"
#include "objects/Application.h"
#include "objects/Collections.h"
#include "objects/DocumentProperties.h"
#include "objects/DocumentWindow.h"
#include "objects/HostModel.h"
#include "objects/Session.h"

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

std::optional<long> FormatArgument(const Arguments& arguments)
{
    return arguments.Has(1) ? std::optional{arguments.At(1).Number()} : std::nullopt;
}

} // namespace

DocumentObject::DocumentObject(Session& session, Document document)
    : AutomationObject{session.Model().document.name, session.Model().document.id}, m_session{session},
      m_document{std::move(document)},
      m_protected{session.Settings().Setting("document.view") == "protected"}, m_windows{session.WindowsOfNext()}
{}

std::span<const Member> DocumentObject::Members() const
{
    return m_session.Model().document.Members(m_session.Settings().MajorVersion());
}

void* DocumentObject::Interface(REFIID id)
{
    const bool persists = m_session.Kind() == HostKind::Word && (id == IID_IPersistFile || id == IID_IPersist);
    return persists ? static_cast<IPersistFile*>(&m_persistFile) : nullptr;
}

void DocumentObject::WriteCopy(const std::wstring& path)
{
    CheckOpen();
    m_document.CopyTo(path, Format({}), Fault());
}

ComPtr<IDispatch> DocumentObject::Window(long number) { return MakeObject<DocumentWindowObject>(this, number); }

void DocumentObject::MarkClosed()
{
    m_closed = true;
    m_document = Document::New(m_session.Version(), m_document.Name(), {}); // lets go of the file
}

void DocumentObject::CheckOpen() const
{
    if (m_closed) Refuse(m_session.Kind(), Refusal::Closed);
}

void DocumentObject::Save()
{
    CheckOpen();
    if (!m_document.HasFile()) {
        if (m_session.Facts().asksForName) Refuse(m_session.Kind(), Refusal::NotSaved, m_document.Name());
        return SaveAs(UserDocumentsFolder(m_session.Kind()) + L"\\" + m_document.Name(), {});
    }
    if (!m_session.MayBeSaved(*this)) return;
    m_document.Save(Fault());
    m_session.Changed();
}

void DocumentObject::SaveAs(const std::wstring& path, std::optional<long> format)
{
    CheckOpen();
    const SaveFormat& chosen = Format(format);
    if (!m_session.MayBeSaved(*this)) return;
    m_document.SaveAs(path, chosen, Fault());
    m_session.Changed();
}

const SaveFormat& DocumentObject::Format(std::optional<long> number) const
{
    const int version = m_session.Settings().MajorVersion();
    if (number) return FormatOfNumber(m_session.Kind(), *number, version);
    const bool keeps = m_document.Format() && m_session.Kind() != HostKind::PowerPoint;
    return keeps ? *m_document.Format() : DefaultFormat(m_session.Kind(), version);
}

SaveFault DocumentObject::Fault() const { return SaveFaultNamed(m_session.Settings().Setting("save.fault")); }

Variant DocumentObject::GetApplication(const Arguments&) { return Variant{&m_session.Application()}; }
Variant DocumentObject::GetName(const Arguments&) { return Variant{m_document.Name()}; }
Variant DocumentObject::GetFullName(const Arguments&) { return Variant{m_document.FullName()}; }
Variant DocumentObject::GetPath(const Arguments&) { return Variant{m_document.Folder()}; }
Variant DocumentObject::GetReadOnly(const Arguments&) { return Variant{m_document.IsReadOnly()}; }
Variant DocumentObject::GetReadOnlyState(const Arguments&) { return TriState(m_document.IsReadOnly()); }

void DocumentObject::PutSaved(const Arguments& arguments)
{
    m_document.SetSaved(arguments.At(0).Number() != 0);
    m_session.Changed();
}

Variant DocumentObject::Saved(const Arguments& arguments)
{
    CheckOpen();
    if (!arguments.IsPut()) return Variant{m_document.IsSaved()};
    PutSaved(arguments);
    return {};
}

Variant DocumentObject::SavedState(const Arguments& arguments)
{
    CheckOpen();
    if (!arguments.IsPut()) return TriState(m_document.IsSaved());
    PutSaved(arguments);
    return {};
}

Variant DocumentObject::Final(const Arguments& arguments)
{
    CheckOpen();
    if (!arguments.IsPut()) return Variant{m_document.IsFinal()};
    m_document.SetFinal(arguments.At(0).Boolean());
    m_document.SetSaved(false);
    m_session.Changed();
    return {};
}

Variant DocumentObject::GetHasVBProject(const Arguments&)
{
    CheckOpen();
    return Variant{m_session.Settings().Setting("document.macros") == "true"};
}

Variant DocumentObject::GetBuiltIn(const Arguments& arguments)
{
    CheckOpen();
    const auto properties = MakeObject<DocumentPropertiesObject>(this, PropertySet::BuiltIn);
    return arguments.Has(0) ? properties->Item(arguments) : Variant{properties.Get()};
}

Variant DocumentObject::GetCustom(const Arguments& arguments)
{
    CheckOpen();
    const auto properties = MakeObject<DocumentPropertiesObject>(this, PropertySet::Custom);
    return arguments.Has(0) ? properties->Item(arguments) : Variant{properties.Get()};
}

Variant DocumentObject::GetWindows(const Arguments&)
{
    CheckOpen();
    std::vector<ComPtr<IDispatch>> windows;
    for (long number = 1; number <= m_windows; ++number)
        windows.push_back(Window(number));
    return Variant{m_session.WindowList(std::move(windows)).Get()};
}

Variant DocumentObject::GetWindow(const Arguments&) { return Variant{Window(1).Get()}; }

Variant DocumentObject::DoSave(const Arguments&)
{
    Save();
    return {};
}

Variant DocumentObject::DoSaveAs(const Arguments& arguments)
{
    SaveAs(arguments.At(0).Text(), FormatArgument(arguments));
    return {};
}

Variant DocumentObject::DoSaveCopyAs(const Arguments& arguments)
{
    CheckOpen();
    m_document.SaveCopyAs(arguments.At(0).Text(), Format(FormatArgument(arguments)), Fault());
    return {};
}

Variant DocumentObject::DoSaveCopyAsItIs(const Arguments& arguments)
{
    CheckOpen();
    if (arguments.Count() != 1) throw Error{DISP_E_BADPARAMCOUNT, {}, L"Wrong number of arguments."};
    WriteCopy(arguments.At(0).Text());
    return {};
}

Variant DocumentObject::DoClose(const Arguments&)
{
    CheckOpen();
    m_session.Close(*this);
    return {};
}

Variant DocumentObject::DoCloseSaving(const Arguments& arguments)
{
    CheckOpen();
    if (arguments.Has(0) && arguments.At(0).Number() == -1) Save();
    m_session.Close(*this);
    return {};
}

Variant DocumentObject::DoDisplay(const Arguments&)
{
    CheckOpen();
    m_session.Display(*this);
    return {};
}

Variant DocumentObject::Field(const char* name, const Arguments& arguments)
{
    CheckOpen();
    CustomProperty& field = *std::ranges::find(m_document.BuiltIn(), name, &CustomProperty::name);
    if (!arguments.IsPut()) return Variant{Widen(field.value)};
    field.value = Narrow(arguments.At(0).Text());
    m_document.SetSaved(false);
    m_session.Changed();
    return {};
}

} // namespace host
