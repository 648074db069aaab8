#include "tests/support/memoryoptiontree.h"
#include "widgets/core/hmiwidget.h"
#include "widgets/core/tamlodoc.h"

#include <gtest/gtest.h>

namespace {

// A widget with a group of its own, to see rows land under their group's root item.
class GaugeWidget : public CHmiWidget {
public:
    GaugeWidget()
    {
        DeclareProperty("needle", "Needle", "Needle colour", 1, "Gauge", PROP_COLOR);
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
        if (prop.m_strName == "needle")
            text = std::to_string(0x00FF8000);
        else if (prop.m_strName == "scale" || prop.m_strName == "empty")
            text = std::to_string(scale);
        else if (prop.m_strName == "face")
            text = "Serif, 16";
        else
            return 0;
        return 1;
    }

    int scale = 1;
    static constexpr const char* kScales[] = {"Linear", "Logarithmic"};
};

struct PropertyListTest : ::testing::Test {
    void SetUp() override
    {
        widget.m_pDocument = &doc;
        widget.SetWidgetName("gauge1");
        widget.SetWidgetRect({10, 10, 50, 60});
    }

    // Types a value into a row and hands the edit to the widget.
    void Edit(const char* caption, const std::string& text)
    {
        MemoryOptionItem* item = tree.Find(caption);
        ASSERT_NE(item, nullptr) << caption;
        item->SetEditText(text);
        widget.UpdateWidgetPropByTree(item);
    }

    CTamloDoc doc;
    GaugeWidget widget;
    MemoryOptionTree tree;
};

} // namespace

// Editing geometry, renaming and refreshing bindings are driven through the real pane in
// editor/propertypane/tests; these are the rows themselves and the edits the pane does not reach.

TEST_F(PropertyListTest, RowsStandUnderTheirGroupsWithTheirValues)
{
    widget.AddWidgetDynProp("left", "$db.x");
    widget.CreateWidgetPropertyTree(tree);

    const auto basicRows = tree.ChildrenOf(tree.Find("Basic properties"));
    ASSERT_EQ(basicRows.size(), 14u);
    EXPECT_EQ(basicRows[0]->editText, "gauge1");
    EXPECT_EQ(basicRows[5]->editText, "40") << "width";
    EXPECT_EQ(basicRows[6]->editText, "50") << "height";
    EXPECT_EQ(basicRows[7]->kind, OptionItemKind::CheckBox);
    EXPECT_TRUE(basicRows[7]->checked) << "visible";
    // A bound row is red; unbound rows show the face colour; bindable rows get a button.
    EXPECT_EQ(basicRows[1]->extraColumnColor, kHmiColorBound);
    EXPECT_EQ(basicRows[2]->extraColumnColor, kHmiColor3DFace);
    EXPECT_TRUE(basicRows[1]->bindable);
    EXPECT_FALSE(basicRows[0]->bindable);

    const auto gaugeRows = tree.ChildrenOf(tree.Find("Gauge"));
    ASSERT_EQ(gaugeRows.size(), 4u) << "an unknown item type builds no row";
    EXPECT_EQ(gaugeRows[0]->color, 0x00FF8000u);
    EXPECT_EQ(gaugeRows[1]->choices, (std::vector<std::string>{"Linear", "Logarithmic"}));
    EXPECT_EQ(gaugeRows[1]->selection, 1);
    EXPECT_EQ(gaugeRows[2]->selection, -1) << "an empty list selects nothing";
    EXPECT_EQ(gaugeRows[3]->kind, OptionItemKind::Font);
    EXPECT_EQ(gaugeRows[3]->staticText, "Serif, 16") << "a font row shows its text read-only";
    EXPECT_EQ(tree.ChildrenOf(tree.Find("Event")).size(), 2u) << "the events are created for the list";
}

TEST_F(PropertyListTest, ComboSelectionOutsideTheListShowsNone)
{
    widget.scale = 5;
    widget.CreateWidgetPropertyTree(tree);
    EXPECT_EQ(tree.Find("Scale")->selection, -1);
}

TEST_F(PropertyListTest, FlagsAndNumbersHaveNoByteTruncation)
{
    widget.CreateWidgetPropertyTree(tree);
    Edit("Horizontal offset", "300");
    Edit("Flash speed", "-1");
    tree.Find("Enable")->SetCheck(false);
    widget.UpdateWidgetPropByTree(tree.Find("Enable"));
    EXPECT_EQ(widget.GetExtension().xoffset, 300);
    EXPECT_EQ(widget.m_nFlashSpeed, -1);
    EXPECT_EQ(widget.GetExtension().enable, 0);
    EXPECT_TRUE(doc.IsModified());
}

TEST_F(PropertyListTest, ItemsOfNoRecordChangeNothing)
{
    widget.CreateWidgetPropertyTree(tree);
    widget.UpdateWidgetPropByTree(tree.Find("Button Down"));
    widget.UpdateWidgetPropByTree(nullptr);
    EXPECT_EQ(widget.GetWidgetRect(), (HmiRect{10, 10, 50, 60}));
    EXPECT_FALSE(doc.IsModified());
}
