#include "shared/HostDocument.h"

#include "platform/PersistedFile.h"
#include "platform/Procedure.h"
#include "shared/DocumentNames.h"
#include "shared/HostTraits.h"
#include "shared/HostVersion.h"

namespace corvane
{
namespace
{

constexpr std::int32_t kPermissionDenied = 70;

using SaveType = std::optional<std::int32_t>;

void SaveWordCopy(const LateBound& document, const std::wstring& path, SaveType /*type*/)
{
    // Word has no member for it; SaveAs would make the copy the user's document.
    SavePersistedCopy(document, path);
}

void SaveExcelCopy(const LateBound& workbook, const std::wstring& path, SaveType /*type*/)
{
    workbook.Call(L"SaveCopyAs", path);
}

void SavePowerPointCopy(const LateBound& presentation, const std::wstring& path, SaveType type)
{
    presentation.Call(L"SaveCopyAs", path, type ? Variant{*type} : Variant::Missing());
}

void SaveOutlookCopy(const LateBound& item, const std::wstring& path, SaveType type)
{
    item.Call(L"SaveAs", path, type ? Variant{*type} : Variant::Missing());
}

// What the object models do differently.
struct HostModel
{
    const wchar_t* host;
    const wchar_t* activeDocument; // null for the host whose items are neither files nor carry properties
    const wchar_t* documents;
    const wchar_t* documentName;
    void (*saveCopy)(const LateBound& document, const std::wstring& path, SaveType type);
};

constexpr HostModel kModels[] = {
    {kWordName, L"ActiveDocument", L"Documents", L"Name", &SaveWordCopy},
    {kExcelName, L"ActiveWorkbook", L"Workbooks", L"Name", &SaveExcelCopy},
    {kPowerPointName, L"ActivePresentation", L"Presentations", L"Name", &SavePowerPointCopy},
    {kOutlookName, nullptr, nullptr, L"Subject", &SaveOutlookCopy},
};

// An application as one of the four hosts.
struct Host
{
    const HostTraits& traits;
    const HostModel& model;
    int version;

