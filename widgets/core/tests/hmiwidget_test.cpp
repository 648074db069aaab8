#include "tests/support/fakedynamictype.h"
#include "tests/support/fakeview.h"
#include "tests/support/recordingdc.h"
#include "widgets/core/hmictrlwidget.h"
#include "widgets/core/hmiwidget.h"
#include "widgets/core/tamlodoc.h"

#include <gtest/gtest.h>

namespace {

HmiWidgetPtr MakeWidget(HmiRect rect)
{
    HmiWidgetPtr widget(new CHmiWidget);
    widget->SetWidgetRect(rect);
    return widget;
}

} // namespace

TEST(HmiWidget, StartsWithTheDefaultFlagsAndNoEvents)
{
    const CHmiWidget widget;
    EXPECT_EQ(widget.GetWidgetRect(), (HmiRect{0, 0, 0, 0}));
    EXPECT_EQ(widget.m_bVisible, 1);
    EXPECT_EQ(widget.m_bNoRedraw, 0);
    EXPECT_EQ(widget.m_nFlash, 0);
    EXPECT_EQ(widget.m_nFlashSpeed, 1);
    EXPECT_EQ(widget.GetExtension().xoffset, 0);
    EXPECT_EQ(widget.GetExtension().yoffset, 0);
    EXPECT_EQ(widget.GetExtension().enable, 1);
    EXPECT_TRUE(widget.GetEvents().empty());
    EXPECT_TRUE(widget.GetWidgetClassName().empty());
    EXPECT_EQ(widget.Clone(), nullptr);

    const CHmiWidget placed(HmiRect{1, 2, 3, 4});
    EXPECT_EQ(placed.GetWidgetRect(), (HmiRect{1, 2, 3, 4}));
    EXPECT_EQ(placed.GetProperties().size(), 14u) << "the rectangle constructor builds a whole widget";
}

TEST(HmiWidget, HandlesRunClockwiseFromTheTopLeftWithTruncatedCentres)
{
    const auto widget = MakeWidget({10, 20, 15, 27});
    const HmiPoint expected[] = {{10, 20}, {12, 20}, {15, 20}, {15, 23}, {15, 27}, {12, 27}, {10, 27}, {10, 23}};
    ASSERT_EQ(widget->GetHandleCount(), 8);
    for (int n = 1; n <= 8; ++n)
        EXPECT_EQ(widget->GetHandle(n), expected[n - 1]) << "handle " << n;

    // Truncation toward zero on an inverted rectangle: -5 / 2 is -2.
    const auto inverted = MakeWidget({10, 10, 5, 5});
    EXPECT_EQ(inverted->GetHandle(2), (HmiPoint{8, 10}));
}

TEST(HmiWidget, HandleCursorsAndOutOfRangeHandles)
{
    const auto widget = MakeWidget({0, 0, 10, 10});
    const HmiCursor expected[] = {HmiCursor::SizeNWSE, HmiCursor::SizeNS, HmiCursor::SizeNESW, HmiCursor::SizeWE,
                                  HmiCursor::SizeNWSE, HmiCursor::SizeNS, HmiCursor::SizeNESW, HmiCursor::SizeWE};
    for (int n = 1; n <= 8; ++n)
        EXPECT_EQ(widget->GetHandleCursor(n), expected[n - 1]) << "handle " << n;
    EXPECT_EQ(widget->GetHandleCursor(0), HmiCursor::SizeNWSE);
    EXPECT_EQ(widget->GetHandleCursor(9), HmiCursor::SizeNWSE);
    EXPECT_EQ(widget->MoveHandleTo(42, {3, 4}, nullptr, false), (HmiRect{3, 4, 10, 10}));
}

TEST(HmiWidget, HandleRectIsASevenPixelSquareInViewPixels)
{
    const auto widget = MakeWidget({10, 10, 50, 50});
    EXPECT_EQ(widget->GetHandleRect(5, nullptr), (HmiRect{47, 47, 53, 53}));
    const FakeView scrolled({100, 200});
    EXPECT_EQ(widget->GetHandleRect(5, &scrolled), (HmiRect{47, 47, 53, 53}))
        << "the round trip through client coordinates keeps window coordinates";
}

