// Gradient colours at exact pixels of images painted by the real painter target.

#include "catalogue/gradientpainter.h"
#include "tests/support/clippeddrawing.h"
#include "tests/support/recordingdc.h"
#include "widgets/hmiimagedc.h"

#include <gtest/gtest.h>

#include <climits>
#include <functional>

namespace {

constexpr HmiColor kBlack = 0x000000;
constexpr HmiColor kWhite = 0xFFFFFF;
constexpr HmiColor kRed = 0x0000FF;
constexpr HmiColor kBlue = 0xFF0000;

HmiColor Grey(int level)
{
    return HmiRgb(std::uint8_t(level), std::uint8_t(level), std::uint8_t(level));
}

using GradientPainter = std::function<void(CHmiDC&, const HmiRect&, HmiColor, HmiColor, std::int32_t)>;

struct GradientMode {
    const char* painter;
    GradientPainter paint;
    std::int32_t code;
};

// Every direction of the three gradient widgets.
std::vector<GradientMode> AllModes()
{
    std::vector<GradientMode> modes;
    for (std::int32_t code = 32; code <= 47; ++code)
        modes.push_back({"rectangle", PaintRectGradient, code});
    for (std::int32_t code = 0; code <= 2; ++code)
        modes.push_back({"ellipse", PaintEllipseGradient, code});
    for (std::int32_t code = 1; code <= 4; ++code)
        modes.push_back({"triangle", PaintTriangleGradient, code});
    return modes;
}

struct Pixel {
    int x, y;
    HmiColor color;
};

// Where a pixel's red channel must lie, for pixels between two steps of a gradient.
struct Level {
    int x, y;
    int lowest, highest;
};

// A gradient painted into an image two pixels wider and higher than its rectangle, and pixels
// the image must have.
struct PixelCase {
    const char* what;
    GradientPainter paint;
    std::int32_t code;
    HmiRect rect;
    HmiColor start, end;
    std::vector<Pixel> pixels;
    std::vector<Level> levels = {};
};

} // namespace

TEST(GradientPixels, EachModeStepsFromItsNamedEdgeOrCentre)
{
    // Step 3 of 10 from red to blue: 255 - 76.5 and 76.5, each channel truncated.
    const HmiColor step3 = HmiRgb(178, 0, 76);
    const PixelCase cases[] = {
        {"left to right; a line stops short of the bottom", PaintRectGradient, 34, {0, 0, 10, 4}, kRed, kBlue,
         {{0, 0, kRed}, {3, 3, step3}, {9, 1, HmiRgb(25, 0, 229)}, {3, 4, kWhite}}},
        {"top to bottom", PaintRectGradient, 38, {0, 0, 4, 10}, kRed, kBlue, {{2, 3, step3}}},
        {"bottom to top", PaintRectGradient, 39, {0, 0, 4, 10}, kRed, kBlue, {{2, 7, step3}}},
        {"both side edges towards the centre; the right edge line of step 0 lies outside, step 1 inside",
         PaintRectGradient, 37, {0, 0, 10, 2}, kBlack, kWhite,
         {{0, 0, kBlack}, {1, 1, Grey(51)}, {9, 1, Grey(51)}, {5, 0, kWhite}, {4, 0, Grey(204)}, {6, 0, Grey(204)}}},
        {"the start colour on the centre line", PaintRectGradient, 33, {0, 0, 10, 10}, kBlack, kWhite,
         {{4, 5, kBlack}, {4, 6, Grey(51)}, {4, 4, Grey(51)}, {4, 1, Grey(204)}}},
        {"from the right bottom corner; the full diagonal is the middle step of 16", PaintRectGradient, 40,
         {0, 0, 8, 4}, kBlack, kWhite, {{4, 2, Grey(127)}}, {{7, 3, 0, 126}, {0, 0, 128, 255}}},
        {"a tall rectangle from the right bottom corner", PaintRectGradient, 40, {0, 0, 4, 8}, kBlack, kWhite, {},
         {{3, 7, 0, 126}, {0, 0, 128, 255}}},
        {"the centre diagonal in the start colour, the corners near the end colour", PaintRectGradient, 44,
         {0, 0, 8, 4}, kBlack, kWhite, {{4, 2, kBlack}}, {{7, 3, 151, 255}, {0, 0, 151, 255}}},
        {"the centre diagonal in the end colour", PaintRectGradient, 45, {0, 0, 8, 4}, kBlack, kWhite,
         {{4, 2, kWhite}}, {{7, 3, 0, 99}}},
        {"a rectangle without width paints its one line in the start colour", PaintRectGradient, 34, {5, 0, 5, 10},
         kRed, kBlue, {{5, 3, kRed}}},
        {"ellipse rows: whole-number steps of 255 / 5 from the centre line, nothing outside", PaintEllipseGradient, 1,
         {0, 0, 20, 10}, kBlack, kWhite,
         {{10, 5, kBlack}, {10, 6, Grey(51)}, {10, 4, Grey(51)}, {10, 1, Grey(204)}, {1, 1, kWhite}}},
        {"ellipse columns", PaintEllipseGradient, 0, {0, 0, 10, 20}, kBlack, kWhite,
         {{5, 10, kBlack}, {6, 10, Grey(51)}, {3, 10, Grey(102)}}},
        {"ellipse rings: the outer ring in the end colour, the centre near the start colour", PaintEllipseGradient,
         2, {0, 0, 20, 20}, kWhite, kBlack, {{10, 0, kBlack}}, {{10, 10, 201, 255}}},
        {"triangle: the start colour on its axis, the slanting edge near the end colour", PaintTriangleGradient, 1,
         {0, 0, 20, 10}, kBlack, kWhite, {{10, 5, kBlack}, {10, 9, kBlack}, {1, 1, kWhite}}, {{1, 9, 201, 255}}},
    };
    for (const PixelCase& c : cases) {
        SCOPED_TRACE(c.what);
        CHmiImageDC dc(c.rect.right + 2, c.rect.bottom + 2);
        c.paint(dc, c.rect, c.start, c.end, c.code);
        for (const Pixel& pixel : c.pixels)
            EXPECT_EQ(dc.GetPixel(pixel.x, pixel.y), pixel.color) << "at " << pixel.x << "," << pixel.y;
        for (const Level& level : c.levels) {
            const int red = int(dc.GetPixel(level.x, level.y) & 0xFF);
            EXPECT_TRUE(red >= level.lowest && red <= level.highest) << red << " at " << level.x << "," << level.y;
        }
    }
}