    [[nodiscard]] SaveType TypeOf(std::wstring_view extension) const { return SaveTypeFor(traits, version, extension); }
};

std::optional<Host> HostOf(const LateBound& application)
{
    const std::wstring name = application.Text(L"Name");
    const HostTraits* traits = FindHost(name);
    for (const HostModel& model : kModels) {
        if (traits != nullptr && name == model.host)
            return Host{*traits, model, MajorVersion(application.Text(L"Version"))};
    }
    return std::nullopt;
}

// The document or item that a save is about; throws Error where there is none.
LateBound SubjectOf(const LateBound& application, const LateBound& outlookInspector, const Host& host)
{
    if (host.model.activeDocument == nullptr) return outlookInspector.Object(L"CurrentItem");
    return application.Object(host.model.activeDocument);
}

Host RequiredHost(const LateBound& application)
{
    if (const auto host = HostOf(application)) return *host;
    throw ObjectNotSet(L"SharedCode.RequiredHost");
}

DocumentPlace PlaceOf(const LateBound& document)
{
    DocumentPlace place{document.Text(L"Path"), document.Text(L"FullName"), document.Number(L"ReadOnly") != 0};
    if (!place.path.empty() && !IsWebAddress(place.fullName) && FileExists(place.fullName))
        place.readOnly = place.readOnly || !MayWriteFile(place.fullName);
    return place;
}

std::wstring TitleOf(const Host& host, const LateBound& subject)
{
    const bool everSaved = host.model.activeDocument != nullptr && !subject.Text(L"Path").empty();
    bool hasMacros = false;
    Ignoring([&] { hasMacros = subject.Number(L"HasVBProject") != 0; }); // unknown up to version 11 and to items
    return TitleOf(host.traits, host.version, subject.Text(host.model.documentName), everSaved, hasMacros);
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

SavedDocument SaveInDocuments(const Host& host, const LateBound& document)
{
    const std::wstring title = TitleOf(host, document);
    std::wstring path = UnusedDocumentPath(title);
    const SaveType type = host.TypeOf(ExtensionOf(title));
    document.Call(L"SaveAs", path, type ? Variant{*type} : Variant::Missing());
    return {std::move(path), std::nullopt};
}

SavedDocument SaveTemporaryCopy(const Host& host, const LateBound& subject)
{
    const std::wstring extension = ExtensionOf(TitleOf(host, subject));
    TemporaryFile copy{extension.substr(1)};
    host.model.saveCopy(subject, copy.Path(), host.TypeOf(extension));
    std::wstring path = copy.Path();
    return {std::move(path), std::move(copy)};
}

} // namespace

LateBound ActiveDocument(const LateBound& application)
{
    const auto host = HostOf(application);
    if (!host || host->model.activeDocument == nullptr) return {};
    return application.Object(host->model.activeDocument);
}

LateBound OutlookInspectorOf(const LateBound& application)
{
    if (application.Text(L"Name") != kOutlookName) return {};
    return application.Object(L"ActiveInspector");
}

bool IsDocumentOpen(const LateBound& application)
{
    bool open = false;
    Ignoring([&] { open = ActiveDocument(application) || OutlookInspectorOf(application); });
    return open;
}

bool CanCarryProperties(const LateBound& application)
{
    bool carries = false;
    Ignoring([&] { carries = static_cast<bool>(ActiveDocument(application)); });
    return carries;
}

std::wstring ActiveDocumentName(const LateBound& application)
{
    std::wstring name;
    Ignoring([&] { name = ActiveDocument(application).Text(L"FullName"); });
    return name;
}

bool HasOpenDocument(const LateBound& application, const std::wstring& fullName)
{
    bool found = false;
    Ignoring([&] {
        const wchar_t* const collection = RequiredHost(application).model.documents;
        if (collection == nullptr) return;
        const LateBound documents = application.Object(collection);
        for (std::int32_t left = documents.Number(L"Count"); left > 0 && !found; --left)
            found = documents.Object(L"Item", left).Text(L"FullName") == fullName;
    });
    return found;
}

void RequireNotFinal(const LateBound& application)
{
    bool isFinal = false;
    Ignoring([&] { isFinal = ActiveDocument(application).Number(L"Final") != 0; });
    if (isFinal)
        throw Error{
            kPermissionDenied, L"SharedCode.RequireNotFinal",
            L"The document is marked as final, so it cannot be changed. Please turn the mark off and then try again."};
}

bool IsEditing(const LateBound& application)
{
    if (application.Text(L"Name") != kExcelName) return false;
    bool editing = true; // a host that refuses the question is busy editing
    Ignoring([&] {
        constexpr std::int32_t kButtonType = 1;
        constexpr std::int32_t kFileNewId = 18;
        const LateBound bar = application.Object(L"CommandBars").Object(L"Item", L"Worksheet Menu Bar");
        const LateBound control =
            bar.Object(L"FindControl", kButtonType, kFileNewId, Variant::Missing(), Variant::Missing(), true);
        editing = control && control.Number(L"Enabled") == 0;
    });
    return editing;
}

std::wstring DocumentTitle(const LateBound& application, const LateBound& outlookInspector)
{
    const Host host = RequiredHost(application);
    return TitleOf(host, SubjectOf(application, outlookInspector, host));
}

std::wstring DocumentAuthor(const LateBound& application)
{
    std::wstring author;
    Ignoring([&] {
        const LateBound properties = ActiveDocument(application).Object(L"BuiltInDocumentProperties");
        author = properties.Object(L"Item", L"Author").Text(L"Value");
    });
    return author;
}

std::wstring ItemBodyStart(const LateBound& application, const LateBound& outlookInspector)
{
    constexpr std::size_t kLength = 200;
    if (application.Text(L"Name") != kOutlookName) return {};
    return outlookInspector.Object(L"CurrentItem").Text(L"Body").substr(0, kLength);
}

void MarkDocumentChanged(const LateBound& application) { ActiveDocument(application).Put(L"Saved", false); }

SavedDocument SaveDocumentToDisk(const LateBound& application, const LateBound& outlookInspector)
{
    const ProcedureScope scope{L"SharedCode.SaveDocumentToDisk"};
    const Host host = RequiredHost(application);
    const LateBound subject = SubjectOf(application, outlookInspector, host);
    if (host.model.activeDocument == nullptr) return SaveTemporaryCopy(host, subject);
    const DocumentPlace place = PlaceOf(subject);
    switch (PlanDiskSave(place)) {
    case DiskSave::InDocuments:
        return SaveInDocuments(host, subject);
    case DiskSave::TemporaryCopy:
        return SaveTemporaryCopy(host, subject);
    case DiskSave::InPlace:
        break;
    }
    const auto before = LastWriteTime(place.fullName);
    subject.Call(L"Save");
    // What else runs in the host may take a save back without an error.
    if (subject.Number(L"Saved") == 0 && LastWriteTime(place.fullName) == before)
        throw Error{kPermissionDenied, L"SharedCode.SaveDocumentToDisk",
                    L"The document was not written to disk. Please save it and then try again."};
    return {place.fullName, std::nullopt};
}

void SetExcelInteractive(const LateBound& application, bool interactive) noexcept
{
    Ignoring([&] {
        if (application.Text(L"Name") == kExcelName) application.Put(L"Interactive", interactive);
    });
}

} // namespace corvane