TEST(HmiWidget, BodyHitTestIsHalfOpen)
{
    const auto widget = MakeWidget({10, 10, 50, 50});
    EXPECT_EQ(widget->HitTest({10, 10}, nullptr, 0), 1);
    EXPECT_EQ(widget->HitTest({49, 49}, nullptr, 0), 1);
    EXPECT_EQ(widget->HitTest({50, 30}, nullptr, 0), 0);
    EXPECT_EQ(widget->HitTest({30, 50}, nullptr, 0), 0);
    EXPECT_TRUE(widget->Intersects(HmiPoint{10, 49}));
    EXPECT_FALSE(widget->Intersects(HmiPoint{9, 20}));

    const auto zeroWidth = MakeWidget({20, 10, 20, 50});
    EXPECT_EQ(zeroWidth->HitTest({20, 30}, nullptr, 0), 0);
    EXPECT_EQ(zeroWidth->GetHandle(1).x, zeroWidth->GetHandle(2).x);
    EXPECT_EQ(zeroWidth->GetHandle(2).x, zeroWidth->GetHandle(3).x);

    // The stored rectangle is tested as it is: an inverted one contains nothing.
    const auto inverted = MakeWidget({50, 50, 10, 10});
    EXPECT_EQ(inverted->HitTest({30, 30}, nullptr, 0), 0);
}

TEST(HmiWidget, SelectedHitTestFindsTheFirstHandleAndIgnoresTheBody)
{
    const auto widget = MakeWidget({10, 10, 50, 50});
    EXPECT_EQ(widget->HitTest({7, 7}, nullptr, 1), 1);
    EXPECT_EQ(widget->HitTest({12, 12}, nullptr, 1), 1);
    EXPECT_EQ(widget->HitTest({13, 13}, nullptr, 1), 0) << "right edge of the handle square is outside";
    EXPECT_EQ(widget->HitTest({30, 30}, nullptr, 1), 0);
    EXPECT_EQ(widget->HitTest({50, 30}, nullptr, 1), 4);

    // On a tiny widget the handles overlap: the lowest number wins.
    const auto tiny = MakeWidget({10, 10, 12, 12});
    EXPECT_EQ(tiny->HitTest({11, 11}, nullptr, 1), 1);
}

TEST(HmiWidget, RubberBandSelectsOnlyWidgetsItContains)
{
    const auto widget = MakeWidget({10, 10, 50, 50});
    EXPECT_TRUE(widget->Intersects(HmiRect{0, 0, 100, 100}));
    EXPECT_TRUE(widget->Intersects(HmiRect{100, 100, 0, 0})) << "the band is normalised";
    EXPECT_FALSE(widget->Intersects(HmiRect{0, 0, 30, 100})) << "half inside";
    EXPECT_FALSE(widget->Intersects(HmiRect{10, 10, 50, 50})) << "bottom-right corner on the open edge";
    EXPECT_TRUE(widget->Intersects(HmiRect{10, 10, 51, 51}));

    const auto inverted = MakeWidget({50, 50, 10, 10});
    EXPECT_TRUE(inverted->Intersects(HmiRect{0, 0, 100, 100})) << "the widget is normalised too";
}

TEST(HmiWidget, DraggingAHandlePastTheOppositeEdgeNormalisesOnApply)
{
    const auto widget = MakeWidget({10, 10, 50, 50});
    EXPECT_EQ(widget->MoveHandleTo(4, {0, 99}, nullptr, false), (HmiRect{10, 10, 0, 50}));
    EXPECT_EQ(widget->GetWidgetRect(), (HmiRect{10, 10, 50, 50})) << "without apply nothing moves";

    EXPECT_EQ(widget->MoveHandleTo(4, {0, 99}, nullptr, true), (HmiRect{10, 10, 0, 50}));
    EXPECT_EQ(widget->GetWidgetRect(), (HmiRect{0, 10, 10, 50}));

    const HmiRect expected[] = {{5, 6, 10, 50}, {0, 6, 10, 50}, {0, 6, 5, 50}, {0, 10, 5, 50},
                                {0, 10, 5, 6},  {0, 10, 10, 6}, {5, 10, 10, 6}, {5, 10, 10, 50}};
    for (int n = 1; n <= 8; ++n)
        EXPECT_EQ(widget->MoveHandleTo(n, {5, 6}, nullptr, false), expected[n - 1]) << "handle " << n;
}

