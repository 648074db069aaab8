#pragma once

#include "base/hmitypes.h"
#include "widgets/hmiwidget.h"

#include <vector>

class CCanvasSelection;

// The keys held when a mouse button went down.
struct MouseFlags {
    bool control = false;
    bool shift = false;
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
};

enum class CanvasTool { Select = 0, Place = 1 };

// The mouse tools of every canvas: the selection tool, which selects, moves and resizes, and
// the placing tool, which creates a widget of CHmiWidget::CurWidgetClass over a dragged
// rectangle. One tool is current for all canvases of the editor and one drag happens at a
// time, so the canvases share one object (the editor session's). Points are in the canvas's
// client coordinates.
class CCanvasTools {
public:
    CanvasTool CurrentTool() const { return m_tool; }
    void SetCurrentTool(CanvasTool tool) { m_tool = tool; }

    void ButtonDown(CCanvasToolHost& host, HmiPoint point, MouseFlags flags);
    void MouseMove(CCanvasToolHost& host, HmiPoint point);
    void ButtonUp(CCanvasToolHost& host, HmiPoint point);
    void DoubleClick(CCanvasToolHost& host, HmiPoint point, MouseFlags flags);
    // Ends any drag and makes the selection tool current again.
    void Cancel(CCanvasToolHost& host);

    bool IsDragging() const { return m_capturing; }

private:
    enum class DragMode { None = 0, RubberBand = 1, Move = 2, Resize = 3 };

    void SelectButtonDown(CCanvasToolHost& host, HmiPoint point, MouseFlags flags);
    void SelectButtonUp(CCanvasToolHost& host, HmiPoint point);
    void PlaceButtonUp(CCanvasToolHost& host, HmiPoint point);
    void PlaceWidget(CCanvasToolHost& host, const HmiRect& clientRect);
    void ApplyDrag(CCanvasToolHost& host, HmiPoint point);
    // Where a selected widget would go if the drag ended at this point, in widget coordinates.
    HmiRect ProspectiveRect(CCanvasToolHost& host, CHmiWidget& widget, HmiPoint point) const;
    std::vector<HmiRect> Feedback(CCanvasToolHost& host, HmiPoint point) const;
    void ShowHoverCursor(CCanvasToolHost& host, HmiPoint point) const;
    void EndCapture(CCanvasToolHost& host);

    CanvasTool m_tool = CanvasTool::Select;
    DragMode m_mode = DragMode::None;
    int m_handle = 0;
    HmiPoint m_pressPoint;
    HmiPoint m_lastPoint;
    bool m_capturing = false;
};
