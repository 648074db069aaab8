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
    doc.AddWidget(MakeWidget(new BoxWidget, {1, 1, 2, 2}), true);
    doc.AddWidget(MakeWidget(new CHmiWidgetWindow, {0, 0, 40, 30}), true);
    doc.AddWidget(MakeWidget(new BoxWidget, {3, 3, 4, 4}), true);

    const auto drawn = [&doc](const std::vector<HmiRect>* areas) {
        RecordingDC dc;
        areas ? DrawWindow(doc, dc, *areas) : DrawWindow(doc, dc);
        std::vector<HmiRect> rects;
        for (const RecordingDC::Shape& shape : dc.ShapesOfKind("rectangle"))
            rects.push_back(shape.rect);
        return rects;
    };
    EXPECT_EQ(drawn(nullptr), (std::vector<HmiRect>{{0, 0, 40, 30}, {1, 1, 2, 2}, {3, 3, 4, 4}}));
    // Areas leave out the widgets they do not meet, but never the window, the background.
    const std::vector<HmiRect> edge{{4, 4, 9, 9}};
    EXPECT_EQ(drawn(&edge), (std::vector<HmiRect>{{0, 0, 40, 30}, {3, 3, 4, 4}}));
}
