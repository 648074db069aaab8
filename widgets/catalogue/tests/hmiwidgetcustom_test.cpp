#include "tests/support/memoryoptiontree.h"
#include "tests/support/windowfilelines.h"
#include "widgets/catalogue/hmiwidgetcustom.h"

#include <gtest/gtest.h>

TEST(HmiWidgetCustom, KeepsUnknownPropertiesAsTheirLines)
{
    CHmiWidgetCustom widget;
    EXPECT_EQ(widget.GetWidgetClassName(), "Custom");
    EXPECT_EQ(widget.SetWidgetProperty("a", "string", "x", ""), 1);
    EXPECT_EQ(widget.SetWidgetProperty("b", "string", "a<b", "33"), 1);
    EXPECT_EQ(widget.SetWidgetProperty("left", "short", "12", ""), 1);
    EXPECT_EQ(widget.GetWidgetRect().left, 12) << "a property the base knows is not kept as a line";
    EXPECT_EQ(widget.CustomInfo,
              "\t\t\t<property name=\"a\" type=\"string\" value=\"x\" />\n"
              "\t\t\t<property name=\"b\" type=\"string\" length=\"33\" value=\"a&lt;b\" />\n");
}

TEST(HmiWidgetCustom, WritesTheKeptLinesAfterTheBaseProperties)
{
    CHmiWidgetCustom widget;
    widget.ClassName = "gauge";
    widget.SetWidgetName("g1");
    widget.SetWidgetProperty("needle", "ulong", "255", "");
    std::string archive;
    widget.Serialize(archive);
    EXPECT_EQ(archive,
              "\t<widget name=\"g1\"  class=\"gauge\">\r\n"
              "\t\t<properties>\r\n"
              + BaseWidgetLines() +
              "\t\t\t<property name=\"needle\" type=\"ulong\" value=\"255\" />\n"
              "\t\t</properties>\r\n"
              "\t\t<dynamics>\r\n"
              "\t\t</dynamics>\r\n"
              "\t\t<events>\r\n"
              "\t\t</events>\r\n"
              "\t</widget>\r\n");
}

TEST(HmiWidgetCustom, CloneCopiesTheKeptState)
{
    CHmiWidgetCustom widget;
    widget.ClassName = "gauge";
    widget.SetWidgetProperty("needle", "ulong", "255", "");
    widget.SetWidgetRect({1, 2, 3, 4});
    const HmiWidgetPtr copy = widget.Clone();
    auto* custom = dynamic_cast<CHmiWidgetCustom*>(copy.get());
    ASSERT_NE(custom, nullptr);
    EXPECT_EQ(custom->GetWidgetClassName(), "gauge");
    EXPECT_EQ(custom->CustomInfo, widget.CustomInfo);
    EXPECT_EQ(custom->GetWidgetRect(), (HmiRect{1, 2, 3, 4}));
}

TEST(HmiWidgetCustom, ClassNameAndInfoAreEditedInTheirOwnGroup)
{
    CHmiWidgetCustom widget;
    MemoryOptionTree tree;
    widget.CreateWidgetPropertyTree(tree);
    MemoryOptionItem* root = tree.Find("Custom");
    ASSERT_NE(root, nullptr);
    EXPECT_EQ(root->info, "Custom widget properties.");
    MemoryOptionItem* className = tree.Find("ClassName", "Custom");
    ASSERT_NE(className, nullptr);
    EXPECT_EQ(className->info, "Custom widget name.");
    EXPECT_EQ(className->editText, "Custom");
    EXPECT_EQ(tree.Find("CustomInfo", "Custom")->info, "Custom widget custom information.");

    className->SetEditText("gauge");
    widget.UpdateWidgetPropByTree(className);
    EXPECT_EQ(widget.GetWidgetClassName(), "gauge");
}
