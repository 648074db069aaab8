#include "snapper.h"

#include "canvasgeometry.h"
#include "widgets/hmiwidget.h"
#include "widgets/tamlodoc.h"

#include <algorithm>
#include <cstdlib>
#include <optional>
#include <utility>

namespace {

using Coord = std::int64_t;

// A rectangle's extent along one axis (0: x, 1: y).
struct Span {
    Coord lo = 0;
    Coord hi = 0;

    Coord Mid() const { return lo + (hi - lo) / 2; }
    bool Overlaps(const Span& other) const { return lo < other.hi && other.lo < hi; }
};

Span Along(const HmiRect& rect, int axis)
{
    const HmiRect r = rect.Normalized();
    return axis == 0 ? Span{r.left, r.right} : Span{r.top, r.bottom};
}

// The lines of a span that snap: both edges and the centre.
std::array<Coord, 3> Lines(const Span& span)
{
    return {span.lo, span.Mid(), span.hi};
}

std::int32_t Clamped(Coord value)
{
    return std::int32_t(std::clamp<Coord>(value, INT32_MIN, INT32_MAX));
}

// The point at a coordinate along an axis and another across it.
HmiPoint PointAt(int axis, Coord along, Coord across)
{
    return axis == 0 ? HmiPoint{Clamped(along), Clamped(across)} : HmiPoint{Clamped(across), Clamped(along)};
}

HmiRect Shifted(const HmiRect& rect, Coord dx, Coord dy)
{
    const HmiRect r = rect.Normalized();
    return {Clamped(r.left + dx), Clamped(r.top + dy), Clamped(r.right + dx), Clamped(r.bottom + dy)};
}

Coord FloorDiv(Coord value, Coord divisor)
{
    return value >= 0 ? value / divisor : -((-value + divisor - 1) / divisor);
}

void AddOnce(std::vector<SnapGuide>& guides, const SnapGuide& guide)
{
    if (std::find(guides.begin(), guides.end(), guide) == guides.end())
        guides.push_back(guide);
}

// The smallest shift within reach offered so far.
class NearestShift {
public:
    explicit NearestShift(Coord reach) : m_reach(reach), m_best(reach + 1) {}

