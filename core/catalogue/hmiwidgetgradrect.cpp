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

std::span<const PropertySpec<CHmiWidgetGradRect>> CHmiWidgetGradRect::Properties()
{
    static const PropertySpec<CHmiWidgetGradRect> properties[] = {
        {.key = "startcolor",
         .label = "startcolor",
         .description = "Set gradient start color",
         .itemType = PROP_COLOR,
         .color = &CHmiWidgetGradRect::m_startColor},
        {.key = "endcolor",
         .label = "endcolor",
         .description = "Set gradient end color",
         .itemType = PROP_COLOR,
         .color = &CHmiWidgetGradRect::m_endColor},
        {.key = "direction",
         .label = "direction",
         .description = "Set gradient direction",
         .itemType = PROP_COMBO,
         .number = &CHmiWidgetGradRect::m_nDirection,
         .choices = kRectDirections,
         .codeOffset = 32},
    };
    return properties;
}

void CHmiWidgetGradRect::Draw(CHmiDC& dc)
{
    PaintRectGradient(dc, m_rect, m_startColor, m_endColor, m_nDirection);
}
