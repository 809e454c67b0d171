#include "objects/DocumentObject.h"

#include <shlobj.h>

#include "automation/OfficeInterfaces.h"
#include "objects/Application.h"
#include "objects/Collections.h"
#include "objects/DocumentProperties.h"
#include "objects/Session.h"

namespace host
{
namespace
{

std::wstring UserDocumentsFolder()
{
    wchar_t folder[MAX_PATH] = L"";
    ThrowIfFailed(::SHGetFolderPathW(nullptr, CSIDL_PERSONAL, nullptr, SHGFP_TYPE_CURRENT, folder),
                  L"There is no documents folder.");
    return folder;
}

} // namespace

DocumentObject::DocumentObject(Session& session, Document document)
    : AutomationObject{L"Presentation", kPresentationId}, m_session{session}, m_document{std::move(document)}
{}

std::span<const Member> DocumentObject::Members() const
{
    using P = DocumentObject;
    static constexpr Member kMembers[] = {
        {2001, L"Application", kGet, Answer<&P::GetApplication>},
        {2020, L"BuiltInDocumentProperties", kEither, Answer<&P::GetBuiltIn>},
        {2021, L"CustomDocumentProperties", kEither, Answer<&P::GetCustom>},
        {2023, L"ReadOnly", kGet, Answer<&P::GetReadOnly>},
        {2024, L"FullName", kGet, Answer<&P::GetFullName>},
        {2025, L"Name", kGet, Answer<&P::GetName>},
        {2026, L"Path", kGet, Answer<&P::GetPath>},
        {2027, L"Saved", kGetPut, Answer<&P::Saved>},
        {2030, L"Windows", kGet, Answer<&P::GetWindows>},
        {2035, L"Save", kMethod, Answer<&P::DoSave>},
        {2036, L"SaveAs", kMethod, Answer<&P::DoSaveAs>},
        {2037, L"SaveCopyAs", kMethod, Answer<&P::DoSaveCopyAs>},
        {2039, L"Close", kMethod, Answer<&P::DoClose>},
        {2080, L"Final", kGet, Answer<&P::GetFinal>},
    };
    return kMembers;
}

void DocumentObject::MarkClosed()
{
    m_closed = true;
    m_document = Document::New(m_document.Name(), {}); // lets go of the file
}

void DocumentObject::CheckOpen() const
{
    if (m_closed) throw AutomationError{kInvalidRequest, L"Presentation : Object does not exist."};
}

void DocumentObject::Save()
{
    if (!m_document.HasFile()) return SaveAs(UserDocumentsFolder() + L"\\" + m_document.Name(), kSaveAsDefault);
    CheckOpen();
    if (!m_session.MayBeSaved(*this)) return;
    m_document.Save(Fault());
    m_session.Changed();
}

void DocumentObject::SaveAs(const std::wstring& path, long type)
{
    CheckOpen();
    const SaveFormat& format = Format(type);
    if (!m_session.MayBeSaved(*this)) return;
    m_document.SaveAs(path, format, Fault());
    m_session.Changed();
}

const SaveFormat& DocumentObject::Format(long type) const
{
    return FormatOfType(type, m_session.Settings().MajorVersion());
}

long DocumentObject::TypeArgument(const Arguments& arguments) const
{
    return arguments.Has(1) ? arguments.At(1).Number() : kSaveAsDefault;
}

SaveFault DocumentObject::Fault() const { return SaveFaultNamed(m_session.Settings().Setting("save.fault")); }

Value DocumentObject::GetApplication(const Arguments&) { return Value{&m_session.Application()}; }
Value DocumentObject::GetName(const Arguments&) { return Value{m_document.Name()}; }
Value DocumentObject::GetFullName(const Arguments&) { return Value{m_document.FullName()}; }
Value DocumentObject::GetPath(const Arguments&) { return Value{m_document.Folder()}; }
Value DocumentObject::GetReadOnly(const Arguments&) { return Value::OfTriState(m_document.IsReadOnly()); }
Value DocumentObject::GetFinal(const Arguments&) { return Value::OfBoolean(false); }

Value DocumentObject::Saved(const Arguments& arguments)
{
    CheckOpen();
    if (!arguments.IsPut()) return Value::OfTriState(m_document.IsSaved());
    m_document.SetSaved(arguments.At(0).Number() != 0);
    m_session.Changed();
    return {};
}

Value DocumentObject::GetBuiltIn(const Arguments& arguments)
{
    CheckOpen();
    const auto properties = MakeObject<DocumentPropertiesObject>(this, PropertySet::BuiltIn);
    return arguments.Has(0) ? properties->Item(arguments) : Value{properties.Get()};
}

Value DocumentObject::GetCustom(const Arguments& arguments)
{
    CheckOpen();
    const auto properties = MakeObject<DocumentPropertiesObject>(this, PropertySet::Custom);
    return arguments.Has(0) ? properties->Item(arguments) : Value{properties.Get()};
}

Value DocumentObject::GetWindows(const Arguments&)
{
    CheckOpen();
    std::vector<ComPtr<IDispatch>> windows{ComPtr<IDispatch>{MakeObject<DocumentWindowObject>(this)}};
    return Value{MakeObject<ListObject>(L"DocumentWindows", kDocumentWindowsId, std::move(windows)).Get()};
}

Value DocumentObject::DoSave(const Arguments&)
{
    Save();
    return {};
}

Value DocumentObject::DoSaveAs(const Arguments& arguments)
{
    SaveAs(arguments.At(0).Text(), TypeArgument(arguments));
    return {};
}

Value DocumentObject::DoSaveCopyAs(const Arguments& arguments)
{
    CheckOpen();
    m_document.SaveCopyAs(arguments.At(0).Text(), Format(TypeArgument(arguments)), Fault());
    return {};
}

Value DocumentObject::DoClose(const Arguments&)
{
    CheckOpen();
    m_session.Close(*this);
    return {};
}

DocumentWindowObject::DocumentWindowObject(DocumentObject* presentation)
    : AutomationObject{L"DocumentWindow", kDocumentWindowId}, m_presentation{presentation}
{}

std::span<const Member> DocumentWindowObject::Members() const
{
    using W = DocumentWindowObject;
    static constexpr Member kMembers[] = {
        {2005, L"Presentation", kGet, Answer<&W::GetPresentation>},
        {2009, L"Active", kGet, Answer<&W::GetActive>},
        {2011, L"Caption", kGet, Answer<&W::GetCaption>},
        {2017, L"Activate", kMethod, Answer<&W::DoActivate>},
    };
    return kMembers;
}

Value DocumentWindowObject::GetCaption(const Arguments&) { return Value{m_presentation->File().Name()}; }
Value DocumentWindowObject::GetPresentation(const Arguments&) { return Value{m_presentation.Get()}; }

Value DocumentWindowObject::GetActive(const Arguments&)
{
    return Value::OfTriState(m_presentation->Host().Active() == m_presentation.Get());
}

Value DocumentWindowObject::DoActivate(const Arguments&)
{
    m_presentation->Host().Activate(*m_presentation.Get());
    return {};
}

} // namespace host