    void Offer(Coord shift)
    {
        if (std::abs(shift) < std::abs(m_best))
            m_best = shift;
    }
    std::optional<Coord> Best() const { return std::abs(m_best) <= m_reach ? std::optional(m_best) : std::nullopt; }

private:
    Coord m_reach;
    Coord m_best; // out of reach until a shift within reach is offered
};

// The widgets beside a rectangle in its row (along x) or its column (along y): the nearest one
// before it and after it, and each two others that stand side by side with a gap between them.
struct RowGaps {
    std::optional<HmiRect> before;
    std::optional<HmiRect> after;
    std::vector<std::pair<HmiRect, HmiRect>> gaps;
};

// slack: how far a neighbour may still reach into the rectangle and count as beside it.
RowGaps GapsAround(const HmiRect& rect, std::vector<HmiRect> others, int axis, Coord slack)
{
    const int across = 1 - axis;
    const Span mine = Along(rect, axis);
    std::erase_if(others, [&](const HmiRect& other) { return !Along(other, across).Overlaps(Along(rect, across)); });
    std::sort(others.begin(), others.end(),
              [axis](const HmiRect& a, const HmiRect& b) { return Along(a, axis).lo < Along(b, axis).lo; });
    RowGaps row;
    for (const HmiRect& other : others) {
        const Span theirs = Along(other, axis);
        if (theirs.hi <= mine.lo + slack && (!row.before || theirs.hi > Along(*row.before, axis).hi))
            row.before = other;
        if (theirs.lo >= mine.hi - slack && (!row.after || theirs.lo < Along(*row.after, axis).lo))
            row.after = other;
    }
    for (std::size_t i = 0; i + 1 < others.size(); ++i) {
        const HmiRect& first = others[i];
        const HmiRect& second = others[i + 1];
        if (Along(first, axis).hi < Along(second, axis).lo && Along(first, across).Overlaps(Along(second, across)))
            row.gaps.emplace_back(first, second);
    }
    return row;
}

Coord Gap(const HmiRect& first, const HmiRect& second, int axis)
{
    return Along(second, axis).lo - Along(first, axis).hi;
}

// A marker across the gap between two rectangles, halfway along what they share across the axis.
SnapGuide GapMarker(const HmiRect& first, const HmiRect& second, int axis)
{
    const Span a = Along(first, 1 - axis);
    const Span b = Along(second, 1 - axis);
    const Coord across = std::max(a.lo, b.lo) + (std::min(a.hi, b.hi) - std::max(a.lo, b.lo)) / 2;
    return {SnapGuide::Kind::Gap, PointAt(axis, Along(first, axis).hi, across),
            PointAt(axis, Along(second, axis).lo, across)};
}

// Offers the shifts that make the rectangle's gap to a neighbour equal to a gap between two
// others of its row, or its gaps to both neighbours equal.
void OfferEqualGaps(NearestShift& nearest, const HmiRect& rect, const std::vector<HmiRect>& others, int axis,
                    Coord reach)
{
    const RowGaps row = GapsAround(rect, others, axis, reach);
    const Span mine = Along(rect, axis);
    for (const auto& [first, second] : row.gaps) {
        const Coord gap = Gap(first, second, axis);
        if (row.before)
            nearest.Offer(Along(*row.before, axis).hi + gap - mine.lo);
        if (row.after)
            nearest.Offer(Along(*row.after, axis).lo - gap - mine.hi);
    }
    if (row.before && row.after) {
        const Coord twice = Along(*row.after, axis).lo + Along(*row.before, axis).hi - mine.lo - mine.hi;
        if (twice % 2 == 0)
            nearest.Offer(twice / 2);
    }
}

// Markers for every equal spacing the placed rectangle has in its row or column.
void AddGapMarkers(std::vector<SnapGuide>& guides, const HmiRect& placed, const std::vector<HmiRect>& others,
                   int axis)
{
    const RowGaps row = GapsAround(placed, others, axis, 0);
    const auto markEqual = [&](const HmiRect& first, const HmiRect& second) {
        const Coord gap = Gap(first, second, axis);
        const auto equal = std::find_if(row.gaps.begin(), row.gaps.end(),
                                        [&](const auto& pair) { return Gap(pair.first, pair.second, axis) == gap; });
        if (equal == row.gaps.end())
            return;
        AddOnce(guides, GapMarker(first, second, axis));
        AddOnce(guides, GapMarker(equal->first, equal->second, axis));
    };
    if (row.before)
        markEqual(*row.before, placed);
    if (row.after)
        markEqual(placed, *row.after);
    if (row.before && row.after && Gap(*row.before, placed, axis) > 0 &&
        Gap(*row.before, placed, axis) == Gap(placed, *row.after, axis)) {
        AddOnce(guides, GapMarker(*row.before, placed, axis));
        AddOnce(guides, GapMarker(placed, *row.after, axis));
    }
}

// A guide along each line of the placed rectangle that others share, spanning all of them.
void AddAlignmentGuides(std::vector<SnapGuide>& guides, const HmiRect& placed, const std::vector<HmiRect>& others,
                        int axis)
{
    for (const Coord line : Lines(Along(placed, axis))) {
        Span extent = Along(placed, 1 - axis);
        bool shared = false;
        for (const HmiRect& other : others) {
            const std::array<Coord, 3> theirs = Lines(Along(other, axis));
            if (std::find(theirs.begin(), theirs.end(), line) == theirs.end())
                continue;
            shared = true;
            extent.lo = std::min(extent.lo, Along(other, 1 - axis).lo);
            extent.hi = std::max(extent.hi, Along(other, 1 - axis).hi);
        }
        if (shared)
            AddOnce(guides, {SnapGuide::Kind::Alignment, PointAt(axis, line, extent.lo), PointAt(axis, line, extent.hi)});
    }
}

} // namespace

