#include "gradientpainter.h"

#include "widgets/core/hmidraw.h"

#include <algorithm>
#include <functional>
#include <utility>
#include <vector>

namespace {

std::int32_t Channel(HmiColor color, int channel)
{
    return std::int32_t((color >> (8 * channel)) & 0xFF);
}

HmiColor FromChannels(const std::int32_t (&channels)[3])
{
    return HmiRgb(std::uint8_t(channels[0]), std::uint8_t(channels[1]), std::uint8_t(channels[2]));
}

// One line of a gradient, in its own solid one-pixel pen.
void DrawLine(CHmiDC& dc, HmiColor color, HmiPoint from, HmiPoint to)
{
    HmiSelectedPen pen(dc, {HmiPenStyle::Solid, 1, color});
    dc.MoveTo(from);
    dc.LineTo(to);
}

// Calls paint(i, colour of step i) for the steps 0 to count; nothing when count < 0.
void ForEachStep(HmiColor start, HmiColor end, std::int32_t count,
                 const std::function<void(std::int32_t, HmiColor)>& paint)
{
    const GradientSteps steps(start, end, count);
    for (std::int32_t i = 0; i <= count; ++i)
        paint(i, steps.At(i));
}

struct Segment {
    HmiPoint from;
    HmiPoint to;
};

// The lines parallel to the diagonal from the left bottom to the right top corner, numbered
// from the right bottom corner (0) over that diagonal (extent) to the left top corner
// (2 * extent), where the extent is the longer side. The mirrored forms start in the other
// corners: they paint the mirror image of these pixels, column for column and row for row.
class DiagonalLines {
public:
    DiagonalLines(const HmiRect& rect, bool mirrorX, bool mirrorY)
        : m_r(rect), m_w(rect.Width()), m_h(rect.Height()), m_wider(m_w > m_h), m_mirrorX(mirrorX),
          m_mirrorY(mirrorY)
    {
        if (m_w != 0)
            m_slope = float(m_h) / float(m_w);
    }

    std::int32_t Extent() const { return m_wider ? m_w : m_h; }

    Segment At(std::int32_t i) const
    {
        const HmiRect& r = m_r;
        Segment s;
        if (i == Extent()) {
            s = {{r.left, r.bottom}, {r.right, r.top}};
        } else if (m_wider) {
            s = i < m_w ? Segment{{r.right - i, r.bottom}, {r.right, r.bottom - std::int32_t(m_slope * float(i))}}
                        : Segment{{r.right - (i - m_w), r.top},
                                  {r.left, r.top + std::int32_t(m_slope * float(2 * m_w - i))}};
        } else {
            s = i < m_h ? Segment{{r.right, r.bottom - i}, {r.right - AlongWidth(i), r.bottom}}
                        : Segment{{r.left, r.bottom - (i - m_h)}, {r.left + AlongWidth(2 * m_h - i), r.top}};
        }
        return {Mirrored(s.from), Mirrored(s.to)};
    }

private:
    // i / slope, truncated; a rectangle without width has none to go along.
    std::int32_t AlongWidth(std::int32_t i) const { return m_w == 0 ? 0 : std::int32_t(float(i) / m_slope); }

    HmiPoint Mirrored(HmiPoint p) const
    {
        if (m_mirrorX)
            p.x = m_r.left + m_r.right - 1 - p.x;
        if (m_mirrorY)
            p.y = m_r.top + m_r.bottom - 1 - p.y;
        return p;
    }

