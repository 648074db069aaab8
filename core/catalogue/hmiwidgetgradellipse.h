#pragma once

#include "propertytable.h"

// An ellipse filled with a colour gradient.
class CHmiWidgetGradEllipse : public CHmiTableWidget<CHmiWidgetGradEllipse> {
    HMI_DECLARE_WIDGET_CLASS(CHmiWidgetGradEllipse)
public:
    static constexpr const char* kClassKey = "gradellipse";
    static constexpr const char* kGroup = "Gradient ellipse";
    static constexpr const char* kRootText = "Gradient ellipse properties";
    static std::span<const PropertySpec<CHmiWidgetGradEllipse>> Properties();

    void Draw(CHmiDC& dc) override;

    HmiColor m_startColor = 0x00FFFFFF; // white
    HmiColor m_endColor = 0x00000000;   // black
    std::int32_t m_nDirection = 0;
};
