#include "ui/Theme.h"

#include <algorithm>

namespace host
{
namespace
{

constexpr WORD kIconId = 1;

UniqueFont MakeFont(LOGFONTW shape, int percent, LONG weight)
{
    shape.lfHeight = ::MulDiv(shape.lfHeight, percent, 100);
    shape.lfWeight = weight;
    shape.lfQuality = CLEARTYPE_QUALITY;
    return UniqueFont{::CreateFontIndirectW(&shape)};
}

LOGFONTW MessageFont()
{
    NONCLIENTMETRICSW metrics{};
    metrics.cbSize = sizeof metrics;
    ::SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0);
    return metrics.lfMessageFont;
}

void DrawPage(HDC dc, int x, int y, int width, int height)
{
    ::Rectangle(dc, x, y, x + width, y + height);
    for (int line = 1; line <= 3; ++line) {
        const int at = y + line * height / 4;
        ::MoveToEx(dc, x + width / 5, at, nullptr);
        ::LineTo(dc, x + width - width / 5, at);
    }
}

void DrawFolder(HDC dc, const RECT& box)
{
    const int w = box.right - box.left;
    const int h = box.bottom - box.top;
    const POINT outline[] = {{box.left, box.top + h / 5},         {box.left + w * 2 / 5, box.top + h / 5},
                             {box.left + w / 2, box.top + h / 3}, {box.right - 1, box.top + h / 3},
                             {box.right - 1, box.bottom - h / 8}, {box.left, box.bottom - h / 8}};
    ::Polygon(dc, outline, static_cast<int>(std::size(outline)));
}

void DrawDisk(HDC dc, const RECT& box)
{
    const int w = box.right - box.left;
    const int h = box.bottom - box.top;
    ::Rectangle(dc, box.left + w / 8, box.top + h / 8, box.right - w / 8, box.bottom - h / 8);
    ::Rectangle(dc, box.left + w / 3, box.top + h / 8, box.right - w / 3, box.top + h * 3 / 8);
    ::Rectangle(dc, box.left + w / 4, box.top + h / 2, box.right - w / 4, box.bottom - h / 8);
}

void DrawLetter(HDC dc, const RECT& box, const wchar_t* letter, COLORREF color)
{
    ::Ellipse(dc, box.left, box.top, box.right, box.bottom);
    LOGFONTW shape = MessageFont();
    shape.lfHeight = -(box.bottom - box.top) * 6 / 10;
    const UniqueFont font = MakeFont(shape, 100, FW_BOLD);
    Write(dc, box, letter, font.Get(), color, DT_CENTER | DT_VCENTER | DT_SINGLELINE);
}

} // namespace

Theme::Theme() : m_dpi{::GetDeviceCaps(WindowContext{}.Get(), LOGPIXELSX)}
{
    const LOGFONTW shape = MessageFont();
    m_normal = MakeFont(shape, 100, FW_NORMAL);
    m_bold = MakeFont(shape, 100, FW_BOLD);
    m_heading = MakeFont(shape, 190, FW_NORMAL);
    m_slideTitle = MakeFont(shape, 330, FW_NORMAL);
    m_thumbnail = MakeFont(shape, 80, FW_NORMAL);
}

SIZE Theme::Measure(const std::wstring& text, HFONT font) const
{
    const WindowContext screen;
    const Selected selected{screen.Get(), font};
    SIZE size{};
    ::GetTextExtentPoint32W(screen.Get(), text.c_str(), static_cast<int>(text.size()), &size);
    return size;
}

void Fill(HDC dc, const RECT& box, COLORREF color)
{
    const UniqueBrush brush{::CreateSolidBrush(color)};
    ::FillRect(dc, &box, brush.Get());
}

void Frame(HDC dc, const RECT& box, COLORREF color)
{
    const UniqueBrush brush{::CreateSolidBrush(color)};
    ::FrameRect(dc, &box, brush.Get());
}

void Write(HDC dc, const RECT& box, const std::wstring& text, HFONT font, COLORREF color, UINT format)
{
    const Selected selected{dc, font};
    ::SetBkMode(dc, TRANSPARENT);
    ::SetTextColor(dc, color);
    RECT area = box;
    ::DrawTextW(dc, text.c_str(), static_cast<int>(text.size()), &area, format | DT_NOPREFIX);
}

void DrawPicture(HDC dc, const RECT& box, const std::string& name, COLORREF color)
{
    const int w = box.right - box.left;
    const int h = box.bottom - box.top;
    const UniquePen pen{::CreatePen(PS_SOLID, std::max(1, w / 16), color)};
    const Selected withPen{dc, pen.Get()};
    const Selected withBrush{dc, ::GetStockObject(WHITE_BRUSH)};
    if (name == "Help" || name == "FunctionsLogicalInsertGallery") return DrawLetter(dc, box, L"?", color);
    if (name == "Info") return DrawLetter(dc, box, L"i", color);
    if (name == "FileOpen") return DrawFolder(dc, box);
    if (name == "FileSave" || name == "FileSaveAs" || name == "SaveAndClose") return DrawDisk(dc, box);
    if (name == "ReviewCompareMenu") {
        DrawPage(dc, box.left, box.top, w * 6 / 10, h * 8 / 10);
        return DrawPage(dc, box.left + w * 4 / 10, box.top + h * 2 / 10, w * 6 / 10, h * 8 / 10);
    }
    DrawPage(dc, box.left + w / 8, box.top, w * 6 / 8, h);
}

void RegisterWindowClass(const wchar_t* name, WNDPROC procedure)
{
    WNDCLASSW windowClass{};
    windowClass.style = CS_HREDRAW | CS_VREDRAW;
    windowClass.lpfnWndProc = procedure;
    windowClass.hInstance = ::GetModuleHandleW(nullptr);
    windowClass.hCursor = ::LoadCursorW(nullptr, IDC_ARROW);
    windowClass.hIcon = ::LoadIconW(windowClass.hInstance, MAKEINTRESOURCEW(kIconId));
    windowClass.hbrBackground = ::GetSysColorBrush(COLOR_3DFACE);
    windowClass.lpszClassName = name;
    ::RegisterClassW(&windowClass);
}

} // namespace host
