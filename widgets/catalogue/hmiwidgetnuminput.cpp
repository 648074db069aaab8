#include "hmiwidgetnuminput.h"

#include "inputfield.h"
#include "widgetchoices.h"

HMI_IMPLEMENT_WIDGET_CLASS(CHmiWidgetNumInput, CHmiWidget)

namespace {

constexpr const char* kIntTypeChoices[] = {"Normal(no decimal place)", "auto add decimal place"};

} // namespace

std::span<const PropertySpec<CHmiWidgetNumInput>> CHmiWidgetNumInput::Properties()
{
    using W = CHmiWidgetNumInput;
    static const PropertySpec<W> properties[] = {
        {.key = "varname", .label = "varname", .description = "Set related variable", .itemType = PROP_VARIABLE,
         .bindable = 0, .xmlType = "string", .text = &W::m_strVarName},
        {.key = "color", .label = "color", .description = "Set text color", .itemType = PROP_COLOR,
         .color = &W::m_color, .read = FileNumber::Unsigned},
        {.key = "intwidth", .label = "intwidth", .description = "Set number integer number ",
         .number = &W::m_nIntWidth, .read = FileNumber::Signed},
        {.key = "precision", .label = "precision", .description = "Set number precision",
         .number = &W::m_nPrecision, .read = FileNumber::Signed},
        {.key = "minvalue", .label = "minvalue", .description = "Set the minimal value of number", .xmlType = "float",
         .real = &W::m_fMinValue},
        {.key = "maxvalue", .label = "maxvalue", .description = "Set the maximal value of numbe", .xmlType = "float",
         .real = &W::m_fMaxValue},
        {.key = "prompt", .label = "prompt", .description = "Set input prompt information", .xmlType = "string",
         .text = &W::m_strPrompt},
        {.key = "password", .label = "input password", .description = "Set if need password input",
         .itemType = PROP_CHECKBOX, .xmlType = "uchar", .flag = &W::m_bPassword, .read = FileNumber::Signed},
        {.key = "align", .label = "align", .description = "Set text alignment", .itemType = PROP_COMBO,
         .number = &W::m_nAlign, .choices = kAlignChoices, .codeOffset = 1, .firstCode = 1, .lastCode = 3},
        {.key = "fontsize", .label = "fontsize", .description = "Set the font size", .itemType = PROP_COMBO,
         .number = &W::m_nFontSize, .choices = kFontSizeChoices, .sizes = kFontSizes},
        {.key = "inttype", .label = "int type", .description = "Set handle mode of int data", .itemType = PROP_COMBO,
         .number = &W::m_nIntType, .read = FileNumber::Signed, .choices = kIntTypeChoices},
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
        {.key = "shadow_width", .label = "Shadow width", .description = "Set shadow width",
         .number = &W::m_nShadowWidth, .read = FileNumber::Unsigned},
    };
    return properties;
}

std::span<const char* const> CHmiWidgetNumInput::SaveOrder()
{
    static constexpr const char* order[] = {
        "color", "varname", "prompt", "intwidth", "precision", "minvalue", "maxvalue", "align", "fontsize", "password",
        "inttype", "security_level", "security_mode", "transparent", "edgecolor", "backcolor", "up_shadow_color",
        "down_shadow_color", "shadow_width"};
    return order;
}

void CHmiWidgetNumInput::Draw(CHmiDC& dc)
{
    DrawInputField(dc, m_rect,
                   {m_color, m_nTransparent != 0, {m_edgeColor, m_backColor, m_upShadowColor, m_downShadowColor},
                    m_nShadowWidth, m_nFontSize, kSerifCaptionFonts, m_nAlign, "##"});
}
