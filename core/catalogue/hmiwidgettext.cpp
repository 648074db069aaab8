#include "hmiwidgettext.h"

#include "captionfonts.h"
#include "widgets/hmidraw.h"
#include "widgets/widgetchoices.h"

HMI_IMPLEMENT_WIDGET_CLASS(CHmiWidgetText, CHmiWidget)

namespace {

// The text's own size list, spelt as the property list has always shown it.
constexpr const char* kTextSizeChoices[] = {"Defaule", "8", "12", "16", "24"};

} // namespace

std::span<const PropertySpec<CHmiWidgetText>> CHmiWidgetText::Properties()
{
    using W = CHmiWidgetText;
    static const PropertySpec<W> properties[] = {
        {.key = "color", .label = "color", .description = "Set text color", .itemType = PROP_COLOR,
         .color = &W::m_color},
        {.key = "text", .label = "text", .description = "Set the content of text", .itemType = PROP_TEXT,
         .xmlType = "string", .text = &W::m_strText, .length = &W::m_nTextLength},
        {.key = "textlength", .label = "textlength", .description = "Set the length of text", .bindable = 0,
         .number = &W::m_nTextLength, .saved = false},
        {.key = "align", .label = "align", .description = "Set text alignment", .itemType = PROP_COMBO,
         .number = &W::m_nAlign, .choices = kAlignChoices, .codeOffset = 1, .firstCode = 1, .lastCode = 3},
        {.key = "fontsize", .label = "fontsize", .description = "Set font size of text", .itemType = PROP_COMBO,
         .number = &W::m_nFontSize, .choices = kTextSizeChoices, .sizes = kFontSizes},
    };
    return properties;
}

void CHmiWidgetText::Draw(CHmiDC& dc)
{
    const std::optional<HmiFont> font = FontForSize(kTextFonts, FontSizeAt(m_nFontSize));
    HmiTextState text(dc, m_color, HmiBkMode::Transparent, font ? &*font : nullptr);
    std::uint32_t horizontal;
    switch (m_nAlign) {
    case kAlignLeft: horizontal = HMI_DT_LEFT; break;
    case kAlignRight: horizontal = HMI_DT_RIGHT; break;
    case kAlignCenter: horizontal = HMI_DT_CENTER; break;
    default: return;
    }
    dc.DrawText(m_strText, m_rect.Normalized(), horizontal | HMI_DT_WORDBREAK);
}
