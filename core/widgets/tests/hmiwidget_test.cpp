#include "tests/support/fakedynamictype.h"
#include "tests/support/fakeview.h"
#include "tests/support/recordingdc.h"
#include "widgets/hmictrlwidget.h"
#include "widgets/hmiwidget.h"
#include "widgets/tamlodoc.h"

#include <gtest/gtest.h>

#include <tuple>
#include <utility>

TEST(HmiWidget, HandlesRunClockwiseFromTheTopLeftWithTruncatedCentres)
{
    const std::pair<HmiPoint, HmiCursor> expected[] = {
        {{10, 20}, HmiCursor::SizeNWSE}, {{12, 20}, HmiCursor::SizeNS}, {{15, 20}, HmiCursor::SizeNESW},
        {{15, 23}, HmiCursor::SizeWE},   {{15, 27}, HmiCursor::SizeNWSE}, {{12, 27}, HmiCursor::SizeNS},
        {{10, 27}, HmiCursor::SizeNESW}, {{10, 23}, HmiCursor::SizeWE}};
    CHmiWidget widget(HmiRect{10, 20, 15, 27});
    ASSERT_EQ(widget.GetHandleCount(), 8);
    for (int n = 1; n <= 8; ++n)
        EXPECT_EQ(std::pair(widget.GetHandle(n), widget.GetHandleCursor(n)), expected[n - 1]) << "handle " << n;
    // Numbers out of range act as handle 1.
    EXPECT_EQ(widget.GetHandleCursor(9), HmiCursor::SizeNWSE);
    EXPECT_EQ(widget.MoveHandleTo(42, {3, 4}, nullptr, false), (HmiRect{3, 4, 15, 27}));
    // Truncation toward zero on an inverted rectangle: -5 / 2 is -2.
    EXPECT_EQ(CHmiWidget(HmiRect{10, 10, 5, 5}).GetHandle(2), (HmiPoint{8, 10}));
}

TEST(HmiWidget, HitTestsAreHalfOpenAndTheRubberBandTakesOnlyWidgetsItContains)
{
    CHmiWidget widget(HmiRect{10, 10, 50, 50});
    EXPECT_EQ(widget.HitTest({10, 10}, nullptr, 0), 1);
    EXPECT_EQ(widget.HitTest({49, 49}, nullptr, 0), 1);
    EXPECT_EQ(widget.HitTest({50, 30}, nullptr, 0), 0);
    EXPECT_EQ(widget.HitTest({30, 50}, nullptr, 0), 0);
    EXPECT_FALSE(widget.Intersects(HmiPoint{9, 20}));
    EXPECT_EQ(CHmiWidget(HmiRect{20, 10, 20, 50}).HitTest({20, 30}, nullptr, 0), 0) << "zero width";
    CHmiWidget inverted(HmiRect{50, 50, 10, 10});
    EXPECT_EQ(inverted.HitTest({30, 30}, nullptr, 0), 0) << "an inverted one contains nothing";

    EXPECT_TRUE(widget.Intersects(HmiRect{100, 100, 0, 0})) << "the band is normalised";
    EXPECT_FALSE(widget.Intersects(HmiRect{10, 10, 50, 50})) << "bottom-right corner on the open edge";
    EXPECT_TRUE(widget.Intersects(HmiRect{10, 10, 51, 51}));
    EXPECT_TRUE(inverted.Intersects(HmiRect{0, 0, 100, 100})) << "the widget is normalised too";

    // Selected, the hit test finds the first handle square and ignores the body. A handle's square
    // is 7 by 7 view pixels; the round trip through a scrolled view's client coordinates keeps
    // window coordinates.
    EXPECT_EQ(widget.GetHandleRect(5, nullptr), (HmiRect{47, 47, 53, 53}));
    const FakeView scrolled({100, 200});
    EXPECT_EQ(widget.GetHandleRect(5, &scrolled), (HmiRect{47, 47, 53, 53}));

    EXPECT_EQ(widget.HitTest({7, 7}, nullptr, 1), 1);
    EXPECT_EQ(widget.HitTest({12, 12}, nullptr, 1), 1);
    EXPECT_EQ(widget.HitTest({13, 13}, nullptr, 1), 0) << "right edge of the handle square is outside";
    EXPECT_EQ(widget.HitTest({30, 30}, nullptr, 1), 0);
    EXPECT_EQ(CHmiWidget(HmiRect{10, 10, 12, 12}).HitTest({11, 11}, nullptr, 1), 1) << "overlapping: the lowest wins";
}

