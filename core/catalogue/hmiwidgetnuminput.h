#pragma once

#include "inputfieldsettings.h"
#include "propertytable.h"

// The numeric entry field of the panel: the operator touches it and types a number, which is
// range-checked and written to a variable. The editor shows a "##" placeholder.
class CHmiWidgetNumInput : public CHmiTableWidget<CHmiWidgetNumInput>, public InputFieldSettings {
    HMI_DECLARE_WIDGET_CLASS(CHmiWidgetNumInput)
public:
    static constexpr const char* kClassKey = "numinput";
    static constexpr const char* kGroup = "Number input";
    static constexpr const char* kRootText = "Number input properties";
    static std::span<const PropertySpec<CHmiWidgetNumInput>> Properties();
    static std::span<const char* const> SaveOrder();

    void Draw(CHmiDC& dc) override;

    std::int32_t m_nIntWidth = 0;
    std::int32_t m_nPrecision = 2;
    float m_fMinValue = 0.0f;
    float m_fMaxValue = 100.0f;
    std::int32_t m_nIntType = 0; // 1: the panel adds the decimal places to an entered integer
};
