#include "documents/Document.h"

#include <algorithm>
#include <span>

#include "base/Text.h"
#include "documents/CompoundFile.h"
#include "documents/Refusal.h"
#include "platform/Procedure.h"

namespace host
{
namespace
{

constexpr char kFinalMark[] = "_MarkAsFinal";

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

constexpr BuiltInProperty kMailFields[] = {{"Subject", nullptr}, {"Body", nullptr}, {"To", nullptr}, {"CC", nullptr}};

std::span<const BuiltInProperty> BuiltInOf(HostKind host)
{
    return host == HostKind::Outlook ? std::span<const BuiltInProperty>{kMailFields} : kBuiltIn;
}

} // namespace

Document::Document(HostVersion host) : m_host{host}
{
    for (const BuiltInProperty& row : BuiltInOf(host.kind))
        m_contents.builtIn.push_back({row.name, PropertyType::Text, {}});
}

Document Document::New(HostVersion host, const std::wstring& name, const std::string& author)
{
    Document document{host};
    document.m_name = name;
    document.m_fullName = name;
    const std::string title = host.kind == HostKind::PowerPoint ? "Click to add title" : Narrow(name);
    if (host.kind != HostKind::Outlook) document.ReadPackage(OfficePackage::New(host.kind, title, author).Write());
    return document;
}

Document Document::Open(HostVersion host, const std::wstring& path, bool readOnly)
{
    Document document{host};
    const std::wstring full = FullPath(path);
    std::string bytes;
    if (const auto failure = corvane::Catch([&] { bytes = ReadWholeFile(full); }))
        Refuse(host.kind, RefusalOf(*failure), full);
    const bool storage = IsStorage(bytes);
    try {
        if (storage)
            document.Take(host.kind == HostKind::Outlook ? ReadMessageFile(bytes) : ReadCompoundFile(bytes));
        else
            document.ReadPackage(bytes);
    } catch (const std::exception& error) {
        Refuse(host.kind, Refusal::NotRead, full + L": " + ReasonOf(error));
    }
    document.m_format = &FormatOfFile(host.kind, full, storage, host.major);
    document.m_readOnly = readOnly || IsWriteProtected(full);
    document.TakeFile(full);
    return document;
}

void Document::Save(SaveFault fault)
{
    if (m_readOnly) Refuse(m_host.kind, Refusal::ReadOnly, m_fullName);
    CheckEditable();
    if (fault == SaveFault::Refused || (m_saved && FactsOf(m_host.kind).savesOnlyChanges)) return;
    m_hold = UniqueFile{};
    Write(m_file, *m_format, fault);
    if (fault != SaveFault::Growing) m_hold = HoldOpenDocument(m_file, m_readOnly); // its completion still has to write
    m_saved = true;
}

void Document::SaveAs(const std::wstring& path, const SaveFormat& format, SaveFault fault)
{
    const std::wstring full = CheckedPath(path, format);
    m_hold = UniqueFile{};
    Write(full, format, fault);
    m_format = &format;
    m_readOnly = false;
    m_saved = true;
    TakeFile(full);
    if (fault == SaveFault::Growing) m_hold = UniqueFile{};
}

void Document::SaveCopyAs(const std::wstring& path, const SaveFormat& format, SaveFault fault)
{
    Write(CheckedPath(path, format), format, fault);
}

void Document::CopyTo(const std::wstring& path, const SaveFormat& format, SaveFault fault)
{
    if (!IsUsableName(path)) Refuse(m_host.kind, Refusal::WrongName, path);
    Write(FullPath(path), format, fault);
}

// Leaves the document's own file held as it was when the other cannot be written.
void Document::Write(const std::wstring& path, const SaveFormat& format, SaveFault fault)
{
    m_spoil = UniqueFile{};
    const std::string bytes = Bytes(format);
    const auto failure = corvane::Catch([&] { m_spoil = WriteDocumentFile(path, bytes, fault); });
    if (!failure) return;
    if (HasFile() && !m_hold) m_hold = HoldOpenDocument(m_file, m_readOnly);
    Refuse(m_host.kind, RefusalOf(*failure), path);
}

std::wstring Document::CheckedPath(const std::wstring& path, const SaveFormat& format) const
{
    if (!IsUsableName(path)) Refuse(m_host.kind, Refusal::WrongName, path);
    const std::wstring extension = Extension(path);
    const bool other = extension != format.extension && IsKnownExtension(m_host.kind, extension);
    if (other && m_host.kind == HostKind::Excel && EditionOf(m_host.major) >= Edition::OfficeButton)
        Refuse(m_host.kind, Refusal::WrongExtension, path);
    std::wstring full = FullPath(extension.empty() ? path + L"." + format.extension : path);
    if (full.size() > FactsOf(m_host.kind).pathLimit) Refuse(m_host.kind, Refusal::WrongName, full);
    return full;
}

std::wstring Document::Name() const
{
    const std::string subject = m_host.kind == HostKind::Outlook ? m_contents.BuiltIn("Subject") : std::string{};
    return subject.empty() ? m_name : Widen(subject);
}

std::wstring Document::Title() const
{
    const std::string slide = m_package ? m_package->SlideTitle() : std::string{};
    return Widen(slide.empty() ? m_contents.builtIn.front().value : slide);
}

void Document::ShowAs(const std::wstring& address)
{
    m_fullName = address;
    m_name = FileName(address);
}

bool Document::IsFinal() const
{
    const auto found = std::ranges::find(m_contents.custom, kFinalMark, &CustomProperty::name);
    return EditionOf(m_host.major) >= Edition::OfficeButton && found != m_contents.custom.end() &&
           found->value == "true";
}

void Document::SetFinal(bool final)
{
    std::erase_if(m_contents.custom, [](const CustomProperty& property) { return property.name == kFinalMark; });
    if (final) m_contents.custom.push_back({kFinalMark, PropertyType::Boolean, "true"});
}

void Document::CheckEditable() const
{
    if (IsFinal()) Refuse(m_host.kind, Refusal::Final, m_name);
}

std::string Document::Bytes(const SaveFormat& format) const
{
    if (format.container == Container::Compound) return WriteCompoundFile(m_host.kind, format.isTemplate, m_contents);
    if (format.container == Container::Message) return WriteMessageFile(format.number == kUnicodeMessage, m_contents);
    OfficePackage package = m_package ? *m_package : OfficePackage::New(m_host.kind, m_contents.BuiltIn("Title"), {});
    for (const BuiltInProperty& row : BuiltInOf(m_host.kind))
        if (row.coreElement != nullptr) package.SetCoreProperty(row.coreElement, m_contents.BuiltIn(row.name));
    package.SetCustomProperties(m_contents.custom);
    package.SetMainType(format.type);
    return package.Write();
}

void Document::ReadPackage(const std::string& bytes)
{
    m_package = OfficePackage::Parse(bytes);
    DocumentContents read{{}, m_package->CustomProperties()};
    for (const BuiltInProperty& row : BuiltInOf(m_host.kind))
        if (row.coreElement != nullptr)
            read.builtIn.push_back({row.name, PropertyType::Text, m_package->CoreProperty(row.coreElement)});
    Take(read);
}

void Document::Take(const DocumentContents& read)
{
    m_contents.custom = read.custom;
    for (CustomProperty& own : m_contents.builtIn)
        own.value = read.BuiltIn(own.name);
}

void Document::TakeFile(const std::wstring& path)
{
    m_file = path;
    m_fullName = path;
    m_name = FileName(path);
    m_hold = HoldOpenDocument(path, m_readOnly);
}

} // namespace host
