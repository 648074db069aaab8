#include "bevelbox.h"

#include "widgets/hmidraw.h"

#include <algorithm>
#include <initializer_list>

namespace {

void PaintBevelBox(CHmiDC& dc, const HmiRect& r, const BevelColors& colors, std::int32_t w)
{
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

} // namespace

void DrawBevelBox(CHmiDC& dc, const HmiRect& rect, const BevelColors& colors, std::int32_t shadowWidth)
{
    // Many buttons and fields stand on a panel, and polygons are slow to fill: the box is one
    // drawing to keep. It reaches from the filled rectangle to the borders' corners, whose
    // outlines cover their own pixels.
    const HmiRect r = rect.ForDrawing();
    const std::int32_t w = HmiDrawingCoordinate(shadowWidth);
    const auto [left, right] = std::minmax({r.left - 1, r.right + 1, r.left + w, r.right - w});
    const auto [top, bottom] = std::minmax({r.top - 1, r.bottom + 1, r.top + w, r.bottom - w});
    dc.DrawReusable(HmiReuseKey("bevel", {r.left, r.top, r.right, r.bottom, w, colors.edge, colors.back,
                                          colors.upShadow, colors.downShadow}),
                    HmiRect{left, top, right + 1, bottom + 1}.Inflated(1, 1),
                    [&](CHmiDC& target) { PaintBevelBox(target, r, colors, w); });
}
