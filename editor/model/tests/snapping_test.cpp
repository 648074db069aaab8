#include "canvasfixture.h"

namespace {

using Guides = std::vector<SnapGuide>;
constexpr SnapGuide::Kind kAlign = SnapGuide::Kind::Alignment;
constexpr SnapGuide::Kind kGap = SnapGuide::Kind::Gap;

// The window is 1024 x 768: its edges and centre lines (0, 512, 1024 across; 0, 384, 768 down)
// stay out of reach of the widgets below unless a case means them.
struct SnappingTest : CanvasFixture {
    // The client rectangle the canvas shows for a window rectangle.
    HmiRect ClientRect(const HmiRect& rect) const
    {
        const HmiPoint a = Client(rect.left, rect.top);
        const HmiPoint b = Client(rect.right, rect.bottom);
        return {a.x, a.y, b.x, b.y};
    }
    // Drags the widget under the press by (dx, dy), checks that the outline shown before the
    // release is where the release puts the widget, and returns the guides shown then.
    Guides DragBy(CHmiWidget* widget, int x, int y, int dx, int dy, MouseFlags flags = {})
    {
        Press(x, y, flags);
        Move(x + dx, y + dy, flags);
        const std::vector<HmiRect> shown = feedback;
        const Guides shownGuides = guides;
        Release(x + dx, y + dy, flags);
        EXPECT_EQ(shown, std::vector<HmiRect>{ClientRect(widget->GetWidgetRect())});
        EXPECT_TRUE(guides.empty()) << "the release takes the guides away";
        return shownGuides;
    }
};

TEST_F(SnappingTest, GridSnapsMovesResizesAndPlacingUnlessAltIsHeld)
{
    aids.snapToGrid = true;
    CHmiWidget* a = AddRect({12, 13, 52, 43});
    EXPECT_TRUE(DragBy(a, 20, 20, 7, 4).empty());
    EXPECT_EQ(a->GetWidgetRect(), (HmiRect{20, 20, 60, 50})) << "the top-left corner meets the grid";
    DragBy(a, 30, 30, 3, 2, {.alt = true});
    EXPECT_EQ(a->GetWidgetRect(), (HmiRect{23, 22, 63, 52})) << "Alt moves freely";

    // The bottom-right handle snaps both edges it moves; the right-edge handle only the right.
    aids.gridSize = 25;
    DragBy(a, 63, 52, 9, 9);
    EXPECT_EQ(a->GetWidgetRect(), (HmiRect{23, 22, 75, 50}));
    DragBy(a, 75, 36, 14, 13);
    EXPECT_EQ(a->GetWidgetRect(), (HmiRect{23, 22, 100, 50}));

    // Both corners of a placed widget meet the grid.
    tools.SetCurrentTool(CanvasTool::Place);
    CHmiWidget::CurWidgetClass = CHmiWidget::GetWidgetClass("rectangle");
    Drag(208, 211, 291, 262);
    EXPECT_EQ(Selected().front()->GetWidgetRect(), (HmiRect{200, 200, 300, 250}));
    EXPECT_EQ(feedback, std::vector<HmiRect>{});
    Drag(208, 211, 291, 262, {.alt = true});
    EXPECT_EQ(Selected().front()->GetWidgetRect(), (HmiRect{208, 211, 291, 262}));
}

TEST_F(SnappingTest, EdgesAndCentresOfOthersAndTheWindowWinOverTheGridWithGuides)
{
    aids = {.gridSize = 10, .snapToGrid = true, .snapToWidgets = true};
    CHmiWidget* b = AddRect({103, 100, 163, 140});
    CHmiWidget* a = AddRect({10, 210, 50, 240});
    // Left edge to left edge: 3 away beats the grid's 5; the guide spans both widgets.
    EXPECT_EQ(DragBy(a, 20, 220, 96, 0), (Guides{{kAlign, {103, 100}, {103, 240}}}));
    EXPECT_EQ(a->GetWidgetRect(), (HmiRect{103, 210, 143, 240}));
    // Centre to centre (133); the guide spans from b's top to a's bottom.
    EXPECT_EQ(DragBy(a, 110, 220, 8, 0), (Guides{{kAlign, {133, 100}, {133, 240}}}));
    EXPECT_EQ(a->GetWidgetRect(), (HmiRect{113, 210, 153, 240}));
    // The window's centre line, 512, across its whole height; out of reach, the grid decides.
    EXPECT_EQ(DragBy(a, 120, 220, 376, 0), (Guides{{kAlign, {512, 0}, {512, 768}}}));
    EXPECT_EQ(a->GetWidgetRect(), (HmiRect{492, 210, 532, 240}));
    EXPECT_TRUE(DragBy(a, 500, 220, 44, 0).empty());
    EXPECT_EQ(a->GetWidgetRect(), (HmiRect{540, 210, 580, 240}));

    // A resize handle: the bottom meets the window's centre line rather than the grid; the
    // right, with no line in reach, meets the grid.
    EXPECT_EQ(DragBy(a, 580, 240, 1, 146), (Guides{{kAlign, {0, 384}, {1024, 384}}}));
    EXPECT_EQ(a->GetWidgetRect(), (HmiRect{540, 210, 580, 384}));
    EXPECT_EQ(b->GetWidgetRect(), (HmiRect{103, 100, 163, 140}));
}

TEST_F(SnappingTest, EqualGapsInARowSnapAndShowBothGaps)
{
    aids.snapToWidgets = true;
    AddRect({100, 300, 140, 330});
    AddRect({160, 300, 200, 330}); // a gap of 20
    CHmiWidget* c = AddRect({400, 300, 440, 330});
    const Guides shown = DragBy(c, 410, 310, -177, 0); // its gap to the second would be 23
    EXPECT_EQ(c->GetWidgetRect(), (HmiRect{220, 300, 260, 330}));
    EXPECT_EQ(std::count_if(shown.begin(), shown.end(), [](const SnapGuide& g) { return g.kind == kGap; }), 2);
    EXPECT_NE(std::find(shown.begin(), shown.end(), SnapGuide{kGap, {200, 315}, {220, 315}}), shown.end());
    EXPECT_NE(std::find(shown.begin(), shown.end(), SnapGuide{kGap, {140, 315}, {160, 315}}), shown.end());

    // Halfway between two neighbours (..200 and 360..), with gaps of 60 on both sides.
    AddRect({360, 300, 400, 330});
    const Guides between = DragBy(c, 230, 310, 42, 0);
    EXPECT_EQ(c->GetWidgetRect(), (HmiRect{260, 300, 300, 330}));
    EXPECT_NE(std::find(between.begin(), between.end(), SnapGuide{kGap, {200, 315}, {260, 315}}), between.end());
    EXPECT_NE(std::find(between.begin(), between.end(), SnapGuide{kGap, {300, 315}, {360, 315}}), between.end());
}

TEST_F(SnappingTest, ASelectionSnapsByItsBoundsAndNeverToItself)
{
    aids.snapToWidgets = true;
    CHmiWidget* a = AddRect({100, 100, 140, 130});
    CHmiWidget* b = AddRect({200, 150, 260, 190});
    Click(110, 110);
    Click(210, 160, {.control = true});
    // Moved by 3, the selection would find its own old edges in reach: it must not stay put.
    Drag(110, 110, 113, 113);
    EXPECT_EQ(a->GetWidgetRect(), (HmiRect{103, 103, 143, 133}));
    EXPECT_EQ(b->GetWidgetRect(), (HmiRect{203, 153, 263, 193}));

    // The bounds' right edge (510) meets the window's centre line: both move 2 further.
    Press(110, 110);
    Move(357, 110);
    EXPECT_EQ(feedback, (std::vector<HmiRect>{ClientRect({352, 103, 392, 133}), ClientRect({452, 153, 512, 193})}));
    Release(357, 110);
    EXPECT_EQ(a->GetWidgetRect(), (HmiRect{352, 103, 392, 133}));
    EXPECT_EQ(b->GetWidgetRect(), (HmiRect{452, 153, 512, 193}));
    EXPECT_EQ(document.UndoStep().size(), 2u);
}

TEST_F(SnappingTest, ALockedCanvasNeitherSnapsNorShowsGuides)
{
    aids = {.snapToGrid = true, .snapToWidgets = true};
    CHmiWidget* a = AddRect({100, 100, 140, 130});
    AddRect({200, 100, 240, 130});
    Click(110, 110);
    locked = true;
    Press(110, 110);
    Move(113, 113);
    EXPECT_TRUE(guides.empty());
    Release(113, 113);
    EXPECT_EQ(a->GetWidgetRect(), (HmiRect{100, 100, 140, 130}));
}

} // namespace
