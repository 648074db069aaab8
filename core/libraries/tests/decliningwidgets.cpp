// A widget library that registers its class and then refuses to run, as one does that finds
// something it needs missing only after registering. It declines, or, built with
// REFUSE_BY_THROWING, throws.
#include "widgets/widgetlibrary.h"

#include <stdexcept>

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

HMI_WIDGET_LIBRARY_INTERFACE

extern "C" int WidgetsLibInit()
{
    RegisterWidgetsLib("dialwidgets", 1, kClasses);
#ifdef REFUSE_BY_THROWING
    throw std::runtime_error("the dial calibration file is missing");
#else
    return 0;
#endif
}
