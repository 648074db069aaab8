// How a custom widget's kept lines are written within a window file is pinned down by the
// window-file tests of the core.

#include "tests/support/memoryoptiontree.h"
#include "widgets/catalogue/hmiwidgetcustom.h"

#include <gtest/gtest.h>

TEST(HmiWidgetCustom, KeepsUnknownPropertiesAsTheirLinesAndClonesThem)
{
    CHmiWidgetCustom widget;
    EXPECT_EQ(widget.SetWidgetProperty("a", "string", "x", ""), 1);
    EXPECT_EQ(widget.SetWidgetProperty("b", "string", "a<b", "33"), 1);
    EXPECT_EQ(widget.SetWidgetProperty("left", "short", "12", ""), 1);
    EXPECT_EQ(widget.GetWidgetRect().left, 12) << "a property the base knows is not kept as a line";
    EXPECT_EQ(widget.CustomInfo,
              "\t\t\t<property name=\"a\" type=\"string\" value=\"x\" />\n"
              "\t\t\t<property name=\"b\" type=\"string\" length=\"33\" value=\"a&lt;b\" />\n");

    widget.ClassName = "gauge";
    const HmiWidgetPtr copy = widget.Clone();
    EXPECT_EQ(copy->GetWidgetClassName(), "gauge");
    EXPECT_EQ(dynamic_cast<const CHmiWidgetCustom&>(*copy).CustomInfo, widget.CustomInfo);
}

TEST(HmiWidgetCustom, ClassNameIsEditedInItsRow)
{
    CHmiWidgetCustom widget;
    MemoryOptionTree tree;
    widget.CreateWidgetPropertyTree(tree);
    MemoryOptionItem* className = tree.Find("ClassName", "Custom");
    ASSERT_NE(className, nullptr);
    EXPECT_EQ(className->editText, "Custom");
    className->SetEditText("gauge");
    widget.UpdateWidgetPropByTree(className);
    EXPECT_EQ(widget.GetWidgetClassName(), "gauge");
}
