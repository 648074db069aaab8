#include "hmiwidgetgradellipse.h"

#include "gradientpainter.h"

HMI_IMPLEMENT_WIDGET_CLASS(CHmiWidgetGradEllipse, CHmiWidget)

namespace {

constexpr const char* kEllipseDirections[] = {
    "Horizontal center to sides",
    "Vertical center to sides",
    "Center to Edge",
};

} // namespace

std::span<const PropertySpec<CHmiWidgetGradEllipse>> CHmiWidgetGradEllipse::Properties()
{
    static const PropertySpec<CHmiWidgetGradEllipse> properties[] = {
        {.key = "startcolor",
         .label = "startcolor",
         .description = "Set gradient start color",
         .itemType = PROP_COLOR,
         .color = &CHmiWidgetGradEllipse::m_startColor},
        {.key = "endcolor",
         .label = "endcolor",
         .description = "Set gradient end color",
         .itemType = PROP_COLOR,
         .color = &CHmiWidgetGradEllipse::m_endColor},
        {.key = "direction",
         .label = "direction",
         .description = "Set gradient direction",
         .itemType = PROP_COMBO,
         .number = &CHmiWidgetGradEllipse::m_nDirection,
         .choices = kEllipseDirections,
         .codeOffset = 0},
    };
    return properties;
}

void CHmiWidgetGradEllipse::Draw(CHmiDC& dc)
{
    PaintEllipseGradient(dc, m_rect, m_startColor, m_endColor, m_nDirection);
}
