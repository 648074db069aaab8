#include "inputfield.h"

#include "widgets/hmidraw.h"
#include "widgets/widgetchoices.h"

void DrawInputField(CHmiDC& dc, const HmiRect& rect, const InputFieldLook& look)
{
    const HmiRect r = rect.Normalized();
    const std::optional<HmiFont> font = FontForSize(look.fonts, FontSizeAt(look.fontSizeIndex));
    HmiTextState text(dc, look.textColor, HmiBkMode::Transparent, font ? &*font : nullptr);
    if (!look.transparent)
        DrawBevelBox(dc, r, look.bevel, look.shadowWidth);
    // The preview does not show the alignment: every valid code draws the text on the left.
    if (look.align >= kAlignLeft && look.align <= kAlignCenter)
        dc.DrawText(look.placeholder, r, HMI_DT_LEFT | HMI_DT_VCENTER | HMI_DT_SINGLELINE);
}
