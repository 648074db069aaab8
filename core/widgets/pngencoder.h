#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

// The pixels of an opaque image: height rows of width 0xAARRGGBB values (the alpha byte is not
// read), from the top, each row starting stride values after the one above.
struct HmiRgbPixels {
    const std::uint32_t* top = nullptr;
    int width = 0;
    int height = 0;
    std::ptrdiff_t stride = 0;
};

// The bytes of a PNG file of the pixels: 8-bit RGB, not interlaced, at 96 dots per inch. Empty
// when there is nothing to encode (no pixels) or no memory to encode them in.
//
// Drawn screens are flat: long runs of one colour, many rows equal to the row above. Trying every
// row filter on every row, as general-purpose encoders do, finds little more for them and costs
// several times the compression. So each row is stored as it is ("none"), except a row equal to
// the one above, which is stored as its difference from it ("up": all zeros). With libdeflate's
// middle level the files come out from a tenth smaller (crowded screens) to half again larger
// (sparse ones) than with the adaptive choice and zlib, in a quarter of the time.
std::string EncodeRgbPng(const HmiRgbPixels& pixels);
