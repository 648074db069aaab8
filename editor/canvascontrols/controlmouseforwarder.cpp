#include "controlmouseforwarder.h"

#include <QApplication>
#include <QHeaderView>
#include <QMouseEvent>
#include <QStyle>

namespace {

bool IsMouseButtonOrMove(QEvent::Type type)
{
    return type == QEvent::MouseButtonPress || type == QEvent::MouseButtonRelease ||
           type == QEvent::MouseButtonDblClick || type == QEvent::MouseMove;
}

// A header takes its mouse on its viewport, a widget of its own.
QHeaderView* HeaderOfViewport(QObject* watched)
{
    auto* widget = qobject_cast<QWidget*>(watched);
    auto* header = widget ? qobject_cast<QHeaderView*>(widget->parentWidget()) : nullptr;
    return header && header->viewport() == widget ? header : nullptr;
}

// Whether x lies on a column divider, as the header itself tells one when a press starts a resize:
// inside a column and within the grip margin of its right edge, or of its left edge where a
// column stands before it.
bool IsOnDivider(const QHeaderView& header, int x)
{
    const int visual = header.visualIndexAt(x);
    if (visual < 0)
        return false;
    const int column = header.logicalIndex(visual);
    const int start = header.sectionViewportPosition(column);
    const int grip = header.style()->pixelMetric(QStyle::PM_HeaderGripMargin, nullptr, &header);
    return (visual > 0 && x < start + grip) || x > start + header.sectionSize(column) - grip;
}

} // namespace

CControlMouseForwarder::CControlMouseForwarder(QWidget& canvas) : QObject(&canvas), m_canvas(canvas) {}

void CControlMouseForwarder::Attach(QWidget& control)
{
    QList<QWidget*> parts = control.findChildren<QWidget*>();
    parts.prepend(&control);
    for (QWidget* part : parts) {
        part->installEventFilter(this);
        part->setCursor(Qt::ArrowCursor);
        part->setFocusPolicy(Qt::NoFocus);
        part->setContextMenuPolicy(Qt::NoContextMenu); // the event goes on to the canvas
    }
}

bool CControlMouseForwarder::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Wheel) {
        // Ignored and filtered: the application hands it on to the parents, up to the canvas's
        // scroll area, and the control never sees it (a combo box would change its item).
        event->ignore();
        return true;
    }
    if (!IsMouseButtonOrMove(event->type()))
        return false;
    auto& mouse = static_cast<QMouseEvent&>(*event);
    if (QHeaderView* header = HeaderOfViewport(watched); header && KeepForHeader(*header, mouse))
        return false;
    ForwardToCanvas(static_cast<QWidget&>(*watched), mouse);
    return true;
}

bool CControlMouseForwarder::KeepForHeader(QHeaderView& header, const QMouseEvent& event)
{
    const int x = event.position().toPoint().x();
    switch (event.type()) {
    case QEvent::MouseButtonPress:
        if (event.button() != Qt::LeftButton || !IsOnDivider(header, x))
            return false;
        m_resizingHeader = &header;
        return true;
    case QEvent::MouseMove:
        return m_resizingHeader == &header || event.buttons() == Qt::NoButton;
    case QEvent::MouseButtonRelease:
        if (m_resizingHeader != &header)
            return false;
        m_resizingHeader = nullptr;
        return true;
    default:
        return false; // a double click on a divider would fit the column to its text
    }
}

void CControlMouseForwarder::ForwardToCanvas(QWidget& source, const QMouseEvent& event)
{
    const QPointF atCanvas = source.mapTo(&m_canvas, event.position());
    QMouseEvent forwarded(event.type(), atCanvas, event.globalPosition(), event.button(), event.buttons(),
                          event.modifiers(), event.pointingDevice());
    QApplication::sendEvent(&m_canvas, &forwarded);
}
