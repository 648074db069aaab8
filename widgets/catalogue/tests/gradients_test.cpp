// Gradient colours at exact pixels of images painted by the real painter target.

#include "tests/support/clippeddrawing.h"
#include "tests/support/recordingdc.h"
#include "widgets/catalogue/gradientpainter.h"
#include "widgets/catalogue/hmiwidgetgradrect.h"
#include "widgets/core/hmiimagedc.h"

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

int RedOf(HmiColor color)
{
    return int(color & 0xFF);
}

bool AllWhite(const CHmiImageDC& dc)
{
    for (int y = 0; y < dc.Height(); ++y)
        for (int x = 0; x < dc.Width(); ++x)
            if (dc.GetPixel(x, y) != kWhite)
                return false;
    return true;
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

} // namespace

TEST(GradientSteps, DivideInDoubleKeepSingleAndTruncatePerChannel)
{
    const GradientSteps steps(kRed, kBlue, 10);
    EXPECT_EQ(steps.At(0), kRed);
    EXPECT_EQ(steps.At(3), HmiRgb(178, 0, 76)) << "255 - 76.5 and 76.5, truncated";
    EXPECT_EQ(steps.At(10), kBlue);
    EXPECT_EQ(GradientSteps(kBlack, kWhite, 0).At(0), kBlack) << "no steps: the start colour";
}

TEST(GradientPixels, HorizontalAndVerticalBandsStepFromTheNamedEdge)
{
    CHmiImageDC leftToRight(12, 6);
    PaintRectGradient(leftToRight, {0, 0, 10, 4}, kRed, kBlue, 34);
    EXPECT_EQ(leftToRight.GetPixel(0, 0), kRed);
    EXPECT_EQ(leftToRight.GetPixel(3, 3), HmiRgb(178, 0, 76));
    EXPECT_EQ(leftToRight.GetPixel(9, 1), HmiRgb(25, 0, 229));
    EXPECT_EQ(leftToRight.GetPixel(3, 4), kWhite) << "a line stops short of the bottom";

    CHmiImageDC topToBottom(6, 12);
    PaintRectGradient(topToBottom, {0, 0, 4, 10}, kRed, kBlue, 38);
    EXPECT_EQ(topToBottom.GetPixel(2, 3), HmiRgb(178, 0, 76));

    CHmiImageDC bottomToTop(6, 12);
    PaintRectGradient(bottomToTop, {0, 0, 4, 10}, kRed, kBlue, 39);
    EXPECT_EQ(bottomToTop.GetPixel(2, 7), HmiRgb(178, 0, 76));
}

TEST(GradientPixels, Code37PaintsFromBothSideEdgesTowardsTheCentre)
{
    CHmiImageDC dc(12, 4);
    PaintRectGradient(dc, {0, 0, 10, 2}, kBlack, kWhite, 37);
    EXPECT_EQ(dc.GetPixel(0, 0), kBlack);
    EXPECT_EQ(dc.GetPixel(1, 1), Grey(51));
    EXPECT_EQ(dc.GetPixel(9, 1), Grey(51)) << "the right edge line of step 0 lies outside, step 1 inside";
    EXPECT_EQ(dc.GetPixel(5, 0), kWhite);
    EXPECT_EQ(dc.GetPixel(4, 0), Grey(204));
    EXPECT_EQ(dc.GetPixel(6, 0), Grey(204));
}

TEST(GradientPixels, CentreToSidesPutsTheStartColourOnTheCentreLine)
{
    CHmiImageDC dc(12, 12);
    PaintRectGradient(dc, {0, 0, 10, 10}, kBlack, kWhite, 33);
    EXPECT_EQ(dc.GetPixel(4, 5), kBlack);
    EXPECT_EQ(dc.GetPixel(4, 6), Grey(51));
    EXPECT_EQ(dc.GetPixel(4, 4), Grey(51));
    EXPECT_EQ(dc.GetPixel(4, 1), Grey(204));
}

