#include "shared/HostDocument.h"

#include "forms/HostCall.h"
#include "platform/Procedure.h"
#include "shared/DocumentNames.h"
#include "shared/HostTraits.h"
#include "shared/HostVersion.h"

namespace corvane
{
namespace
{

constexpr std::int32_t kPermissionDenied = 70;

Variant FormatArgument(const HostTraits& host, int version, std::wstring_view extension)
{
    const auto type = SaveTypeFor(host, version, extension);
    return type ? Variant{*type} : Variant::Missing();
}

DocumentPlace PlaceOf(const LateBound& document)
{
    DocumentPlace place{document.Text(L"Path"), document.Text(L"FullName"), document.Number(L"ReadOnly") != 0};
    if (!place.path.empty() && !IsWebAddress(place.fullName) && FileExists(place.fullName))
        place.readOnly = place.readOnly || !MayWriteFile(place.fullName);
    return place;
}

std::wstring UnusedDocumentPath(const std::wstring& title)
{
    const std::wstring extension = ExtensionOf(title);
    std::wstring path;
    const auto failure = Catch([&] {
        path = UnusedPath(DocumentsFolder(), title.substr(0, title.size() - extension.size()), extension.substr(1));
    });
    if (!failure) return path;
    throw Error{failure->Number(), failure->Source(),
                L"The document has no file yet and the Documents folder cannot be reached (" + failure->Description() +
                    L"). Please save the document to disk and then try again."};
}

void SaveInPlace(const LateBound& document, const std::wstring& fullName)
{
    const auto before = LastWriteTime(fullName);
    const HostCall call;
    document.Call(L"Save");
    // What else runs in the host may take a save back without an error.
    if (document.Number(L"Saved") == 0 && LastWriteTime(fullName) == before)
        throw Error{kPermissionDenied, L"SharedCode.SaveDocumentToDisk",
                    L"The document was not written to disk. Please save it and then try again."};
}

} // namespace

bool IsEditing(const LateBound& application)
{
    const HostTraits* const host = FindHost(application.Text(L"Name"));
    if (host == nullptr || host->editingBar == nullptr) return false;
    bool editing = true; // a host that refuses the question is busy editing
    Ignoring([&] {
        constexpr std::int32_t kButtonType = 1;
        constexpr std::int32_t kFileNewId = 18;
        const LateBound bar = application.Object(L"CommandBars").Object(L"Item", host->editingBar);
        const LateBound control =
            bar.Object(L"FindControl", kButtonType, kFileNewId, Variant::Missing(), Variant::Missing(), true);
        editing = control && control.Number(L"Enabled") == 0;
    });
    return editing;
}

HostDocument::HostDocument(LateBound application) noexcept : m_application{std::move(application)}
{
    Ignoring([this] {
        const HostTraits* const host = FindHost(m_application.Text(L"Name"));
        m_version = MajorVersion(m_application.Text(L"Version"));
        m_traits = host;
        if (host != nullptr && host->inspector != nullptr) m_inspector = m_application.Object(host->inspector);
    });
    FollowActive();
}

bool HostDocument::IsOpen() const noexcept { return CanCarryProperties() || m_inspector; }

bool HostDocument::CanCarryProperties() const noexcept
{
    bool carries = false;
    Ignoring([&] { carries = static_cast<bool>(Active()); });
    return carries;
}

LateBound HostDocument::Active() const
{
    if (m_traits == nullptr || m_traits->activeDocument == nullptr) return {};
    return m_application.Object(m_traits->activeDocument);
}

std::wstring HostDocument::ActiveName() const noexcept
{
    std::wstring name;
    Ignoring([&] { name = Active().Text(L"FullName"); });
    return name;
}

bool HostDocument::IsStillOpen() const noexcept
{
    bool found = false;
    Ignoring([&] {
        if (m_traits == nullptr || m_traits->documents == nullptr) return;
        const LateBound documents = m_application.Object(m_traits->documents);
        for (std::int32_t left = documents.Number(L"Count"); left > 0 && !found; --left)
            found = documents.Object(L"Item", left).Text(L"FullName") == m_fullName;
    });
    return found;
}

const HostTraits& HostDocument::Host() const
{
    if (m_traits == nullptr) throw ObjectNotSet(L"SharedCode.RequiredHost");
    return *m_traits;
}

LateBound HostDocument::Subject() const
{
    if (Host().activeDocument == nullptr) return m_inspector.Object(L"CurrentItem");
    return m_application.Object(Host().activeDocument);
}

std::wstring HostDocument::Title() const { return TitleOf(Subject()); }

std::wstring HostDocument::TitleOf(const LateBound& subject) const
{
    const bool everSaved = Host().activeDocument != nullptr && !subject.Text(L"Path").empty();
    bool hasMacros = false;
    Ignoring([&] { hasMacros = subject.Number(L"HasVBProject") != 0; }); // unknown up to version 11 and to items
    return corvane::TitleOf(Host(), m_version, subject.Text(Host().documentName), everSaved, hasMacros);
}

std::wstring HostDocument::Author() const noexcept
{
    std::wstring author;
    Ignoring([&] {
        const LateBound properties = Active().Object(L"BuiltInDocumentProperties");
        author = properties.Object(L"Item", L"Author").Text(L"Value");
    });
    return author;
}

std::wstring HostDocument::BodyStart() const
{
    constexpr std::size_t kLength = 200;
    if (m_traits == nullptr || m_traits->inspector == nullptr) return {};
    return m_inspector.Object(L"CurrentItem").Text(L"Body").substr(0, kLength);
}

void HostDocument::RequireNotFinal() const
{
    bool isFinal = false;
    Ignoring([&] { isFinal = Active().Number(L"Final") != 0; });
    if (isFinal)
        throw Error{
            kPermissionDenied, L"SharedCode.RequireNotFinal",
            L"The document is marked as final, so it cannot be changed. Please turn the mark off and then try again."};
}

void HostDocument::MarkChanged() const { Active().Put(L"Saved", false); }

SavedDocument HostDocument::SaveToDisk() const
{
    const ProcedureScope scope{L"SharedCode.SaveDocumentToDisk"};
    const LateBound subject = Subject();
    if (Host().activeDocument == nullptr) return SaveTemporaryCopy(subject);
    const DocumentPlace place = PlaceOf(subject);
    switch (PlanDiskSave(place)) {
    case DiskSave::InDocuments:
        return SaveInDocuments(subject);
    case DiskSave::TemporaryCopy:
        return SaveTemporaryCopy(subject);
    case DiskSave::InPlace:
        break;
    }
    SaveInPlace(subject, place.fullName);
    return {place.fullName, std::nullopt};
}

void HostDocument::SaveAgain() const
{
    const ProcedureScope scope{L"SharedCode.SaveDocumentToDisk"};
    if (Host().activeDocument == nullptr) return;
    const DocumentPlace place = PlaceOf(Subject());
    if (!place.readOnly) SaveInPlace(Subject(), place.fullName);
}

SavedDocument HostDocument::SaveInDocuments(const LateBound& document) const
{
    const std::wstring title = TitleOf(document);
    std::wstring path = UnusedDocumentPath(title);
    {
        const HostCall call;
        document.Call(L"SaveAs", path, FormatArgument(Host(), m_version, ExtensionOf(title)));
    }
    // Where a cloud service keeps the folder, the document is known by a web address, and its file comes when it comes.
    if (IsWebAddress(document.Text(L"FullName")) || !FileExists(path)) return SaveTemporaryCopy(document);
    return {std::move(path), std::nullopt};
}

SavedDocument HostDocument::SaveTemporaryCopy(const LateBound& subject) const
{
    const std::wstring extension = ExtensionOf(TitleOf(subject));
    TemporaryFile copy{extension.substr(1)};
    std::wstring path = copy.Path();
    const auto& [member, takesFormat] = Host().copy;
    const HostCall call;
    if (member == nullptr) // SaveAs would make the copy the user's document
        subject.SavePersistedCopy(path);
    else if (takesFormat)
        subject.Call(member, path, FormatArgument(Host(), m_version, extension));
    else
        subject.Call(member, path);
    return {std::move(path), std::move(copy)};
}

void HostDocument::SetInteractive(bool interactive) const noexcept
{
    if (m_traits != nullptr && m_traits->hasInteractive)
        Ignoring([&] { m_application.Put(L"Interactive", interactive); });
}

} // namespace corvane
