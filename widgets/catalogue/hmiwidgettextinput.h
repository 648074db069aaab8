#pragma once

#include "propertytable.h"

// The text entry field of the panel: the operator touches it and types a text for a string
// variable, optionally hidden as a password. The editor shows an "abc" placeholder.
class CHmiWidgetTextInput : public CHmiTableWidget<CHmiWidgetTextInput> {
    HMI_DECLARE_WIDGET_CLASS(CHmiWidgetTextInput)
public:
    static constexpr const char* kClassKey = "textinput";
    static constexpr const char* kGroup = "Text input";
    static constexpr const char* kRootText = "Text input properties";
    static std::span<const PropertySpec<CHmiWidgetTextInput>> Properties();
    static std::span<const char* const> SaveOrder();

    void Draw(CHmiDC& dc) override;

    HmiColor m_color = 0x00000000;
    std::string m_strVarName;
    std::int32_t m_nAlign = 1;
    std::uint8_t m_bPassword = 0;
    std::string m_strPrompt = "Please input";
    std::int32_t m_nFontSize = 0; // index into the font sizes
    std::int32_t m_nSecurityLevel = 0;
    std::int32_t m_nSecurityMode = 0;
    std::int32_t m_nTransparent = 1;
    HmiColor m_edgeColor = 0x00000000;
    HmiColor m_backColor = 0x00C0C0C0;
    HmiColor m_upShadowColor = 0x00808080;
    HmiColor m_downShadowColor = 0x00FFFFFF;
    std::int32_t m_nShadowWidth = 1;
};
