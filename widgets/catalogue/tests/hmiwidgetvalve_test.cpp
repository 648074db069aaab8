#include "ownproperties.h"
#include "tests/support/memoryoptiontree.h"
#include "widgets/catalogue/hmiwidgetvalve.h"

#include <gtest/gtest.h>

TEST(HmiWidgetValve, KeepsItsCentreColourOutsideThePropertyRecords)
{
    CHmiWidgetValve valve;
    EXPECT_EQ(valve.GetWidgetClassName(), "valve");
    EXPECT_TRUE(OwnPropertyRows(valve).empty());
    EXPECT_EQ(OwnPropertyLines(valve), "\t\t\t<property name=\"centercolor\" type=\"ulong\" value=\"255\" />\n");
    valve.SetWidgetProperty("centercolor", "ulong", "0x00FF00", "");
    EXPECT_EQ(valve.m_centerColor, 0x0000FF00u);
}

TEST(HmiWidgetValve, CentreColourRowIsEditedAndCloned)
{
    CHmiWidgetValve valve;
    MemoryOptionTree tree;
    valve.CreateWidgetPropertyTree(tree);
    EXPECT_EQ(tree.Find("Valve")->info, "Valve Widget Properties.");
    MemoryOptionItem* color = tree.Find("centercolor", "Valve");
    ASSERT_NE(color, nullptr);
    EXPECT_EQ(color->info, "Valve Center Color.");
    EXPECT_EQ(color->color, 0x000000FFu);

    color->SetColor(0x00FF0000);
    valve.UpdateWidgetPropByTree(color);
    const HmiWidgetPtr copy = valve.Clone();
    auto* clone = dynamic_cast<CHmiWidgetValve*>(copy.get());
    ASSERT_NE(clone, nullptr);
    EXPECT_EQ(clone->m_centerColor, 0x00FF0000u);
}
