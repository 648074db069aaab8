#pragma once

#include "propertytable.h"

// A triangle of gradient lines fanning out from an apex on one side of the rectangle.
class CHmiWidgetGradTriangle : public CHmiTableWidget<CHmiWidgetGradTriangle> {
    HMI_DECLARE_WIDGET_CLASS(CHmiWidgetGradTriangle)
public:
    static constexpr const char* kClassKey = "gradtriangle";
    static constexpr const char* kGroup = "Gradient triangle";
    static constexpr const char* kRootText = "Gradient triangle properties";
    static std::span<const PropertySpec<CHmiWidgetGradTriangle>> Properties();

    void Draw(CHmiDC& dc) override;

    HmiColor m_startColor = 0x00FFFFFF; // white
    HmiColor m_endColor = 0x00000000;   // black
    std::int32_t m_nDirection = 1;
};
