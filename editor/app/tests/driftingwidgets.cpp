// A widget library whose widget moves to a resting place the first time it is drawn, so that a
// window showing it becomes modified without any input: how the recovery tests change a window
// in an editor that runs in another process.
#include "widgets/widgetlibrary.h"

namespace {

class CDriftingWidget : public CHmiWidget {
    HMI_DECLARE_WIDGET_CLASS(CDriftingWidget)
public:
    static constexpr int kRestingLeft = 100;

    std::string GetWidgetClassName() const override { return "drifter"; }
    void Draw(CHmiDC& dc) override
    {
        if (m_rect.left != kRestingLeft)
            MoveTo({kRestingLeft, m_rect.top, kRestingLeft + m_rect.Width(), m_rect.bottom}, nullptr);
        CHmiWidget::Draw(dc);
    }
};
HMI_IMPLEMENT_WIDGET_CLASS(CDriftingWidget, CHmiWidget)

const CWidgetRunTimeClass kClasses[] = {
    {"drifter", &CDriftingWidget::classCDriftingWidget},
};

} // namespace

HMI_WIDGET_LIBRARY_INTERFACE

extern "C" int WidgetsLibInit()
{
    return RegisterWidgetsLib("driftingwidgets", 1, kClasses);
}
