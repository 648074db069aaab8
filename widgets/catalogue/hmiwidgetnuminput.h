#pragma once

#include "propertytable.h"

// The numeric entry field of the panel: the operator touches it and types a number, which is
// range-checked and written to a variable. The editor shows a "##" placeholder.
class CHmiWidgetNumInput : public CHmiTableWidget<CHmiWidgetNumInput> {
    HMI_DECLARE_WIDGET_CLASS(CHmiWidgetNumInput)
public:
    static constexpr const char* kClassKey = "numinput";
    static constexpr const char* kGroup = "Number input";
    static constexpr const char* kRootText = "Number input properties";
    static std::span<const PropertySpec<CHmiWidgetNumInput>> Properties();
    static std::span<const char* const> SaveOrder();

    void Draw(CHmiDC& dc) override;

    HmiColor m_color = 0x00000000;
    std::string m_strVarName;
    std::int32_t m_nAlign = 1;
    std::int32_t m_nIntWidth = 0;
    std::int32_t m_nPrecision = 2;
    float m_fMinValue = 0.0f;
    float m_fMaxValue = 100.0f;
    std::string m_strPrompt = "Please input";
    std::int32_t m_nFontSize = 0; // index into the font sizes
    std::uint8_t m_bPassword = 0;
    std::int32_t m_nIntType = 0;  // 1: the panel adds the decimal places to an entered integer
    std::int32_t m_nSecurityLevel = 0;
    std::int32_t m_nSecurityMode = 0;
    std::int32_t m_nTransparent = 1;
    HmiColor m_edgeColor = 0x00000000;
    HmiColor m_backColor = 0x00C0C0C0;
    HmiColor m_upShadowColor = 0x00808080;
    HmiColor m_downShadowColor = 0x00FFFFFF;
    std::int32_t m_nShadowWidth = 1;
};
