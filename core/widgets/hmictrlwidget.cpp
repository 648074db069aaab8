#include "hmictrlwidget.h"

#include "hmiview.h"

HMI_IMPLEMENT_WIDGET_CLASS(CHmiCtrlWidget, CHmiWidget)

CHmiCtrlWidget::CHmiCtrlWidget() = default;
CHmiCtrlWidget::~CHmiCtrlWidget() = default;

void CHmiCtrlWidget::Draw(CHmiDC& dc)
{
    if (!m_pControl)
        DrawWithoutControl(dc);
    else if (PlaceControl() && m_pView)
        m_pView->InvalidateView();
}

bool CHmiCtrlWidget::PlaceControl()
{
    if (!m_pControl)
        return false;
    HmiRect wanted = m_rect;
    if (m_pView) {
        const HmiPoint topLeft = m_pView->DocToClient({m_rect.left, m_rect.top});
        const HmiPoint bottomRight = m_pView->DocToClient({m_rect.right, m_rect.bottom});
        wanted = {topLeft.x, topLeft.y, bottomRight.x, bottomRight.y};
    }
    if (m_pControl->GetClientRect() == wanted)
        return false;
    m_pControl->MoveTo(wanted);
    return true;
}

void CHmiCtrlWidget::DrawWithoutControl(CHmiDC&) {}

void CHmiCtrlWidget::SetCtrlWndProc(std::unique_ptr<CHmiControl> control)
{
    m_pControl = std::move(control);
}

void CHmiCtrlWidget::Hide()
{
    if (m_pControl)
        m_pControl->Hide();
}
