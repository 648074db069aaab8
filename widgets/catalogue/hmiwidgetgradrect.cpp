#include "hmiwidgetgradrect.h"

#include "gradientpainter.h"

HMI_IMPLEMENT_WIDGET_CLASS(CHmiWidgetGradRect, CHmiWidget)

namespace {

// The list shows "Vertical center to sides" twice (codes 33 and 37); only the position tells
// them apart.
constexpr const char* kRectDirections[] = {
    "Horizontal center to sides",
    "Vertical center to sides",
    "Left to right",
    "Right to left",
    "Horizontal sides to center",
    "Vertical center to sides",
    "Top to bottom",
    "Bottom to top",
    "Right bottom to left top",
    "Left bottom to right top",
    "Left top to right bottom",
    "Right top to Left bottom",
    "Center to left top & right bottom",
    "Left top & right bottom to center",
    "Center to left bottom & right top",
    "Left bottom & right top to center",
};

} // namespace

std::span<const ShapeProperty<CHmiWidgetGradRect>> CHmiWidgetGradRect::Properties()
{
    static const ShapeProperty<CHmiWidgetGradRect> properties[] = {
        {"startcolor", "Set gradient start color", PROP_COLOR, &CHmiWidgetGradRect::m_startColor},
        {"endcolor", "Set gradient end color", PROP_COLOR, &CHmiWidgetGradRect::m_endColor},
        {"direction", "Set gradient direction", PROP_COMBO, nullptr, &CHmiWidgetGradRect::m_nDirection,
         kRectDirections, 32},
    };
    return properties;
}

void CHmiWidgetGradRect::Draw(CHmiDC& dc)
{
    PaintRectGradient(dc, m_rect, m_startColor, m_endColor, m_nDirection);
}
