#include "canvaszoomer.h"

#include "tamloview.h"

#include "editor/model/canvasgeometry.h"
#include "widgets/tamlodoc.h"

#include <QScrollArea>
#include <QScrollBar>
#include <QWheelEvent>

namespace {

// One notch of an ordinary mouse wheel, in eighths of a degree.
constexpr int kWheelNotch = 120;

} // namespace

CCanvasZoomer::CCanvasZoomer(QScrollArea& scroller, CTamloView& view)
    : QObject(&view), m_scroller(scroller), m_view(view)
{
    view.installEventFilter(this);
}

void CCanvasZoomer::ZoomIn()
{
    ZoomAround(CCanvasMapping::StepIn(m_view.Mapping().Percent()), ViewportCentre());
}

void CCanvasZoomer::ZoomOut()
{
    ZoomAround(CCanvasMapping::StepOut(m_view.Mapping().Percent()), ViewportCentre());
}

void CCanvasZoomer::ZoomToActualSize()
{
    ZoomAround(100, ViewportCentre());
}

void CCanvasZoomer::FitWindow()
{
    const CHmiWidget* window = m_view.Document().FindWindowWidget();
    const HmiRect rect = window ? CanvasRect(*window) : HmiRect{};
    // The canvas's empty border right and below the window stays in view too.
    const QSize room =
        m_scroller.maximumViewportSize() - QSize(CTamloView::kCanvasMargin, CTamloView::kCanvasMargin);
    m_view.SetZoomPercent(CCanvasMapping::FitPercent({rect.right, rect.bottom}, {room.width(), room.height()}));
}

QPoint CCanvasZoomer::ViewportCentre() const
{
    return m_scroller.viewport()->rect().center();
}

void CCanvasZoomer::ZoomAround(int percent, QPoint viewportPoint)
{
    const QPoint client = m_view.mapFrom(m_scroller.viewport(), viewportPoint);
    const HmiPoint anchor = m_view.ClientToDoc({client.x(), client.y()});
    m_view.SetZoomPercent(percent);
    const HmiPoint moved = m_view.DocToClient(anchor);
    m_scroller.horizontalScrollBar()->setValue(moved.x - viewportPoint.x());
    m_scroller.verticalScrollBar()->setValue(moved.y - viewportPoint.y());
}

bool CCanvasZoomer::eventFilter(QObject*, QEvent* event)
{
    if (event->type() != QEvent::Wheel)
        return false;
    auto* wheel = static_cast<QWheelEvent*>(event);
    if (!wheel->modifiers().testFlag(Qt::ControlModifier))
        return false;
    m_wheelTurn += wheel->angleDelta().y();
    const QPoint at = m_scroller.viewport()->mapFromGlobal(wheel->globalPosition().toPoint());
    for (; m_wheelTurn >= kWheelNotch; m_wheelTurn -= kWheelNotch)
        ZoomAround(CCanvasMapping::StepIn(m_view.Mapping().Percent()), at);
    for (; m_wheelTurn <= -kWheelNotch; m_wheelTurn += kWheelNotch)
        ZoomAround(CCanvasMapping::StepOut(m_view.Mapping().Percent()), at);
    wheel->accept();
    return true;
}
