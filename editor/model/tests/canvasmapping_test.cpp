#include "editor/model/canvasmapping.h"

#include <gtest/gtest.h>

#include <limits>

namespace {

CCanvasMapping At(int percent)
{
    CCanvasMapping mapping;
    mapping.SetPercent(percent);
    return mapping;
}

} // namespace

// A window point stands at the first pixel that shows it, left and above the origin too; at
// 100 % and more every point is shown. Rectangles grow outward, and nothing overflows however far
// a window file puts a widget.
TEST(CanvasMappingTest, PointsMeetThePixelsThatShowThemAndRectanglesGrowOutward)
{
    for (const int percent : {25, 33, 50, 67, 100, 150, 200, 400}) {
        const CCanvasMapping mapping = At(percent);
        for (int x = -9; x <= 9; ++x) {
            const HmiPoint shownAt = mapping.DocToClient(HmiPoint{x, -x});
            const HmiPoint shows = mapping.ClientToDoc(shownAt);
            EXPECT_TRUE(shows.x >= x && shows.y >= -x) << percent << " % at " << x;
            EXPECT_TRUE(mapping.ClientToDoc(HmiPoint{shownAt.x - 1, 0}).x < x) << percent << " % at " << x;
            if (percent >= 100) {
                EXPECT_EQ(shows, (HmiPoint{x, -x})) << percent << " % at " << x;
            }
        }
    }
    EXPECT_EQ(At(50).ClientToDoc(HmiPoint{0, 1}), (HmiPoint{1, 3})); // the pixels' centres
    EXPECT_EQ(At(150).DocToClient(HmiPoint{9, -9}), (HmiPoint{13, -14}));
    EXPECT_EQ(At(200).ClientToDoc(HmiPoint{-1, -3}), (HmiPoint{-1, -2}));
    EXPECT_EQ(At(33).DocRectToClient(HmiRect{1, 1, 4, 4}), (HmiRect{0, 0, 2, 2}));
    EXPECT_EQ(At(200).ClientRectToDoc(HmiRect{3, 3, 5, 5}), (HmiRect{1, 1, 3, 3}));
    EXPECT_EQ(At(50).ClientLength(7), 4);
    constexpr int kMax = std::numeric_limits<std::int32_t>::max();
    EXPECT_EQ(At(400).DocToClient(HmiPoint{kMax, -kMax}), (HmiPoint{kMax, std::numeric_limits<std::int32_t>::min()}));
    EXPECT_EQ(At(25).ClientToDoc(HmiPoint{kMax, 0}).x, kMax);
}

TEST(CanvasMappingTest, StepsAndFitStayWithinTheRange)
{
    EXPECT_EQ(CCanvasMapping::StepIn(100), 125);
    EXPECT_EQ(CCanvasMapping::StepIn(89), 100); // from a fitted zoom to the next step
    EXPECT_EQ(CCanvasMapping::StepOut(89), 75);
    EXPECT_EQ(CCanvasMapping::StepIn(400), 400);
    EXPECT_EQ(CCanvasMapping::StepOut(25), 25);
    EXPECT_EQ(At(1000).Percent(), 400);
    EXPECT_EQ(CCanvasMapping::FitPercent({800, 480}, {712, 600}), 89);
    EXPECT_EQ(CCanvasMapping::FitPercent({800, 480}, {4000, 4000}), 400);
    EXPECT_EQ(CCanvasMapping::FitPercent({800, 480}, {-5, 10}), 25);
    EXPECT_EQ(CCanvasMapping::FitPercent({0, 480}, {700, 500}), 100);
}
