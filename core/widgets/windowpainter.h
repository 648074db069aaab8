#pragma once

#include "base/hmitypes.h"

#include <cstdint>
#include <span>

class CHmiDC;
class CTamloDoc;

// The widest and tallest window that is drawn whole, as a rendered image or on the canvas:
// every screen up to 4K fits. A larger window is drawn clipped to its top-left part of this
// size, so that a window file cannot make the image or the canvas as large as its window.
constexpr std::int32_t kMaxDrawnWindowExtent = 4096;

// Draws a window as the canvas shows it: the window widget first, as the background, then
// every other widget in list order, so that later widgets lie on top. No selection handles.
void DrawWindow(const CTamloDoc& document, CHmiDC& dc);
// Draws the window widget and, of the others, only those whose rectangles meet one of the
// areas, edges included: for a canvas that repaints a few areas of a crowded window, and takes
// every widget to draw within the room it repaints around its rectangle.
void DrawWindow(const CTamloDoc& document, CHmiDC& dc, std::span<const HmiRect> areas);