TEST(HmiWidget, MoveToRepaintsOldAndNewAreasAndMarksTheDocument)
{
    CTamloDoc doc;
    FakeView docView;
    doc.AddView(&docView);
    auto widget = MakeWidget({10, 10, 50, 50});
    widget->m_pDocument = &doc;

    widget->MoveTo({10, 10, 50, 50}, nullptr);
    EXPECT_TRUE(docView.invalidated.empty()) << "an equal rectangle is a no-op";
    EXPECT_FALSE(doc.IsModified());

    widget->MoveTo({60, 70, 20, 30}, nullptr);
    EXPECT_EQ(widget->GetWidgetRect(), (HmiRect{20, 30, 60, 70}));
    ASSERT_EQ(docView.invalidated.size(), 2u);
    EXPECT_EQ(docView.invalidated[0], (HmiRect{10, 10, 50, 50}));
    EXPECT_EQ(docView.invalidated[1], (HmiRect{20, 30, 60, 70}));
    EXPECT_TRUE(doc.IsModified());

    // With a view given, only that view repaints.
    FakeView given;
    widget->MoveTo({0, 0, 5, 5}, &given);
    EXPECT_EQ(given.invalidated.size(), 2u);
    EXPECT_EQ(docView.invalidated.size(), 2u);
}

TEST(HmiWidget, FileReaderKeepsTheLowByteOfFlagsAndOffsets)
{
    CHmiWidget widget;
    EXPECT_EQ(widget.SetWidgetProperty("left", "short", "-20", ""), 1);
    EXPECT_EQ(widget.SetWidgetProperty("right", "short", "300", ""), 1);
    EXPECT_EQ(widget.SetWidgetProperty("top", "short", "  7px", ""), 1);
    EXPECT_EQ(widget.SetWidgetProperty("bottom", "short", "0x40", ""), 1);
    EXPECT_EQ(widget.GetWidgetRect(), (HmiRect{-20, 7, 300, 0})) << "whole values, decimal only";

    widget.SetWidgetProperty("xoffset", "short", "300", "");
    widget.SetWidgetProperty("yoffset", "short", "-1", "");
    widget.SetWidgetProperty("flash", "uchar", "256", "");
    widget.SetWidgetProperty("flashspeed", "ulong", "1000", "");
    widget.SetWidgetProperty("visible", "uchar", "258", "");
    widget.SetWidgetProperty("enable", "uchar", "512", "");
    widget.SetWidgetProperty("noredraw", "uchar", "abc", "");
    EXPECT_EQ(widget.GetExtension().xoffset, 44);
    EXPECT_EQ(widget.GetExtension().yoffset, 255);
    EXPECT_EQ(widget.m_nFlash, 0);
    EXPECT_EQ(widget.m_nFlashSpeed, 232);
    EXPECT_EQ(widget.m_bVisible, 2);
    EXPECT_EQ(widget.GetExtension().enable, 0);
    EXPECT_EQ(widget.m_bNoRedraw, 0);
}

TEST(HmiWidget, FileReaderRejectsDerivedAndUnknownNames)
{
    CHmiWidget widget;
    for (const char* name : {"width", "height", "name", "Left", "LEFT", ""})
        EXPECT_EQ(widget.SetWidgetProperty(name, "short", "5", ""), 0) << name;
    EXPECT_EQ(widget.GetWidgetRect(), (HmiRect{0, 0, 0, 0}));
}

