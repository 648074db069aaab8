#pragma once

#include "base/hmitypes.h"

#include <array>
#include <cstdint>
#include <vector>

class CHmiWidget;
class CTamloDoc;

// The user's aids to laying widgets out by hand: a grid on the canvas, and what a drag snaps to.
// They belong to the editor, never to a window file.
struct LayoutAids {
    bool showGrid = false;
    int gridSize = 10; // window pixels between grid lines
    bool snapToGrid = false;
    bool snapToWidgets = false; // to the edges and centres of other widgets and of the window

    bool Snaps() const { return snapToGrid || snapToWidgets; }
    bool operator==(const LayoutAids&) const = default;
};

// A line the canvas draws while a drag snaps, in window coordinates: an alignment guide along
// an edge or a centre line that the dragged rectangle shares with other widgets, or a marker
// across one of two equal gaps.
struct SnapGuide {
    enum class Kind { Alignment, Gap };

    Kind kind = Kind::Alignment;
    HmiPoint from;
    HmiPoint to;

    bool operator==(const SnapGuide&) const = default;
};

struct SnapResult {
    HmiPoint shift; // to add to what was snapped
    std::vector<SnapGuide> guides;
};

// Finds where a dragged rectangle or point snaps to, in window coordinates. Per axis, the
// nearest edge, centre or equal gap of other widgets and of the window within reach wins;
// failing that, the grid. Only widgets near the dragged thing are looked at, through the
// document's spatial index, so a drag costs the same over a few widgets or thousands.
class CSnapper {
public:
    // reach: how near, in window pixels, a line must come to be snapped to. The moving widgets
    // are never snapped to, nor shown in guides.
    CSnapper(const CTamloDoc& document, const LayoutAids& aids, int reach, std::vector<const CHmiWidget*> moving);

    // A rectangle moved as a whole: any of its edges and its centre lines meet the others', and
    // its gap to a neighbour meets a gap between two others in its row or column; its top-left
    // corner meets the grid.
    SnapResult SnapRect(const HmiRect& rect) const;
    // A point dragged along the axes given, as a resize handle or a corner of a placed widget.
    SnapResult SnapPoint(HmiPoint point, bool alongX, bool alongY) const;

private:
    using Coord = std::int64_t;
    using Axes = std::array<bool, 2>; // x, y

    SnapResult Snap(const HmiRect& rect, Axes axes, bool spacing) const;
    // The rectangles whose lines may come within reach of the rectangle's along one axis: the
    // widgets in a band across the canvas around its extent, and the window.
    std::vector<HmiRect> Neighbours(const HmiRect& rect, int axis) const;
    Coord GridShift(Coord coordinate) const;

    const CTamloDoc& m_document;
    LayoutAids m_aids;
    Coord m_reach;
    std::vector<const CHmiWidget*> m_moving; // sorted, for lookups
    bool m_windowMoving = false;
};
