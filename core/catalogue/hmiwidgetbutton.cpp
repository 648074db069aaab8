#include "hmiwidgetbutton.h"

#include "bevelbox.h"
#include "captionfonts.h"
#include "widgets/hmidraw.h"
#include "widgets/widgetchoices.h"

HMI_IMPLEMENT_WIDGET_CLASS(CHmiWidgetButton, CHmiWidget)

namespace {

constexpr const char* kTypeChoices[] = {"Normal", "Set On", "Set Off", "Switch", "Reset", "Change Window"};
constexpr const char* kButtonSecurityChoices[] = {"No prompt", "Prompt no rights", "Prompt password window"};

} // namespace

// Colours, the shadow width, the type and the access check are read as decimal or
// hexadecimal numbers, the font size as a decimal point size.
std::span<const PropertySpec<CHmiWidgetButton>> CHmiWidgetButton::Properties()
{
    using W = CHmiWidgetButton;
    static const PropertySpec<W> properties[] = {
        {.key = "caption", .label = "Caption", .description = "Set caption", .itemType = PROP_TEXT,
         .xmlType = "string", .text = &W::m_strCaption, .length = &W::m_nCaptionLen},
        {.key = "font_color", .label = "Color", .description = "Set color", .itemType = PROP_COLOR,
         .color = &W::m_fontColor, .read = FileNumber::Unsigned},
        {.key = "caption_len", .label = "Length", .description = "Set caption bytes Length", .bindable = 0,
         .number = &W::m_nCaptionLen, .saved = false},
        {.key = "font_size", .label = "Font Size", .description = "Set font size", .itemType = PROP_COMBO,
         .number = &W::m_nFontSize, .choices = kFontSizeChoices, .sizes = kFontSizes},
        {.key = "edge_color", .label = "Edgecolor", .description = "Set edge color", .itemType = PROP_COLOR,
         .color = &W::m_edgeColor, .read = FileNumber::Unsigned},
        {.key = "back_color", .label = "Backcolor", .description = "Set background color", .itemType = PROP_COLOR,
         .color = &W::m_backColor, .read = FileNumber::Unsigned},
        {.key = "up_shadow_color", .label = "Up shadow color", .description = "Set up shadow color",
         .itemType = PROP_COLOR, .color = &W::m_upShadowColor, .read = FileNumber::Unsigned},
        {.key = "down_shadow_color", .label = "Down shadow color", .description = "Set down shadow color",
         .itemType = PROP_COLOR, .color = &W::m_downShadowColor, .read = FileNumber::Unsigned},
        {.key = "shadow_width", .label = "Shadow width", .description = "Set shadow width",
         .number = &W::m_nShadowWidth, .read = FileNumber::Unsigned},
        {.key = "type", .label = "Type", .description = "Set button type", .itemType = PROP_COMBO,
         .number = &W::m_nType, .read = FileNumber::Unsigned, .choices = kTypeChoices},
        {.key = "var_name", .label = "Var Name", .description = "Set var name", .itemType = PROP_VARIABLE,
         .bindable = 0, .xmlType = "string", .text = &W::m_strVarName},
        {.key = "pic_name", .label = "Window Name", .description = "Set window name", .bindable = 0,
         .xmlType = "string", .text = &W::m_strPicName},
        {.key = "security_level", .label = "Security Level", .description = "Set security level", .bindable = 0,
         .xmlType = "ushort", .number = &W::m_nSecurityLevel, .read = FileNumber::Unsigned},
        {.key = "security_mode", .label = "Security mode", .description = "Set security mode",
         .itemType = PROP_COMBO, .bindable = 0, .xmlType = "uchar", .number = &W::m_nSecurityMode,
         .read = FileNumber::Unsigned, .choices = kButtonSecurityChoices},
    };
    return properties;
}

void CHmiWidgetButton::Draw(CHmiDC& dc)
{
    DrawBevelBox(dc, m_rect, {m_edgeColor, m_backColor, m_upShadowColor, m_downShadowColor}, m_nShadowWidth);
    const std::optional<HmiFont> font = FontForSize(kSerifCaptionFonts, FontSizeAt(m_nFontSize));
    HmiTextState text(dc, m_fontColor, HmiBkMode::Transparent, font ? &*font : nullptr);
    dc.DrawText(m_strCaption, m_rect.Normalized(),
                HMI_DT_CENTER | HMI_DT_VCENTER | HMI_DT_SINGLELINE | HMI_DT_NOPREFIX);
}
