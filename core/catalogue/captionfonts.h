#pragma once

#include "widgets/hmidc.h"

#include <cstdint>
#include <optional>
#include <span>

// The font a widget draws its caption in, chosen by the point size of its font-size
// property. Each widget kind has its own table; a size missing from the table creates no
// font, and the caption is then drawn in the current font.
struct SizedFont {
    std::int32_t size;
    const char* face;
    std::int32_t height;
    std::int32_t weight;
};

std::optional<HmiFont> FontForSize(std::span<const SizedFont> table, std::int32_t size);

// The button's and the number input's: serif throughout; 8 points is bold.
extern const SizedFont kSerifCaptionFonts[5];
// The text's: sans serif, but the serif face for 8 points.
extern const SizedFont kTextFonts[5];
// The text input's, with its own spellings of the face names.
extern const SizedFont kTextInputFonts[5];
