// A widget library with one widget kind, built the way a third party builds one.
#include "catalogue/propertytable.h"
#include "widgets/widgetlibrary.h"

namespace {

class CGaugeWidget : public CHmiTableWidget<CGaugeWidget> {
    HMI_DECLARE_WIDGET_CLASS(CGaugeWidget)
public:
    static constexpr const char* kClassKey = "gauge";
    static constexpr const char* kGroup = "Gauge";
    static constexpr const char* kRootText = "Gauge properties";
    static std::span<const PropertySpec<CGaugeWidget>> Properties();

    HmiColor m_needleColor = 0x000000FF;
};
HMI_IMPLEMENT_WIDGET_CLASS(CGaugeWidget, CHmiWidget)

std::span<const PropertySpec<CGaugeWidget>> CGaugeWidget::Properties()
{
    static const PropertySpec<CGaugeWidget> properties[] = {
        {.key = "needle", .label = "Needle", .description = "Needle colour", .itemType = PROP_COLOR,
         .color = &CGaugeWidget::m_needleColor},
    };
    return properties;
}

const CWidgetRunTimeClass kClasses[] = {
    {"gauge", &CGaugeWidget::classCGaugeWidget},
};

} // namespace

extern "C" int WidgetsLibInit()
{
    return RegisterWidgetsLib("samplewidgets", 1, kClasses);
}