TEST(HmiWidget, PropertyValuesAsText)
{
    auto widget = MakeWidget({10, 20, 40, 25});
    widget->SetWidgetName("rect7");
    widget->SetWidgetProperty("yoffset", "short", "-1", "");
    const auto valueOf = [&widget](const char* name) {
        std::string text = "untouched";
        const int known = widget->GetWidgetPropValue(*widget->FindProperty(name), text);
        return known ? text : std::string("<unknown>");
    };
    EXPECT_EQ(valueOf("name"), "rect7");
    EXPECT_EQ(valueOf("left"), "10");
    EXPECT_EQ(valueOf("width"), "30");
    EXPECT_EQ(valueOf("height"), "5");
    EXPECT_EQ(valueOf("enable"), "1");
    EXPECT_EQ(valueOf("flashspeed"), "1");
    EXPECT_EQ(valueOf("yoffset"), "255");

    const CHmiWidgetProp foreign("caption", "Caption", "", 0, "Button", PROP_EDIT);
    std::string text = "untouched";
    EXPECT_EQ(widget->GetWidgetPropValue(foreign, text), 0);
    EXPECT_EQ(text, "untouched");
}

TEST(HmiWidget, BindingLooksUpTheExactName)
{
    CHmiWidget widget;
    EXPECT_EQ(widget.AddWidgetDynProp("Left", "$db.x"), nullptr);
    for (const auto& prop : widget.GetProperties())
        EXPECT_TRUE(prop->m_strExpression.empty());

    CHmiWidgetProp* left = widget.AddWidgetDynProp("left", "$db.x");
    ASSERT_NE(left, nullptr);
    EXPECT_EQ(left->m_strName, "left");
    EXPECT_EQ(widget.AddWidgetDynProp("left", "$db.y"), left);
    EXPECT_EQ(left->m_strExpression, "$db.y");
}

TEST(HmiWidget, EventsAreCreatedOnFirstUse)
{
    CHmiWidget widget;
    widget.SetWidgetEventCode("Click", "beep();");
    ASSERT_EQ(widget.GetEvents().size(), 2u) << "the base events exist once asked for";
    EXPECT_TRUE(widget.GetEvents()[0].code.empty());

    widget.SetWidgetEventCode("buttonup", "release();");
    const auto& events = widget.GetEvents();
    EXPECT_EQ(events[0].name, "click");
    EXPECT_EQ(events[0].label, "Button Down");
    EXPECT_EQ(events[0].description, "trigger this event when mouse button down");
    EXPECT_EQ(events[1].name, "buttonup");
    EXPECT_EQ(events[1].label, "Button Up");
    EXPECT_EQ(events[1].description, "trigger this event when mouse button up");
    EXPECT_EQ(events[1].code, "release();");
}

TEST(HmiWidget, CopyToCarriesStateBindingsAndEventsButNotTheName)
{
    CTamloDoc doc;
    FakeView view;
    auto source = MakeWidget({1, 2, 3, 4});
    source->SetWidgetName("source");
    source->m_pDocument = &doc;
    source->m_pView = &view;
    source->SetWidgetProperty("xoffset", "short", "9", "");
    source->SetWidgetProperty("enable", "uchar", "0", "");
    source->SetWidgetProperty("flash", "uchar", "1", "");
    source->SetWidgetEventCode("click", "go();");
    CHmiWidgetProp* top = source->AddWidgetDynProp("top", "$db.t");
    top->SetDynamicType(std::make_unique<FakeDynamicType>());
    top->GetDynamicType()->expression = "t";

    CHmiWidget target;
    target.SetWidgetName("target");
    target.SetWidgetEventCode("buttonup", "up();");
    target.AddWidgetDynProp("left", "$db.keep");
    source->CopyTo(target);

    EXPECT_EQ(target.GetWidgetName(), "target");
    EXPECT_EQ(target.GetWidgetRect(), (HmiRect{1, 2, 3, 4}));
    EXPECT_EQ(target.m_pDocument, &doc);
    EXPECT_EQ(target.m_pView, &view);
    EXPECT_EQ(target.GetExtension().xoffset, 9);
    EXPECT_EQ(target.GetExtension().enable, 0);
    EXPECT_EQ(target.m_nFlash, 1);
    // The copied events are appended after those the target already had.
    ASSERT_EQ(target.GetEvents().size(), 4u);
    EXPECT_EQ(target.GetEvents()[2].code, "go();");
    // Every expression is copied, empty ones included.
    EXPECT_EQ(target.FindProperty("left")->m_strExpression, "");
    EXPECT_EQ(target.FindProperty("top")->m_strExpression, "$db.t");
    ASSERT_NE(target.FindProperty("top")->GetDynamicType(), nullptr);
    EXPECT_NE(target.FindProperty("top")->GetDynamicType(), top->GetDynamicType());
    EXPECT_EQ(target.FindProperty("top")->GetDynamicType()->expression, "t");
}

