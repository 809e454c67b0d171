#pragma once

#include <optional>
#include <span>
#include <string>
#include <vector>

#include "documents/Files.h"
#include "package/OfficePackage.h"

namespace host
{

// A format that the host can save in, by the number of PowerPoint's PpSaveAsFileType.
struct SaveFormat
{
    long type;
    const wchar_t* extension;
    bool compound;
    PackageKind kind;
};

constexpr long kSaveAsDefault = 11;

// The format of this number; the default is a compound file before version 12 and a package from then on.
// Throws AutomationError when the host does not write this format.
[[nodiscard]] const SaveFormat& FormatOfType(long type, int hostVersion);

// A presentation's contents and its file. It knows nothing of windows and events.
class Document
{
public:
    // A never-saved presentation: its name has no extension and its path is empty.
    static Document New(const std::wstring& name, const std::string& author);

    // Throws AutomationError when the file is missing or no presentation.
    static Document Open(const std::wstring& path, bool readOnly);

    // Writes the document to its own file. Throws AutomationError when it is read-only or the file cannot be written.
    void Save(SaveFault fault);

    // Writes the document and makes the new file its own. A name without an extension gets the format's.
    void SaveAs(const std::wstring& path, const SaveFormat& format, SaveFault fault);
    void SaveCopyAs(const std::wstring& path, const SaveFormat& format, SaveFault fault) const;

    [[nodiscard]] const std::wstring& Name() const { return m_name; }
    [[nodiscard]] const std::wstring& FullName() const { return m_fullName; }
    [[nodiscard]] bool HasFile() const { return m_hasFile; }
    [[nodiscard]] std::wstring Folder() const { return m_hasFile ? FolderOf(m_fullName) : std::wstring{}; }
    [[nodiscard]] bool IsReadOnly() const { return m_readOnly; }
    [[nodiscard]] bool IsSaved() const { return m_saved; }
    void SetSaved(bool saved) { m_saved = saved; }
    [[nodiscard]] std::wstring SlideTitle() const;
    [[nodiscard]] const SaveFormat* Format() const { return m_format; }

    // Built-in properties in the order of Office's numbers, from 1.
    [[nodiscard]] std::vector<CustomProperty>& BuiltIn() { return m_builtIn; }
    [[nodiscard]] std::vector<CustomProperty>& Custom() { return m_custom; }

private:
    Document();

    [[nodiscard]] std::string Bytes(const SaveFormat& format) const;
    void ReadPackage(const std::string& bytes);
    void ReadCompound(const std::string& bytes);
    void TakeFile(const std::wstring& path);

    std::wstring m_name;
    std::wstring m_fullName;
    bool m_hasFile = false;
    bool m_readOnly = false;
    bool m_saved = true;
    const SaveFormat* m_format = nullptr;
    std::optional<OfficePackage> m_package; // none for a compound file
    std::vector<CustomProperty> m_builtIn;
    std::vector<CustomProperty> m_custom;
    FileHandle m_hold;
};

} // namespace host