TEST(GradientPixels, DiagonalRunsFromTheNamedCornerOverTheDiagonal)
{
    CHmiImageDC dc(10, 6);
    PaintRectGradient(dc, {0, 0, 8, 4}, kBlack, kWhite, 40);
    EXPECT_EQ(dc.GetPixel(4, 2), Grey(127)) << "the full diagonal is the middle step of 16";
    EXPECT_LT(RedOf(dc.GetPixel(7, 3)), RedOf(dc.GetPixel(4, 2)));
    EXPECT_GT(RedOf(dc.GetPixel(0, 0)), RedOf(dc.GetPixel(4, 2)));

    CHmiImageDC mirrored(10, 6);
    PaintRectGradient(mirrored, {0, 0, 8, 4}, kBlack, kWhite, 42);
    EXPECT_LT(RedOf(mirrored.GetPixel(0, 0)), RedOf(mirrored.GetPixel(7, 3))) << "from the left top corner";

    CHmiImageDC tall(6, 10);
    PaintRectGradient(tall, {0, 0, 4, 8}, kBlack, kWhite, 40);
    EXPECT_LT(RedOf(tall.GetPixel(3, 7)), RedOf(tall.GetPixel(0, 0)));
}

TEST(GradientPixels, TheOtherCornersPaintMirrorImages)
{
    const HmiRect rect{1, 2, 14, 8};
    CHmiImageDC original(16, 10);
    PaintRectGradient(original, rect, kRed, kBlue, 40);
    struct Mirror {
        int code;
        bool x;
        bool y;
    };
    for (const Mirror mirror : {Mirror{41, true, false}, Mirror{42, true, true}, Mirror{43, false, true}}) {
        CHmiImageDC dc(16, 10);
        PaintRectGradient(dc, rect, kRed, kBlue, mirror.code);
        for (int y = rect.top; y < rect.bottom; ++y)
            for (int x = rect.left; x < rect.right; ++x) {
                const int mx = mirror.x ? rect.left + rect.right - 1 - x : x;
                const int my = mirror.y ? rect.top + rect.bottom - 1 - y : y;
                ASSERT_EQ(dc.GetPixel(mx, my), original.GetPixel(x, y)) << mirror.code << " at " << x << "," << y;
            }
    }
}

TEST(GradientPixels, CentreDiagonalHasTheStartColourAndTheCornersTheEnd)
{
    CHmiImageDC dc(10, 6);
    PaintRectGradient(dc, {0, 0, 8, 4}, kBlack, kWhite, 44);
    EXPECT_EQ(dc.GetPixel(4, 2), kBlack);
    EXPECT_GT(RedOf(dc.GetPixel(7, 3)), 150);
    EXPECT_GT(RedOf(dc.GetPixel(0, 0)), 150);

    CHmiImageDC reversed(10, 6);
    PaintRectGradient(reversed, {0, 0, 8, 4}, kBlack, kWhite, 45);
    EXPECT_EQ(reversed.GetPixel(4, 2), kWhite);
    EXPECT_LT(RedOf(reversed.GetPixel(7, 3)), 100);
}

TEST(GradientPixels, EllipseModes)
{
    CHmiImageDC scanned(22, 12);
    PaintEllipseGradient(scanned, {0, 0, 20, 10}, kBlack, kWhite, 1);
    EXPECT_EQ(scanned.GetPixel(10, 5), kBlack) << "the centre line in the start colour";
    EXPECT_EQ(scanned.GetPixel(10, 6), Grey(51)) << "whole-number steps of 255 / 5";
    EXPECT_EQ(scanned.GetPixel(10, 4), Grey(51));
    EXPECT_EQ(scanned.GetPixel(10, 1), Grey(204));
    EXPECT_EQ(scanned.GetPixel(1, 1), kWhite) << "outside the ellipse";

    CHmiImageDC columns(12, 22);
    PaintEllipseGradient(columns, {0, 0, 10, 20}, kBlack, kWhite, 0);
    EXPECT_EQ(columns.GetPixel(5, 10), kBlack);
    EXPECT_EQ(columns.GetPixel(6, 10), Grey(51));
    EXPECT_EQ(columns.GetPixel(3, 10), Grey(102));

    CHmiImageDC rings(22, 22);
    PaintEllipseGradient(rings, {0, 0, 20, 20}, kWhite, kBlack, 2);
    EXPECT_EQ(rings.GetPixel(10, 0), kBlack) << "the outer ring in the end colour";
    EXPECT_GT(RedOf(rings.GetPixel(10, 10)), 200) << "the centre near the start colour";

    CHmiImageDC flat(22, 4);
    for (int code = 0; code <= 2; ++code)
        PaintEllipseGradient(flat, {0, 0, 20, 1}, kBlack, kRed, code);
    EXPECT_TRUE(AllWhite(flat)) << "an ellipse one pixel high paints nothing";
}

