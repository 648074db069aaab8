// How the window writes and reads back its style is pinned down by the window-file tests of the
// core; these are the bits read one by one.

#include "tests/support/memoryoptiontree.h"
#include "tests/support/recordingdc.h"
#include "widgets/catalogue/hmiwidgetwindow.h"

#include <gtest/gtest.h>

TEST(HmiWidgetWindow, EachStyleBitSetsItsFlagAndAClearBitLeavesIt)
{
    CHmiWidgetWindow window;
    EXPECT_EQ(window.SetWidgetProperty("style", "ulong", "0x4", ""), 1);
    EXPECT_EQ(window.m_nHasCaption, 0);
    EXPECT_EQ(window.m_nCenterWnd, 1);
    window.SetWidgetProperty("style", "ulong", "0", "");
    EXPECT_EQ(window.m_nCenterWnd, 1) << "a clear bit leaves its flag as it was";
    window.SetWidgetProperty("style", "ulong", "1", "");
    EXPECT_EQ(window.m_nHasCaption, 1);

    window.SetWidgetProperty("bkcolor", "ulong", "0x00FF00", "");
    EXPECT_EQ(window.m_bkColor, 0x0000FF00u);
}

TEST(HmiWidgetWindow, PropertyListShowsAndTakesTheWindowValues)
{
    CHmiWidgetWindow window;
    window.m_nSecurityMode = 2;
    MemoryOptionTree tree;
    window.CreateWidgetPropertyTree(tree);
    EXPECT_EQ(tree.Find("security handle mode", "Window")->selection, 2);

    MemoryOptionItem* caption = tree.Find("caption", "Window");
    caption->SetCurSel(1);
    window.UpdateWidgetPropByTree(caption);
    MemoryOptionItem* color = tree.Find("bkcolor", "Window");
    color->SetColor(0x00123456);
    window.UpdateWidgetPropByTree(color);
    EXPECT_EQ(window.m_nHasCaption, 1);
    EXPECT_EQ(window.m_bkColor, 0x00123456u);
}

TEST(HmiWidgetWindow, CloneWritesTheSameElement)
{
    CHmiWidgetWindow window;
    window.m_nHasCaption = 1;
    window.m_bkColor = 0x00000080;
    window.m_nSecurityLevel = 3;
    window.m_nSecurityMode = 1;
    window.SetWidgetRect({0, 0, 320, 240});
    window.SetWidgetEventCode("close", "save();");

    const HmiWidgetPtr clone = window.Clone();
    std::string original, cloned;
    window.Serialize(original);
    clone->Serialize(cloned);
    EXPECT_EQ(cloned, original);
}

TEST(HmiWidgetWindow, DrawsItsBackgroundFromTheOriginInADottedFrame)
{
    CHmiWidgetWindow window;
    window.SetWidgetRect({10, 20, 330, 260});
    window.m_bkColor = 0x00FF00;
    RecordingDC dc;
    window.Draw(dc);
    ASSERT_EQ(dc.shapes.size(), 1u);
    EXPECT_EQ(dc.shapes[0].rect, (HmiRect{0, 0, 320, 240}));
    EXPECT_EQ(dc.shapes[0].pen, (HmiPen{HmiPenStyle::Dot, 1, 0}));
    EXPECT_EQ(dc.shapes[0].brush, (HmiBrush{false, 0x00FF00}));
    EXPECT_EQ(dc.pen, HmiPen{}) << "the previous pen is selected back";
}
