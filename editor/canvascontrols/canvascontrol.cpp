#include "canvascontrol.h"

CCanvasControl::CCanvasControl(QWidget* widget) : m_widget(widget) {}

CCanvasControl::~CCanvasControl()
{
    delete m_widget;
}

HmiRect CCanvasControl::GetClientRect() const
{
    return m_clientRect;
}

void CCanvasControl::MoveTo(const HmiRect& clientRect)
{
    m_clientRect = clientRect;
    if (!m_widget)
        return;
    const HmiRect r = clientRect.ForDrawing().Normalized(); // as far as the canvas draws
    m_widget->setGeometry(r.left, r.top, r.Width(), r.Height());
    m_widget->update();
}

void CCanvasControl::Hide()
{
    if (m_widget)
        m_widget->hide();
}
