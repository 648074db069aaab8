#include "editor/extensions/editorextensions.h"

#include "catalogue/hmiwidgetcontrols.h"
#include "tests/support/memoryoptiontree.h"
#include "tests/support/registryscope.h"

#include <gtest/gtest.h>

namespace {

// A library's class derived from a built-in kind.
class CFancyCheckbox : public CHmiWidgetCheckbox {
    HMI_DECLARE_WIDGET_CLASS(CFancyCheckbox)
};
HMI_IMPLEMENT_WIDGET_CLASS(CFancyCheckbox, CHmiWidgetCheckbox)

std::string g_ran;

RowDialog Dialog(std::string name)
{
    return [name](QWidget*, CHmiWidget&, COptionTreeItem&, const ProjectContext&) { g_ran = name; };
}

// Which registered dialog the row of the property on a widget of the class gets; "" for none.
std::string DialogRun(const CHmiRuntimeClass& widgetClass, std::string_view property)
{
    const RowDialog* dialog = FindRowDialog(&widgetClass, property);
    if (!dialog)
        return {};
    CFancyCheckbox widget;
    MemoryOptionItem row(OptionItemKind::Static, nullptr, "row", "");
    g_ran.clear();
    (*dialog)(nullptr, widget, row, {});
    return g_ran;
}

} // namespace

// Entries are found through the bases, the first for a class counts, and what a library adds
// while it initialises is taken back when it declines.
TEST(EditorExtensions, AreFoundThroughTheBasesAndWithdrawnWithADecliningLibrary)
{
    const CRegistryScope registry;
    RegisterRowDialog(CHmiWidgetCheckbox::classCHmiWidgetCheckbox, "caption", Dialog("built-in"));
    RegisterRowDialog(CHmiWidgetCheckbox::classCHmiWidgetCheckbox, "caption", Dialog("replacement"));
    RegisterRowDialog(CFancyCheckbox::classCFancyCheckbox, "fancy", Dialog("library"));
    EXPECT_EQ(DialogRun(CFancyCheckbox::classCFancyCheckbox, "caption"), "built-in");
    EXPECT_EQ(DialogRun(CFancyCheckbox::classCFancyCheckbox, "fancy"), "library");
    EXPECT_EQ(DialogRun(CHmiWidgetCheckbox::classCHmiWidgetCheckbox, "fancy"), "") << "no entry of a derived class";
    EXPECT_EQ(FindCanvasControl(&CFancyCheckbox::classCFancyCheckbox), nullptr);

    const CWidgetLibRegistrations beforeInit;
    RegisterRowDialog(CFancyCheckbox::classCFancyCheckbox, "caption", Dialog("declined"));
    RegisterCanvasControl(CFancyCheckbox::classCFancyCheckbox,
                          [](CHmiCtrlWidget&, QWidget&, const std::function<void()>&) { return nullptr; });
    EXPECT_EQ(DialogRun(CFancyCheckbox::classCFancyCheckbox, "caption"), "declined") << "its own class first";
    EXPECT_NE(FindCanvasControl(&CFancyCheckbox::classCFancyCheckbox), nullptr);
    beforeInit.WithdrawAdded();
    EXPECT_EQ(DialogRun(CFancyCheckbox::classCFancyCheckbox, "caption"), "built-in");
    EXPECT_EQ(FindCanvasControl(&CFancyCheckbox::classCFancyCheckbox), nullptr);
}
