// The document that is active in the host: whether there is one, what it is called, and how it gets to disk.
#pragma once

#include "platform/Files.h"
#include "platform/LateBound.h"

#include <optional>
#include <string>

namespace corvane
{

// The host's active document. Where there is none, Excel's is empty and PowerPoint and Word raise their error; empty
// for hosts that keep none (Outlook).
[[nodiscard]] LateBound ActiveDocument(const LateBound& application);

// The inspector that shows Outlook's open item; empty when none is open and in other hosts.
[[nodiscard]] LateBound OutlookInspectorOf(const LateBound& application);

// Whether a document (in Outlook an item) is open, and whether the active one can carry custom properties.
[[nodiscard]] bool IsDocumentOpen(const LateBound& application);
[[nodiscard]] bool CanCarryProperties(const LateBound& application);

// What tells the active document from the others that are open: its full name, as it is now. Empty where it tells none.
[[nodiscard]] std::wstring ActiveDocumentName(const LateBound& application);

// Whether an open document has that full name. False where the host keeps no documents.
[[nodiscard]] bool HasOpenDocument(const LateBound& application, const std::wstring& fullName);

// Throws an Error that tells the user what to do when the active document is marked as final.
void RequireNotFinal(const LateBound& application);

// Whether the host is editing a cell or an object (Excel), so that its documents cannot be touched; a host that
// refuses the question is taken to be. Throws only when the host does not tell its name.
[[nodiscard]] bool IsEditing(const LateBound& application);

// The document's name, or the subject of Outlook's item, with the default extension of the host's version when it has
// none. Throws the host's error.
[[nodiscard]] std::wstring DocumentTitle(const LateBound& application, const LateBound& outlookInspector);

// The document's author property; empty when it has none.
[[nodiscard]] std::wstring DocumentAuthor(const LateBound& application);

// The first 200 characters of the body of Outlook's open item; empty in other hosts. Throws the host's error.
[[nodiscard]] std::wstring ItemBodyStart(const LateBound& application, const LateBound& outlookInspector);

// Makes the host treat the document as changed, so that the next save writes it. Throws the host's error.
void MarkDocumentChanged(const LateBound& application);

// A document as it lies on disk for the upload; a copy made only for it is deleted with this object.
struct SavedDocument
{
    std::wstring path;
    std::optional<TemporaryFile> copy;
};

// Saves the document to disk: where it is, in its own format; in the Documents folder when it was never saved; as a
// temporary copy when it cannot be written where it is or is no file (a web address, an item of Outlook). Throws the
// host's error, and one of its own when the host left an old file as it was.
[[nodiscard]] SavedDocument SaveDocumentToDisk(const LateBound& application, const LateBound& outlookInspector);

// Lets the user work in Excel again, or keeps the user out; nothing in other hosts. Errors are ignored.
void SetExcelInteractive(const LateBound& application, bool interactive) noexcept;

} // namespace corvane