CSnapper::CSnapper(const CTamloDoc& document, const LayoutAids& aids, int reach, std::vector<const CHmiWidget*> moving)
    : m_document(document)
    , m_aids(aids)
    , m_reach(std::max(reach, 0))
    , m_moving(std::move(moving))
{
    std::sort(m_moving.begin(), m_moving.end());
    const CHmiWidget* window = m_document.FindWindowWidget();
    m_windowMoving = window && std::binary_search(m_moving.begin(), m_moving.end(), window);
}

SnapResult CSnapper::SnapRect(const HmiRect& rect) const
{
    return Snap(rect, {true, true}, true);
}

SnapResult CSnapper::SnapPoint(HmiPoint point, bool alongX, bool alongY) const
{
    return Snap({point.x, point.y, point.x, point.y}, {alongX, alongY}, false);
}

SnapResult CSnapper::Snap(const HmiRect& rect, Axes axes, bool spacing) const
{
    // Per axis, the widgets in a band around the rectangle's extent along it: their lines can
    // come within reach, and they form the row (or column) across the other axis. The window's
    // lines are snapped to as well, but it stands in no row.
    std::array<std::vector<HmiRect>, 2> nearby;
    std::array<std::vector<HmiRect>, 2> lined;
    const CHmiWidget* window = m_windowMoving ? nullptr : m_document.FindWindowWidget();
    if (m_aids.snapToWidgets) {
        for (int axis : {0, 1}) {
            nearby[axis] = Neighbours(rect, axis);
            lined[axis] = nearby[axis];
            if (window)
                lined[axis].push_back(CanvasRect(*window));
        }
    }

    std::array<Coord, 2> shift{};
    for (int axis : {0, 1}) {
        if (!axes[axis])
            continue;
        NearestShift nearest(m_reach);
        if (m_aids.snapToWidgets) {
            for (const HmiRect& other : lined[axis])
                for (const Coord theirs : Lines(Along(other, axis)))
                    for (const Coord mine : Lines(Along(rect, axis)))
                        nearest.Offer(theirs - mine);
            if (spacing)
                OfferEqualGaps(nearest, rect, nearby[1 - axis], axis, m_reach);
        }
        if (nearest.Best())
            shift[axis] = *nearest.Best();
        else if (m_aids.snapToGrid)
            shift[axis] = GridShift(Along(rect, axis).lo);
    }

    SnapResult result{{Clamped(shift[0]), Clamped(shift[1])}, {}};
    if (!m_aids.snapToWidgets)
        return result;
    const HmiRect placed = Shifted(rect, shift[0], shift[1]);
    for (int axis : {0, 1}) {
        if (!axes[axis])
            continue;
        AddAlignmentGuides(result.guides, placed, lined[axis], axis);
        if (spacing)
            AddGapMarkers(result.guides, placed, nearby[1 - axis], axis);
    }
    return result;
}

std::vector<HmiRect> CSnapper::Neighbours(const HmiRect& rect, int axis) const
{
    // The band runs across the whole window, and across the rectangle where it stands outside.
    HmiRect field = rect.Normalized();
    if (const CHmiWidget* window = m_document.FindWindowWidget()) {
        const HmiRect canvas = CanvasRect(*window).Normalized();
        field = {std::min(field.left, canvas.left), std::min(field.top, canvas.top),
                 std::max(field.right, canvas.right), std::max(field.bottom, canvas.bottom)};
    }
    const Span extent = Along(rect, axis);
    const Coord lo = extent.lo - m_reach;
    const Coord hi = extent.hi + m_reach;
    const HmiRect band = axis == 0 ? HmiRect{Clamped(lo), field.top, Clamped(hi), field.bottom}
                                   : HmiRect{field.left, Clamped(lo), field.right, Clamped(hi)};
    std::vector<HmiRect> rects;
    for (const CHmiWidget* widget : m_document.WidgetsMeeting(band))
        if (!std::binary_search(m_moving.begin(), m_moving.end(), widget))
            rects.push_back(widget->GetWidgetRect().Normalized());
    return rects;
}

CSnapper::Coord CSnapper::GridShift(Coord coordinate) const
{
    const Coord size = std::max(m_aids.gridSize, 1);
    return FloorDiv(coordinate + size / 2, size) * size - coordinate;
}
