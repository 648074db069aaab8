#include "tests/support/recordingdc.h"
#include "widgets/hmidraw.h"

#include <gtest/gtest.h>

#include <tuple>

TEST(HmiDraw, RectAndPolygonUseTheirOwnPenAndBrushAndPutTheOldOnesBack)
{
    RecordingDC dc;
    const HmiPen oldPen = dc.pen;
    const HmiBrush oldBrush = dc.brush;
    EXPECT_EQ(HmiDrawRect(&dc, 1, 2, 30, 40, HmiRgb(255, 0, 0), HmiRgb(0, 0, 255)), 0);
    const HmiPoint points[] = {{0, 0}, {5, 0}, {5, 5}};
    EXPECT_EQ(HmiDrawPolygon(&dc, points, 0x808080, 0x808080), 1);

    ASSERT_EQ(dc.shapes.size(), 2u);
    EXPECT_EQ(std::tuple(dc.shapes[0].rect, dc.shapes[0].pen, dc.shapes[0].brush),
              std::tuple(HmiRect{1, 2, 30, 40}, HmiPen{HmiPenStyle::Solid, 1, 0x0000FF}, HmiBrush{false, 0xFF0000}));
    EXPECT_EQ(std::tuple(dc.pen, dc.brush), std::tuple(oldPen, oldBrush));

    EXPECT_EQ(HmiDrawRect(nullptr, 0, 0, 1, 1, 0, 0), 0);
    EXPECT_EQ(HmiDrawPolygon(nullptr, points, 0, 0), 0) << "no target draws nothing";
}

TEST(HmiDraw, LineTakesItsOwnPenOnlyWithAWidthOrAColour)
{
    RecordingDC dc;
    dc.pen = {HmiPenStyle::Dash, 3, 0x123456};
    HmiDrawLine(&dc, 0, 0, 10, 0, 0, 1, 0);
    HmiDrawLine(&dc, 0, 1, 10, 1, 2, 2, 0);
    HmiDrawLine(&dc, 0, 2, 10, 2, 0, 9, 0xFF);
    ASSERT_EQ(dc.shapes.size(), 3u);
    EXPECT_EQ(dc.shapes[0].pen, (HmiPen{HmiPenStyle::Dash, 3, 0x123456})) << "the selected pen";
    EXPECT_EQ(dc.shapes[1].pen, (HmiPen{HmiPenStyle::Dot, 2, 0}));
    EXPECT_EQ(dc.shapes[2].pen, (HmiPen{HmiPenStyle::Solid, 0, 0xFF})) << "unknown style codes draw solid";
    EXPECT_EQ(dc.shapes[2].rect, (HmiRect{0, 2, 10, 2}));
    EXPECT_EQ(dc.pen, (HmiPen{HmiPenStyle::Dash, 3, 0x123456}));
}

TEST(HmiDraw, SetPenKeepsOneSlotAndRestoresThePenItReplaced)
{
    RecordingDC dc;
    const HmiPen original = dc.pen;
    EXPECT_EQ(HmiSetPen(&dc, 2, 0xFF, false), 1);
    EXPECT_EQ(dc.pen, (HmiPen{HmiPenStyle::Solid, 2, 0xFF}));
    EXPECT_EQ(HmiSetPen(&dc, 1, 0xFF00, false), 1) << "a second pen replaces the first";
    HmiMoveTo(&dc, 1, 1);
    HmiLineTo(&dc, 5, 5);
    EXPECT_EQ(dc.shapes.back().pen.color, 0xFF00u);
    EXPECT_EQ(HmiSetPen(&dc, 0, 0, true), 1);
    EXPECT_EQ(dc.pen, original) << "restoring goes back to the pen before the first call";
    EXPECT_EQ(HmiSetPen(&dc, 0, 0, true), 1);
    EXPECT_EQ(dc.pen, original) << "restoring an empty slot changes nothing";
}

TEST(HmiDraw, TextWrapsInTheDefaultFontAndTakesALength)
{
    RecordingDC dc;
    dc.font = {"Other", 20, 700};
    HmiDrawText(&dc, 0, 0, 100, 20, "hello world", 0, 0xFF, 2);
    HmiDrawText(&dc, 0, 0, 100, 20, "hello world", 5, 0xFF, 0);
    HmiDrawText(&dc, 0, 0, 100, 20, "hi", 50, 0xFF, 1);
    ASSERT_EQ(dc.shapes.size(), 3u);
    const RecordingDC::Shape& first = dc.shapes[0];
    EXPECT_EQ(std::tuple(first.text, first.format, first.font, first.bkMode, first.color),
              std::tuple("hello world", HMI_DT_RIGHT | HMI_DT_WORDBREAK, HmiFont::DefaultGui(), HmiBkMode::Transparent,
                         0xFFu));
    EXPECT_EQ(std::tuple(dc.shapes[1].text, dc.shapes[1].format, dc.shapes[2].text),
              std::tuple("hello", HMI_DT_LEFT | HMI_DT_WORDBREAK, "hi"));
    EXPECT_EQ(dc.font, (HmiFont{"Other", 20, 700})) << "the previous font is put back";
}
