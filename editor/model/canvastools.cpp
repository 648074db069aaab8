#include "canvastools.h"

#include "canvasgeometry.h"
#include "canvasselection.h"
#include "widgets/hmiview.h"
#include "widgets/hmiwidgetwindow.h"
#include "widgets/tamlodoc.h"

namespace {

HmiRect RectBetween(HmiPoint a, HmiPoint b)
{
    return HmiRect{a.x, a.y, b.x, b.y}.Normalized();
}

HmiRect Offset(const HmiRect& rect, int dx, int dy)
{
    return {rect.left + dx, rect.top + dy, rect.right + dx, rect.bottom + dy};
}

bool IsEmptyRect(const HmiRect& rect)
{
    return rect.right <= rect.left || rect.bottom <= rect.top;
}

CanvasCursor CursorOf(HmiCursor cursor)
{
    switch (cursor) {
    case HmiCursor::SizeNWSE: return CanvasCursor::SizeNWSE;
    case HmiCursor::SizeNESW: return CanvasCursor::SizeNESW;
    case HmiCursor::SizeNS: return CanvasCursor::SizeNS;
    case HmiCursor::SizeWE: return CanvasCursor::SizeWE;
    case HmiCursor::Arrow: break;
    }
    return CanvasCursor::Arrow;
}

// The handle of the only selected widget under a canvas point, or 0.
int HandleUnder(CCanvasSelection& selection, HmiPoint canvasPoint)
{
    if (selection.Widgets().size() != 1)
        return 0;
    const CHmiWidget& widget = *selection.Widgets().front();
    return widget.HitTest(ToWidgetSpace(widget, canvasPoint), &selection.View(), 1);
}

} // namespace

void CCanvasTools::ButtonDown(CCanvasToolHost& host, HmiPoint point, MouseFlags flags)
{
    m_mode = DragMode::None;
    m_handle = 0;
    if (m_tool == CanvasTool::Select)
        SelectButtonDown(host, point, flags);
    else if (CHmiWidget::CurWidgetClass) {
        m_mode = DragMode::Resize;
        m_handle = 1;
    }
    host.SetMouseCapture(true);
    m_capturing = true;
    m_pressPoint = point;
    m_lastPoint = point;
}

void CCanvasTools::SelectButtonDown(CCanvasToolHost& host, HmiPoint point, MouseFlags flags)
{
    CCanvasSelection& selection = host.Selection();
    const HmiPoint logical = selection.View().ClientToDoc(point);
    m_handle = HandleUnder(selection, logical);
    if (m_handle != 0) {
        m_mode = DragMode::Resize;
        return;
    }
    if (CHmiWidget* hit = selection.Document().DocumentHitTest(logical)) {
        m_mode = DragMode::Move;
        // Pressing on a selected widget keeps the selection, so that all of it moves together.
        if (!selection.IsSelected(hit))
            selection.Select(hit, flags.control);
        return;
    }
    if (!flags.shift)
        selection.Select(nullptr, false);
    m_mode = DragMode::RubberBand;
    host.ShowDragFeedback({});
}

void CCanvasTools::MouseMove(CCanvasToolHost& host, HmiPoint point)
{
    if (!m_capturing) {
        ShowHoverCursor(host, point);
        return;
    }
    m_lastPoint = point;
    if (m_tool == CanvasTool::Place) {
        host.SetCanvasCursor(CanvasCursor::Cross);
        if (m_mode == DragMode::Resize)
            host.ShowDragFeedback({RectBetween(m_pressPoint, point)});
        return;
    }
    host.SetCanvasCursor(m_mode == DragMode::Resize
                             ? CursorOf(host.Selection().Widgets().front()->GetHandleCursor(m_handle))
                             : CanvasCursor::Arrow);
    host.ShowDragFeedback(Feedback(host, point));
}

void CCanvasTools::ShowHoverCursor(CCanvasToolHost& host, HmiPoint point) const
{
    if (m_tool == CanvasTool::Place) {
        host.SetCanvasCursor(CanvasCursor::Cross);
        return;
    }
    CCanvasSelection& selection = host.Selection();
    const int handle = HandleUnder(selection, selection.View().ClientToDoc(point));
    host.SetCanvasCursor(handle ? CursorOf(selection.Widgets().front()->GetHandleCursor(handle))
                                : CanvasCursor::Arrow);
}

HmiRect CCanvasTools::ProspectiveRect(CCanvasToolHost& host, CHmiWidget& widget, HmiPoint point) const
{
    CHmiView& view = host.Selection().View();
    if (m_mode == DragMode::Move) {
        // The offset is taken in client coordinates and applied unchanged.
        return Offset(widget.GetWidgetRect(), point.x - m_pressPoint.x, point.y - m_pressPoint.y);
    }
    return widget.MoveHandleTo(m_handle, ToWidgetSpace(widget, view.ClientToDoc(point)), &view, false);
}

