#include "canvasfixture.h"
#include "editor/model/editcommands.h"
#include "editor/model/formatcommands.h"

namespace {

// Delete, cut, copy and paste by their keys, within and between windows, are tested on the
// canvas (editor/app/tests/canvas_test.cpp); the cases here are the ones the keys cannot show.
using EditCommandsTest = CanvasFixture;

TEST_F(EditCommandsTest, DeletedWidgetsStayUntilTheUndoStepIsReplaced)
{
    CHmiWidget* a = AddRect({10, 10, 50, 50});
    CHmiWidget* b = AddRect({60, 10, 90, 50});
    const std::size_t count = document.Widgets().size();
    const std::string name = a->GetWidgetName();

    EXPECT_TRUE(DeleteWidgets(document, {a, Window()}));
    EXPECT_TRUE(document.IsWidgetDeleted(a));
    EXPECT_FALSE(document.IsWidgetDeleted(Window())) << "the window is never deleted";
    EXPECT_EQ(document.Widgets().size(), count);
    EXPECT_EQ(document.Serialize().find("name=\"" + name + "\""), std::string::npos) << "not saved";

    document.Undo();
    DeleteWidgets(document, {a});
    NudgeWidgets(document, {b}, NudgeKey::Up, false); // replaces the step
    EXPECT_EQ(document.Widgets().size(), count - 1);
    EXPECT_FALSE(DeleteWidgets(document, {Window()}));
}

TEST_F(EditCommandsTest, PasteLeavesTheWindowOutRenamesTakenNamesAndStacksAsTheOriginals)
{
    CHmiWidget* a = AddRect({10, 10, 50, 50});
    CHmiWidget* b = AddRect({60, 10, 90, 50});
    CHmiWidget* c = AddRect({60, 60, 90, 90});
    CHmiWidget* d = AddRect({10, 60, 50, 90});
    a->SetWidgetName("pump");
    b->SetWidgetName("valve");
    c->SetWidgetName("rectangle901");
    d->SetWidgetName("valve");
    const std::string text = CopyWidgets(document, {d, a, Window(), b}); // selected out of drawing order
    EXPECT_EQ(text.find("class=\"window\""), std::string::npos);
    document.RemoveWidget(b);
    document.RemoveWidget(d);

    // A taken name gets the next counter value that is free, also among the widgets pasted before.
    CTamloDoc::WidgetNameCounter() = 900;
    const std::vector<CHmiWidget*> pasted = PasteWidgets(document, text);
    std::vector<std::string> names;
    for (const CHmiWidget* widget : pasted)
        names.push_back(widget->GetWidgetName());
    EXPECT_EQ(names, (std::vector<std::string>{"rectangle900", "valve", "rectangle902"}));
    EXPECT_EQ(document.Widgets().back().get(), pasted.back());
    EXPECT_EQ(pasted.back()->GetWidgetRect(), (HmiRect{20, 70, 60, 100})) << "d's copy on top, as d was";
    ASSERT_EQ(document.UndoStep().size(), 3u);
    EXPECT_EQ(document.UndoStep()[0].operation, UndoOperation::Added);
}

TEST_F(EditCommandsTest, PastingTextWithoutWidgetsDoesNothing)
{
    NudgeWidgets(document, {Window()}, NudgeKey::Up, false);
    EXPECT_TRUE(PasteWidgets(document, "not xml").empty());
    EXPECT_TRUE(PasteWidgets(document, "").empty());
    EXPECT_TRUE(CopyWidgets(document, {Window()}).empty());
    EXPECT_TRUE(document.CanUndo()) << "a paste of nothing keeps the undo step";
}

} // namespace