    HmiRect m_r;
    std::int32_t m_w;
    std::int32_t m_h;
    bool m_wider;
    bool m_mirrorX;
    bool m_mirrorY;
    float m_slope = 0;
};

// Diagonal lines from the named corner to the opposite one.
void PaintCornerToCorner(CHmiDC& dc, const DiagonalLines& lines, HmiColor start, HmiColor end)
{
    ForEachStep(start, end, 2 * lines.Extent(), [&](std::int32_t i, HmiColor color) {
        const Segment s = lines.At(i);
        DrawLine(dc, color, s.from, s.to);
    });
}

// Pairs of diagonal lines symmetric about the centre, between the centre diagonal and the
// two corners it does not touch.
void PaintCentreToCorners(CHmiDC& dc, const DiagonalLines& lines, HmiColor start, HmiColor end, bool startAtCentre)
{
    const std::int32_t extent = lines.Extent();
    if (2 * extent < 0)
        return;
    ForEachStep(start, end, extent, [&](std::int32_t j, HmiColor color) {
        const std::int32_t fromCorner = startAtCentre ? extent - j : j;
        for (const std::int32_t i : {fromCorner, 2 * extent - fromCorner}) {
            const Segment s = lines.At(i);
            DrawLine(dc, color, s.from, s.to);
        }
    });
}

// Half the width of an ellipse with the given semi-axes on each row 0 to radiusY from its
// centre, by the midpoint ellipse algorithm.
std::vector<std::int32_t> EllipseHalfWidths(std::int32_t radiusX, std::int32_t radiusY)
{
    std::vector<std::int32_t> halfWidths(std::size_t(radiusY) + 1, 0);
    auto plot = [&](std::int64_t x, std::int64_t y) {
        if (y >= 0 && y <= radiusY)
            halfWidths[std::size_t(y)] = std::max(halfWidths[std::size_t(y)], std::int32_t(x));
    };
    const double rx2 = double(radiusX) * radiusX;
    const double ry2 = double(radiusY) * radiusY;
    std::int64_t x = 0;
    std::int64_t y = radiusY;
    double dx = 0;
    double dy = 2 * rx2 * double(y);
    double p = ry2 - rx2 * radiusY + 0.25 * rx2;
    while (dx < dy) {
        plot(x, y);
        ++x;
        dx += 2 * ry2;
        if (p < 0) {
            p += dx + ry2;
        } else {
            --y;
            dy -= 2 * rx2;
            p += dx - dy + ry2;
        }
    }
    p = ry2 * (double(x) + 0.5) * (double(x) + 0.5) + rx2 * double(y - 1) * double(y - 1) - rx2 * ry2;
    while (y >= 0) {
        plot(x, y);
        --y;
        dy -= 2 * rx2;
        if (p > 0) {
            p += rx2 - dy;
        } else {
            ++x;
            dx += 2 * ry2;
            p += dx - dy + rx2;
        }
    }
    halfWidths[0] = radiusX;
    return halfWidths;
}

// The scanned ellipse modes: lines across the ellipse at each distance from a centre line,
// the colour moving by a whole-number step per line.
void PaintScannedEllipse(CHmiDC& dc, const HmiRect& r, HmiColor start, HmiColor end, bool horizontalLines)
{
    const std::int32_t a = r.Width() / 2;
    const std::int32_t b = r.Height() / 2;
    const HmiPoint centre{(r.left + r.right) / 2, (r.top + r.bottom) / 2};
    const std::int32_t lines = horizontalLines ? b : a;
    const std::vector<std::int32_t> reach = horizontalLines ? EllipseHalfWidths(a, b) : EllipseHalfWidths(b, a);
    std::int32_t step[3];
    for (int c = 0; c < 3; ++c)
        step[c] = (Channel(end, c) - Channel(start, c)) / lines;
    for (std::int32_t j = 0; j <= lines; ++j) {
        std::int32_t channels[3];
        for (int c = 0; c < 3; ++c)
            channels[c] = Channel(start, c) + j * step[c];
        const HmiColor color = FromChannels(channels);
        const std::int32_t half = reach[std::size_t(j)];
        for (const std::int32_t offset : {j, -j}) {
            if (horizontalLines)
                DrawLine(dc, color, {centre.x - half, centre.y + offset}, {centre.x + half, centre.y + offset});
            else
                DrawLine(dc, color, {centre.x + offset, centre.y - half}, {centre.x + offset, centre.y + half});
            if (j == 0)
                break; // the centre line once
        }
    }
}

} // namespace

GradientSteps::GradientSteps(HmiColor start, HmiColor end, std::int32_t count)
{
    for (int c = 0; c < 3; ++c) {
        m_start[c] = Channel(start, c);
        // With no steps to go there is only the start colour: a side of zero length paints
        // its one line in it.
        m_step[c] = count == 0 ? 0.0f : float(double(Channel(end, c) - m_start[c]) / double(count));
    }
}

HmiColor GradientSteps::At(std::int32_t step) const
{
    std::int32_t channels[3];
    for (int c = 0; c < 3; ++c)
        channels[c] = std::int32_t(float(m_start[c]) + float(step) * m_step[c]) & 0xFF;
    return FromChannels(channels);
}

