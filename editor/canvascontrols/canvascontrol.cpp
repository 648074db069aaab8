#include "canvascontrol.h"

#include "widgets/windowpainter.h"

#include <algorithm>

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
    // Where the canvas draws, and no larger than the largest window drawn whole: the controls
    // may paint through an image of their own size.
    const HmiRect r = clientRect.ForDrawing().Normalized();
    m_widget->setGeometry(r.left, r.top, std::min(r.Width(), kMaxDrawnWindowExtent),
                          std::min(r.Height(), kMaxDrawnWindowExtent));
    m_widget->update();
}

void CCanvasControl::Hide()
{
    if (m_widget)
        m_widget->hide();
}
