// The part of the window that shows the active document.
#pragma once

#include "objects/DocumentObject.h"
#include "ui/Theme.h"

namespace host
{

// Draws the active document into the area: a thumbnail, its title slide and a line on its state. Null: none is
// open.
void PaintSlideArea(HDC dc, const RECT& area, const Theme& theme, DocumentObject* document);

} // namespace host
