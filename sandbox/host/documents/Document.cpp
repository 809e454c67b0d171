#include "documents/Document.h"

#include <algorithm>

#include "automation/AutomationError.h"
#include "automation/Text.h"
#include "documents/CompoundFile.h"

namespace host
{
namespace
{

constexpr int kPackageVersion = 12;
constexpr long kCompoundType = 1;
constexpr long kPackageType = 24;

constexpr SaveFormat kFormats[] = {
    {kCompoundType, L"ppt", true, PackageKind::Presentation},
    {5, L"pot", true, PackageKind::Presentation},
    {7, L"pps", true, PackageKind::Presentation},
    {8, L"ppa", true, PackageKind::Presentation},
    {kPackageType, L"pptx", false, PackageKind::Presentation},
    {25, L"pptm", false, PackageKind::MacroPresentation},
    {26, L"potx", false, PackageKind::Template},
    {27, L"potm", false, PackageKind::MacroTemplate},
    {28, L"ppsx", false, PackageKind::Show},
    {29, L"ppsm", false, PackageKind::MacroShow},
    {30, L"ppam", false, PackageKind::AddIn},
};

struct BuiltInProperty
{
    const char* name;
    const char* coreElement; // null: not kept in the core properties
};

constexpr BuiltInProperty kBuiltIn[] = {
    {"Title", "dc:title"},
    {"Subject", "dc:subject"},
    {"Author", "dc:creator"},
    {"Keywords", "cp:keywords"},
    {"Comments", "dc:description"},
    {"Template", nullptr},
    {"Last Author", "cp:lastModifiedBy"},
};

const SaveFormat& FormatOfFile(const std::wstring& path, bool compound)
{
    const std::wstring extension = Extension(path);
    const auto found = std::ranges::find_if(
        kFormats, [&](const SaveFormat& f) { return extension == f.extension && f.compound == compound; });
    return found != std::end(kFormats) ? *found : FormatOfType(compound ? kCompoundType : kPackageType, 0);
}

std::wstring WithExtension(const std::wstring& path, const SaveFormat& format)
{
    return FullPath(Extension(path).empty() ? path + L"." + format.extension : path);
}

bool IsWriteProtected(const std::wstring& path)
{
    const DWORD attributes = ::GetFileAttributesW(path.c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_READONLY) != 0;
}

} // namespace

const SaveFormat& FormatOfType(long type, int hostVersion)
{
    if (type == kSaveAsDefault) type = hostVersion < kPackageVersion ? kCompoundType : kPackageType;
    const auto found = std::ranges::find(kFormats, type, &SaveFormat::type);
    if (found == std::end(kFormats))
        throw AutomationError{E_INVALIDARG, L"This host does not save in format " + std::to_wstring(type) + L"."};
    return *found;
}

Document::Document()
{
    for (const BuiltInProperty& row : kBuiltIn)
        m_builtIn.push_back({row.name, PropertyType::Text, {}});
}

Document Document::New(const std::wstring& name, const std::string& author)
{
    Document document;
    document.m_name = name;
    document.m_fullName = name;
    document.m_package = OfficePackage::New("Click to add title", author);
    document.ReadPackage(document.m_package->Write());
    return document;
}

Document Document::Open(const std::wstring& path, bool readOnly)
{
    Document document;
    const std::wstring full = FullPath(path);
    const std::string bytes = ReadWholeFile(full);
    const bool compound = IsCompoundFile(bytes);
    try {
        compound ? document.ReadCompound(bytes) : document.ReadPackage(bytes);
    } catch (const std::runtime_error& error) {
        throw AutomationError{E_FAIL, L"PowerPoint cannot read " + full + L": " + Widen(error.what())};
    }
    document.m_format = &FormatOfFile(full, compound);
    document.m_readOnly = readOnly || IsWriteProtected(full);
    document.TakeFile(full);
    return document;
}

void Document::Save(SaveFault fault)
{
    if (m_readOnly) throw AutomationError{E_FAIL, L"PowerPoint cannot save " + m_fullName + L": it is read-only."};
    SaveAs(m_fullName, *m_format, fault);
}

void Document::SaveAs(const std::wstring& path, const SaveFormat& format, SaveFault fault)
{
    const std::wstring full = WithExtension(path, format);
    const std::string bytes = Bytes(format);
    m_hold = FileHandle{};
    try {
        WriteDocumentFile(full, bytes, fault);
    } catch (const AutomationError&) {
        if (m_hasFile) m_hold = HoldOpenDocument(m_fullName, m_readOnly);
        throw;
    }
    m_format = &format;
    m_readOnly = false;
    m_saved = true;
    TakeFile(full);
    if (fault == SaveFault::Growing) m_hold = FileHandle{}; // its completion still has to write
}

void Document::SaveCopyAs(const std::wstring& path, const SaveFormat& format, SaveFault fault) const
{
    WriteDocumentFile(WithExtension(path, format), Bytes(format), fault);
}

std::wstring Document::SlideTitle() const
{
    return Widen(m_package ? m_package->SlideTitle() : m_builtIn.front().value);
}

std::string Document::Bytes(const SaveFormat& format) const
{
    if (format.compound) return WriteCompoundFile({m_builtIn, m_custom});
    OfficePackage package = m_package ? *m_package : OfficePackage::New(m_builtIn.front().value, {});
    for (std::size_t i = 0; i < m_builtIn.size(); ++i)
        if (kBuiltIn[i].coreElement) package.SetCoreProperty(kBuiltIn[i].coreElement, m_builtIn[i].value);
    package.SetCustomProperties(m_custom);
    package.SetKind(format.kind);
    return package.Write();
}

void Document::ReadPackage(const std::string& bytes)
{
    m_package = OfficePackage::Parse(bytes);
    m_custom = m_package->CustomProperties();
    for (std::size_t i = 0; i < m_builtIn.size(); ++i)
        if (kBuiltIn[i].coreElement) m_builtIn[i].value = m_package->CoreProperty(kBuiltIn[i].coreElement);
}

void Document::ReadCompound(const std::string& bytes)
{
    CompoundContents contents = ReadCompoundFile(bytes);
    m_custom = std::move(contents.custom);
    for (const CustomProperty& property : contents.summary)
        for (CustomProperty& own : m_builtIn)
            if (own.name == property.name) own.value = property.value;
}

void Document::TakeFile(const std::wstring& path)
{
    m_fullName = path;
    m_name = FileName(path);
    m_hasFile = true;
    m_hold = HoldOpenDocument(path, m_readOnly);
}

} // namespace host
