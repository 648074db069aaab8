#pragma once

#include "propertytable.h"

// A filled ellipse inscribed in the widget's rectangle, with a one-pixel edge.
class CHmiWidgetEllipse : public CHmiTableWidget<CHmiWidgetEllipse> {
    HMI_DECLARE_WIDGET_CLASS(CHmiWidgetEllipse)
public:
    static constexpr const char* kClassKey = "ellipse";
    static constexpr const char* kGroup = "Ellipse";
    static constexpr const char* kRootText = "Ellipse properties";
    static std::span<const PropertySpec<CHmiWidgetEllipse>> Properties();

    void Draw(CHmiDC& dc) override;

    HmiColor m_edgeColor = 0x00000000; // black
    HmiColor m_fillColor = 0x00FFFFFF; // white
};
