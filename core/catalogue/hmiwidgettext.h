#pragma once

#include "propertytable.h"

// A static text of a fixed byte length, word-wrapped in the widget's rectangle.
class CHmiWidgetText : public CHmiTableWidget<CHmiWidgetText> {
    HMI_DECLARE_WIDGET_CLASS(CHmiWidgetText)
public:
    static constexpr const char* kClassKey = "text";
    static constexpr const char* kGroup = "Text";
    static constexpr const char* kRootText = "Text properties";
    static std::span<const PropertySpec<CHmiWidgetText>> Properties();

    void Draw(CHmiDC& dc) override;

    HmiColor m_color = 0x00000000;
    std::string m_strText = "text";
    std::int32_t m_nTextLength = 16; // the text's byte length on the panel
    std::int32_t m_nAlign = 1;       // 1 left, 2 right, 3 centre
    std::int32_t m_nFontSize = 0;    // index into the font sizes
};
