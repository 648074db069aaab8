#pragma once

#include <QObject>
#include <QPointer>

class QHeaderView;
class QMouseEvent;
class QWidget;

// Keeps the live controls of a canvas from taking the mouse: presses, moves, releases and double
// clicks on a control or any of its parts go to the canvas instead, in canvas coordinates, so that
// the canvas tools select, move and resize the control's widget like any other. The controls show
// the arrow cursor, never take the keyboard focus, leave right clicks to the canvas's menu and
// let the wheel scroll the canvas. The one exception is a list header's column divider: it is
// dragged on the header itself, so that the user can set the column widths.
class CControlMouseForwarder : public QObject {
public:
    explicit CControlMouseForwarder(QWidget& canvas);

    // Takes over the mouse of the control and of every widget inside it.
    void Attach(QWidget& control);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    // Whether a mouse event on a header belongs to the header: a drag of a column divider, or the
    // hovering that shows the divider cursor.
    bool KeepForHeader(QHeaderView& header, const QMouseEvent& event);
    void ForwardToCanvas(QWidget& source, const QMouseEvent& event);

    QWidget& m_canvas;
    QPointer<QHeaderView> m_resizingHeader; // whose divider the user is dragging
};
