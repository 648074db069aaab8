#include "ownproperties.h"
#include "tests/support/memoryoptiontree.h"
#include "widgets/catalogue/hmiwidgettimer.h"

#include <gtest/gtest.h>

TEST(HmiWidgetTimer, DeclaresReadsAndWritesItsInterval)
{
    CHmiWidgetTimer timer;
    EXPECT_EQ(timer.GetWidgetClassName(), "timer");
    EXPECT_EQ(OwnPropertyRows(timer), (std::vector<PropertyRow>{{"interval", "interval",
                                                                 "Set timer interval(miniseconds)", 0, PROP_EDIT,
                                                                 "Timer", {}}}));
    EXPECT_EQ(OwnPropertyLines(timer), "\t\t\t<property name=\"interval\" type=\"ulong\" value=\"0\" />\n");

    EXPECT_EQ(timer.SetWidgetProperty("interval", "ulong", "1000", ""), 1);
    EXPECT_EQ(timer.m_nInterval, 1000);
    timer.SetWidgetProperty("interval", "ulong", "0x10", "");
    EXPECT_EQ(timer.m_nInterval, 0) << "read as a plain decimal number";
}

TEST(HmiWidgetTimer, IntervalIsEditedInItsGroupAndCloned)
{
    CHmiWidgetTimer timer;
    MemoryOptionTree tree;
    timer.CreateWidgetPropertyTree(tree);
    EXPECT_EQ(tree.Find("Timer")->info, "Timer properties");
    MemoryOptionItem* interval = tree.Find("interval", "Timer");
    interval->SetEditText("500");
    timer.UpdateWidgetPropByTree(interval);
    EXPECT_EQ(timer.m_nInterval, 500);

    const HmiWidgetPtr copy = timer.Clone();
    auto* clone = dynamic_cast<CHmiWidgetTimer*>(copy.get());
    ASSERT_NE(clone, nullptr);
    EXPECT_EQ(clone->m_nInterval, 500);
}