TEST(GradientPixels, TriangleHasTheStartColourOnItsAxis)
{
    CHmiImageDC dc(22, 12);
    PaintTriangleGradient(dc, {0, 0, 20, 10}, kBlack, kWhite, 1);
    EXPECT_EQ(dc.GetPixel(10, 5), kBlack);
    EXPECT_EQ(dc.GetPixel(10, 9), kBlack);
    EXPECT_GT(RedOf(dc.GetPixel(1, 9)), 200) << "the slanting edge near the end colour";
    EXPECT_EQ(dc.GetPixel(1, 1), kWhite);

    CHmiImageDC reversed(22, 12);
    PaintTriangleGradient(reversed, {20, 0, 0, 10}, kBlack, kRed, 1);
    PaintTriangleGradient(reversed, {20, 0, 0, 10}, kBlack, kRed, 2);
    EXPECT_TRUE(AllWhite(reversed)) << "a reversed rectangle paints nothing";
}

TEST(GradientPixels, CodesOutsideTheirRangeAndEmptySides)
{
    CHmiImageDC dc(12, 12);
    for (int code : {0, 31, 48})
        PaintRectGradient(dc, {0, 0, 10, 10}, kBlack, kRed, code);
    for (int code : {-1, 3})
        PaintEllipseGradient(dc, {0, 0, 10, 10}, kBlack, kRed, code);
    for (int code : {0, 5})
        PaintTriangleGradient(dc, {0, 0, 10, 10}, kBlack, kRed, code);
    EXPECT_TRUE(AllWhite(dc));

    CHmiImageDC line(12, 12);
    PaintRectGradient(line, {5, 0, 5, 10}, kRed, kBlue, 34);
    EXPECT_EQ(line.GetPixel(5, 3), kRed) << "a rectangle without width paints its one line in the start colour";
}

TEST(GradientPixels, WidgetDrawsItsStoredDirection)
{
    CHmiWidgetGradRect widget;
    widget.SetWidgetRect({0, 0, 10, 4});
    widget.m_startColor = kRed;
    widget.m_endColor = kBlue;
    widget.m_nDirection = 35;
    CHmiImageDC dc(12, 6);
    widget.Draw(dc);
    EXPECT_EQ(dc.GetPixel(7, 2), HmiRgb(178, 0, 76)) << "right to left: step 3 at right - 3";
}

TEST(GradientPixels, GradientsRunningPastTheImageKeepEveryPixelInside)
{
    // Square, wide, flat, tall, narrow and reversed rectangles around and across the small
    // image. No side has a negative odd sum of ends, whose half would not shift with them.
    const HmiRect rects[] = {{-90, -70, 110, 95}, {-125, 3, 160, 26}, {-130, 12, 170, 14}, {15, -100, 31, 130},
                             {-4, -98, 2, 127}, {60, 50, -40, -60}};
    for (const GradientMode& mode : AllModes()) {
        for (const HmiRect& r : rects) {
            const std::string changed = FirstPixelChangedByClipping([&](CHmiDC& dc, HmiPoint at) {
                mode.paint(dc, {r.left + at.x, r.top + at.y, r.right + at.x, r.bottom + at.y}, kRed, kBlue, mode.code);
            });
            EXPECT_EQ(changed, "") << mode.painter << " " << mode.code << " in " << r.left << "," << r.top << ","
                                   << r.right << "," << r.bottom;
        }
    }
}

TEST(GradientWork, HugeGradientsDrawOnlyWhatReachesTheTarget)
{
    // A bound on the lines (or rings) of a 640 x 480 view: one per pixel across and down the
    // view, for each of the two halves that some modes paint in pairs, and a few more.
    constexpr std::size_t kBound = 2 * 2 * (640 + 480) + 64;
    const HmiRect rects[] = {{-1000000000, -1000000000, 1000000000, 1000000000},
                             {INT_MIN, INT_MIN, INT_MAX, INT_MAX},
                             {-1000000000, 100, 300, 1000000000},
                             {INT_MAX, INT_MAX, INT_MIN, INT_MIN}};
    for (const GradientMode& mode : AllModes()) {
        for (const HmiRect& r : rects) {
            RecordingDC dc;
            dc.clipBox = {0, 0, 640, 480};
            mode.paint(dc, r, kRed, kBlue, mode.code);
            EXPECT_LE(dc.shapes.size(), kBound) << mode.painter << " " << mode.code << " in " << r.left << ","
                                                << r.top << "," << r.right << "," << r.bottom;
        }
    }
}
