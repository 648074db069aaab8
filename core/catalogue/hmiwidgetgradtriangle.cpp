#include "hmiwidgetgradtriangle.h"

#include "gradientpainter.h"

HMI_IMPLEMENT_WIDGET_CLASS(CHmiWidgetGradTriangle, CHmiWidget)

namespace {

constexpr const char* kTriangleDirections[] = {
    "Horizontal to top",
    "Horizontal to bottom",
    "Vertical to right",
    "Vertical to left",
};

} // namespace

std::span<const PropertySpec<CHmiWidgetGradTriangle>> CHmiWidgetGradTriangle::Properties()
{
    static const PropertySpec<CHmiWidgetGradTriangle> properties[] = {
        {.key = "startcolor",
         .label = "startcolor",
         .description = "Set gradient start color",
         .itemType = PROP_COLOR,
         .color = &CHmiWidgetGradTriangle::m_startColor},
        {.key = "endcolor",
         .label = "endcolor",
         .description = "Set gradient end color",
         .itemType = PROP_COLOR,
         .color = &CHmiWidgetGradTriangle::m_endColor},
        {.key = "direction",
         .label = "direction",
         .description = "Set triangle direction",
         .itemType = PROP_COMBO,
         .number = &CHmiWidgetGradTriangle::m_nDirection,
         .choices = kTriangleDirections,
         .codeOffset = 1},
    };
    return properties;
}

void CHmiWidgetGradTriangle::Draw(CHmiDC& dc)
{
    PaintTriangleGradient(dc, m_rect, m_startColor, m_endColor, m_nDirection);
}
