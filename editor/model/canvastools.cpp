#include "canvastools.h"

#include "canvasgeometry.h"
#include "canvasselection.h"
#include "widgets/hmiview.h"
#include "widgets/hmiwidgetwindow.h"
#include "widgets/tamlodoc.h"

#include <algorithm>
#include <cstdlib>

namespace {

// How near, in screen pixels, a dragged line must come to another to snap to it.
constexpr int kSnapPixels = 5;

HmiRect RectBetween(HmiPoint a, HmiPoint b)
{
    return HmiRect{a.x, a.y, b.x, b.y}.Normalized();
}

HmiRect Offset(const HmiRect& rect, int dx, int dy)
{
    return {rect.left + dx, rect.top + dy, rect.right + dx, rect.bottom + dy};
}

// The rectangle around the widgets as the canvas shows them.
HmiRect BoundsOf(const std::vector<CHmiWidget*>& widgets)
{
    HmiRect bounds = CanvasRect(*widgets.front()).Normalized();
    for (const CHmiWidget* widget : widgets) {
        const HmiRect r = CanvasRect(*widget).Normalized();
        bounds = {std::min(bounds.left, r.left), std::min(bounds.top, r.top), std::max(bounds.right, r.right),
                  std::max(bounds.bottom, r.bottom)};
    }
    return bounds;
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
    if (m_tool == CanvasTool::Place && m_mode == DragMode::Resize) {
        DragStep step = StepTo(host, point, flags);
        m_placeCorner = step.docPoint;
        host.ShowSnapGuides(std::move(step.guides));
    }
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

void CCanvasTools::MouseMove(CCanvasToolHost& host, HmiPoint point, MouseFlags flags)
{
    if (!m_capturing) {
        ShowHoverCursor(host, point);
        return;
    }
    m_lastPoint = point;
    DragStep step = StepTo(host, point, flags);
    if (m_tool == CanvasTool::Place) {
        host.SetCanvasCursor(CanvasCursor::Cross);
        if (m_mode == DragMode::Resize) {
            const CHmiView& view = host.Selection().View();
            host.ShowDragFeedback({RectBetween(view.DocToClient(m_placeCorner), view.DocToClient(step.docPoint))});
        }
    } else {
        host.SetCanvasCursor(m_mode == DragMode::Resize
                                 ? CursorOf(host.Selection().Widgets().front()->GetHandleCursor(m_handle))
                                 : CanvasCursor::Arrow);
        host.ShowDragFeedback(Feedback(host, point, step));
    }
    host.ShowSnapGuides(std::move(step.guides));
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

CCanvasTools::DragStep CCanvasTools::StepTo(CCanvasToolHost& host, HmiPoint point, MouseFlags flags) const
{
    CCanvasSelection& selection = host.Selection();
    // A move's offset is the mouse's from the press in window units: at 100 % the client offset
    // applied unchanged.
    const HmiPoint to = selection.View().ClientToDoc(point);
    const HmiPoint from = selection.View().ClientToDoc(m_pressPoint);
    DragStep step{{to.x - from.x, to.y - from.y}, to, {}};
    const std::optional<CSnapper> snapper = SnapperFor(host, flags);
    if (!snapper)
        return step;
    SnapResult snap;
    if (m_mode == DragMode::Move) {
        // A selection moves as one: its bounding box snaps.
        snap = snapper->SnapRect(Offset(BoundsOf(selection.Widgets()), step.offset.x, step.offset.y));
        step.offset = {step.offset.x + snap.shift.x, step.offset.y + snap.shift.y};
    } else {
        // Handles 2 and 6 move only the top or the bottom edge, 4 and 8 only the right or the left.
        snap = snapper->SnapPoint(step.docPoint, m_handle != 2 && m_handle != 6, m_handle != 4 && m_handle != 8);
        step.docPoint = {step.docPoint.x + snap.shift.x, step.docPoint.y + snap.shift.y};
    }
    step.guides = std::move(snap.guides);
    return step;
}

std::optional<CSnapper> CCanvasTools::SnapperFor(CCanvasToolHost& host, MouseFlags flags) const
{
    const LayoutAids aids = host.Aids();
    const bool reshaping = m_mode == DragMode::Move || m_mode == DragMode::Resize;
    const bool locked = m_tool == CanvasTool::Select && host.IsLocked();
    CCanvasSelection& selection = host.Selection();
    if (flags.alt || !aids.Snaps() || !reshaping || locked || (m_tool == CanvasTool::Select && selection.IsEmpty()))
        return std::nullopt;
    std::vector<const CHmiWidget*> moving;
    if (m_tool == CanvasTool::Select)
        moving.assign(selection.Widgets().begin(), selection.Widgets().end());
    // The reach is a few screen pixels, however the view scales the window.
    const CHmiView& view = selection.View();
    const int reach = std::abs(view.ClientToDoc({kSnapPixels, 0}).x - view.ClientToDoc({0, 0}).x);
    return CSnapper(selection.Document(), aids, reach, std::move(moving));
}

HmiRect CCanvasTools::ProspectiveRect(CCanvasToolHost& host, CHmiWidget& widget, const DragStep& step) const
{
    CHmiView& view = host.Selection().View();
    if (m_mode == DragMode::Move)
        return Offset(widget.GetWidgetRect(), step.offset.x, step.offset.y);
    return widget.MoveHandleTo(m_handle, ToWidgetSpace(widget, step.docPoint), &view, false);
}

std::vector<HmiRect> CCanvasTools::Feedback(CCanvasToolHost& host, HmiPoint point, const DragStep& step) const
{
    if (m_mode == DragMode::RubberBand)
        return {RectBetween(m_pressPoint, point)};
    if (host.IsLocked() || m_mode == DragMode::None)
        return {};
    CCanvasSelection& selection = host.Selection();
    std::vector<HmiRect> rects;
    for (CHmiWidget* widget : selection.Widgets()) {
        const HmiRect rect = ProspectiveRect(host, *widget, step).Normalized();
        const HmiPoint origin = CanvasOrigin(*widget);
        const HmiPoint topLeft = selection.View().DocToClient({rect.left - origin.x, rect.top - origin.y});
        const HmiPoint bottomRight = selection.View().DocToClient({rect.right - origin.x, rect.bottom - origin.y});
        rects.push_back({topLeft.x, topLeft.y, bottomRight.x, bottomRight.y});
    }
    return rects;
}

void CCanvasTools::ButtonUp(CCanvasToolHost& host, HmiPoint point, MouseFlags flags)
{
    if (!m_capturing)
        return;
    m_lastPoint = point;
    host.ShowDragFeedback({});
    host.ShowSnapGuides({});
    const DragStep step = StepTo(host, point, flags);
    if (m_tool == CanvasTool::Place)
        PlaceButtonUp(host, point, step);
    else
        SelectButtonUp(host, point, step);
}

void CCanvasTools::SelectButtonUp(CCanvasToolHost& host, HmiPoint point, const DragStep& step)
{
    CCanvasSelection& selection = host.Selection();
    if (m_mode == DragMode::RubberBand)
        selection.SelectInRect(RectBetween(m_pressPoint, point), true);
    else if (!host.IsLocked())
        ApplyDrag(host, step);
    EndCapture(host);
}

void CCanvasTools::ApplyDrag(CCanvasToolHost& host, const DragStep& step)
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
            widget->MoveTo(ProspectiveRect(host, *widget, step), &view);
        else if (m_handle != 0)
            widget->MoveHandleTo(m_handle, ToWidgetSpace(*widget, step.docPoint), &view, true);
    }
    if (record)
        document.EndUndoStep();
}

void CCanvasTools::PlaceButtonUp(CCanvasToolHost& host, HmiPoint point, const DragStep& step)
{
    if (point == m_pressPoint) {
        // A plain click places nothing: there is no default size.
        EndCapture(host);
        return;
    }
    if (m_mode == DragMode::Resize)
        PlaceWidget(host, RectBetween(m_placeCorner, step.docPoint));
    m_mode = DragMode::None;
    host.SetMouseCapture(false);
    m_capturing = false;
}

void CCanvasTools::PlaceWidget(CCanvasToolHost& host, HmiRect rect)
{
    HmiWidgetPtr widget = CHmiWidget::CurWidgetClass->CreateObject();
    if (!widget)
        return;
    CCanvasSelection& selection = host.Selection();
    CHmiView& view = selection.View();
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
    host.ShowSnapGuides({});
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
