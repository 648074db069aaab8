#pragma once

#include "propertytable.h"

// A filled rectangle with a one-pixel edge.
class CHmiWidgetRect : public CHmiTableWidget<CHmiWidgetRect> {
    HMI_DECLARE_WIDGET_CLASS(CHmiWidgetRect)
public:
    static constexpr const char* kClassKey = "rectangle";
    static constexpr const char* kGroup = "Rectangle";
    static constexpr const char* kRootText = "Rectangle properties";
    static std::span<const PropertySpec<CHmiWidgetRect>> Properties();

    void Draw(CHmiDC& dc) override;

    HmiColor m_edgeColor = 0x00000000; // black
    HmiColor m_fillColor = 0x00FFFFFF; // white
};
