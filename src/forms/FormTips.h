// Texts for which a control has no room: an ellipsis in the control, the whole text in a tooltip and for screen
// readers. Lists and the like have the text of their label as their name there.
#pragma once

#include <windows.h>

#include <string>

namespace corvane
{

// The tooltips of one form. Their window belongs to the form's and goes with it.
class FormTips
{
public:
    FormTips() = default;
    explicit FormTips(HWND form);

    // Puts a text into a control of the form, or into the form's title bar. That, labels, buttons, frames and texts
    // that are only shown get a tooltip while they cannot show all of it. What more there is to tell stands in the
    // tooltip, below the text or alone.
    void SetText(HWND control, const std::wstring& text, const std::wstring& more = {}) const;

    // Shows a text in the second part of a status bar, which takes what it needs from the first, but leaves that room
    // for a short text: a longer one here ends in an ellipsis and has a tooltip. Without text there is no second part.
    void SetStatusDetail(HWND statusBar, const std::wstring& text) const;

    // Draws an entry of a combo box of the form. The chosen one has a tooltip while the box cannot show all of it.
    void DrawEntry(const DRAWITEMSTRUCT& entry) const;

    // Lets the title bar's tooltip know of the mouse, which is there at this point of the screen.
    void OnMouseOverFrame(POINT point) const noexcept;

    // Takes the tooltips along after controls were moved.
    void FollowControls() const noexcept;

    // Removes all of them, and the names given to screen readers, before the form goes.
    void TakeAllBack() const noexcept;

private:
    [[nodiscard]] HWND Tooltip() const noexcept;
    void AddTip(HWND control, std::wstring text) const noexcept;
    void TakeBack(HWND control) const noexcept;

    HWND m_form = nullptr;
    mutable HWND m_tooltip = nullptr; // made with the first tip
};

} // namespace corvane
