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

std::span<const ShapeProperty<CHmiWidgetGradTriangle>> CHmiWidgetGradTriangle::Properties()
{
    static const ShapeProperty<CHmiWidgetGradTriangle> properties[] = {
        {"startcolor", "Set gradient start color", PROP_COLOR, &CHmiWidgetGradTriangle::m_startColor},
        {"endcolor", "Set gradient end color", PROP_COLOR, &CHmiWidgetGradTriangle::m_endColor},
        {"direction", "Set triangle direction", PROP_COMBO, nullptr, &CHmiWidgetGradTriangle::m_nDirection,
         kTriangleDirections, 1},
    };
    return properties;
}

void CHmiWidgetGradTriangle::Draw(CHmiDC& dc)
{
    PaintTriangleGradient(dc, m_rect, m_startColor, m_endColor, m_nDirection);
}
