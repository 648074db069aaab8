#include "tests/support/recordingdc.h"
#include "widgets/hmiwidgetwindow.h"
#include "widgets/tamlodoc.h"
#include "widgets/windowpainter.h"

#include <gtest/gtest.h>

namespace {

// A widget that draws its rectangle, so the order of drawing shows in the recording.
class BoxWidget : public CHmiWidget {
public:
    std::string GetWidgetClassName() const override { return "box"; }
    void Draw(CHmiDC& dc) override { dc.Rectangle(GetWidgetRect()); }
};

HmiWidgetPtr MakeWidget(CHmiWidget* widget, HmiRect rect)
{
    widget->SetWidgetRect(rect);
    return HmiWidgetPtr(widget);
}

} // namespace

TEST(WindowPainter, DrawsTheWindowFirstWhereverItStandsThenTheListInOrder)
{
    CTamloDoc doc;
    doc.AddWidget(MakeWidget(new BoxWidget, {1, 1, 2, 2}), true, false);
    doc.AddWidget(MakeWidget(new CHmiWidgetWindow, {0, 0, 40, 30}), true, false);
    doc.AddWidget(MakeWidget(new BoxWidget, {3, 3, 4, 4}), true, false);

    RecordingDC dc;
    DrawWindow(doc, dc);
    std::vector<HmiRect> drawn;
    for (const RecordingDC::Shape& shape : dc.ShapesOfKind("rectangle"))
        drawn.push_back(shape.rect);
    EXPECT_EQ(drawn, (std::vector<HmiRect>{{0, 0, 40, 30}, {1, 1, 2, 2}, {3, 3, 4, 4}}));
}
