#pragma once

class CHmiDC;
class CTamloDoc;

// Draws a window as the canvas shows it: the window widget first, as the background, then
// every other widget in list order, so that later widgets lie on top. No selection handles.
void DrawWindow(const CTamloDoc& document, CHmiDC& dc);
