#include "tests/support/memoryoptiontree.h"
#include "widgets/catalogue/hmiwidgettimer.h"

#include <gtest/gtest.h>

TEST(HmiWidgetTimer, ReadsItsIntervalAsADecimalNumberAndClonesAnEditedOne)
{
    CHmiWidgetTimer timer;
    EXPECT_EQ(timer.SetWidgetProperty("interval", "ulong", "1000", ""), 1);
    EXPECT_EQ(timer.m_nInterval, 1000);
    timer.SetWidgetProperty("interval", "ulong", "0x10", "");
    EXPECT_EQ(timer.m_nInterval, 0) << "read as a plain decimal number";

    MemoryOptionTree tree;
    timer.CreateWidgetPropertyTree(tree);
    MemoryOptionItem* interval = tree.Find("interval", "Timer");
    ASSERT_NE(interval, nullptr);
    interval->SetEditText("500");
    timer.UpdateWidgetPropByTree(interval);
    const HmiWidgetPtr copy = timer.Clone();
    EXPECT_EQ(dynamic_cast<const CHmiWidgetTimer&>(*copy).m_nInterval, 500);
}
