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

std::span<const ShapeProperty<CHmiWidgetGradEllipse>> CHmiWidgetGradEllipse::Properties()
{
    static const ShapeProperty<CHmiWidgetGradEllipse> properties[] = {
        {"startcolor", "Set gradient start color", PROP_COLOR, &CHmiWidgetGradEllipse::m_startColor},
        {"endcolor", "Set gradient end color", PROP_COLOR, &CHmiWidgetGradEllipse::m_endColor},
        {"direction", "Set gradient direction", PROP_COMBO, nullptr, &CHmiWidgetGradEllipse::m_nDirection,
         kEllipseDirections, 0},
    };
    return properties;
}

void CHmiWidgetGradEllipse::Draw(CHmiDC& dc)
{
    PaintEllipseGradient(dc, m_rect, m_startColor, m_endColor, m_nDirection);
}
