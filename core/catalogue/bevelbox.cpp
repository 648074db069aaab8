#include "bevelbox.h"

#include "widgets/hmidraw.h"

#include <algorithm>
#include <initializer_list>

namespace {

// The largest box kept as a drawing, in pixels: a few times a button's.
constexpr std::int64_t kMaxKeptBoxPixels = 160 * 80;

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
    // Many buttons and fields stand on a panel, and their borders are polygons, which are slow
    // to fill: a box of a button's size is one drawing to keep. It reaches from the filled
    // rectangle to the borders' corners, whose outlines cover their own pixels. A larger box is
    // mostly its filled rectangle, which is painted as fast as its copy would be.
    const HmiRect r = rect.ForDrawing();
    const std::int32_t w = HmiDrawingCoordinate(shadowWidth);
    const auto [left, right] = std::minmax({r.left - 1, r.right + 1, r.left + w, r.right - w});
    const auto [top, bottom] = std::minmax({r.top - 1, r.bottom + 1, r.top + w, r.bottom - w});
    const HmiRect box = HmiRect{left, top, right + 1, bottom + 1}.Inflated(1, 1);
    const auto paint = [&](CHmiDC& target) { PaintBevelBox(target, r, colors, w); };
    if (std::int64_t(box.Width()) * box.Height() > kMaxKeptBoxPixels)
        return paint(dc);
    dc.DrawReusable(HmiReuseKey("bevel", {r.left, r.top, r.right, r.bottom, w, colors.edge, colors.back,
                                          colors.upShadow, colors.downShadow}),
                    box, paint);
}