// A widget of a document tells the document instead, whose views repaint: tested with the
// document's changes.
TEST(HmiWidget, MoveToWithoutADocumentRepaintsOldAndNewAreasInTheGivenView)
{
    CHmiWidget widget(HmiRect{10, 10, 50, 50});
    FakeView view;
    widget.MoveTo({10, 10, 50, 50}, &view);
    EXPECT_TRUE(view.invalidated.empty()) << "an equal rectangle is a no-op";
    widget.MoveTo({60, 70, 20, 30}, &view);
    EXPECT_EQ(view.invalidated, (std::vector<HmiRect>{{10, 10, 50, 50}, {20, 30, 60, 70}}));
}

TEST(HmiWidget, FileReaderTakesWholeDecimalsAndTheLowByteOfFlagsAndOffsets)
{
    CHmiWidget widget;
    const std::pair<const char*, const char*> known[] = {
        {"left", "-20"},    {"right", "300"},  {"top", "  7px"},      {"bottom", "0x40"},
        {"xoffset", "300"}, {"yoffset", "-1"}, {"flash", "256"},      {"flashspeed", "1000"},
        {"visible", "258"}, {"enable", "512"}, {"noredraw", "abc"}};
    for (const auto& [name, value] : known)
        EXPECT_EQ(widget.SetWidgetProperty(name, "short", value, ""), 1) << name;
    for (const char* name : {"width", "height", "name", "Left", ""})
        EXPECT_EQ(widget.SetWidgetProperty(name, "short", "5", ""), 0) << name;

    EXPECT_EQ(widget.GetWidgetRect(), (HmiRect{-20, 7, 300, 0}));
    const HmiWidgetExtension& extension = widget.GetExtension();
    EXPECT_EQ(std::tuple(extension.xoffset, extension.yoffset, widget.m_nFlash, widget.m_nFlashSpeed),
              std::tuple(44, 255, 0, 232));
    EXPECT_EQ(std::tuple(int(widget.m_bVisible), extension.enable, int(widget.m_bNoRedraw)), std::tuple(2, 0, 0));
}

TEST(HmiWidget, BindingsAndEventCodeGoToTheExactName)
{
    CHmiWidget widget(HmiRect{1, 2, 3, 4}); // builds a whole widget, as the default constructor does
    EXPECT_EQ(widget.AddWidgetDynProp("Left", "$db.x"), nullptr);
    widget.AddWidgetDynProp("left", "$db.x");
    EXPECT_EQ(widget.AddWidgetDynProp("left", "$db.y"), widget.FindProperty("left"));
    EXPECT_EQ(widget.FindProperty("left")->m_strExpression, "$db.y");

    // The events are declared on first use; an unknown name changes nothing.
    widget.SetWidgetEventCode("Click", "beep();");
    widget.SetWidgetEventCode("buttonup", "release();");
    ASSERT_EQ(widget.GetEvents().size(), 2u);
    EXPECT_EQ(std::tuple(widget.GetEvents()[0].code, widget.GetEvents()[1].code), std::tuple("", "release();"));
}

