#include "gradientpainter.h"

#include "widgets/hmidraw.h"
#include "widgets/hmisteps.h"

#include <algorithm>
#include <cmath>
#include <functional>
#include <string_view>
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

// The lines of one gradient, each in its own solid one-pixel pen, handed to the target all
// together once the gradient is complete.
class GradientLines {
public:
    explicit GradientLines(CHmiDC& dc) : m_dc(dc) {}
    ~GradientLines() { m_dc.ThinLines(m_lines); }
    GradientLines(const GradientLines&) = delete;
    GradientLines& operator=(const GradientLines&) = delete;

    void Add(HmiColor color, HmiPoint from, HmiPoint to) { m_lines.push_back({from, to, color}); }
    HmiRect ClipBox() const { return m_dc.GetClipBox(); }

private:
    CHmiDC& m_dc;
    std::vector<HmiThinLine> m_lines;
};

// Calls paint(i, colour of step i) for those of the steps 0 to count that are visible, in
// order; nothing when count < 0. Every other step paints nothing that can be seen.
void ForEachStep(HmiColor start, HmiColor end, std::int32_t count, const HmiSteps& visible,
                 const std::function<void(std::int32_t, HmiColor)>& paint)
{
    const GradientSteps steps(start, end, count);
    const std::int64_t last = std::min<std::int64_t>(count, visible.end - 1);
    for (std::int64_t i = std::max<std::int64_t>(0, visible.first); i <= last; ++i)
        paint(std::int32_t(i), steps.At(std::int32_t(i)));
}

// The steps 0 to count whose line stands at origin + direction * step, from low to high - 1.
HmiSteps StepsAt(std::int32_t origin, std::int32_t direction, std::int32_t count, std::int64_t low,
                 std::int64_t high)
{
    return HmiStepsWithin(0, std::int64_t(count) + 1, low, high,
                          [=](std::int64_t step) { return origin + direction * step; });
}

