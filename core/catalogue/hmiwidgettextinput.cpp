#include "hmiwidgettextinput.h"

#include "widgets/widgetchoices.h"

HMI_IMPLEMENT_WIDGET_CLASS(CHmiWidgetTextInput, CHmiWidget)

std::span<const PropertySpec<CHmiWidgetTextInput>> CHmiWidgetTextInput::Properties()
{
    using W = CHmiWidgetTextInput;
    static const std::vector<PropertySpec<W>> properties = [] {
        std::vector<PropertySpec<W>> specs = {
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
        };
        AppendInputBoxProperties(specs, false);
        return specs;
    }();
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
    DrawField(dc, m_rect, kTextInputFonts, "abc");
}