TEST(GradientPixels, TheOtherCornersPaintMirrorImages)
{
    const HmiRect rect{1, 2, 14, 8};
    CHmiImageDC original(16, 10);
    PaintRectGradient(original, rect, kRed, kBlue, 40);
    for (const auto& [code, mirrorX, mirrorY] : {std::tuple{41, true, false}, {42, true, true}, {43, false, true}}) {
        CHmiImageDC dc(16, 10);
        PaintRectGradient(dc, rect, kRed, kBlue, code);
        for (int y = rect.top; y < rect.bottom; ++y)
            for (int x = rect.left; x < rect.right; ++x) {
                const int mx = mirrorX ? rect.left + rect.right - 1 - x : x;
                const int my = mirrorY ? rect.top + rect.bottom - 1 - y : y;
                ASSERT_EQ(dc.GetPixel(mx, my), original.GetPixel(x, y)) << code << " at " << x << "," << y;
            }
    }
}

TEST(GradientPixels, UnknownCodesFlatEllipsesAndReversedTrianglesPaintNothing)
{
    RecordingDC dc;
    for (int code : {0, 31, 48})
        PaintRectGradient(dc, {0, 0, 10, 10}, kBlack, kRed, code);
    for (int code : {-1, 3})
        PaintEllipseGradient(dc, {0, 0, 10, 10}, kBlack, kRed, code);
    for (int code : {0, 5})
        PaintTriangleGradient(dc, {0, 0, 10, 10}, kBlack, kRed, code);
    for (int code = 0; code <= 2; ++code)
        PaintEllipseGradient(dc, {0, 0, 20, 1}, kBlack, kRed, code); // one pixel high
    for (int code = 1; code <= 2; ++code)
        PaintTriangleGradient(dc, {20, 0, 0, 10}, kBlack, kRed, code);
    EXPECT_TRUE(dc.shapes.empty());
}

// Square, wide, flat, tall, narrow and reversed rectangles around and across a small image
// paint inside it what an image large enough to hold them does; huge ones draw no more lines
// (or rings) than a 640 x 480 view can show: one per pixel across and down the view, for each of
// the two halves that some modes paint in pairs, and a few more.
TEST(GradientPixels, GradientsRunningPastTheTargetPaintOnlyWhatReachesIt)
{
    // No side has a negative odd sum of ends, whose half would not shift with them.
    const HmiRect past[] = {{-90, -70, 110, 95}, {-125, 3, 160, 26}, {-130, 12, 170, 14}, {15, -100, 31, 130},
                            {-4, -98, 2, 127}, {60, 50, -40, -60}};
    const HmiRect huge[] = {{-1000000000, -1000000000, 1000000000, 1000000000}, {INT_MIN, INT_MIN, INT_MAX, INT_MAX},
                            {-1000000000, 100, 300, 1000000000}, {INT_MAX, INT_MAX, INT_MIN, INT_MIN}};
    constexpr std::size_t kBound = 2 * 2 * (640 + 480) + 64;
    for (const GradientMode& mode : AllModes()) {
        SCOPED_TRACE(std::string(mode.painter) + " " + std::to_string(mode.code));
        for (const HmiRect& r : past) {
            const std::string changed = FirstPixelChangedByClipping([&](CHmiDC& dc, HmiPoint at) {
                mode.paint(dc, {r.left + at.x, r.top + at.y, r.right + at.x, r.bottom + at.y}, kRed, kBlue, mode.code);
            });
            EXPECT_EQ(changed, "") << r.left << "," << r.top << "," << r.right << "," << r.bottom;
        }
        for (const HmiRect& r : huge) {
            RecordingDC dc;
            dc.clipBox = {0, 0, 640, 480};
            mode.paint(dc, r, kRed, kBlue, mode.code);
            EXPECT_LE(dc.shapes.size(), kBound) << r.left << "," << r.top << "," << r.right << "," << r.bottom;
        }
    }
}
