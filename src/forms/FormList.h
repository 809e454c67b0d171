// Lists of the forms: what fills and asks them, and how their entries are drawn.
#pragma once

#include <windows.h>

#include <cstdint>
#include <functional>
#include <optional>
#include <string>

namespace corvane
{

struct ListMessages;

// A list box or the list of a combo box, by its window, which stays its form's. Entries are told by their positions,
// the first of them 0.
class FormList
{
public:
    explicit FormList(HWND control) noexcept;

    void Clear() const noexcept;

    // Appends an entry, with a number that it carries; the list can then show all of it: a combo box drops a list as
    // wide as its longest entry, a list box scrolls sideways. Returns the entry's position.
    int Add(const std::wstring& text, std::int32_t number = 0) const noexcept;

    // The text and the number of an entry that the list has.
    [[nodiscard]] std::wstring Text(int position) const;
    [[nodiscard]] std::int32_t Number(int position) const noexcept;

    [[nodiscard]] int Count() const noexcept;

    // The first entry of a text that is wanted; nothing when there is none.
    [[nodiscard]] std::optional<int> Find(const std::function<bool(const std::wstring& text)>& isWanted) const;

    // The selected entry; nothing when there is none.
    [[nodiscard]] std::optional<int> Selected() const noexcept;

    // Selects an entry; false when the list does not have it.
    bool Select(int position) const noexcept;

private:
    LRESULT Send(UINT message, int position = 0, LPARAM data = 0) const noexcept;
    void WidenFor(const std::wstring& text) const noexcept;

    HWND m_control;
    const ListMessages& m_messages;
};

// Makes entries that the form draws (CBS_OWNERDRAWFIXED) as high as their font needs.
void FitEntryHeights(HWND form) noexcept;

// Draws such an entry, with an ellipsis at its end where it is too long. Returns whether it is.
bool DrawListEntry(const DRAWITEMSTRUCT& entry);

} // namespace corvane
