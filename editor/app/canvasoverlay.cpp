#include "canvasoverlay.h"

#include <QChildEvent>
#include <QPaintEvent>
#include <QPainter>

CCanvasOverlay::CCanvasOverlay(QWidget& canvas, Paint paint) : QWidget(&canvas), m_paint(std::move(paint))
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setAttribute(Qt::WA_NoSystemBackground);
    setFocusPolicy(Qt::NoFocus);
    setGeometry(canvas.rect());
    canvas.installEventFilter(this);
}

bool CCanvasOverlay::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Resize)
        resize(static_cast<QWidget*>(watched)->size());
    else if (event->type() == QEvent::ChildAdded && static_cast<QChildEvent*>(event)->child() != this)
        raise();
    return false;
}

void CCanvasOverlay::paintEvent(QPaintEvent* event)
{
    QPainter painter(this);
    m_paint(painter, event->region());
}
