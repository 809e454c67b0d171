// A document and its file.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "documents/Files.h"
#include "documents/SaveFormat.h"
#include "package/CustomProperty.h"
#include "package/OfficePackage.h"

namespace host
{

// Which program a document belongs to.
struct HostVersion
{
    HostKind kind = HostKind::PowerPoint;
    int major = 16;
};

// A document's contents and its file. It knows nothing of windows and events. Where it is said to throw, it throws
// Error as its host reports.
class Document
{
public:
    // A never-saved document: its name has no extension and its path is empty.
    static Document New(HostVersion host, const std::wstring& name, const std::string& author);

    // Throws when the file is missing or none of the host's.
    static Document Open(HostVersion host, const std::wstring& path, bool readOnly);

    // Writes the document to its own file. Throws when it is read-only or final, or the file cannot be written.
    void Save(SaveFault fault);

    // Writes the document and makes the new file its own. A name without an extension gets the format's.
    void SaveAs(const std::wstring& path, const SaveFormat& format, SaveFault fault);
    void SaveCopyAs(const std::wstring& path, const SaveFormat& format, SaveFault fault);
    void CopyTo(const std::wstring& path, const SaveFormat& format, SaveFault fault); // under just this name

    [[nodiscard]] std::wstring Name() const; // of a mail item: its subject
    [[nodiscard]] const std::wstring& FullName() const { return m_fullName; }
    [[nodiscard]] bool HasFile() const { return !m_file.empty(); }
    [[nodiscard]] const std::wstring& FilePath() const { return m_file; }
    [[nodiscard]] std::wstring Folder() const { return HasFile() ? FolderOf(m_fullName) : std::wstring{}; }
    [[nodiscard]] bool IsReadOnly() const { return m_readOnly; }
    [[nodiscard]] bool IsSaved() const { return m_saved; }
    void SetSaved(bool saved) { m_saved = saved; }
    [[nodiscard]] std::wstring Title() const; // of its first slide; else of the document
    [[nodiscard]] const SaveFormat* Format() const { return m_format; }

    // From now on the document is known by this web address; its file stays where it is until it is saved elsewhere.
    void ShowAs(const std::wstring& address);

    // Marked as final: kept in the file, as a custom property. Throws for a version that knows no such mark.
    [[nodiscard]] bool IsFinal() const;
    void SetFinal(bool final);
    void CheckEditable() const; // throws when it is final

    // Built-in properties in the order of Office's numbers, from 1; a mail item's are its fields.
    [[nodiscard]] std::vector<CustomProperty>& BuiltIn() { return m_contents.builtIn; }
    [[nodiscard]] std::vector<CustomProperty>& Custom() { return m_contents.custom; }

private:
    explicit Document(HostVersion host);

    void Write(const std::wstring& path, const SaveFormat& format, SaveFault fault);
    [[nodiscard]] std::wstring CheckedPath(const std::wstring& path, const SaveFormat& format) const;
    [[nodiscard]] std::string Bytes(const SaveFormat& format) const;
    void ReadPackage(const std::string& bytes);
    void Take(const DocumentContents& read);
    void TakeFile(const std::wstring& path);

    HostVersion m_host;
    std::wstring m_name;
    std::wstring m_fullName;
    std::wstring m_file; // empty when never saved
    bool m_readOnly = false;
    bool m_saved = true;
    const SaveFormat* m_format = nullptr;
    std::optional<OfficePackage> m_package; // none for other formats
    DocumentContents m_contents;
    UniqueFile m_hold;  // on its own file
    UniqueFile m_spoil; // on what it wrote last
};

} // namespace host
