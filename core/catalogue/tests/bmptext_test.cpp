// The bitmap text's point list, from real rendered pixels.

#include "catalogue/hmiwidgetbmptext.h"
#include "ownproperties.h"
#include "widgets/hmiimagedc.h"

#include <gtest/gtest.h>

#include <climits>
#include <functional>

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

    CHmiImageDC wide(0x901, 1);
    wide.FillSolidRect({0x900, 0, 0x901, 1}, 0x0000FF);
    EXPECT_EQ(EncodeBitmapPoints(wide), "1100" "000" "0000FF") << "a flagged x beyond three digits takes four";
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

// A save renders the text again after any edit of what it is drawn from, and only then. How it
// reads its font and colour is in the file-value table.
TEST(BmpText, ASaveRendersAgainAfterEveryEditOnlyAndACloneKeepsThePoints)
{
    CHmiWidgetBmpText widget;
    widget.SetWidgetRect({0, 0, 60, 30});
    widget.m_font = {"DejaVu Sans", -16, 700};
    const std::function<void()> edits[] = {
        [&] { widget.m_strText = "Pump"; },
        [&] { widget.m_textColor = 0x0000FF; },
        [&] { widget.m_font.height = -20; },
        [&] { widget.m_font.italic = 1; },
        [&] { widget.m_nAlign = 3; },
        [&] { widget.SetWidgetRect({5, 5, 45, 35}); }, // narrower, so the centred text moves
        [&] { widget.SetWidgetProperty("text", "string", "Valve", ""); },
    };
    OwnPropertyLines(widget);
    for (std::size_t i = 0; i < std::size(edits); ++i) {
        const std::string before = widget.m_strBitmap;
        edits[i]();
        OwnPropertyLines(widget);
        EXPECT_NE(widget.m_strBitmap, before) << "edit " << i;
        EXPECT_EQ(widget.m_strBitmap, widget.RenderBitmap()) << "edit " << i;
    }
    const std::string rendered = widget.m_strBitmap;
    widget.m_strBitmap = "kept";
    OwnPropertyLines(widget);
    EXPECT_EQ(widget.m_strBitmap, "kept") << "nothing changed, nothing rendered";

    ASSERT_EQ(widget.SetWidgetProperty("bitmap", "string", "000000", ""), 1);
    EXPECT_EQ(dynamic_cast<const CHmiWidgetBmpText&>(*widget.Clone()).m_strBitmap, "000000");
    OwnPropertyLines(widget);
    EXPECT_EQ(widget.m_strBitmap, rendered) << "points that were read are rendered over";
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
