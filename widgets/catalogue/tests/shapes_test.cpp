// The basic and gradient shapes and the valve: how they read values and take edits from their
// property rows, and their drawing steps.

#include "tests/support/memoryoptiontree.h"
#include "tests/support/recordingdc.h"
#include "widgets/catalogue/hmiwidgetellipse.h"
#include "widgets/catalogue/hmiwidgetgradellipse.h"
#include "widgets/catalogue/hmiwidgetgradrect.h"
#include "widgets/catalogue/hmiwidgetgradtriangle.h"
#include "widgets/catalogue/hmiwidgetline.h"
#include "widgets/catalogue/hmiwidgetrect.h"
#include "widgets/catalogue/hmiwidgetvalve.h"

#include <gtest/gtest.h>

TEST(Shapes, ReadEveryValueAsASignedDecimalNumber)
{
    CHmiWidgetRect rect;
    EXPECT_EQ(rect.SetWidgetProperty("fillcolor", "ulong", "0x00FF00", ""), 1);
    EXPECT_EQ(rect.m_fillColor, 0u) << "hexadecimal is not understood";
    rect.SetWidgetProperty("edgecolor", "ulong", "16777215", "");
    EXPECT_EQ(rect.m_edgeColor, 0xFFFFFFu);
    EXPECT_EQ(rect.SetWidgetProperty("needle", "ulong", "1", ""), 0);

    CHmiWidgetLine line;
    line.SetWidgetProperty("linewidth", "ulong", "-3", "");
    EXPECT_EQ(line.m_nLineWidth, -3);
    line.SetWidgetProperty("direction", "ulong", "7px", "");
    EXPECT_EQ(line.m_nDirection, 7);
}

TEST(Shapes, PropertyRowsShowListIndexesAndEditsStoreCodes)
{
    CHmiWidgetGradRect gradRect;
    MemoryOptionTree tree;
    gradRect.CreateWidgetPropertyTree(tree);
    MemoryOptionItem* direction = tree.Find("direction", "Gradient rectangle");
    EXPECT_EQ(direction->selection, 0) << "code 32 is the first entry";
    direction->SetCurSel(5);
    gradRect.UpdateWidgetPropByTree(direction);
    EXPECT_EQ(gradRect.m_nDirection, 37);
    MemoryOptionItem* start = tree.Find("startcolor", "Gradient rectangle");
    start->SetColor(0x123456);
    gradRect.UpdateWidgetPropByTree(start);
    EXPECT_EQ(gradRect.m_startColor, 0x123456u);

    gradRect.m_nDirection = 48;
    std::string text;
    ASSERT_EQ(gradRect.GetWidgetPropValue(*gradRect.FindProperty("direction"), text), 1);
    EXPECT_EQ(text, "16") << "a code from a hand-edited file shows no entry";

    CHmiWidgetLine line;
    MemoryOptionTree lineTree;
    line.CreateWidgetPropertyTree(lineTree);
    MemoryOptionItem* width = lineTree.Find("linewidth", "Line");
    width->SetEditText("4px");
    line.UpdateWidgetPropByTree(width);
    EXPECT_EQ(line.m_nLineWidth, 4);
}

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
    RecordingDC dc;
    line.Draw(dc);
    ASSERT_EQ(dc.shapes.size(), 1u);
    EXPECT_EQ(dc.shapes[0].rect, (HmiRect{30, 20, 10, 40})) << "right top to left bottom";
    EXPECT_EQ(dc.shapes[0].pen, (HmiPen{HmiPenStyle::Solid, 0, 0}));

    line.m_nDirection = 1;
    line.m_nStyle = 2;
    line.Draw(dc);
    EXPECT_EQ(dc.shapes[1].rect, (HmiRect{10, 20, 30, 40}));
    EXPECT_EQ(dc.shapes[1].pen.style, HmiPenStyle::Dot);
    EXPECT_EQ(dc.pen, HmiPen{});
}

TEST(Shapes, RectangleAndEllipseDrawTheStoredRectangleWithTheirColours)
{
    CHmiWidgetRect rect;
    rect.SetWidgetRect({50, 50, 10, 10});
    rect.m_edgeColor = 0xFF;
    RecordingDC dc;
    rect.Draw(dc);
    CHmiWidgetEllipse ellipse;
    ellipse.m_fillColor = 0xFF00;
    ellipse.Draw(dc);
    ASSERT_EQ(dc.shapes.size(), 2u);
    EXPECT_EQ(dc.shapes[0].kind, "rectangle");
    EXPECT_EQ(dc.shapes[0].rect, (HmiRect{50, 50, 10, 10}));
    EXPECT_EQ(dc.shapes[0].pen, (HmiPen{HmiPenStyle::Solid, 1, 0xFF}));
    EXPECT_EQ(dc.shapes[0].brush, (HmiBrush{false, 0xFFFFFF}));
    EXPECT_EQ(dc.shapes[1].kind, "ellipse");
    EXPECT_EQ(dc.shapes[1].brush.color, 0xFF00u);
}

TEST(Shapes, ValveIsABowTieWithAStemAWheelAndTheCentreColour)
{
    CHmiWidgetValve valve;
    valve.SetWidgetRect({0, 0, 40, 48});
    valve.m_centerColor = 0xFF00;
    RecordingDC dc;
    valve.Draw(dc);
    const auto lines = dc.ShapesOfKind("line");
    const auto ellipses = dc.ShapesOfKind("ellipse");
    ASSERT_EQ(ellipses.size(), 2u);
    EXPECT_EQ(ellipses[0].rect, (HmiRect{8, 24, 32, 48}));
    EXPECT_EQ(ellipses[0].brush.color, 0x7E7E7Eu);
    EXPECT_EQ(ellipses[1].rect, (HmiRect{12, 30, 28, 42}));
    EXPECT_EQ(ellipses[1].brush.color, 0xFF00u);
    // Both halves fan from the middle (20, 36): the left apex on its right side, the right on its left.
    ASSERT_GE(lines.size(), 4u);
    EXPECT_EQ(HmiPoint(lines[0].rect.left, lines[0].rect.top), (HmiPoint{20, 36}));
    const auto& stem = lines[lines.size() - 2];
    const auto& wheel = lines.back();
    EXPECT_EQ(stem.rect, (HmiRect{20, 0, 20, 36}));
    EXPECT_EQ(stem.pen, (HmiPen{HmiPenStyle::Solid, 2, 0x7E7E7E}));
    EXPECT_EQ(wheel.rect, (HmiRect{10, 0, 30, 0}));
    bool rightHalfFromMiddle = false;
    for (const auto& line : lines)
        rightHalfFromMiddle |= line.rect.left == 20 && line.rect.top == 36 && line.rect.right == 40;
    EXPECT_TRUE(rightHalfFromMiddle);
}
