// The document that a save command is for: whether there is one, what it is called, and how it gets to disk.
#pragma once

#include "platform/Files.h"
#include "platform/LateBound.h"

#include <optional>
#include <string>

namespace corvane
{

struct HostTraits;

// A document as it lies on disk for the upload; a copy made only for it is deleted with this object.
struct SavedDocument
{
    std::wstring path;
    std::optional<TemporaryFile> copy;
};

// Whether the host is editing a cell or an object (Excel), so that its documents cannot be touched; a host that
// refuses the question is taken to be. Throws only when the host does not tell its name.
[[nodiscard]] bool IsEditing(const LateBound& application);

// The document that is active in its host when a command starts, in whichever object model the host has; made once for
// each command. Members ask the host each time; they throw its error, and number 91 where it is none of the four.
class HostDocument
{
public:
    // No document of no host.
    HostDocument() = default;
    // The application's active document, in Outlook the item of the active inspector. A host that does not tell its
    // name or version counts as none of the four.
    explicit HostDocument(LateBound application) noexcept;

    [[nodiscard]] const LateBound& Application() const noexcept { return m_application; }
    // What sets the host apart from the others; null for none of the four.
    [[nodiscard]] const HostTraits* Traits() const noexcept { return m_traits; }
    [[nodiscard]] int Version() const noexcept { return m_version; }

    // Whether a document (in Outlook an item) is open, and whether the active one can carry custom properties.
    [[nodiscard]] bool IsOpen() const noexcept;
    [[nodiscard]] bool CanCarryProperties() const noexcept;

    // The host's active document, which may be another one by then. Where there is none, Excel's is empty and
    // PowerPoint and Word raise their error; empty for hosts that keep none (Outlook).
    [[nodiscard]] LateBound Active() const;

    // Documents are told apart by their full names. Whether the active one is still this, whether this is still open
    // (false where the host keeps no documents), and the step by which the active one becomes this.
    [[nodiscard]] bool IsActive() const noexcept { return ActiveName() == m_fullName; }
    [[nodiscard]] bool IsStillOpen() const noexcept;
    void FollowActive() noexcept { m_fullName = ActiveName(); }

    // The document's name, or the subject of Outlook's item, with the default extension of the host's version when it
    // has none.
    [[nodiscard]] std::wstring Title() const;
    // The document's author property; empty when it has none.
    [[nodiscard]] std::wstring Author() const noexcept;
    // The first 200 characters of the body of Outlook's item; empty in other hosts.
    [[nodiscard]] std::wstring BodyStart() const;

    // Throws an Error that tells the user what to do when the active document is marked as final.
    void RequireNotFinal() const;
    // Makes the host treat the active document as changed, so that the next save writes it.
    void MarkChanged() const;
    // Saves the document to disk: where it is, in its own format; in the Documents folder when it was never saved; as a
    // temporary copy when it cannot be written where it is or is no file (a web address, an item of Outlook). Throws
    // also when the host left an old file as it was.
    [[nodiscard]] SavedDocument SaveToDisk() const;
    // Saves a document that has its file once more, where it is, also at a web address. One that is only read, and an
    // item of Outlook, stays as it is. Throws like SaveToDisk.
    void SaveAgain() const;
    // Lets the user work in Excel again, or keeps the user out; nothing in other hosts. Errors are ignored.
    void SetInteractive(bool interactive) const noexcept;

private:
    [[nodiscard]] std::wstring ActiveName() const noexcept;
    [[nodiscard]] const HostTraits& Host() const; // number 91 where there is none
    [[nodiscard]] LateBound Subject() const;      // what a save is about
    [[nodiscard]] std::wstring TitleOf(const LateBound& subject) const;
    [[nodiscard]] SavedDocument SaveInDocuments(const LateBound& document) const;
    [[nodiscard]] SavedDocument SaveTemporaryCopy(const LateBound& subject) const;

    LateBound m_application;
    LateBound m_inspector; // where the host is Outlook
    const HostTraits* m_traits = nullptr;
    int m_version = 0;
    std::wstring m_fullName; // empty where documents have none
};

} // namespace corvane