std::vector<HmiRect> CCanvasTools::Feedback(CCanvasToolHost& host, HmiPoint point) const
{
    if (m_mode == DragMode::RubberBand)
        return {RectBetween(m_pressPoint, point)};
    if (host.IsLocked() || m_mode == DragMode::None)
        return {};
    CCanvasSelection& selection = host.Selection();
    std::vector<HmiRect> rects;
    for (CHmiWidget* widget : selection.Widgets()) {
        const HmiRect rect = ProspectiveRect(host, *widget, point).Normalized();
        const HmiPoint origin = CanvasOrigin(*widget);
        const HmiPoint topLeft = selection.View().DocToClient({rect.left - origin.x, rect.top - origin.y});
        const HmiPoint bottomRight = selection.View().DocToClient({rect.right - origin.x, rect.bottom - origin.y});
        rects.push_back({topLeft.x, topLeft.y, bottomRight.x, bottomRight.y});
    }
    return rects;
}

void CCanvasTools::ButtonUp(CCanvasToolHost& host, HmiPoint point)
{
    if (!m_capturing)
        return;
    m_lastPoint = point;
    host.ShowDragFeedback({});
    if (m_tool == CanvasTool::Place)
        PlaceButtonUp(host, point);
    else
        SelectButtonUp(host, point);
}

void CCanvasTools::SelectButtonUp(CCanvasToolHost& host, HmiPoint point)
{
    CCanvasSelection& selection = host.Selection();
    if (m_mode == DragMode::RubberBand)
        selection.SelectInRect(RectBetween(m_pressPoint, point), true);
    else if (!host.IsLocked())
        ApplyDrag(host, point);
    EndCapture(host);
}

void CCanvasTools::ApplyDrag(CCanvasToolHost& host, HmiPoint point)
{
    CCanvasSelection& selection = host.Selection();
    const std::vector<CHmiWidget*>& widgets = selection.Widgets();
    const bool record = widgets.size() > 1 || (widgets.size() == 1 && !IsEmptyRect(widgets.front()->GetWidgetRect()));
    CTamloDoc& document = selection.Document();
    if (record)
        document.BeginUndoStep();
    CHmiView& view = selection.View();
    for (CHmiWidget* widget : widgets) {
        if (record)
            document.RecordUndo(UndoOperation::Changed, widget);
        if (m_mode == DragMode::Move)
            widget->MoveTo(ProspectiveRect(host, *widget, point), &view);
        else if (m_handle != 0)
            widget->MoveHandleTo(m_handle, ToWidgetSpace(*widget, view.ClientToDoc(point)), &view, true);
    }
    if (record)
        document.EndUndoStep();
}

void CCanvasTools::PlaceButtonUp(CCanvasToolHost& host, HmiPoint point)
{
    if (point == m_pressPoint) {
        // A plain click places nothing: there is no default size.
        EndCapture(host);
        return;
    }
    if (m_mode == DragMode::Resize)
        PlaceWidget(host, RectBetween(m_pressPoint, point));
    m_mode = DragMode::None;
    host.SetMouseCapture(false);
    m_capturing = false;
}

void CCanvasTools::PlaceWidget(CCanvasToolHost& host, const HmiRect& clientRect)
{
    HmiWidgetPtr widget = CHmiWidget::CurWidgetClass->CreateObject();
    if (!widget)
        return;
    CCanvasSelection& selection = host.Selection();
    CHmiView& view = selection.View();
    const HmiPoint topLeft = view.ClientToDoc({clientRect.left, clientRect.top});
    const HmiPoint bottomRight = view.ClientToDoc({clientRect.right, clientRect.bottom});
    HmiRect rect{topLeft.x, topLeft.y, bottomRight.x, bottomRight.y};
    if (IsWindowWidget(*widget)) {
        // A placed window keeps its position on the panel and takes the dragged corner as its
        // size; its bottom is taken from the dragged top, as panels have always read it.
        const HmiRect& old = widget->GetWidgetRect();
        rect = {old.left, old.top, old.left + rect.right, old.top + rect.top};
    }
    widget->SetWidgetRect(rect);
    widget->m_pView = &view;
    CHmiWidget* placed = widget.get();
    CTamloDoc& document = selection.Document();
    CUndoStepGuard step(document);
    if (!document.AddWidget(std::move(widget), true))
        return;
    step.Record(UndoOperation::Added, placed);
    selection.Select(placed, false);
}

void CCanvasTools::DoubleClick(CCanvasToolHost& host, HmiPoint point, MouseFlags flags)
{
    if (m_tool != CanvasTool::Select || !flags.shift)
        return;
    CCanvasSelection& selection = host.Selection();
    if (CHmiWidget* hit = selection.Document().DocumentHitTest(selection.View().ClientToDoc(point)))
        selection.Deselect(hit);
}

void CCanvasTools::Cancel(CCanvasToolHost& host)
{
    host.ShowDragFeedback({});
    if (m_capturing)
        host.SetMouseCapture(false);
    m_capturing = false;
    m_mode = DragMode::None;
    m_tool = CanvasTool::Select;
}

void CCanvasTools::EndCapture(CCanvasToolHost& host)
{
    host.SetMouseCapture(false);
    m_capturing = false;
    if (m_lastPoint == m_pressPoint)
        m_tool = CanvasTool::Select;
    m_mode = DragMode::None;
}
