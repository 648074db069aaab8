// The property list a widget builds in an option tree, and the rules of its edits. The rows'
// editors, the binding marks and committing an edit are tested through the real pane in
// editor/propertypane/tests.

#include "tests/support/memoryoptiontree.h"
#include "widgets/hmiwidget.h"

#include <gtest/gtest.h>

#include <tuple>

namespace {

// A widget with a group of its own, to see rows land under their group's root item.
class GaugeWidget : public CHmiWidget {
public:
    GaugeWidget()
    {
        DeclareProperty("scale", "Scale", "Scale kind", 0, "Gauge", PROP_COMBO).SetComboList(kScales, 2);
        DeclareProperty("empty", "Empty", "A list without entries", 0, "Gauge", PROP_COMBO);
        DeclareProperty("odd", "Odd", "An item type nobody builds", 0, "Gauge", PropItemType(42));
        DeclareProperty("face", "Face", "Font of the scale", 0, "Gauge", PROP_FONT);
    }
    void CreateWidgetRootItems(COptionTree& tree) override
    {
        CHmiWidget::CreateWidgetRootItems(tree);
        CreateNewRootItem("Gauge", "Gauge properties")->Expand();
    }
    int GetWidgetPropValue(const CHmiWidgetProp& prop, std::string& text) const override
    {
        if (CHmiWidget::GetWidgetPropValue(prop, text))
            return 1;
        text = prop.m_strName == "face" ? "Serif, 16" : std::to_string(scale); // both lists show the scale
        return 1;
    }

    int scale = 1;
    static constexpr const char* kScales[] = {"Linear", "Logarithmic"};
};

struct PropertyListTest : ::testing::Test {
    void SetUp() override
    {
        widget.SetWidgetName("gauge1");
        widget.SetWidgetRect({10, 10, 50, 60});
        widget.CreateWidgetPropertyTree(tree);
    }

    // Types a value into a row and hands the edit to the widget.
    void Edit(const char* caption, const std::string& text)
    {
        MemoryOptionItem* item = tree.Find(caption);
        ASSERT_NE(item, nullptr) << caption;
        item->SetEditText(text);
        widget.UpdateWidgetPropByTree(item);
    }

    GaugeWidget widget;
    MemoryOptionTree tree;
};

} // namespace

TEST_F(PropertyListTest, RowsStandUnderTheirGroupsWithTheirValues)
{
    const auto basicRows = tree.ChildrenOf(tree.Find("Basic properties"));
    ASSERT_EQ(basicRows.size(), 14u);
    EXPECT_EQ(std::tuple(basicRows[0]->editText, basicRows[5]->editText, basicRows[6]->editText),
              std::tuple("gauge1", "40", "50")) << "name, width and height";

    const auto gaugeRows = tree.ChildrenOf(tree.Find("Gauge"));
    ASSERT_EQ(gaugeRows.size(), 3u) << "an unknown item type builds no row";
    EXPECT_EQ(gaugeRows[0]->choices, (std::vector<std::string>{"Linear", "Logarithmic"}));
    // An empty list selects nothing; a font row shows its text read-only.
    EXPECT_EQ(std::tuple(gaugeRows[0]->selection, gaugeRows[1]->selection), std::tuple(1, -1));
    EXPECT_EQ(std::tuple(gaugeRows[2]->kind, gaugeRows[2]->staticText), std::tuple(OptionItemKind::Font, "Serif, 16"));
    EXPECT_EQ(tree.ChildrenOf(tree.Find("Event")).size(), 2u) << "the events are created for the list";

    MemoryOptionTree outOfRange;
    widget.scale = 5;
    widget.CreateWidgetPropertyTree(outOfRange);
    EXPECT_EQ(outOfRange.Find("Scale")->selection, -1) << "a selection outside the list shows none";
}

TEST_F(PropertyListTest, GeometryEditsMoveOrResizeAndRefusedOnesAreShownUndone)
{
    const struct {
        const char* caption;
        const char* typed;
        HmiRect rect;
    } edits[] = {
        {"Left", "30", {30, 10, 70, 60}}, // left and top move the widget and keep its size
        {"Top", "-5", {10, -5, 50, 45}},
        {"Right", "10", {10, 10, 50, 60}}, // right and bottom must stay beyond the opposite edge
        {"Bottom", "5", {10, 10, 50, 60}},
        {"Right", "11", {10, 10, 11, 60}},
        {"Width", "-20", {10, 10, -10, 60}}, // width and height are taken as typed
        {"Height", "5", {10, 10, 50, 15}},
    };
    for (const auto& edit : edits) {
        SCOPED_TRACE(std::string(edit.caption) + " " + edit.typed);
        widget.SetWidgetRect({10, 10, 50, 60});
        Edit(edit.caption, edit.typed);
        EXPECT_EQ(widget.GetWidgetRect(), edit.rect);
        EXPECT_EQ(tree.Find("Right")->editText, std::to_string(edit.rect.right)) << "every row shows the widget again";
        EXPECT_EQ(tree.Find("Bottom")->editText, std::to_string(edit.rect.bottom));
    }
}

TEST_F(PropertyListTest, NamesFlagsAndNumbersAreTakenAsTypedWithoutByteTruncation)
{
    Edit("Name", "needle");
    EXPECT_EQ(widget.GetWidgetName(), "needle");
    Edit("Horizontal offset", "300");
    Edit("Flash speed", "-1");
    tree.Find("Enable")->SetCheck(false);
    widget.UpdateWidgetPropByTree(tree.Find("Enable"));
    const HmiWidgetExtension& extension = widget.GetExtension();
    EXPECT_EQ(std::tuple(extension.xoffset, widget.m_nFlashSpeed, extension.enable), std::tuple(300, -1, 0));
}

TEST_F(PropertyListTest, ItemsOfNoRecordChangeNothing)
{
    widget.UpdateWidgetPropByTree(tree.Find("Button Down"));
    widget.UpdateWidgetPropByTree(nullptr);
    EXPECT_EQ(widget.GetWidgetRect(), (HmiRect{10, 10, 50, 60}));
}
