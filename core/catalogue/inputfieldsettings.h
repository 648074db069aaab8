#pragma once

#include "captionfonts.h"
#include "inputfield.h"
#include "propertytable.h"
#include "widgets/widgetchoices.h"

#include <string>
#include <vector>

// What the number input and the text input have in common: the bound variable, the prompt,
// the text's look and the raised box around it, and the access check.
struct InputFieldSettings {
    HmiColor m_color = 0x00000000;
    std::string m_strVarName;
    std::int32_t m_nAlign = kAlignLeft;
    std::string m_strPrompt = "Please input";
    std::int32_t m_nFontSize = 0; // index into the font sizes
    std::uint8_t m_bPassword = 0;
    std::int32_t m_nSecurityLevel = 0;
    std::int32_t m_nSecurityMode = 0;
    std::int32_t m_nTransparent = 1;
    HmiColor m_edgeColor = 0x00000000;
    HmiColor m_backColor = 0x00C0C0C0;
    HmiColor m_upShadowColor = 0x00808080;
    HmiColor m_downShadowColor = 0x00FFFFFF;
    std::int32_t m_nShadowWidth = 1;

    // The field as the editor shows it, with this placeholder in the fonts of this table.
    void DrawField(CHmiDC& dc, const HmiRect& rect, std::span<const SizedFont> fonts,
                   std::string_view placeholder) const
    {
        DrawInputField(dc, rect,
                       {m_color, m_nTransparent != 0, {m_edgeColor, m_backColor, m_upShadowColor, m_downShadowColor},
                        m_nShadowWidth, m_nFontSize, fonts, m_nAlign, placeholder});
    }
};

// The records of the access check and of the box, the same for both fields but for whether the
// shadow width may be bound.
template <class Widget>
void AppendInputBoxProperties(std::vector<PropertySpec<Widget>>& specs, bool shadowBindable)
{
    using W = Widget;
    constexpr FileNumber kHex = FileNumber::Unsigned;
    specs.push_back({.key = "security_level", .label = "security level", .description = "Set security level",
                     .bindable = 0, .xmlType = "ushort", .number = &W::m_nSecurityLevel, .read = kHex});
    specs.push_back({.key = "security_mode", .label = "security handle mode",
                     .description = "set security handle mode when no permission", .itemType = PROP_COMBO,
                     .bindable = 0, .xmlType = "uchar", .number = &W::m_nSecurityMode, .read = kHex,
                     .choices = kSecurityModeChoices});
    specs.push_back({.key = "transparent", .label = "back transparent mode", .description = "Set back transparent mode",
                     .itemType = PROP_COMBO, .xmlType = "uchar", .number = &W::m_nTransparent, .read = kHex,
                     .choices = kTransparencyChoices});
    specs.push_back({.key = "edgecolor", .label = "Edgecolor", .description = "Set edge colors", .itemType = PROP_COLOR,
                     .color = &W::m_edgeColor, .read = kHex});
    specs.push_back({.key = "backcolor", .label = "back color", .description = "set back color", .itemType = PROP_COLOR,
                     .color = &W::m_backColor, .read = kHex});
    specs.push_back({.key = "up_shadow_color", .label = "Up shadow color", .description = "Set up shadow color",
                     .itemType = PROP_COLOR, .color = &W::m_upShadowColor, .read = kHex});
    specs.push_back({.key = "down_shadow_color", .label = "Down shadow color", .description = "Set down shadow color",
                     .itemType = PROP_COLOR, .color = &W::m_downShadowColor, .read = kHex});
    specs.push_back({.key = "shadow_width", .label = "Shadow width", .description = "Set shadow width",
                     .bindable = shadowBindable ? 1 : 0, .number = &W::m_nShadowWidth, .read = kHex});
}