// The steps 0 to count whose step or mirrored step (-step) is among the visible ones.
HmiSteps StepsOrMirrorsAmong(std::int32_t count, const HmiSteps& visible)
{
    return HmiStepsSpanning(StepsAt(0, 1, count, visible.first, visible.end),
                            StepsAt(0, -1, count, visible.first, visible.end));
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

    // The lines 0 to 2 * extent that can reach the box. Taken back to the unmirrored corner, a
    // pixel (x, y) of line i has u = right - x and v = bottom - y with, along the longer side,
    // u + v * longer / shorter (wider) or v + u * longer / shorter (taller) within two
    // longer / shorter + 1 of i: the truncated end points and the rounded pixels stray no more.
    HmiSteps StepsReaching(const HmiRect& box) const
    {
        const std::int64_t count = 2 * std::int64_t(Extent()) + 1;
        const std::int32_t shorter = m_wider ? m_h : m_w;
        if (shorter <= 0 || box.left >= box.right || box.top >= box.bottom)
            return {0, count};
        const double ratio = double(Extent()) / double(shorter);
        double low = HUGE_VAL;
        double high = -HUGE_VAL;
        for (const std::int32_t x : {box.left, box.right - 1}) {
            for (const std::int32_t y : {box.top, box.bottom - 1}) {
                const HmiPoint p = Mirrored({x, y});
                const double u = double(m_r.right) - p.x;
                const double v = double(m_r.bottom) - p.y;
                const double index = m_wider ? u + v * ratio : v + u * ratio;
                low = std::min(low, index);
                high = std::max(high, index);
            }
        }
        const double margin = 2 * ratio + 2;
        return {std::clamp<std::int64_t>(std::int64_t(std::floor(low - margin)), 0, count),
                std::clamp<std::int64_t>(std::int64_t(std::ceil(high + margin)) + 1, 0, count)};
    }

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
void PaintCornerToCorner(GradientLines& painted, const DiagonalLines& lines, HmiColor start, HmiColor end)
{
    const HmiSteps visible = lines.StepsReaching(painted.ClipBox());
    ForEachStep(start, end, 2 * lines.Extent(), visible, [&](std::int32_t i, HmiColor color) {
        const Segment s = lines.At(i);
        painted.Add(color, s.from, s.to);
    });
}

// Pairs of diagonal lines symmetric about the centre, between the centre diagonal and the
// two corners it does not touch.
void PaintCentreToCorners(GradientLines& painted, const DiagonalLines& lines, HmiColor start, HmiColor end, bool startAtCentre)
{
    const std::int32_t extent = lines.Extent();
    if (2 * extent < 0)
        return;
    // Step j paints the lines fromCorner(j) and 2 * extent - fromCorner(j).
    const std::int32_t origin = startAtCentre ? extent : 0;
    const std::int32_t direction = startAtCentre ? -1 : 1;
    const HmiSteps reaching = lines.StepsReaching(painted.ClipBox());
    const HmiSteps visible =
        HmiStepsSpanning(StepsAt(origin, direction, extent, reaching.first, reaching.end),
                         StepsAt(2 * extent - origin, -direction, extent, reaching.first, reaching.end));
    ForEachStep(start, end, extent, visible, [&](std::int32_t j, HmiColor color) {
        const std::int32_t fromCorner = origin + direction * j;
        for (const std::int32_t i : {fromCorner, 2 * extent - fromCorner}) {
            const Segment s = lines.At(i);
            painted.Add(color, s.from, s.to);
        }
    });
}

// Half the width of an ellipse with the given semi-axes on the rows (of 0 to radiusY) from its
// centre, by the midpoint ellipse algorithm; element k is row rows.first + k.
std::vector<std::int32_t> EllipseHalfWidths(std::int32_t radiusX, std::int32_t radiusY, const HmiSteps& rows)
{
    std::vector<std::int32_t> halfWidths(std::size_t(rows.end - rows.first), 0);
    auto plot = [&](std::int64_t x, std::int64_t y) {
        if (rows.Contains(y)) {
            std::int32_t& half = halfWidths[std::size_t(y - rows.first)];
            half = std::max(half, std::int32_t(x));
        }
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
    if (rows.Contains(0))
        halfWidths[std::size_t(-rows.first)] = radiusX;
    return halfWidths;
}

// The scanned ellipse modes: lines across the ellipse at each distance from a centre line,
// the colour moving by a whole-number step per line.
void PaintScannedEllipse(GradientLines& painted, const HmiRect& r, HmiColor start, HmiColor end, bool horizontalLines)
{
    const std::int32_t a = r.Width() / 2;
    const std::int32_t b = r.Height() / 2;
    const HmiPoint centre{(r.left + r.right) / 2, (r.top + r.bottom) / 2};
    const std::int32_t lines = horizontalLines ? b : a;
    // The lines j stand at the centre line plus and minus j.
    const HmiRect box = painted.ClipBox();
    const std::int32_t centreLine = horizontalLines ? centre.y : centre.x;
    const std::int32_t low = horizontalLines ? box.top : box.left;
    const std::int32_t high = horizontalLines ? box.bottom : box.right;
    const HmiSteps visible =
        HmiStepsSpanning(StepsAt(centreLine, 1, lines, low, high), StepsAt(centreLine, -1, lines, low, high));
    const std::vector<std::int32_t> reach =
        horizontalLines ? EllipseHalfWidths(a, b, visible) : EllipseHalfWidths(b, a, visible);
    std::int32_t step[3];
    for (int c = 0; c < 3; ++c)
        step[c] = (Channel(end, c) - Channel(start, c)) / lines;
    for (std::int32_t j = std::int32_t(visible.first); j < visible.end; ++j) {
        std::int32_t channels[3];
        for (int c = 0; c < 3; ++c)
            channels[c] = Channel(start, c) + j * step[c];
        const HmiColor color = FromChannels(channels);
        const std::int32_t half = reach[std::size_t(j - visible.first)];
        for (const std::int32_t offset : {j, -j}) {
            if (horizontalLines)
                painted.Add(color, {centre.x - half, centre.y + offset}, {centre.x + half, centre.y + offset});
            else
                painted.Add(color, {centre.x + offset, centre.y - half}, {centre.x + offset, centre.y + half});
            if (j == 0)
                break; // the centre line once
        }
    }
}

// The rings of the ring mode: ring i is the ellipse in the rectangle inset by i on every side,
// painted over the pixels left to right - 1 and top to bottom - 1 of that rectangle, so that all
// rings share one centre.
class EllipseRings {
public:
    explicit EllipseRings(const HmiRect& r)
        : m_r(r), m_centreX((double(r.left) + r.right - 1) / 2), m_centreY((double(r.top) + r.bottom - 1) / 2)
    {
    }

    HmiRect At(std::int64_t i) const
    {
        const auto inset = std::int32_t(i);
        return {m_r.left + inset, m_r.top + inset, m_r.right - inset, m_r.bottom - inset};
    }

    // The rings that can be seen in the box: from the last ring that covers all of it (the
    // rings before are painted over) to the last one that reaches into it.
    HmiSteps Visible(const HmiRect& box) const
    {
        if (box.left >= box.right || box.top >= box.bottom)
            return {0, 0};
        const std::int64_t count = HmiFirstStepWhere(0, std::min(m_r.Width(), m_r.Height()) / 2 + 1, [&](std::int64_t i) {
            return At(i).Width() < 1 || At(i).Height() < 1;
        });
        // Rasterised pixels stray less than a pixel from the exact ellipse: allow two.
        const auto covers = [&](std::int64_t i) {
            for (const double x : {box.left - 1.0, box.right + 0.0})
                for (const double y : {box.top - 1.0, box.bottom + 0.0})
                    if (!Holds(i, -2, -2, x, y))
                        return false;
            return true;
        };
        const auto reaches = [&](std::int64_t i) {
            const double x = std::clamp<double>(m_centreX, box.left, box.right - 1);
            const double y = std::clamp<double>(m_centreY, box.top, box.bottom - 1);
            const double along = Overshoot(i);
            return At(i).Width() >= At(i).Height() ? Holds(i, 2 + along, 2, x, y) : Holds(i, 2, 2 + along, x, y);
        };
        const std::int64_t first =
            HmiFirstStepWhere(0, count, [&](std::int64_t i) { return i + 1 >= count || !covers(i + 1); });
        return {first, HmiFirstStepWhere(first, count, [&](std::int64_t i) { return !reaches(i); })};
    }

private:
    // How far the painter's pixels of ring i, or of a ring inside it, may reach past the ends of
    // ring i's longer side, besides the pixel that any ellipse's may stray. A flat ellipse's
    // reach out by up to half its length over its thickness (the most seen of all sizes up to
    // 1500 x 40), and twice that is allowed for. The flatter rings inside may reach further out
    // than the ring around them, as their ends lie only a pixel further in each: ring j's reach
    // past ring i's ends, 1 + (longer - shorter) / (shorter - 2j) - (j - i), is convex in j,
    // so the most is that of ring i or of the last ring at least 4 pixels thick.
    double Overshoot(std::int64_t i) const
    {
        const double longer = std::max(m_r.Width(), m_r.Height());
        const double shorter = std::min(m_r.Width(), m_r.Height());
        const std::int64_t last = (std::int64_t(shorter) - 4) / 2;
        if (shorter < 4 || last < i)
            return 0;
        const auto reach = [&](std::int64_t j) {
            return (longer - 2.0 * double(j)) / (shorter - 2.0 * double(j)) - double(j - i);
        };
        return std::max(reach(i), reach(last));
    }

    // Whether ring i's exact ellipse, its semi-axes grown by growX and growY pixels, holds the point.
    bool Holds(std::int64_t i, double growX, double growY, double x, double y) const
    {
        const double radiusX = (m_r.Width() - 2.0 * double(i) - 1) / 2 + growX;
        const double radiusY = (m_r.Height() - 2.0 * double(i) - 1) / 2 + growY;
        if (radiusX <= 0 || radiusY <= 0)
            return false;
        const double dx = (x - m_centreX) / radiusX;
        const double dy = (y - m_centreY) / radiusY;
        return dx * dx + dy * dy <= 1;
    }

    HmiRect m_r;
    double m_centreX;
    double m_centreY;
};

// The steps k of -count to count whose line, from the apex to the base point k pixels from
// the one facing the apex, can reach the box. A point at a share t of the way from the apex
// to the base (0 < t <= 1) and a pixels along the base from the apex lies on line a / t. The
// box is grown by a pixel for the pixels that stray half a pixel from the exact line.
HmiSteps FanStepsReaching(HmiPoint apex, HmiPoint baseCentre, bool baseAlongX, std::int32_t count,
                          const HmiRect& box)
{
    const HmiSteps all{-std::int64_t(count), std::int64_t(count) + 1};
    const auto along = [&](std::int32_t x, std::int32_t y) { return double(baseAlongX ? x : y); };
    const auto across = [&](std::int32_t x, std::int32_t y) { return double(baseAlongX ? y : x); };
    const double depth = across(baseCentre.x, baseCentre.y) - across(apex.x, apex.y);
    if (depth == 0)
        return all;
    const double a0 = along(box.left, box.top) - 1 - along(apex.x, apex.y);
    const double a1 = along(box.right, box.bottom) - along(apex.x, apex.y);
    double t0 = (across(box.left, box.top) - 1 - across(apex.x, apex.y)) / depth;
    double t1 = (across(box.right, box.bottom) - across(apex.x, apex.y)) / depth;
    if (t0 > t1)
        std::swap(t0, t1);
    t0 = std::max(t0, 0.0);
    t1 = std::min(t1, 1.0);
    if (t0 > t1 || (t0 == 0 && a0 <= 0 && a1 >= 0))
        return t0 > t1 ? HmiSteps{0, 0} : all; // past the triangle, or around its apex
    // Towards the apex the lines through the box run off to one side (a / 0 is infinite).
    const double ends[] = {a0 / t0, a0 / t1, a1 / t0, a1 / t1};
    const auto [low, high] = std::minmax_element(std::begin(ends), std::end(ends));
    const auto toStep = [&](double k) {
        return std::int64_t(std::clamp<double>(k, double(all.first), double(all.end)));
    };
    return {toStep(std::floor(*low)), toStep(std::ceil(*high) + 1)};
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

namespace {

using GradientPaint = void (*)(CHmiDC&, const HmiRect&, HmiColor, HmiColor, std::int32_t);

// A gradient's pixels follow from its shape, rectangle, colours and code alone, and lie within
// the rectangle and the pixel around it (a line stands on the right or bottom edge, and the
// mirrored forms reach one pixel before the left or top edge): a target may keep them, in a box
// a pixel wider all round, whose edge they do not reach. The rings of a flat ellipse, drawn as
// the painter draws ellipses, may reach further along its longer side; a target that finds
// pixels on the box's edge paints them anew each time.
void PaintReusable(CHmiDC& dc, std::string_view shape, GradientPaint paint, const HmiRect& rect, HmiColor start,
                   HmiColor end, std::int32_t code)
{
    const HmiRect r = rect.ForDrawing();
    dc.DrawReusable(HmiReuseKey(shape, {r.left, r.top, r.right, r.bottom, start, end, code}),
                    r.Normalized().Inflated(2, 2),
                    [&](CHmiDC& target) { paint(target, rect, start, end, code); });
}

void PaintRectGradientLines(CHmiDC& dc, const HmiRect& rect, HmiColor start, HmiColor end, std::int32_t code)
{
    if (code < 32 || code > 47)
        return;
    const HmiRect r = rect.ForDrawing();
    const std::int32_t w = r.Width();
    const std::int32_t h = r.Height();
    const std::int32_t cx = (r.left + r.right) / 2;
    const std::int32_t cy = (r.top + r.bottom) / 2;
    HmiSelectedPen black(dc, {HmiPenStyle::Solid, 1, 0x000000});
    GradientLines painted(dc);
    auto column = [&](HmiColor color, std::int32_t x) { painted.Add(color, {x, r.top}, {x, r.bottom}); };
    auto row = [&](HmiColor color, std::int32_t y) { painted.Add(color, {r.left, y}, {r.right, y}); };
    // The steps whose column or row stands at origin + direction * step within the visible area.
    const HmiRect box = dc.GetClipBox();
    auto columns = [&](std::int32_t origin, std::int32_t direction, std::int32_t count) {
        return StepsAt(origin, direction, count, box.left, box.right);
    };
    auto rows = [&](std::int32_t origin, std::int32_t direction, std::int32_t count) {
        return StepsAt(origin, direction, count, box.top, box.bottom);
    };

    switch (code) {
    case 32:
        return ForEachStep(start, end, w / 2, HmiStepsSpanning(columns(cx, 1, w / 2), columns(cx, -1, w / 2)),
                           [&](std::int32_t i, HmiColor c) {
                               column(c, cx + i);
                               column(c, cx - i);
                           });
    case 33:
        return ForEachStep(start, end, h / 2, HmiStepsSpanning(rows(cy, 1, h / 2), rows(cy, -1, h / 2)),
                           [&](std::int32_t i, HmiColor c) {
                               row(c, cy + i);
                               row(c, cy - i);
                           });
    case 34:
        return ForEachStep(start, end, w, columns(r.left, 1, w),
                           [&](std::int32_t i, HmiColor c) { column(c, r.left + i); });
    case 35:
        return ForEachStep(start, end, w, columns(r.right, -1, w),
                           [&](std::int32_t i, HmiColor c) { column(c, r.right - i); });
    case 36:
        return ForEachStep(start, end, h / 2, HmiStepsSpanning(rows(r.top, 1, h / 2), rows(r.bottom, -1, h / 2)),
                           [&](std::int32_t i, HmiColor c) {
                               row(c, r.top + i);
                               row(c, r.bottom - i);
                           });
    case 37:
        return ForEachStep(start, end, w / 2,
                           HmiStepsSpanning(columns(r.left, 1, w / 2), columns(r.right, -1, w / 2)),
                           [&](std::int32_t i, HmiColor c) {
                               column(c, r.left + i);
                               column(c, r.right - i);
                           });
    case 38:
        return ForEachStep(start, end, h, rows(r.top, 1, h), [&](std::int32_t i, HmiColor c) { row(c, r.top + i); });
    case 39:
        return ForEachStep(start, end, h, rows(r.bottom, -1, h),
                           [&](std::int32_t i, HmiColor c) { row(c, r.bottom - i); });
    case 40: // from the right bottom corner
        return PaintCornerToCorner(painted, DiagonalLines(r, false, false), start, end);
    case 41: // from the left bottom corner
        return PaintCornerToCorner(painted, DiagonalLines(r, true, false), start, end);
    case 42: // from the left top corner
        return PaintCornerToCorner(painted, DiagonalLines(r, true, true), start, end);
    case 43: // from the right top corner
        return PaintCornerToCorner(painted, DiagonalLines(r, false, true), start, end);
    case 44: // centre to the left top and right bottom corners
        return PaintCentreToCorners(painted, DiagonalLines(r, false, false), start, end, true);
    case 45:
        return PaintCentreToCorners(painted, DiagonalLines(r, false, false), start, end, false);
    case 46: // centre to the left bottom and right top corners
        return PaintCentreToCorners(painted, DiagonalLines(r, true, false), start, end, true);
    case 47:
        return PaintCentreToCorners(painted, DiagonalLines(r, true, false), start, end, false);
    }
}

void PaintEllipseGradientRings(CHmiDC& dc, const HmiRect& rect, HmiColor start, HmiColor end, std::int32_t code)
{
    const HmiRect r = rect.ForDrawing();
    const std::int32_t a = r.Width() / 2;
    const std::int32_t b = r.Height() / 2;
    // A flat or reversed ellipse has nothing to scan.
    if (a <= 0 || b <= 0 || code < 0 || code > 2)
        return;
    if (code != 2) {
        GradientLines painted(dc);
        return PaintScannedEllipse(painted, r, start, end, code == 1);
    }

    // Nested filled ellipses from the edge (end colour) inwards to the start colour.
    const std::int32_t count = std::min(a, b);
    const EllipseRings rings(r);
    const HmiSteps visible = rings.Visible(dc.GetClipBox());
    for (std::int64_t i = visible.first; i < visible.end; ++i) {
        std::int32_t channels[3];
        for (int c = 0; c < 3; ++c) {
            const float endChannel = float(Channel(end, c));
            const float span = float(Channel(end, c) - Channel(start, c));
            channels[c] = std::int32_t(endChannel - float(i) * span / float(count)) & 0xFF;
        }
        const HmiColor color = FromChannels(channels);
        HmiSelectedPenAndBrush selected(dc, {HmiPenStyle::Solid, 1, color}, {false, color});
        dc.Ellipse(rings.At(i));
    }
}

void PaintTriangleGradientLines(CHmiDC& dc, const HmiRect& rect, HmiColor start, HmiColor end, std::int32_t code)
{
    const HmiRect r = rect.ForDrawing();
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
    const HmiSteps reaching = FanStepsReaching(apex, base(0), code <= 2, count, dc.GetClipBox());
    GradientLines painted(dc);
    ForEachStep(start, end, count, StepsOrMirrorsAmong(count, reaching), [&](std::int32_t i, HmiColor color) {
        painted.Add(color, apex, base(i));
        painted.Add(color, apex, base(-i));
    });
}

} // namespace

void PaintRectGradient(CHmiDC& dc, const HmiRect& rect, HmiColor start, HmiColor end, std::int32_t code)
{
    PaintReusable(dc, "rectangle gradient", PaintRectGradientLines, rect, start, end, code);
}

void PaintEllipseGradient(CHmiDC& dc, const HmiRect& rect, HmiColor start, HmiColor end, std::int32_t code)
{
    PaintReusable(dc, "ellipse gradient", PaintEllipseGradientRings, rect, start, end, code);
}

void PaintTriangleGradient(CHmiDC& dc, const HmiRect& rect, HmiColor start, HmiColor end, std::int32_t code)
{
    PaintReusable(dc, "triangle gradient", PaintTriangleGradientLines, rect, start, end, code);
}