TEST(HmiWidget, CopyToCarriesStateBindingsAndEventsButNotTheName)
{
    CTamloDoc doc;
    FakeView view;
    CHmiWidget source(HmiRect{1, 2, 3, 4});
    source.m_pDocument = &doc;
    source.m_pView = &view;
    source.SetWidgetProperty("xoffset", "short", "9", "");
    source.SetWidgetProperty("flash", "uchar", "1", "");
    source.SetWidgetEventCode("click", "go();");
    CHmiWidgetProp* top = source.AddWidgetDynProp("top", "$db.t");
    top->SetDynamicType(std::make_unique<FakeDynamicType>());
    top->GetDynamicType()->expression = "t";

    CHmiWidget target;
    target.SetWidgetName("target");
    target.SetWidgetEventCode("buttonup", "up();");
    target.AddWidgetDynProp("left", "$db.keep");
    source.CopyTo(target);

    EXPECT_EQ(std::tuple(target.GetWidgetName(), target.GetWidgetRect(), target.m_pDocument, target.m_pView),
              std::tuple("target", HmiRect{1, 2, 3, 4}, &doc, &view));
    EXPECT_EQ(std::tuple(target.GetExtension().xoffset, target.m_nFlash), std::tuple(9, 1));
    // The copied events are appended after those the target already had.
    ASSERT_EQ(target.GetEvents().size(), 4u);
    EXPECT_EQ(target.GetEvents()[2].code, "go();");
    // Every expression is copied, empty ones included, and the binding with its parameters.
    EXPECT_EQ(std::tuple(target.FindProperty("left")->m_strExpression, target.FindProperty("top")->m_strExpression),
              std::tuple("", "$db.t"));
    ASSERT_NE(target.FindProperty("top")->GetDynamicType(), nullptr);
    EXPECT_EQ(target.FindProperty("top")->GetDynamicType()->expression, "t");
}

TEST(HmiWidget, TrackerDrawsEightHandlesInClientCoordinates)
{
    FakeView view({5, 5});
    CHmiWidget widget(HmiRect{10, 10, 50, 50});
    widget.m_pView = &view;
    RecordingDC dc;

    widget.DrawTracker(dc, TrackerState::normal);
    EXPECT_TRUE(dc.shapes.empty());

    // Each handle: a black frame filled white.
    widget.DrawTracker(dc, TrackerState::selected);
    ASSERT_EQ(dc.shapes.size(), 16u);
    EXPECT_EQ(std::tuple(dc.shapes[0].rect, dc.shapes[0].color, dc.shapes[1].rect, dc.shapes[1].color, dc.shapes[8].rect),
              std::tuple(HmiRect{2, 2, 9, 9}, 0u, HmiRect{3, 3, 8, 8}, 0xFFFFFFu, HmiRect{42, 42, 49, 49}));

    // The active tracker draws in inverted colours.
    widget.DrawTracker(dc, TrackerState::active);
    EXPECT_EQ(std::tuple(dc.shapes[16].color, dc.shapes.back().color), std::tuple(0xFFFFFFu, 0u));
}

namespace {

class FakeControl : public CHmiControl {
public:
    HmiRect GetClientRect() const override { return rect; }
    void MoveTo(const HmiRect& clientRect) override { rect = clientRect; ++moves; }
    void Hide() override {}

    HmiRect rect;
    int moves = 0;
};

} // namespace

// Controls on a real canvas, shown, moved and hidden, are tested in editor/canvascontrols/tests.
TEST(HmiCtrlWidget, DrawMovesTheControlOnlyWhenTheWidgetRectangleChanged)
{
    FakeView view({10, 0});
    CHmiCtrlWidget widget;
    auto owned = std::make_unique<FakeControl>();
    FakeControl* control = owned.get();
    widget.SetCtrlWndProc(std::move(owned));
    widget.m_pView = &view;
    widget.SetWidgetRect({20, 20, 60, 40});

    RecordingDC dc;
    widget.Draw(dc);
    widget.Draw(dc);
    EXPECT_EQ(control->rect, (HmiRect{10, 20, 50, 40}));
    EXPECT_EQ(std::tuple(control->moves, view.wholeViewInvalidations), std::tuple(1, 1));
    EXPECT_TRUE(dc.shapes.empty());
}

TEST(HmiWidgetClass, RuntimeClassesCreateAndKnowTheirBaseAndControlIdsCountUpFrom500)
{
    EXPECT_EQ(CHmiWidget::classCHmiWidget.CreateObject(), nullptr) << "the base has no creation function";
    const CHmiRuntimeClass& ctrlClass = CHmiCtrlWidget::classCHmiCtrlWidget;
    EXPECT_TRUE(ctrlClass.IsDerivedFrom(&CHmiWidget::classCHmiWidget));
    EXPECT_FALSE(CHmiWidget::classCHmiWidget.IsDerivedFrom(&ctrlClass));
    EXPECT_EQ(ctrlClass.CreateObject()->GetRuntimeClass(), &ctrlClass);
    EXPECT_EQ(CHmiWidget::GetNewControlId(), 500);
    EXPECT_EQ(CHmiWidget::GetNewControlId(), 501);
}
