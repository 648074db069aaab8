#include "tests/support/memoryoptiontree.h"
#include "tests/support/recordingnamelist.h"
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
        doc.SetWidgetNameList(&names);
        widget.m_pDocument = &doc;
        widget.SetWidgetName("gauge1");
        widget.SetWidgetRect({10, 10, 50, 50});
    }

    // Types a value into a row and hands the edit to the widget.
    void Edit(const char* caption, const std::string& text)
    {
        MemoryOptionItem* item = tree.Find(caption);
        ASSERT_NE(item, nullptr) << caption;
        item->SetEditText(text);
        widget.UpdateWidgetPropByTree(item);
    }

    RecordingNameList names;
    CTamloDoc doc;
    GaugeWidget widget;
    MemoryOptionTree tree;
};

} // namespace

TEST_F(PropertyListTest, RowsStandUnderTheirGroupsWithTheirValues)
{
    widget.AddWidgetDynProp("left", "$db.x");
    widget.CreateWidgetPropertyTree(tree);

    MemoryOptionItem* basic = tree.Find("Basic properties");
    MemoryOptionItem* events = tree.Find("Event");
    ASSERT_TRUE(basic && events);
    EXPECT_EQ(basic->info, "Basic Properties");
    EXPECT_EQ(events->info, "Set event scripts");
    EXPECT_TRUE(basic->expanded && events->expanded);

    const auto basicRows = tree.ChildrenOf(basic);
    ASSERT_EQ(basicRows.size(), 14u);
    EXPECT_EQ(basicRows[0]->caption, "Name");
    EXPECT_EQ(basicRows[0]->editText, "gauge1");
    EXPECT_EQ(basicRows[1]->info, "Left position");
    EXPECT_EQ(basicRows[5]->editText, "40") << "width";
    EXPECT_EQ(basicRows[7]->kind, OptionItemKind::CheckBox);
    EXPECT_TRUE(basicRows[7]->checked) << "visible";

    // A bound row is red; unbound rows show the face colour; bindable rows get a button.
    EXPECT_EQ(basicRows[1]->extraColumnColor, 0x000000FFu);
    EXPECT_EQ(basicRows[2]->extraColumnColor, kHmiColor3DFace);
    EXPECT_TRUE(basicRows[1]->bindable);
    EXPECT_FALSE(basicRows[0]->bindable);

    MemoryOptionItem* gauge = tree.Find("Gauge");
    const auto gaugeRows = tree.ChildrenOf(gauge);
    ASSERT_EQ(gaugeRows.size(), 4u) << "an unknown item type builds no row";
    EXPECT_EQ(gaugeRows[0]->color, 0x00FF8000u);
    EXPECT_EQ(gaugeRows[1]->choices, (std::vector<std::string>{"Linear", "Logarithmic"}));
    EXPECT_EQ(gaugeRows[1]->selection, 1);
    EXPECT_TRUE(gaugeRows[2]->choices.empty());
    EXPECT_EQ(gaugeRows[2]->selection, -1) << "an empty list selects nothing";
    EXPECT_EQ(gaugeRows[3]->kind, OptionItemKind::Font);
    EXPECT_EQ(gaugeRows[3]->staticText, "Serif, 16") << "a font row shows its text read-only";

    const auto eventRows = tree.ChildrenOf(events);
    ASSERT_EQ(eventRows.size(), 2u) << "the events are created for the list";
    EXPECT_EQ(eventRows[0]->caption, "Button Down");
    EXPECT_EQ(eventRows[0]->info, "trigger this event when mouse button down");
}

TEST_F(PropertyListTest, RefreshingShowsBindingsMadeOrDeletedSinceTheListWasBuilt)
{
    widget.AddWidgetDynProp("top", "$db.y");
    widget.CreateWidgetPropertyTree(tree);
    widget.AddWidgetDynProp("left", "$db.x");
    widget.AddWidgetDynProp("top", "");
    widget.UpdateTreeByWidgetProp();
    EXPECT_EQ(tree.Find("Left")->extraColumnColor, kHmiColorBound);
    EXPECT_EQ(tree.Find("Top")->extraColumnColor, kHmiColor3DFace);
}

TEST_F(PropertyListTest, ComboSelectionOutsideTheListShowsNone)
{
    widget.scale = 5;
    widget.CreateWidgetPropertyTree(tree);
    EXPECT_EQ(tree.Find("Scale")->selection, -1);
}

TEST_F(PropertyListTest, EditingLeftOrTopMovesAndKeepsTheSize)
{
    widget.CreateWidgetPropertyTree(tree);
    Edit("Left", "30");
    EXPECT_EQ(widget.GetWidgetRect(), (HmiRect{30, 10, 70, 50}));
    Edit("Top", "-5");
    EXPECT_EQ(widget.GetWidgetRect(), (HmiRect{30, -5, 70, 35}));
    EXPECT_EQ(tree.Find("Right")->editText, "70") << "every row is refreshed after an edit";
    EXPECT_TRUE(doc.IsModified());
}

TEST_F(PropertyListTest, RightAndBottomMustStayBeyondTheOppositeEdge)
{
    widget.CreateWidgetPropertyTree(tree);
    Edit("Right", "10");
    Edit("Bottom", "5");
    EXPECT_EQ(widget.GetWidgetRect(), (HmiRect{10, 10, 50, 50}));
    EXPECT_EQ(tree.Find("Right")->editText, "50") << "the ignored edit is shown undone";
    Edit("Right", "11");
    Edit("Bottom", "80");
    EXPECT_EQ(widget.GetWidgetRect(), (HmiRect{10, 10, 11, 80}));
}

TEST_F(PropertyListTest, WidthAndHeightAreTakenAsTyped)
{
    widget.CreateWidgetPropertyTree(tree);
    Edit("Width", "-20");
    Edit("Height", "5");
    EXPECT_EQ(widget.GetWidgetRect(), (HmiRect{10, 10, -10, 15})) << "a negative width stays inverted";
}

TEST_F(PropertyListTest, FlagsAndNumbersHaveNoByteTruncation)
{
    widget.CreateWidgetPropertyTree(tree);
    Edit("Horizontal offset", "300");
    Edit("Flash speed", "-1");
    tree.Find("Visible")->SetCheck(false);
    widget.UpdateWidgetPropByTree(tree.Find("Visible"));
    tree.Find("Enable")->SetCheck(false);
    widget.UpdateWidgetPropByTree(tree.Find("Enable"));
    EXPECT_EQ(widget.GetExtension().xoffset, 300);
    EXPECT_EQ(widget.m_nFlashSpeed, -1);
    EXPECT_EQ(widget.m_bVisible, 0);
    EXPECT_EQ(widget.GetExtension().enable, 0);
}

TEST_F(PropertyListTest, RenamingUpdatesTheWidgetNameList)
{
    widget.CreateWidgetPropertyTree(tree);
    Edit("Name", "needle");
    EXPECT_EQ(widget.GetWidgetName(), "needle");
    EXPECT_EQ(names.log, (std::vector<std::string>{"remove gauge1", "add needle selected"}));
}

TEST_F(PropertyListTest, ItemsOfNoRecordChangeNothing)
{
    widget.CreateWidgetPropertyTree(tree);
    widget.UpdateWidgetPropByTree(tree.Find("Button Down"));
    widget.UpdateWidgetPropByTree(nullptr);
    EXPECT_EQ(widget.GetWidgetRect(), (HmiRect{10, 10, 50, 50}));
    EXPECT_FALSE(doc.IsModified());
}
