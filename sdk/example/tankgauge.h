#pragma once

#include "catalogue/propertytable.h"

#include <cstdint>
#include <span>

// A tank seen from the side: the liquid fills it from the bottom up to the level, ten ticks mark
// the tenths of its height, and a red line marks the alarm level.
//
// CHmiTableWidget does the bookkeeping from the property table: the rows of the property list,
// reading the window file, saving and copying. The class adds its drawing and its event.
class CTankGauge : public CHmiTableWidget<CTankGauge> {
    HMI_DECLARE_WIDGET_CLASS(CTankGauge)
public:
    // The class key of the window file, and the group of its rows in the property list.
    static constexpr const char* kClassKey = "tankgauge";
    static constexpr const char* kGroup = "Tank";
    static constexpr const char* kRootText = "Tank level gauge properties";
    static std::span<const PropertySpec<CTankGauge>> Properties();

    // The level and the alarm level are percentages of the tank's height; the drawing holds
    // them to 0..100, the file keeps what it was given (a bound level may lie outside).
    std::int32_t m_level = 50;
    std::int32_t m_alarmLevel = 90;
    HmiColor m_liquidColor = 0x00C08040; // colours are 0x00BBGGRR: a blue
    HmiColor m_shellColor = 0x00FFFFFF;

    void Draw(CHmiDC& dc) override;
    // The events every widget has (a click), and "overflow".
    void CreateEventItems() override;
};
