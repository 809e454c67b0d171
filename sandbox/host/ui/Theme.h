// The windows' colours, fonts and strokes.
#pragma once

#include <string>

#include "platform/Owners.h"

namespace host
{

using corvane::Selected;
using corvane::UniqueBrush;
using corvane::UniqueFont;
using corvane::UniquePen;
using corvane::WindowContext;

constexpr COLORREF kAccent = RGB(183, 71, 42);
constexpr COLORREF kAccentDark = RGB(146, 53, 30);
constexpr COLORREF kStrip = RGB(243, 242, 241);
constexpr COLORREF kPanel = RGB(255, 255, 255);
constexpr COLORREF kDesk = RGB(230, 230, 230);
constexpr COLORREF kLine = RGB(208, 206, 204);
constexpr COLORREF kHover = RGB(246, 222, 214);
constexpr COLORREF kText = RGB(37, 36, 35);
constexpr COLORREF kSoftText = RGB(96, 94, 92);
constexpr COLORREF kDisabledText = RGB(161, 159, 157);
constexpr COLORREF kLight = RGB(255, 255, 255);
constexpr UINT kCentered = DT_CENTER | DT_VCENTER | DT_SINGLELINE | DT_END_ELLIPSIS;

// The system's message font in the sizes that the window uses, and lengths at the system's resolution.
class Theme
{
public:
    Theme();

    // A length given for 96 dots an inch.
    [[nodiscard]] int Scale(int length) const { return ::MulDiv(length, m_dpi, 96); }

    [[nodiscard]] HFONT Normal() const { return m_normal.Get(); }
    [[nodiscard]] HFONT Bold() const { return m_bold.Get(); }
    [[nodiscard]] HFONT Heading() const { return m_heading.Get(); }
    [[nodiscard]] HFONT SlideTitle() const { return m_slideTitle.Get(); }
    [[nodiscard]] HFONT Thumbnail() const { return m_thumbnail.Get(); }

    [[nodiscard]] SIZE Measure(const std::wstring& text, HFONT font) const;

private:
    int m_dpi;
    UniqueFont m_normal;
    UniqueFont m_bold;
    UniqueFont m_heading;
    UniqueFont m_slideTitle;
    UniqueFont m_thumbnail;
};

void Fill(HDC dc, const RECT& box, COLORREF color);
void Frame(HDC dc, const RECT& box, COLORREF color);
void Write(HDC dc, const RECT& box, const std::wstring& text, HFONT font, COLORREF color, UINT format);

// A drawn picture for the name of an Office image; unknown names get a plain page.
void DrawPicture(HDC dc, const RECT& box, const std::string& name, COLORREF color);

// Registers a window class of this program; again does nothing.
void RegisterWindowClass(const wchar_t* name, WNDPROC procedure);

} // namespace host
