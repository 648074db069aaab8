#include "hmiwidgetnuminput.h"

#include "widgets/widgetchoices.h"

HMI_IMPLEMENT_WIDGET_CLASS(CHmiWidgetNumInput, CHmiWidget)

namespace {

constexpr const char* kIntTypeChoices[] = {"Normal(no decimal place)", "auto add decimal place"};

} // namespace

std::span<const PropertySpec<CHmiWidgetNumInput>> CHmiWidgetNumInput::Properties()
{
    using W = CHmiWidgetNumInput;
    static const std::vector<PropertySpec<W>> properties = [] {
        std::vector<PropertySpec<W>> specs = {
            {.key = "varname", .label = "varname", .description = "Set related variable", .itemType = PROP_VARIABLE,
             .bindable = 0, .xmlType = "string", .text = &W::m_strVarName},
            {.key = "color", .label = "color", .description = "Set text color", .itemType = PROP_COLOR,
             .color = &W::m_color, .read = FileNumber::Unsigned},
            {.key = "intwidth", .label = "intwidth", .description = "Set number integer number ",
             .number = &W::m_nIntWidth, .read = FileNumber::Signed},
            {.key = "precision", .label = "precision", .description = "Set number precision",
             .number = &W::m_nPrecision, .read = FileNumber::Signed},
            {.key = "minvalue", .label = "minvalue", .description = "Set the minimal value of number",
             .xmlType = "float", .real = &W::m_fMinValue},
            {.key = "maxvalue", .label = "maxvalue", .description = "Set the maximal value of numbe",
             .xmlType = "float", .real = &W::m_fMaxValue},
            {.key = "prompt", .label = "prompt", .description = "Set input prompt information", .xmlType = "string",
             .text = &W::m_strPrompt},
            {.key = "password", .label = "input password", .description = "Set if need password input",
             .itemType = PROP_CHECKBOX, .xmlType = "uchar", .flag = &W::m_bPassword, .read = FileNumber::Signed},
            {.key = "align", .label = "align", .description = "Set text alignment", .itemType = PROP_COMBO,
             .number = &W::m_nAlign, .choices = kAlignChoices, .codeOffset = 1, .firstCode = 1, .lastCode = 3},
            {.key = "fontsize", .label = "fontsize", .description = "Set the font size", .itemType = PROP_COMBO,
             .number = &W::m_nFontSize, .choices = kFontSizeChoices, .sizes = kFontSizes},
            {.key = "inttype", .label = "int type", .description = "Set handle mode of int data",
             .itemType = PROP_COMBO,
             .number = &W::m_nIntType, .read = FileNumber::Signed, .choices = kIntTypeChoices},
        };
        AppendInputBoxProperties(specs, true);
        return specs;
    }();
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
    DrawField(dc, m_rect, kSerifCaptionFonts, "##");
}
