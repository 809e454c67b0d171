#pragma once

#include "objects/Presentation.h"
#include "ui/Theme.h"

namespace host
{

// Draws the active presentation into the area: a thumbnail, its title slide and a line on its state. Null: none is
// open.
void PaintSlideArea(HDC dc, const RECT& area, const Theme& theme, PresentationObject* presentation);

} // namespace host
