#pragma once

#include "widgets/hmidc.h"

#include <cstdint>

// The raised box of the button and the input fields: a filled rectangle one pixel larger than
// the widget on each side with a one-pixel edge, then four bevel borders of the shadow width,
// the left and top in the up shadow colour, the right and bottom in the down shadow colour.
// A shadow width of 0 leaves the filled rectangle alone.
struct BevelColors {
    HmiColor edge;
    HmiColor back;
    HmiColor upShadow;
    HmiColor downShadow;
};

void DrawBevelBox(CHmiDC& dc, const HmiRect& rect, const BevelColors& colors, std::int32_t shadowWidth);
