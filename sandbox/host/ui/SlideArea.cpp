#include <algorithm>

#include "objects/Session.h"
#include "ui/Scene.h"

namespace host
{
namespace
{

constexpr UINT kLeft = DT_LEFT | DT_VCENTER | DT_SINGLELINE | DT_PATH_ELLIPSIS;
constexpr int kStatusHeight = 26;
constexpr int kThumbnailsWidth = 190;

// The largest box of the page's shape in the middle of the area.
RECT PageBox(const RECT& area, const HostFacts& facts, int margin)
{
    const int room = std::max<int>(1, area.right - area.left - 2 * margin);
    const int rows = std::max<int>(1, area.bottom - area.top - 2 * margin);
    const int width = std::min(room, rows * facts.pageWidth / facts.pageHeight);
    const int height = width * facts.pageHeight / facts.pageWidth;
    const int left = (area.left + area.right - width) / 2;
    const int top = (area.top + area.bottom - height) / 2;
    return {left, top, left + width, top + height};
}

void PaintSlide(HDC dc, const RECT& box, const std::wstring& title, HFONT font, COLORREF mark)
{
    Fill(dc, box, kLight);
    const int height = box.bottom - box.top;
    Fill(dc, {box.left, box.bottom - height / 12, box.right, box.bottom}, mark);
    const RECT text{box.left + height / 8, box.top + height / 6, box.right - height / 8, box.bottom - height / 4};
    Write(dc, text, title, font, kText, kCentered);
    Frame(dc, box, kLine);
}

std::wstring StateText(DocumentObject& document)
{
    const Document& file = document.File();
    std::wstring state = file.HasFile() ? file.FullName() : L"Never saved";
    if (file.IsReadOnly()) state += L"  (read-only)";
    if (file.IsFinal()) state += L"  (final)";
    if (document.IsProtected()) state += L"  (Protected View)";
    if (!file.IsSaved()) state += L"  (changed)";
    return state;
}

void PaintStatus(HDC dc, const RECT& box, const Theme& theme, DocumentObject* document)
{
    Fill(dc, box, kStrip);
    Fill(dc, {box.left, box.top, box.right, box.top + 1}, kLine);
    RECT text{box.left + theme.Scale(12), box.top, box.right - theme.Scale(12), box.bottom};
    if (document == nullptr) return Write(dc, text, L"Nothing is open", theme.Normal(), kSoftText, kLeft);
    Write(dc, text, document->Owner().Facts().status, theme.Normal(), kSoftText, kLeft);
    text.left += theme.Scale(kThumbnailsWidth);
    Write(dc, text, StateText(*document), theme.Normal(), kSoftText, kLeft);
}

} // namespace

void PaintSlideArea(HDC dc, const RECT& area, const Theme& theme, DocumentObject* document)
{
    Fill(dc, area, kDesk);
    const RECT status{area.left, area.bottom - theme.Scale(kStatusHeight), area.right, area.bottom};
    PaintStatus(dc, status, theme, document);
    if (document == nullptr) return;

    const HostFacts& facts = document->Owner().Facts();
    const std::wstring title = document->File().Title();
    const RECT pane{area.left, area.top, area.left + theme.Scale(kThumbnailsWidth), status.top};
    Fill(dc, pane, kStrip);
    Fill(dc, {pane.right - 1, pane.top, pane.right, pane.bottom}, kLine);
    RECT thumbnail = PageBox(pane, facts, theme.Scale(18));
    ::OffsetRect(&thumbnail, 0, pane.top + theme.Scale(18) - thumbnail.top);
    PaintSlide(dc, thumbnail, title, theme.Thumbnail(), kAccent);
    RECT chosen = thumbnail;
    ::InflateRect(&chosen, theme.Scale(3), theme.Scale(3));
    Frame(dc, chosen, kAccent);

    const RECT desk{pane.right, area.top, area.right, status.top};
    PaintSlide(dc, PageBox(desk, facts, theme.Scale(36)), title, theme.SlideTitle(), kAccent);
}

} // namespace host
