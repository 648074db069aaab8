#include "canvasfixture.h"
#include "editor/model/formatcommands.h"

namespace {

struct FormatCommandsTest : CanvasFixture {
    // Adds widgets and selects them in the given order.
    std::vector<CHmiWidget*> SelectRects(std::initializer_list<HmiRect> rects)
    {
        std::vector<CHmiWidget*> widgets;
        for (const HmiRect& rect : rects)
            widgets.push_back(AddRect(rect));
        return widgets;
    }
    HmiRect RectOf(const CHmiWidget* widget) const { return widget->GetWidgetRect(); }
};

// What each alignment computes is pinned through the main frame's actions (mainframe_test.cpp).
TEST_F(FormatCommandsTest, AlignmentMovesEveryWidgetButTheLastSelectedInOneUndoStep)
{
    const auto widgets = SelectRects({{5, 20, 36, 40}, {10, 100, 110, 160}});
    AlignWidgets(document, widgets, AlignCommand::Left);
    AlignWidgets(document, widgets, AlignCommand::CenterHorizontal);
    EXPECT_EQ(RectOf(widgets[0]), (HmiRect{45, 20, 75, 40})) << "an odd width loses a pixel";
    EXPECT_EQ(RectOf(widgets[1]), (HmiRect{10, 100, 110, 160}));
    ASSERT_EQ(document.UndoStep().size(), 1u);
    EXPECT_EQ(document.UndoStep()[0].rectBefore, (HmiRect{10, 20, 41, 40})) << "the second replaced the first";
    document.Undo();
    EXPECT_EQ(RectOf(widgets[0]), (HmiRect{10, 20, 41, 40}));
    EXPECT_FALSE(document.CanUndo()) << "a second Undo has nothing left";
}

TEST_F(FormatCommandsTest, AligningTheReferenceAloneOnlyDropsTheUndoStep)
{
    const auto widgets = SelectRects({{0, 0, 10, 10}});
    NudgeWidgets(document, widgets, NudgeKey::Right, false);
    AlignWidgets(document, widgets, AlignCommand::Left);
    EXPECT_FALSE(document.CanUndo());
    AlignWidgets(document, {}, AlignCommand::Left);
}

TEST_F(FormatCommandsTest, SpacingOrdersByTopWithTiesInReverseSelectionOrder)
{
    const auto w = SelectRects({{0, 0, 10, 10}, {20, 0, 30, 10}, {40, 50, 50, 60}});
    SpaceWidgets(document, w, SpacingDirection::TopToBottom);
    // Gap (60 - 0 - 30) / 2 = 15: the second selected stays first, the first goes to 25.
    EXPECT_EQ(RectOf(w[1]), (HmiRect{20, 0, 30, 10}));
    EXPECT_EQ(RectOf(w[0]), (HmiRect{0, 25, 10, 35}));
    EXPECT_EQ(RectOf(w[2]), (HmiRect{40, 50, 50, 60}));
    EXPECT_EQ(document.UndoStep().size(), 3u);
}

TEST_F(FormatCommandsTest, HorizontalSpacingTruncatesTheGap)
{
    const auto w = SelectRects({{0, 0, 10, 5}, {11, 0, 21, 5}, {100, 0, 110, 5}, {50, 0, 60, 5}});
    SpaceWidgets(document, w, SpacingDirection::LeftToRight);
    // Gap (110 - 0 - 40) / 3 = 23.
    EXPECT_EQ(RectOf(w[1]).left, 33);
    EXPECT_EQ(RectOf(w[3]).left, 66);
    EXPECT_EQ(RectOf(w[2]).left, 99) << "the last widget may end up short of its old place";
}

TEST_F(FormatCommandsTest, SpacingTwoWidgetsChangesNothingAndKeepsTheUndoStep)
{
    const auto w = SelectRects({{0, 0, 10, 10}, {50, 50, 60, 60}});
    NudgeWidgets(document, {w[0]}, NudgeKey::Down, false);
    SpaceWidgets(document, w, SpacingDirection::TopToBottom);
    EXPECT_EQ(RectOf(w[1]), (HmiRect{50, 50, 60, 60}));
    ASSERT_EQ(document.UndoStep().size(), 1u);
    EXPECT_EQ(document.UndoStep()[0].widget, w[0]);
}

TEST_F(FormatCommandsTest, ZoomScalesAboutTheSelectionsTopLeft)
{
    const auto w = SelectRects({{10, 10, 30, 30}, {0, 0, 5, 5}});
    ZoomWidgets(document, {w[0]}, 50);
    EXPECT_EQ(RectOf(w[0]), (HmiRect{10, 10, 20, 20}));

    w[0]->SetWidgetRect({10, 10, 30, 30});
    ZoomWidgets(document, w, 50);
    EXPECT_EQ(RectOf(w[0]), (HmiRect{5, 5, 15, 15}));
    EXPECT_EQ(RectOf(w[1]), (HmiRect{0, 0, 2, 2}));
}

TEST_F(FormatCommandsTest, ZoomByNothingStillReplacesTheUndoStep)
{
    const auto w = SelectRects({{10, 10, 30, 30}, {0, 0, 5, 5}});
    NudgeWidgets(document, {w[1]}, NudgeKey::Left, false);
    ZoomWidgets(document, {w[0]}, 0);
    EXPECT_EQ(RectOf(w[0]), (HmiRect{10, 10, 30, 30}));
    document.Undo();
    EXPECT_EQ(RectOf(w[1]), (HmiRect{-1, 0, 4, 5})) << "the nudge can no longer be undone";
}

// Which key moves or resizes which way is tested with the keys on the canvas (canvas_test.cpp).
TEST_F(FormatCommandsTest, ArrowKeysMoveEverySelectedWidgetEachKeyAStepOfItsOwn)
{
    const auto w = SelectRects({{10, 10, 20, 20}, {30, 30, 40, 40}});
    NudgeWidgets(document, w, NudgeKey::Left, false);
    NudgeWidgets(document, w, NudgeKey::Down, true);
    EXPECT_EQ(RectOf(w[0]), (HmiRect{9, 10, 19, 21}));
    EXPECT_EQ(RectOf(w[1]), (HmiRect{29, 30, 39, 41}));
    ASSERT_EQ(document.UndoStep().size(), 2u);
    EXPECT_EQ(document.UndoStep()[0].rectBefore, (HmiRect{9, 10, 19, 20}));
    EXPECT_FALSE(NudgeWidgets(document, {}, NudgeKey::Up, false));
}

} // namespace
