#pragma once

#include "propertytable.h"

// A rectangle filled with a colour gradient in one of sixteen directions.
class CHmiWidgetGradRect : public CHmiTableWidget<CHmiWidgetGradRect> {
    HMI_DECLARE_WIDGET_CLASS(CHmiWidgetGradRect)
public:
    static constexpr const char* kClassKey = "gradrectangle";
    static constexpr const char* kGroup = "Gradient rectangle";
    static constexpr const char* kRootText = "Gradient ellipse properties";
    static std::span<const PropertySpec<CHmiWidgetGradRect>> Properties();

    void Draw(CHmiDC& dc) override;

    HmiColor m_startColor = 0x00FFFFFF; // white
    HmiColor m_endColor = 0x00000000;   // black
    std::int32_t m_nDirection = 32;
};
