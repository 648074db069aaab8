#include "pngencoder.h"

#include <libdeflate.h>

#include <algorithm>
#include <memory>
#include <new>
#include <string_view>

namespace {

constexpr std::string_view kSignature{"\x89PNG\r\n\x1a\n", 8};
constexpr char kBitDepth = 8;
constexpr char kColourTypeRgb = 2;
constexpr std::uint8_t kFilterNone = 0;
constexpr std::uint8_t kFilterUp = 2;
// 96 dots per inch, given in dots per metre.
constexpr std::uint32_t kDotsPerMetre = 3780;
constexpr char kUnitMetre = 1;
// What a chunk holds besides its data: its length, type and checksum.
constexpr std::size_t kChunkFrame = 12;
// The middle of libdeflate's levels 1 to 12: on drawn screens the levels above take twice the
// time for a few per cent, the levels below save little time for a larger file.
constexpr int kCompressionLevel = 6;

struct CompressorDeleter {
    void operator()(libdeflate_compressor* compressor) const { libdeflate_free_compressor(compressor); }
};

void AppendBigEndian(std::string& bytes, std::uint32_t value)
{
    const char digits[] = {char(value >> 24), char(value >> 16), char(value >> 8), char(value)};
    bytes.append(digits, sizeof digits);
}

void AppendChunk(std::string& png, std::string_view type, std::string_view data)
{
    AppendBigEndian(png, std::uint32_t(data.size()));
    const std::size_t checked = png.size();
    png.append(type);
    png.append(data);
    AppendBigEndian(png, libdeflate_crc32(0, png.data() + checked, png.size() - checked));
}

// Bytes left uninitialised, for buffers that are written before they are read: megabytes that
// need no clearing, and of which a compressor's output buffer touches only what it fills.
struct Buffer {
    explicit Buffer(std::size_t size) : bytes(new std::uint8_t[size]), size(size) {}
    std::unique_ptr<std::uint8_t[]> bytes;
    std::size_t size;
};

// The rows as the image data holds them before compression: each a filter byte and the row's
// red, green and blue bytes, filtered.
Buffer FilteredRows(const HmiRgbPixels& pixels)
{
    const std::size_t rowBytes = 1 + 3 * std::size_t(pixels.width);
    Buffer rows(rowBytes * std::size_t(pixels.height));
    for (int y = 0; y < pixels.height; ++y) {
        const std::uint32_t* row = pixels.top + y * pixels.stride;
        std::uint8_t* out = rows.bytes.get() + std::size_t(y) * rowBytes;
        // Equal in all four bytes: a row that differs in alpha alone is merely stored unfiltered.
        if (y > 0 && std::equal(row, row + pixels.width, row - pixels.stride)) {
            out[0] = kFilterUp;
            std::fill(out + 1, out + rowBytes, 0);
            continue;
        }
        *out++ = kFilterNone;
        for (int x = 0; x < pixels.width; ++x) {
            const std::uint32_t colour = row[x];
            *out++ = std::uint8_t(colour >> 16);
            *out++ = std::uint8_t(colour >> 8);
            *out++ = std::uint8_t(colour);
        }
    }
    return rows;
}

} // namespace

std::string EncodeRgbPng(const HmiRgbPixels& pixels)
{
    if (!pixels.top || pixels.width <= 0 || pixels.height <= 0)
        return {};
    try {
        const Buffer rows = FilteredRows(pixels);
        const std::unique_ptr<libdeflate_compressor, CompressorDeleter> compressor(
            libdeflate_alloc_compressor(kCompressionLevel));
        if (!compressor)
            return {};
        const Buffer compressed(libdeflate_zlib_compress_bound(compressor.get(), rows.size));
        const std::size_t compressedSize = libdeflate_zlib_compress(compressor.get(), rows.bytes.get(), rows.size,
                                                                    compressed.bytes.get(), compressed.size);
        if (compressedSize == 0)
            return {};

        std::string header;
        AppendBigEndian(header, std::uint32_t(pixels.width));
        AppendBigEndian(header, std::uint32_t(pixels.height));
        // Bit depth, colour type, then the only compression, filter method and no interlacing.
        header += {kBitDepth, kColourTypeRgb, 0, 0, 0};
        std::string density;
        AppendBigEndian(density, kDotsPerMetre);
        AppendBigEndian(density, kDotsPerMetre);
        density += kUnitMetre;

        std::string png;
        png.reserve(kSignature.size() + 4 * kChunkFrame + header.size() + density.size() + compressedSize);
        png.append(kSignature);
        AppendChunk(png, "IHDR", header);
        AppendChunk(png, "pHYs", density);
        AppendChunk(png, "IDAT", std::string_view(reinterpret_cast<const char*>(compressed.bytes.get()), compressedSize));
        AppendChunk(png, "IEND", {});
        return png;
    } catch (const std::bad_alloc&) {
        return {};
    }
}
