// A widget library with one widget kind, built the way a third party builds one. Built with
// LIBRARY_NAME it is another library with a class of the same key; with STATED_INTERFACE_VERSION
// it claims that version of the interface, or none when that is 0.
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

#ifndef STATED_INTERFACE_VERSION
HMI_WIDGET_LIBRARY_INTERFACE
#elif STATED_INTERFACE_VERSION
extern "C" __attribute__((visibility("default"))) const int WidgetsLibInterfaceVersion = STATED_INTERFACE_VERSION;
#endif

#ifndef LIBRARY_NAME
#define LIBRARY_NAME "samplewidgets"
#endif

extern "C" int WidgetsLibInit()
{
    return RegisterWidgetsLib(LIBRARY_NAME, 1, kClasses);
}
