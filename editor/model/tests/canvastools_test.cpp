#include "canvasfixture.h"

namespace {

using CanvasToolsTest = CanvasFixture;
using Widgets = std::vector<CHmiWidget*>;

// The canvas tests (editor/app/tests/canvas_test.cpp) drive these tools with the mouse and check
// the common outcomes; the cases here are the ones a user cannot easily reach or see.
TEST_F(CanvasToolsTest, ControlClickAddsButNeverRemovesShiftDoubleClickRemoves)
{
    CHmiWidget* a = AddRect({10, 10, 50, 50});
    CHmiWidget* b = AddRect({100, 10, 150, 50});
    Click(20, 20);
    Click(110, 20, {.control = true});
    Click(20, 20, {.control = true});
    EXPECT_EQ(Selected(), (Widgets{a, b}));
    Click(110, 20);
    EXPECT_EQ(Selected(), (Widgets{a, b})) << "a press on a selected widget keeps the selection";

    tools.DoubleClick(*this, Client(20, 20), {});
    EXPECT_EQ(Selected(), (Widgets{a, b}));
    tools.DoubleClick(*this, Client(20, 20), {.shift = true});
    EXPECT_EQ(Selected(), Widgets{b});
}

TEST_F(CanvasToolsTest, PressPicksTheWidgetDrawnLastAndNeverADeletedOne)
{
    AddRect({10, 10, 50, 50});
    CHmiWidget* top = AddRect({30, 30, 80, 80});
    Click(40, 40);
    EXPECT_EQ(Selected(), Widgets{top});

    CUndoStepGuard(document).Record(UndoOperation::Deleted, top);
    Click(70, 70);
    EXPECT_EQ(Selected(), Widgets{Window()});
}

TEST_F(CanvasToolsTest, RubberBandSelectsOnlyWidgetsWhollyInsideAndShowsItsFrame)
{
    CHmiWidget* inside = AddRect({10, 10, 50, 50});
    AddRect({40, 40, 200, 200}); // half inside
    CHmiWidget* deleted = AddRect({20, 60, 30, 70});
    CUndoStepGuard(document).Record(UndoOperation::Deleted, deleted);

    Press(5, 5);
    Move(100, 100);
    const HmiRect band = {Client(5, 5).x, Client(5, 5).y, Client(100, 100).x, Client(100, 100).y};
    EXPECT_EQ(feedback, std::vector<HmiRect>{band});
    Release(100, 100);
    EXPECT_EQ(Selected(), Widgets{inside});
    EXPECT_TRUE(feedback.empty());
}

TEST_F(CanvasToolsTest, DraggingOneOfSeveralMovesAllInOneUndoStep)
{
    CHmiWidget* a = AddRect({10, 10, 50, 50});
    CHmiWidget* b = AddRect({100, 10, 150, 50});
    Click(20, 20);
    Click(110, 20, {.control = true});
    Press(20, 20);
    Move(27, 15);
    EXPECT_EQ(feedback.size(), 2u);
    Release(27, 15);

    EXPECT_EQ(a->GetWidgetRect(), (HmiRect{17, 5, 57, 45}));
    EXPECT_EQ(b->GetWidgetRect(), (HmiRect{107, 5, 157, 45}));
    ASSERT_EQ(document.UndoStep().size(), 2u);
    EXPECT_EQ(document.UndoStep()[0].widget, a);
    EXPECT_EQ(document.UndoStep()[0].operation, UndoOperation::Changed);
}

TEST_F(CanvasToolsTest, EachHandleResizesItsEdgesEvenPastTheOppositeOne)
{
    struct Case {
        int handle;
        HmiPoint from;
        HmiRect expected;
    };
    // The widget (10,10)-(50,50); each handle is dragged by (+5, +5).
    const Case cases[] = {
        {1, {10, 10}, {15, 15, 50, 50}}, {2, {30, 10}, {10, 15, 50, 50}}, {3, {50, 10}, {10, 15, 55, 50}},
        {4, {50, 30}, {10, 10, 55, 50}}, {5, {50, 50}, {10, 10, 55, 55}}, {6, {30, 50}, {10, 10, 50, 55}},
        {7, {10, 50}, {15, 10, 50, 55}}, {8, {10, 30}, {15, 10, 50, 50}},
    };
    CHmiWidget* widget = AddRect({10, 10, 50, 50});
    for (const Case& c : cases) {
        widget->SetWidgetRect({10, 10, 50, 50});
        Click(20, 20);
        Drag(c.from.x, c.from.y, c.from.x + 5, c.from.y + 5);
        EXPECT_EQ(widget->GetWidgetRect(), c.expected) << "handle " << c.handle;
    }
    widget->SetWidgetRect({10, 10, 50, 50});
    Drag(50, 30, 0, 30);
    EXPECT_EQ(widget->GetWidgetRect(), (HmiRect{0, 10, 10, 50})) << "dragged past the opposite edge";
}

TEST_F(CanvasToolsTest, LockKeepsEveryRectangleAndTheUndoStep)
{
    CHmiWidget* a = AddRect({10, 10, 50, 50});
    CHmiWidget* b = AddRect({100, 10, 150, 50});
    Click(20, 20);
    Drag(20, 20, 40, 40); // leaves a step behind
    locked = true;
    Click(110, 20);
    EXPECT_EQ(Selected(), Widgets{b});
    Drag(110, 20, 130, 40);
    Drag(150, 50, 170, 70);
    EXPECT_EQ(b->GetWidgetRect(), (HmiRect{100, 10, 150, 50}));
    ASSERT_EQ(document.UndoStep().size(), 1u);
    EXPECT_EQ(document.UndoStep()[0].widget, a);
}

TEST_F(CanvasToolsTest, PlacingToolCreatesAWidgetOverTheDraggedRectangle)
{
    CHmiWidget::CurWidgetClass = &CHmiWidgetRect::classCHmiWidgetRect;
    tools.SetCurrentTool(CanvasTool::Place);
    const std::size_t before = document.Widgets().size();

    Drag(60, 40, 20, 10);
    ASSERT_EQ(document.Widgets().size(), before + 1);
    CHmiWidget* placed = document.Widgets().back().get();
    EXPECT_EQ(placed->GetWidgetRect(), (HmiRect{20, 10, 60, 40}));
    EXPECT_EQ(placed->m_pView, &view);
    EXPECT_EQ(Selected(), Widgets{placed});
    ASSERT_EQ(document.UndoStep().size(), 1u);
    EXPECT_EQ(document.UndoStep()[0].operation, UndoOperation::Added);
    EXPECT_EQ(tools.CurrentTool(), CanvasTool::Place) << "the next drag places another";

    Click(200, 200);
    EXPECT_EQ(document.Widgets().size(), before + 1) << "a click has no default size";
    EXPECT_EQ(tools.CurrentTool(), CanvasTool::Select);

    document.Undo();
    EXPECT_EQ(document.Widgets().size(), before);
    EXPECT_EQ(Selected(), Widgets{Window()}) << "the selection lets go of a widget that Undo removed";
}

TEST_F(CanvasToolsTest, TheWindowIsResizedByItsHandlesWhereverItStandsOnThePanel)
{
    Window()->SetWidgetRect({100, 50, 900, 650});
    Click(300, 300);
    Drag(800, 600, 640, 480); // the bottom-right handle as the canvas shows it
    EXPECT_EQ(Window()->GetWidgetRect(), (HmiRect{100, 50, 740, 530}));
}

} // namespace
