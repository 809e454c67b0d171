#include "shared/HostDocument.h"

#include "platform/Procedure.h"
#include "shared/DocumentNames.h"
#include "shared/HostVersion.h"

namespace corvane
{
namespace
{

// What the object models of the hosts call things.
struct HostTraits
{
    const wchar_t* name;
    const wchar_t* activeDocument;   // null when the host has none
    const wchar_t* classicExtension; // default up to version 11
    const wchar_t* extension;        // default from version 12 on
};

constexpr HostTraits kHosts[] = {
    {kWordName, L"ActiveDocument", L".doc", L".docx"},
    {kExcelName, L"ActiveWorkbook", L".xls", L".xlsx"},
    {kPowerPointName, L"ActivePresentation", L".ppt", L".pptx"},
    {kOutlookName, nullptr, L".msg", L".msg"},
};

// PpSaveAsFileType of a new presentation, by the host's version.
constexpr std::int32_t kSaveAsPresentation = 1;         // .ppt
constexpr std::int32_t kSaveAsOpenXmlPresentation = 24; // .pptx

const HostTraits* TraitsOf(const LateBound& application)
{
    const std::wstring name = application.Text(L"Name");
    for (const HostTraits& host : kHosts) {
        if (name == host.name) return &host;
    }
    return nullptr;
}

int VersionOf(const LateBound& application) { return MajorVersion(application.Text(L"Version")); }

DocumentPlace PlaceOf(const LateBound& document)
{
    DocumentPlace place{document.Text(L"Path"), document.Text(L"FullName"), document.Number(L"ReadOnly") != 0};
    if (!place.path.empty() && !IsWebAddress(place.fullName) && FileExists(place.fullName))
        place.readOnly = place.readOnly || !MayWriteFile(place.fullName);
    return place;
}

std::wstring SaveInDocuments(const LateBound& application, const LateBound& document, const std::wstring& title)
{
    const std::wstring extension = ExtensionOf(title);
    const std::wstring base = AsFileName(title.substr(0, title.size() - extension.size()));
    std::wstring path = UnusedPath(DocumentsFolder(), base, extension.substr(1));
    const bool classic = !HasRibbon(VersionOf(application));
    document.Call(L"SaveAs", path, classic ? kSaveAsPresentation : kSaveAsOpenXmlPresentation);
    return path;
}

SavedDocument SaveTemporaryCopy(const LateBound& document, const std::wstring& title)
{
    TemporaryFile copy{ExtensionOf(title).substr(1)};
    document.Call(L"SaveCopyAs", copy.Path());
    std::wstring path = copy.Path();
    return {std::move(path), std::move(copy)};
}

} // namespace

LateBound ActiveDocument(const LateBound& application)
{
    const HostTraits* host = TraitsOf(application);
    if (host == nullptr || host->activeDocument == nullptr) return {};
    return application.Object(host->activeDocument);
}

bool IsDocumentOpen(const LateBound& application)
{
    bool open = false;
    Ignoring([&] { open = static_cast<bool>(ActiveDocument(application)); });
    return open;
}

bool CanCarryProperties(const LateBound& application) { return IsDocumentOpen(application); }

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

std::wstring DocumentTitle(const LateBound& application, const LateBound& /*outlookInspector*/)
{
    const HostTraits* host = TraitsOf(application);
    if (host == nullptr) return {};
    const wchar_t* extension = HasRibbon(VersionOf(application)) ? host->extension : host->classicExtension;
    return TitleWithExtension(ActiveDocument(application).Text(L"Name"), extension);
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
    const LateBound document = ActiveDocument(application);
    const DocumentPlace place = PlaceOf(document);
    const std::wstring title = DocumentTitle(application, outlookInspector);
    switch (PlanDiskSave(place)) {
    case DiskSave::InDocuments:
        return {SaveInDocuments(application, document, title), std::nullopt};
    case DiskSave::TemporaryCopy:
        return SaveTemporaryCopy(document, title);
    case DiskSave::InPlace:
        break;
    }
    document.Call(L"Save");
    return {place.fullName, std::nullopt};
}

void SetExcelInteractive(const LateBound& application, bool interactive) noexcept
{
    Ignoring([&] {
        if (application.Text(L"Name") == kExcelName) application.Put(L"Interactive", interactive);
    });
}

} // namespace corvane
