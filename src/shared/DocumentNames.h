// Names of documents: titles, extensions, upload names, and where an unsaved document may be kept.
#pragma once

#include <string>
#include <string_view>

namespace corvane
{

// The extension of a path, with its point (".pptx"); empty when its last part has none.
[[nodiscard]] std::wstring ExtensionOf(std::wstring_view path);

// A document's name with the default extension put behind it when it has none.
[[nodiscard]] std::wstring TitleWithExtension(std::wstring_view name, std::wstring_view defaultExtension);

// The name under which a saved file is uploaded: the title, with the file's extension (the text after the last point of
// its path) put behind it unless the title already holds it, in any letter case.
[[nodiscard]] std::wstring UploadNameOf(std::wstring_view title, std::wstring_view savedPath);

// True for a full name that is a web address ("https://...").
[[nodiscard]] bool IsWebAddress(std::wstring_view fullName);

// A title as a file name without extension: without blanks around it, what a file name cannot hold replaced by "_",
// names of devices and empty ones put behind "_", cut to 120 characters.
[[nodiscard]] std::wstring AsFileName(std::wstring_view title);

// How a document gets to disk before its upload.
enum class DiskSave
{
    InPlace,      // where it is, in its own format
    InDocuments,  // under its title in the user's Documents folder: it was never saved
    TemporaryCopy // as a copy that lives until the upload is over: it cannot be written where it is
};

struct DocumentPlace
{
    std::wstring path;     // the folder; empty for a document never saved
    std::wstring fullName; // with the folder; may be a web address
    bool readOnly = false; // opened read-only, or a file that may not be written
};

// How the document at a place gets to disk.
[[nodiscard]] DiskSave PlanDiskSave(const DocumentPlace& place);

} // namespace corvane
