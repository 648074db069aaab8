#pragma once

#include "snapper.h"
#include "base/hmitypes.h"
#include "widgets/hmiwidget.h"

#include <optional>
#include <vector>

class CCanvasSelection;

// The keys held at a mouse event.
struct MouseFlags {
    bool control = false;
    bool shift = false;
    bool alt = false; // places freely: no snapping for this event
};

enum class CanvasCursor { Arrow, Cross, SizeNWSE, SizeNESW, SizeNS, SizeWE };

// What the tools need from the canvas they work on.
class CCanvasToolHost {
public:
    virtual ~CCanvasToolHost() = default;
    virtual CCanvasSelection& Selection() = 0;
    virtual bool IsLocked() const = 0;
    virtual void SetMouseCapture(bool capture) = 0;
    virtual void SetCanvasCursor(CanvasCursor cursor) = 0;
    // The focus rectangles that show a drag in progress, in client coordinates; empty hides them.
    virtual void ShowDragFeedback(std::vector<HmiRect> clientRects) = 0;
    // The grid and the snapping the user has chosen.
    virtual LayoutAids Aids() const = 0;
    // The guides of a drag that snapped, in window coordinates; empty hides them.
    virtual void ShowSnapGuides(std::vector<SnapGuide> guides) = 0;
};

enum class CanvasTool { Select = 0, Place = 1 };

// The mouse tools of every canvas: the selection tool, which selects, moves and resizes, and
// the placing tool, which creates a widget of CHmiWidget::CurWidgetClass over a dragged
// rectangle. One tool is current for all canvases of the editor and one drag happens at a
// time, so the canvases share one object (the editor session's). Points are in the canvas's
// client coordinates. With the host's snapping on, moves, resizes and placements snap (see
// CSnapper), unless Alt is held at that event; the release applies what the last move showed.
class CCanvasTools {
public:
    CanvasTool CurrentTool() const { return m_tool; }
    void SetCurrentTool(CanvasTool tool) { m_tool = tool; }

    void ButtonDown(CCanvasToolHost& host, HmiPoint point, MouseFlags flags);
    void MouseMove(CCanvasToolHost& host, HmiPoint point, MouseFlags flags);
    void ButtonUp(CCanvasToolHost& host, HmiPoint point, MouseFlags flags);
    void DoubleClick(CCanvasToolHost& host, HmiPoint point, MouseFlags flags);
    // Ends any drag and makes the selection tool current again.
    void Cancel(CCanvasToolHost& host);

    bool IsDragging() const { return m_capturing; }

private:
    enum class DragMode { None = 0, RubberBand = 1, Move = 2, Resize = 3 };

    // Where a mouse event takes the drag: a move's offset, or the point a handle or the placed
    // corner goes to, in window coordinates; both snapped where snapping applies.
    struct DragStep {
        HmiPoint offset;
        HmiPoint docPoint;
        std::vector<SnapGuide> guides;
    };

    void SelectButtonDown(CCanvasToolHost& host, HmiPoint point, MouseFlags flags);
    void SelectButtonUp(CCanvasToolHost& host, HmiPoint point, const DragStep& step);
    void PlaceButtonUp(CCanvasToolHost& host, HmiPoint point, const DragStep& step);
    // rect: in window coordinates.
    void PlaceWidget(CCanvasToolHost& host, HmiRect rect);
    void ApplyDrag(CCanvasToolHost& host, const DragStep& step);
    DragStep StepTo(CCanvasToolHost& host, HmiPoint point, MouseFlags flags) const;
    // The snapper for this event, or none when snapping is off or suspended.
    std::optional<CSnapper> SnapperFor(CCanvasToolHost& host, MouseFlags flags) const;
    // Where a selected widget would go if the drag ended with this step, in widget coordinates.
    HmiRect ProspectiveRect(CCanvasToolHost& host, CHmiWidget& widget, const DragStep& step) const;
    std::vector<HmiRect> Feedback(CCanvasToolHost& host, HmiPoint point, const DragStep& step) const;
    void ShowHoverCursor(CCanvasToolHost& host, HmiPoint point) const;
    void EndCapture(CCanvasToolHost& host);

    CanvasTool m_tool = CanvasTool::Select;
    DragMode m_mode = DragMode::None;
    int m_handle = 0;
    HmiPoint m_pressPoint;
    HmiPoint m_placeCorner; // the placing tool's press point in window coordinates, snapped
    HmiPoint m_lastPoint;
    bool m_capturing = false;
};
