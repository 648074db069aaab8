#include "bevelbox.h"

#include "widgets/hmidraw.h"

void DrawBevelBox(CHmiDC& dc, const HmiRect& rect, const BevelColors& colors, std::int32_t shadowWidth)
{
    const HmiRect r = rect.ForDrawing();
    const std::int32_t w = HmiDrawingCoordinate(shadowWidth);
    HmiDrawRect(&dc, r.left - 1, r.top - 1, r.right + 2, r.bottom + 2, colors.edge, colors.back);
    // Without a width the borders have no area; their outlines alone would draw stray lines.
    if (w == 0)
        return;
    const HmiPoint left[] = {{r.left, r.top}, {r.left + w, r.top + w}, {r.left + w, r.bottom - w}, {r.left, r.bottom}};
    const HmiPoint top[] = {{r.left, r.top}, {r.left + w, r.top + w}, {r.right - w, r.top + w}, {r.right, r.top}};
    const HmiPoint right[] = {
        {r.right, r.top}, {r.right - w, r.top + w}, {r.right - w, r.bottom - w}, {r.right, r.bottom}};
    const HmiPoint bottom[] = {
        {r.left, r.bottom}, {r.left + w, r.bottom - w}, {r.right - w, r.bottom - w}, {r.right, r.bottom}};
    HmiDrawPolygon(&dc, left, colors.upShadow, colors.upShadow);
    HmiDrawPolygon(&dc, top, colors.upShadow, colors.upShadow);
    HmiDrawPolygon(&dc, right, colors.downShadow, colors.downShadow);
    HmiDrawPolygon(&dc, bottom, colors.downShadow, colors.downShadow);
}
