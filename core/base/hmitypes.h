#pragma once

#include <algorithm>
#include <cstdint>
#include <utility>

// Geometry and colour types shared by the whole core. Coordinates are panel pixels.

// Drawing keeps coordinates within the 16-bit range that window files give them ("short") and
// that the panel draws with: nothing beyond it can be shown, sums of a few such coordinates
// cannot overflow, and work that grows with a shape's size stays bounded. Coordinates outside
// it are held to its ends before any arithmetic.
constexpr std::int32_t kHmiDrawingMin = -32768;
constexpr std::int32_t kHmiDrawingMax = 32767;

constexpr std::int32_t HmiDrawingCoordinate(std::int64_t value)
{
    return std::int32_t(std::clamp<std::int64_t>(value, kHmiDrawingMin, kHmiDrawingMax));
}

// A colour as 0x00BBGGRR: red in the lowest byte.
using HmiColor = std::uint32_t;

constexpr HmiColor HmiRgb(std::uint8_t red, std::uint8_t green, std::uint8_t blue)
{
    return HmiColor(red) | (HmiColor(green) << 8) | (HmiColor(blue) << 16);
}

struct HmiPoint {
    std::int32_t x = 0;
    std::int32_t y = 0;

    HmiPoint ForDrawing() const { return {HmiDrawingCoordinate(x), HmiDrawingCoordinate(y)}; }

    friend bool operator==(const HmiPoint&, const HmiPoint&) = default;
};

// A rectangle as the panel sees it: it covers left to right - 1 and top to bottom - 1.
// Nothing keeps it normalised; callers that need left <= right and top <= bottom ask for it.
struct HmiRect {
    std::int32_t left = 0;
    std::int32_t top = 0;
    std::int32_t right = 0;
    std::int32_t bottom = 0;

    // Held to the 32-bit range, so that a rectangle from end to end of it has a width too.
    std::int32_t Width() const { return Saturated(std::int64_t(right) - left); }
    std::int32_t Height() const { return Saturated(std::int64_t(bottom) - top); }

    HmiRect Normalized() const
    {
        HmiRect r = *this;
        if (r.left > r.right)
            std::swap(r.left, r.right);
        if (r.top > r.bottom)
            std::swap(r.top, r.bottom);
        return r;
    }

    // Half-open containment: the right and bottom edges are outside.
    bool Contains(HmiPoint p) const { return left <= p.x && p.x < right && top <= p.y && p.y < bottom; }

    HmiRect Inflated(std::int32_t dx, std::int32_t dy) const
    {
        return {left - dx, top - dy, right + dx, bottom + dy};
    }

    HmiRect ForDrawing() const
    {
        return {HmiDrawingCoordinate(left), HmiDrawingCoordinate(top), HmiDrawingCoordinate(right),
                HmiDrawingCoordinate(bottom)};
    }

    friend bool operator==(const HmiRect&, const HmiRect&) = default;

private:
    static std::int32_t Saturated(std::int64_t value)
    {
        return std::int32_t(std::clamp<std::int64_t>(value, INT32_MIN, INT32_MAX));
    }
};
