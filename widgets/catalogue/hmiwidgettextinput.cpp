#include "hmiwidgettextinput.h"

#include "inputfield.h"
#include "widgetchoices.h"

HMI_IMPLEMENT_WIDGET_CLASS(CHmiWidgetTextInput, CHmiWidget)

std::span<const PropertySpec<CHmiWidgetTextInput>> CHmiWidgetTextInput::Properties()
{
    using W = CHmiWidgetTextInput;
    static const PropertySpec<W> properties[] = {
        {.key = "varname", .label = "varname", .description = "Set the related variable", .itemType = PROP_VARIABLE,
         .bindable = 0, .xmlType = "string", .text = &W::m_strVarName},
        {.key = "color", .label = "color", .description = "Set text color", .itemType = PROP_COLOR,
         .color = &W::m_color, .read = FileNumber::Unsigned},
        {.key = "prompt", .label = "prompt", .description = "Set input prompt information", .xmlType = "string",
         .text = &W::m_strPrompt},
        {.key = "password", .label = "password", .description = "Set if password input", .itemType = PROP_CHECKBOX,
         .xmlType = "uchar", .flag = &W::m_bPassword, .read = FileNumber::Signed},
        {.key = "align", .label = "align", .description = "Set text alignment", .itemType = PROP_COMBO,
         .number = &W::m_nAlign, .choices = kAlignChoices, .codeOffset = 1, .firstCode = 1, .lastCode = 3},
        {.key = "fontsize", .label = "fontsize", .description = "Set font size of text", .itemType = PROP_COMBO,
         .number = &W::m_nFontSize, .choices = kFontSizeChoices, .sizes = kFontSizes},
        {.key = "security_level", .label = "security level", .description = "Set security level", .bindable = 0,
         .xmlType = "ushort", .number = &W::m_nSecurityLevel, .read = FileNumber::Unsigned},
        {.key = "security_mode", .label = "security handle mode",
         .description = "set security handle mode when no permission", .itemType = PROP_COMBO, .bindable = 0,
         .xmlType = "uchar", .number = &W::m_nSecurityMode, .read = FileNumber::Unsigned,
         .choices = kSecurityModeChoices},
        {.key = "transparent", .label = "back transparent mode", .description = "Set back transparent mode",
         .itemType = PROP_COMBO, .xmlType = "uchar", .number = &W::m_nTransparent, .read = FileNumber::Unsigned,
         .choices = kTransparencyChoices},
        {.key = "edgecolor", .label = "Edgecolor", .description = "Set edge colors", .itemType = PROP_COLOR,
         .color = &W::m_edgeColor, .read = FileNumber::Unsigned},
        {.key = "backcolor", .label = "back color", .description = "set back color", .itemType = PROP_COLOR,
         .color = &W::m_backColor, .read = FileNumber::Unsigned},
        {.key = "up_shadow_color", .label = "Up shadow color", .description = "Set up shadow color",
         .itemType = PROP_COLOR, .color = &W::m_upShadowColor, .read = FileNumber::Unsigned},
        {.key = "down_shadow_color", .label = "Down shadow color", .description = "Set down shadow color",
         .itemType = PROP_COLOR, .color = &W::m_downShadowColor, .read = FileNumber::Unsigned},
        {.key = "shadow_width", .label = "Shadow width", .description = "Set shadow width", .bindable = 0,
         .number = &W::m_nShadowWidth, .read = FileNumber::Unsigned},
    };
    return properties;
}

std::span<const char* const> CHmiWidgetTextInput::SaveOrder()
{
    static constexpr const char* order[] = {
        "color", "varname", "prompt", "password", "align", "fontsize", "security_level", "security_mode",
        "transparent", "edgecolor", "backcolor", "up_shadow_color", "down_shadow_color", "shadow_width"};
    return order;
}

void CHmiWidgetTextInput::Draw(CHmiDC& dc)
{
    DrawInputField(dc, m_rect,
                   {m_color, m_nTransparent != 0, {m_edgeColor, m_backColor, m_upShadowColor, m_downShadowColor},
                    m_nShadowWidth, m_nFontSize, kTextInputFonts, m_nAlign, "abc"});
}