void PaintRectGradient(CHmiDC& dc, const HmiRect& r, HmiColor start, HmiColor end, std::int32_t code)
{
    if (code < 32 || code > 47)
        return;
    const std::int32_t w = r.Width();
    const std::int32_t h = r.Height();
    const std::int32_t cx = (r.left + r.right) / 2;
    const std::int32_t cy = (r.top + r.bottom) / 2;
    auto column = [&](HmiColor color, std::int32_t x) { DrawLine(dc, color, {x, r.top}, {x, r.bottom}); };
    auto row = [&](HmiColor color, std::int32_t y) { DrawLine(dc, color, {r.left, y}, {r.right, y}); };

    HmiSelectedPen black(dc, {HmiPenStyle::Solid, 1, 0x000000});
    switch (code) {
    case 32:
        return ForEachStep(start, end, w / 2, [&](std::int32_t i, HmiColor c) {
            column(c, cx + i);
            column(c, cx - i);
        });
    case 33:
        return ForEachStep(start, end, h / 2, [&](std::int32_t i, HmiColor c) {
            row(c, cy + i);
            row(c, cy - i);
        });
    case 34:
        return ForEachStep(start, end, w, [&](std::int32_t i, HmiColor c) { column(c, r.left + i); });
    case 35:
        return ForEachStep(start, end, w, [&](std::int32_t i, HmiColor c) { column(c, r.right - i); });
    case 36:
        return ForEachStep(start, end, h / 2, [&](std::int32_t i, HmiColor c) {
            row(c, r.top + i);
            row(c, r.bottom - i);
        });
    case 37:
        return ForEachStep(start, end, w / 2, [&](std::int32_t i, HmiColor c) {
            column(c, r.left + i);
            column(c, r.right - i);
        });
    case 38:
        return ForEachStep(start, end, h, [&](std::int32_t i, HmiColor c) { row(c, r.top + i); });
    case 39:
        return ForEachStep(start, end, h, [&](std::int32_t i, HmiColor c) { row(c, r.bottom - i); });
    case 40: // from the right bottom corner
        return PaintCornerToCorner(dc, DiagonalLines(r, false, false), start, end);
    case 41: // from the left bottom corner
        return PaintCornerToCorner(dc, DiagonalLines(r, true, false), start, end);
    case 42: // from the left top corner
        return PaintCornerToCorner(dc, DiagonalLines(r, true, true), start, end);
    case 43: // from the right top corner
        return PaintCornerToCorner(dc, DiagonalLines(r, false, true), start, end);
    case 44: // centre to the left top and right bottom corners
        return PaintCentreToCorners(dc, DiagonalLines(r, false, false), start, end, true);
    case 45:
        return PaintCentreToCorners(dc, DiagonalLines(r, false, false), start, end, false);
    case 46: // centre to the left bottom and right top corners
        return PaintCentreToCorners(dc, DiagonalLines(r, true, false), start, end, true);
    case 47:
        return PaintCentreToCorners(dc, DiagonalLines(r, true, false), start, end, false);
    }
}

void PaintEllipseGradient(CHmiDC& dc, const HmiRect& r, HmiColor start, HmiColor end, std::int32_t code)
{
    const std::int32_t a = r.Width() / 2;
    const std::int32_t b = r.Height() / 2;
    // A flat or reversed ellipse has nothing to scan.
    if (a <= 0 || b <= 0 || code < 0 || code > 2)
        return;
    if (code != 2)
        return PaintScannedEllipse(dc, r, start, end, code == 1);

    // Nested filled ellipses from the edge (end colour) inwards to the start colour.
    const std::int32_t count = std::min(a, b);
    for (std::int32_t i = 0;; ++i) {
        const HmiRect ring{r.left + i, r.top + i, r.right - i, r.bottom - i};
        if (ring.Width() < 1 || ring.Height() < 1)
            break;
        std::int32_t channels[3];
        for (int c = 0; c < 3; ++c) {
            const float endChannel = float(Channel(end, c));
            const float span = float(Channel(end, c) - Channel(start, c));
            channels[c] = std::int32_t(endChannel - float(i) * span / float(count)) & 0xFF;
        }
        const HmiColor color = FromChannels(channels);
        HmiSelectedPenAndBrush selected(dc, {HmiPenStyle::Solid, 1, color}, {false, color});
        dc.Ellipse(ring);
    }
}

void PaintTriangleGradient(CHmiDC& dc, const HmiRect& r, HmiColor start, HmiColor end, std::int32_t code)
{
    const std::int32_t cx = (r.left + r.right) / 2;
    const std::int32_t cy = (r.top + r.bottom) / 2;
    // The apex, the number of steps, and the base point of step i (the other is at -i).
    HmiPoint apex;
    std::int32_t count;
    std::function<HmiPoint(std::int32_t)> base;
    switch (code) {
    case 1:
        apex = {cx, r.top};
        count = r.Width() / 2;
        base = [&](std::int32_t i) { return HmiPoint{cx + i, r.bottom}; };
        break;
    case 2:
        apex = {cx, r.bottom};
        count = r.Width() / 2;
        base = [&](std::int32_t i) { return HmiPoint{cx + i, r.top}; };
        break;
    case 3:
        apex = {r.right, cy};
        count = r.Height() / 2;
        base = [&](std::int32_t i) { return HmiPoint{r.left, cy + i}; };
        break;
    case 4:
        apex = {r.left, cy};
        count = r.Height() / 2;
        base = [&](std::int32_t i) { return HmiPoint{r.right, cy + i}; };
        break;
    default:
        return;
    }
    ForEachStep(start, end, count, [&](std::int32_t i, HmiColor color) {
        DrawLine(dc, color, apex, base(i));
        DrawLine(dc, color, apex, base(-i));
    });
}
