// The drawing steps of the basic shapes, the valve and the window, and how a line is grabbed.

#include "catalogue/hmiwidgetellipse.h"
#include "catalogue/hmiwidgetline.h"
#include "catalogue/hmiwidgetrect.h"
#include "catalogue/hmiwidgetvalve.h"
#include "tests/support/recordingdc.h"
#include "widgets/hmiwidgetwindow.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <tuple>

TEST(Shapes, LineIsGrabbedInABandAroundThinLinesAndAnywhereInItsBox)
{
    CHmiWidgetLine flat;
    flat.SetWidgetRect({100, 50, 200, 50});
    EXPECT_TRUE(flat.Intersects(HmiPoint{150, 47}));
    EXPECT_TRUE(flat.Intersects(HmiPoint{150, 52}));
    EXPECT_FALSE(flat.Intersects(HmiPoint{150, 46}));
    EXPECT_FALSE(flat.Intersects(HmiPoint{150, 53})) << "the band's bottom edge is outside";
    EXPECT_TRUE(flat.Intersects(HmiRect{140, 40, 160, 48})) << "a band touching the grab area selects it";
    EXPECT_FALSE(flat.Intersects(HmiRect{140, 30, 160, 47}));

    CHmiWidgetLine diagonal;
    diagonal.SetWidgetRect({200, 200, 100, 100});
    EXPECT_TRUE(diagonal.Intersects(HmiPoint{190, 110})) << "far from the diagonal but in its box";
    EXPECT_FALSE(diagonal.Intersects(HmiPoint{97, 150})) << "a wide box gets no band";
}

TEST(Shapes, LineRunsCornerToCornerInItsStyle)
{
    CHmiWidgetLine line;
    line.SetWidgetRect({30, 40, 10, 20});
    line.m_nLineWidth = 0;
    line.m_nStyle = 4;
    line.m_nDirection = 0;
    RecordingDC dc = DrawnBy(line);
    ASSERT_EQ(dc.shapes.size(), 1u);
    EXPECT_EQ(std::tuple(dc.shapes[0].rect, dc.shapes[0].pen),
              std::tuple(HmiRect{30, 20, 10, 40}, HmiPen{HmiPenStyle::Solid, 0, 0})) << "right top to left bottom";

    line.m_nDirection = 1;
    line.m_nStyle = 2;
    line.Draw(dc);
    EXPECT_EQ(std::tuple(dc.shapes[1].rect, dc.shapes[1].pen.style, dc.pen),
              std::tuple(HmiRect{10, 20, 30, 40}, HmiPenStyle::Dot, HmiPen{}));
}

TEST(Shapes, RectangleAndEllipseDrawTheStoredRectangleWithTheirColours)
{
    CHmiWidgetRect rect;
    rect.SetWidgetRect({50, 50, 10, 10});
    rect.m_edgeColor = 0xFF;
    RecordingDC dc = DrawnBy(rect);
    CHmiWidgetEllipse ellipse;
    ellipse.m_fillColor = 0xFF00;
    ellipse.Draw(dc);
    ASSERT_EQ(dc.shapes.size(), 2u);
    EXPECT_EQ(std::tuple(dc.shapes[0].kind, dc.shapes[0].rect, dc.shapes[0].pen, dc.shapes[0].brush),
              std::tuple("rectangle", HmiRect{50, 50, 10, 10}, HmiPen{HmiPenStyle::Solid, 1, 0xFF},
                         HmiBrush{false, 0xFFFFFF}));
    EXPECT_EQ(std::tuple(dc.shapes[1].kind, dc.shapes[1].brush.color), std::tuple("ellipse", 0xFF00u));
}

TEST(Shapes, ValveIsABowTieWithAStemAWheelAndTheCentreColour)
{
    CHmiWidgetValve valve;
    valve.SetWidgetRect({0, 0, 40, 48});
    valve.m_centerColor = 0xFF00;
    const RecordingDC dc = DrawnBy(valve);
    const auto lines = dc.ShapesOfKind("line");
    const auto ellipses = dc.ShapesOfKind("ellipse");
    ASSERT_EQ(ellipses.size(), 2u);
    EXPECT_EQ(std::tuple(ellipses[0].rect, ellipses[0].brush.color, ellipses[1].rect, ellipses[1].brush.color),
              std::tuple(HmiRect{8, 24, 32, 48}, 0x7E7E7Eu, HmiRect{12, 30, 28, 42}, 0xFF00u));
    // Both halves fan from the middle (20, 36): the left apex on its right side, the right on its left.
    ASSERT_GE(lines.size(), 4u);
    EXPECT_EQ(HmiPoint(lines[0].rect.left, lines[0].rect.top), (HmiPoint{20, 36}));
    EXPECT_TRUE(std::any_of(lines.begin(), lines.end(), [](const RecordingDC::Shape& line) {
        return line.rect.left == 20 && line.rect.top == 36 && line.rect.right == 40;
    }));
    const auto& stem = lines[lines.size() - 2];
    EXPECT_EQ(std::tuple(stem.rect, stem.pen),
              std::tuple(HmiRect{20, 0, 20, 36}, HmiPen{HmiPenStyle::Solid, 2, 0x7E7E7E}));
    EXPECT_EQ(lines.back().rect, (HmiRect{10, 0, 30, 0})) << "the wheel";
}

TEST(Shapes, WindowDrawsItsBackgroundFromTheOriginInADottedFrame)
{
    CHmiWidgetWindow window;
    window.SetWidgetRect({10, 20, 330, 260});
    window.m_bkColor = 0x00FF00;
    const RecordingDC dc = DrawnBy(window);
    ASSERT_EQ(dc.shapes.size(), 1u);
    EXPECT_EQ(std::tuple(dc.shapes[0].rect, dc.shapes[0].pen, dc.shapes[0].brush),
              std::tuple(HmiRect{0, 0, 320, 240}, HmiPen{HmiPenStyle::Dot, 1, 0}, HmiBrush{false, 0x00FF00}));
    EXPECT_EQ(dc.pen, HmiPen{}) << "the previous pen is selected back";
}
