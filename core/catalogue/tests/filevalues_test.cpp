// How each widget kind reads the values of a window file and takes the user's edits from its
// property rows, seen in the lines it writes back. The defaults and the rows themselves are
// pinned down by the catalogue reference.

#include "catalogue/hmiwidgetgradrect.h"
#include "catalogue/hmiwidgetvalve.h"
#include "ownproperties.h"
#include "tests/support/memoryoptiontree.h"
#include "widgets/hmiwidgetcustom.h"
#include "widgets/hmiwidgetwindow.h"
#include "tests/support/registrytest.h"

#include <gtest/gtest.h>

namespace {

// The built-in classes registered for each test.
struct FileValuesTest : BuiltinRegistryTest {

    // A new widget of a registered kind, or the valve, which is written but not registered.
    static HmiWidgetPtr Create(std::string_view classKey)
    {
        return classKey == "valve" ? HmiWidgetPtr(new CHmiWidgetValve)
                                   : CHmiWidget::GetWidgetClass(classKey)->CreateObject();
    }
};

// What the user enters in a row, as its kind takes it: a colour, an index into its list, or text.
void Enter(MemoryOptionItem& row, const std::string& entered)
{
    if (row.kind == OptionItemKind::Color)
        row.SetColor(HmiColor(std::stoul(entered, nullptr, 0)));
    else if (row.kind == OptionItemKind::Combo)
        row.SetCurSel(std::stoi(entered));
    else
        row.SetEditText(entered);
}

} // namespace

