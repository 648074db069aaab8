#include "tests/support/registrytest.h"
#include "widgets/tamlodoc.h"

#include <gtest/gtest.h>

#include <functional>
#include <random>

namespace {

// What a look at every widget gives: the widgets that can be hit, in drawing order.
std::vector<CHmiWidget*> EveryWidgetWhere(const CTamloDoc& doc, const std::function<bool(const CHmiWidget&)>& wanted)
{
    std::vector<CHmiWidget*> widgets;
    for (const HmiWidgetPtr& widget : doc.Widgets())
        if (widget.get() != doc.GetWindowWidget() && !doc.IsWidgetDeleted(widget.get()) && wanted(*widget))
            widgets.push_back(widget.get());
    return widgets;
}

} // namespace

// Shapes and thin lines of every size, inverted, empty and far beyond the window, under adds,
// moves, deletions, undos and changes of the drawing order: the document's hit test and band
// give what a look at every widget gives.
TEST_F(BuiltinRegistryTest, HitTestsAndBandsAgreeWithALookAtEveryWidget)
{
    std::mt19937 random(7);
    const auto number = [&random](int low, int high) { return std::uniform_int_distribution<int>(low, high)(random); };
    const auto anyRect = [&] {
        const int x = number(-100, 900), y = number(-100, 700);
        return number(0, 30) == 0 ? HmiRect{-1000000000, -5, 1000000000, 5}
                                  : HmiRect{x, y, x + number(-20, 300), y + number(-20, 200)};
    };
    CTamloDoc doc;
    doc.OnNewDocument();
    const auto pick = [&]() -> CHmiWidget* { return doc.Widgets()[number(0, int(doc.Widgets().size()) - 1)].get(); };
    for (int round = 0; round < 400; ++round) {
        switch (round < 150 ? 0 : number(0, 5)) {
        case 0: {
            HmiWidgetPtr widget = CHmiWidget::GetWidgetClass(number(0, 2) ? "rectangle" : "line")->CreateObject();
            widget->SetWidgetRect(anyRect());
            doc.AddWidget(std::move(widget), number(0, 1) == 1);
            break;
        }
        case 1:
            pick()->MoveTo(anyRect(), nullptr);
            break;
        case 2: {
            CUndoStepGuard step(doc);
            for (int i = number(1, 5); i > 0; --i) {
                CHmiWidget* widget = pick();
                step.Record(number(0, 1) ? UndoOperation::Deleted : UndoOperation::Changed, widget);
                widget->MoveTo(anyRect(), nullptr);
            }
            break;
        }
        case 3:
            doc.Undo();
            break;
        case 4:
            doc.MoveWidget(pick(), number(0, int(doc.Widgets().size())));
            break;
        case 5:
            doc.RemoveWidget(pick());
            break;
        }
        for (int probe = 0; probe < 20; ++probe) {
            const HmiPoint point{number(-50, 1000), number(-50, 800)};
            const std::vector<CHmiWidget*> under =
                EveryWidgetWhere(doc, [point](const CHmiWidget& widget) { return widget.Intersects(point); });
            ASSERT_EQ(doc.DocumentHitTest(point), under.empty() ? nullptr : under.back()) << "round " << round;
            const HmiRect band = anyRect();
            ASSERT_EQ(doc.WidgetsWithin(band),
                      EveryWidgetWhere(doc, [band](const CHmiWidget& widget) { return widget.Intersects(band); }))
                << "round " << round;
        }
    }
}
