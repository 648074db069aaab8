#include "captionfonts.h"

namespace {

constexpr std::uint8_t kDefaultCharSet = 1;
constexpr std::uint8_t kSwissFamily = 0x20;

} // namespace

const SizedFont kSerifCaptionFonts[5] = {
    {0, "MS Serif", 12, 400}, {8, "MS Serif", 12, 700}, {12, "MS Serif", 12, 400},
    {16, "MS Serif", 15, 700}, {24, "MS Serif", 22, 700},
};

const SizedFont kTextFonts[5] = {
    {0, "MS Sans Serif", 12, 400}, {8, "MS Serif", 12, 700}, {12, "MS Sans Serif", 12, 400},
    {16, "MS Sans Serif", 15, 700}, {24, "MS Sans Serif", 22, 700},
};

const SizedFont kTextInputFonts[5] = {
    {0, "MS SansSerif", 12, 400}, {8, "MS Serif", 12, 700}, {12, "MS SansSerif", 12, 400},
    {16, "MS Sans Serif", 15, 700}, {24, "MS Sans Serif", 22, 700},
};

std::optional<HmiFont> FontForSize(std::span<const SizedFont> table, std::int32_t size)
{
    for (const SizedFont& entry : table)
        if (entry.size == size)
            return HmiFont{entry.face, entry.height, entry.weight, 0, 0, 0, kDefaultCharSet, kSwissFamily};
    return std::nullopt;
}
