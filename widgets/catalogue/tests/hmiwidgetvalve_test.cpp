#include "tests/support/memoryoptiontree.h"
#include "widgets/catalogue/hmiwidgetvalve.h"

#include <gtest/gtest.h>

TEST(HmiWidgetValve, ReadsAHexadecimalCentreColourAndClonesAnEditedOne)
{
    CHmiWidgetValve valve;
    valve.SetWidgetProperty("centercolor", "ulong", "0x00FF00", "");
    EXPECT_EQ(valve.m_centerColor, 0x0000FF00u);

    MemoryOptionTree tree;
    valve.CreateWidgetPropertyTree(tree);
    MemoryOptionItem* color = tree.Find("centercolor", "Valve");
    ASSERT_NE(color, nullptr);
    EXPECT_EQ(color->color, 0x0000FF00u);
    color->SetColor(0x00FF0000);
    valve.UpdateWidgetPropByTree(color);
    const HmiWidgetPtr copy = valve.Clone();
    EXPECT_EQ(dynamic_cast<const CHmiWidgetValve&>(*copy).m_centerColor, 0x00FF0000u);
}