TEST_F(FileValuesTest, EachKindReadsItsNumbersByItsOwnRules)
{
    const struct {
        const char* classKey;
        const char* name;
        const char* type;
        const char* read;
        const char* written;
        const char* before = nullptr; // read first, to show what the value read replaces or leaves
        const char* length = nullptr; // read and written
    } cases[] = {
        // The shapes and the timer read a signed decimal number, up to the first other character.
        {"rectangle", "fillcolor", "ulong", "0x00FF00", "0"},
        {"line", "linewidth", "ulong", "-3", "-3"},
        {"line", "direction", "ulong", "7px", "7"},
        {"timer", "interval", "ulong", "0x10", "0", "1000"},
        // The other kinds read hexadecimal too, and floats as the C locale writes them.
        {"valve", "centercolor", "ulong", "0x00FF00", "65280"},
        {"window", "bkcolor", "ulong", "0x00FF00", "65280"},
        {"button", "back_color", "ulong", "0x00FF00", "65280"},
        {"numinput", "backcolor", "ulong", "0xFF", "255"},
        {"numinput", "intwidth", "ulong", "0x10", "16"},
        {"numinput", "minvalue", "float", "-12.5", "-12.500000"},
        {"numinput", "password", "uchar", "1", "1"},
        {"bmptext", "color", "ulong", "0xFF", "255"},
        {"bmptext", "fontheight", "long", "-20", "-20"},
        {"bmptext", "fontitalic", "uchar", "1", "1"},
        {"bmptext", "align", "ulong", "3", "3"},
        // A curve's series are read at their number.
        {"curve", "datacolor16", "ulong", "0xFF00", "65280"},
        {"curve", "adddata3", "float", "2.5", "2.500000"},
        {"curve", "valuevarname1", "string", "$speed", "$speed", nullptr, "32"},
        // Font sizes and alignments outside their lists become the first entry.
        {"button", "font_size", "ulong", "16", "16"},
        {"text", "fontsize", "ulong", "10", "0", "16"},
        {"numinput", "fontsize", "ulong", "16", "16"},
        {"text", "align", "ulong", "3", "3"},
        {"text", "align", "ulong", "0", "1", "3"},
        {"text", "align", "ulong", "7", "1", "3"},
        {"numinput", "align", "ulong", "0", "1", "3"},
        {"textinput", "align", "ulong", "4", "1", "3"},
        // Texts keep the length they are read with.
        {"button", "caption", "string", "Start", "Start", nullptr, "24"},
        {"text", "text", "string", "Boiler", "Boiler", nullptr, "40"},
        {"bmptext", "fontname", "string", "Serif", "Serif", nullptr, "32"},
        // The window's style bits set its flags; a clear bit leaves its flag as it was.
        {"window", "style", "ulong", "0x4", "4"},
        {"window", "style", "ulong", "0", "4", "4"},
        {"window", "style", "ulong", "1", "5", "4"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(std::string(c.classKey) + " " + c.name + " " + c.read);
        const HmiWidgetPtr widget = Create(c.classKey);
        const char* length = c.length ? c.length : "";
        if (c.before)
            widget->SetWidgetProperty(c.name, c.type, c.before, length);
        ASSERT_EQ(widget->SetWidgetProperty(c.name, c.type, c.read, length), 1);
        const std::string lines = OwnPropertyLines(*widget);
        EXPECT_NE(lines.find(PropertyLine(c.name, c.type, c.written, c.length)), std::string::npos) << lines;
    }
    EXPECT_EQ(Create("rectangle")->SetWidgetProperty("needle", "ulong", "1", ""), 0) << "a name it does not have";
}

TEST_F(FileValuesTest, AnEditInARowIsKeptByTheCloneAsWell)
{
    const struct {
        const char* classKey;
        const char* caption;
        const char* entered;
        std::string written;
    } cases[] = {
        {"gradrectangle", "direction", "5", PropertyLine("direction", "ulong", "37")},
        {"gradrectangle", "startcolor", "0x123456", PropertyLine("startcolor", "ulong", "1193046")},
        {"line", "linewidth", "4px", PropertyLine("linewidth", "ulong", "4")},
        {"timer", "interval", "500", PropertyLine("interval", "ulong", "500")},
        {"valve", "centercolor", "0xFF0000", PropertyLine("centercolor", "ulong", "16711680")},
        {"window", "caption", "1", PropertyLine("style", "ulong", "1")},
        {"window", "bkcolor", "0x123456", PropertyLine("bkcolor", "ulong", "1193046")},
        {"curve", "Color2", "0x00FF00", PropertyLine("datacolor2", "ulong", "65280")},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(std::string(c.classKey) + " " + c.caption);
        const HmiWidgetPtr widget = Create(c.classKey);
        MemoryOptionTree tree;
        widget->CreateWidgetPropertyTree(tree);
        MemoryOptionItem* row = tree.Find(c.caption);
        ASSERT_NE(row, nullptr);
        Enter(*row, c.entered);
        widget->UpdateWidgetPropByTree(row);
        const std::string lines = OwnPropertyLines(*widget->Clone());
        EXPECT_NE(lines.find(c.written), std::string::npos) << lines;
    }
}

TEST(PropertyRows, ShowCodesAsListIndexesFromTheirFirstCode)
{
    CHmiWidgetGradRect gradRect;
    MemoryOptionTree gradRectRows;
    gradRect.CreateWidgetPropertyTree(gradRectRows);
    EXPECT_EQ(gradRectRows.Find("direction")->selection, 0) << "code 32 is the first entry";
    gradRect.m_nDirection = 48;
    std::string text;
    ASSERT_EQ(gradRect.GetWidgetPropValue(*gradRect.FindProperty("direction"), text), 1);
    EXPECT_EQ(text, "16") << "a code from a hand-edited file shows no entry";
}

TEST(PropertyRows, WindowCloneWritesTheSameElement)
{
    CHmiWidgetWindow window;
    window.m_nHasCaption = 1;
    window.m_bkColor = 0x00000080;
    window.m_nSecurityLevel = 3;
    window.m_nSecurityMode = 1;
    window.SetWidgetRect({0, 0, 320, 240});
    window.SetWidgetEventCode("close", "save();");
    std::string original, cloned;
    window.Serialize(original);
    window.Clone()->Serialize(cloned);
    EXPECT_EQ(cloned, original);
}

// How a custom widget's kept lines are written within a window file is pinned down by the
// window-file tests of the core.
TEST(CustomWidget, KeepsUnknownPropertiesAsTheirLinesAndItsClassNameFromItsRow)
{
    CHmiWidgetCustom widget;
    EXPECT_EQ(widget.SetWidgetProperty("a", "string", "x", ""), 1);
    EXPECT_EQ(widget.SetWidgetProperty("b", "string", "a<b", "33"), 1);
    EXPECT_EQ(widget.SetWidgetProperty("left", "short", "12", ""), 1);
    EXPECT_EQ(widget.GetWidgetRect().left, 12) << "a property the base knows is not kept as a line";
    EXPECT_EQ(widget.CustomInfo, PropertyLine("a", "string", "x") + PropertyLine("b", "string", "a&lt;b", "33"));

    MemoryOptionTree tree;
    widget.CreateWidgetPropertyTree(tree);
    MemoryOptionItem* className = tree.Find("ClassName", "Custom");
    ASSERT_NE(className, nullptr);
    EXPECT_EQ(className->editText, "Custom");
    className->SetEditText("gauge");
    widget.UpdateWidgetPropByTree(className);
    const HmiWidgetPtr copy = widget.Clone();
    EXPECT_EQ(copy->GetWidgetClassName(), "gauge");
    EXPECT_EQ(dynamic_cast<const CHmiWidgetCustom&>(*copy).CustomInfo, widget.CustomInfo);
}
