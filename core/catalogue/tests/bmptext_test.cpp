// The bitmap text's point list, from real rendered pixels.

#include "catalogue/hmiwidgetbmptext.h"
#include "ownproperties.h"
#include "widgets/hmiimagedc.h"

#include <gtest/gtest.h>

#include <climits>

TEST(BmpText, EncodesBlackPointsShortAndColouredPointsWithTheirColour)
{
    CHmiImageDC image(2, 2);
    image.FillSolidRect({0, 0, 1, 1}, 0x000000);
    image.FillSolidRect({1, 0, 2, 1}, 0x0000FF);
    EXPECT_EQ(EncodeBitmapPoints(image), "000000" "801000" "0000FF");

    CHmiImageDC columns(3, 20);
    columns.FillSolidRect({2, 17, 3, 18}, 0x123456);
    columns.FillSolidRect({0, 19, 1, 20}, 0);
    EXPECT_EQ(EncodeBitmapPoints(columns), "000013" "802011123456") << "column by column, in hexadecimal";
}

// What the default widget renders, and the bitmap line's length, are pinned down by the
// catalogue reference.
TEST(BmpText, RendersItsTextInItsColourWhenSavedAndNoPointsWithoutText)
{
    CHmiWidgetBmpText widget;
    widget.SetWidgetRect({100, 100, 160, 130});
    widget.m_font = {"DejaVu Sans", -16, 700};
    widget.m_textColor = 0x0000FF;
    OwnPropertyLines(widget);
    EXPECT_EQ(widget.m_strBitmap.substr(6, 6), "0000FF") << "coloured points carry their colour";
    EXPECT_GE(std::stoi(widget.m_strBitmap.substr(0, 3), nullptr, 16), 0x800);

    widget.m_strText.clear();
    EXPECT_NE(OwnPropertyLines(widget).find("<property name=\"bitmap\" type=\"string\" length=\"1\" value=\"\" />"),
              std::string::npos)
        << "an all-white picture";
}

// How it reads its font and colour is in the file-value table.
TEST(BmpText, ACloneKeepsThePointsItRead)
{
    CHmiWidgetBmpText widget;
    ASSERT_EQ(widget.SetWidgetProperty("bitmap", "string", "000000", ""), 1);
    EXPECT_EQ(dynamic_cast<const CHmiWidgetBmpText&>(*widget.Clone()).m_strBitmap, "000000");
}

TEST(BmpText, AHugeWidgetRendersOnlyWhatThePointListCanHold)
{
    auto rendered = [](const HmiRect& rect) {
        CHmiWidgetBmpText widget;
        widget.SetWidgetRect(rect);
        widget.m_font = {"DejaVu Sans", -16, 700};
        return widget.RenderBitmap();
    };
    const std::string whole = rendered({0, 0, 0x1000, 0x1000});
    ASSERT_FALSE(whole.empty());
    EXPECT_EQ(rendered({0, 0, INT_MAX, INT_MAX}), whole) << "the text at the top left, no more";
    EXPECT_EQ(rendered({INT_MAX, INT_MAX, INT_MIN, INT_MIN}), whole);
}
