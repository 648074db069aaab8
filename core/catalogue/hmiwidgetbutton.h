#pragma once

#include "propertytable.h"

// A push button of the panel: a caption in a raised frame, with the variable, window, action
// and access check the panel uses when it is pressed. The editor draws it.
class CHmiWidgetButton : public CHmiTableWidget<CHmiWidgetButton> {
    HMI_DECLARE_WIDGET_CLASS(CHmiWidgetButton)
public:
    static constexpr const char* kClassKey = "button";
    static constexpr const char* kGroup = "System Button";
    static constexpr const char* kRootText = "Button properties";
    static std::span<const PropertySpec<CHmiWidgetButton>> Properties();

    void Draw(CHmiDC& dc) override;

    std::string m_strCaption;
    HmiColor m_fontColor = 0x00000000;        // black
    std::int32_t m_nCaptionLen = 16;          // the caption's byte length on the panel
    std::int32_t m_nFontSize = 0;             // index into the font sizes
    HmiColor m_edgeColor = 0x00000000;        // black
    HmiColor m_backColor = 0x00C0C0C0;        // light grey
    HmiColor m_upShadowColor = 0x00FFFFFF;    // white
    HmiColor m_downShadowColor = 0x00808080;  // grey
    std::int32_t m_nShadowWidth = 1;
    std::int32_t m_nType = 0;                 // "Normal"
    std::string m_strVarName;
    std::string m_strPicName;                 // the window a "Change Window" button opens
    std::int32_t m_nSecurityLevel = 0;
    std::int32_t m_nSecurityMode = 0;
};