TEST(HmiWidget, ControlIdsStartAt500)
{
    const int first = CHmiWidget::GetNewControlId();
    EXPECT_EQ(first, 500);
    EXPECT_EQ(CHmiWidget::GetNewControlId(), 501);
}

TEST(HmiWidget, TrackerDrawsEightHandlesInClientCoordinates)
{
    FakeView view({5, 5});
    auto widget = MakeWidget({10, 10, 50, 50});
    widget->m_pView = &view;
    RecordingDC dc;
    const HmiPen penBefore = dc.pen;

    widget->DrawTracker(dc, TrackerState::normal);
    EXPECT_TRUE(dc.shapes.empty());

    widget->DrawTracker(dc, TrackerState::selected);
    ASSERT_EQ(dc.shapes.size(), 8u);
    EXPECT_EQ(dc.shapes[0].rect, (HmiRect{2, 2, 9, 9}));
    EXPECT_EQ(dc.shapes[4].rect, (HmiRect{42, 42, 49, 49}));
    EXPECT_EQ(dc.shapes[0].pen, (HmiPen{HmiPenStyle::Solid, 1, 0x00000000}));
    EXPECT_EQ(dc.shapes[0].brush, (HmiBrush{false, 0x00FFFFFF}));
    EXPECT_EQ(dc.pen, penBefore) << "the previous pen is selected back";

    dc.shapes.clear();
    widget->DrawTracker(dc, TrackerState::active);
    EXPECT_EQ(dc.shapes[7].pen.color, 0x00FFFFFFu);
    EXPECT_EQ(dc.shapes[7].brush.color, 0x00000000u);
}

namespace {

class FakeControl : public CHmiControl {
public:
    HmiRect GetClientRect() const override { return rect; }
    void MoveTo(const HmiRect& clientRect) override
    {
        rect = clientRect;
        ++moves;
    }
    void Hide() override { hidden = true; }

    HmiRect rect;
    int moves = 0;
    bool hidden = false;
};

} // namespace

TEST(HmiCtrlWidget, DrawKeepsTheControlOnTheWidgetRectangle)
{
    FakeView view({10, 0});
    CHmiCtrlWidget widget;
    RecordingDC dc;
    widget.Draw(dc); // no control yet: nothing to do
    widget.Hide();

    auto owned = std::make_unique<FakeControl>();
    FakeControl* control = owned.get();
    widget.SetCtrlWndProc(std::move(owned));
    widget.m_pView = &view;
    widget.SetWidgetRect({20, 20, 60, 40});

    widget.Draw(dc);
    EXPECT_EQ(control->rect, (HmiRect{10, 20, 50, 40}));
    EXPECT_EQ(view.wholeViewInvalidations, 1);
    widget.Draw(dc);
    EXPECT_EQ(control->moves, 1) << "an unchanged rectangle leaves the control alone";
    EXPECT_TRUE(dc.shapes.empty());

    widget.Hide();
    EXPECT_TRUE(control->hidden);
}

TEST(HmiWidgetClass, RuntimeClassesCreateAndKnowTheirBase)
{
    EXPECT_EQ(CHmiWidget::classCHmiWidget.CreateObject(), nullptr) << "the base has no creation function";
    const CHmiRuntimeClass& ctrlClass = CHmiCtrlWidget::classCHmiCtrlWidget;
    EXPECT_STREQ(ctrlClass.m_lpszClassName, "CHmiCtrlWidget");
    EXPECT_TRUE(ctrlClass.IsDerivedFrom(&CHmiWidget::classCHmiWidget));
    EXPECT_FALSE(CHmiWidget::classCHmiWidget.IsDerivedFrom(&ctrlClass));
    const HmiWidgetPtr created = ctrlClass.CreateObject();
    ASSERT_NE(created, nullptr);
    EXPECT_EQ(created->GetRuntimeClass(), &ctrlClass);
}
