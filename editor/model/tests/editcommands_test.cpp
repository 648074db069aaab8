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

TEST_F(EditCommandsTest, PasteLeavesTheWindowOutAndRenamesTakenNames)
{
    CHmiWidget* a = AddRect({10, 10, 50, 50});
    a->SetWidgetName("pump");
    const std::string text = CopyWidgets({a, Window()});
    EXPECT_EQ(text.find("class=\"window\""), std::string::npos);

    const std::vector<CHmiWidget*> pasted = PasteWidgets(document, text);
    ASSERT_EQ(pasted.size(), 1u);
    EXPECT_EQ(pasted[0]->GetWidgetName().rfind("rectangle", 0), 0u) << "pump is taken";
    EXPECT_EQ(document.Widgets().back().get(), pasted[0]);
    ASSERT_EQ(document.UndoStep().size(), 1u);
    EXPECT_EQ(document.UndoStep()[0].operation, UndoOperation::Added);
}

TEST_F(EditCommandsTest, PastingTextWithoutWidgetsDoesNothing)
{
    NudgeWidgets(document, {Window()}, NudgeKey::Up, false);
    EXPECT_TRUE(PasteWidgets(document, "not xml").empty());
    EXPECT_TRUE(PasteWidgets(document, "").empty());
    EXPECT_TRUE(CopyWidgets({Window()}).empty());
    EXPECT_TRUE(document.CanUndo()) << "a paste of nothing keeps the undo step";
}

} // namespace
