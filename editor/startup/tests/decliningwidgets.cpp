// A widget library that registers its class and then refuses to run, as one does that finds
// something it needs missing only after registering.
#include "widgets/core/widgetlibrary.h"

namespace {

class CDialWidget : public CHmiWidget {
    HMI_DECLARE_WIDGET_CLASS(CDialWidget)
public:
    std::string GetWidgetClassName() const override { return "dial"; }
};
HMI_IMPLEMENT_WIDGET_CLASS(CDialWidget, CHmiWidget)

const CWidgetRunTimeClass kClasses[] = {
    {"dial", &CDialWidget::classCDialWidget},
};

} // namespace

extern "C" int WidgetsLibInit()
{
    RegisterWidgetsLib("decliningwidgets", 1, kClasses);
    return 0;
}
