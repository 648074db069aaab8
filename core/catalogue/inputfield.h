#pragma once

#include "bevelbox.h"
#include "captionfonts.h"

#include <span>
#include <string_view>

// How the editor shows an input field of the panel: a placeholder text, in a raised box
// unless the field is transparent.
struct InputFieldLook {
    HmiColor textColor;
    bool transparent;
    BevelColors bevel;
    std::int32_t shadowWidth;
    std::int32_t fontSizeIndex;
    std::span<const SizedFont> fonts;
    std::int32_t align; // 1, 2 or 3 show the placeholder; any other code shows nothing
    std::string_view placeholder;
};

void DrawInputField(CHmiDC& dc, const HmiRect& rect, const InputFieldLook& look);
