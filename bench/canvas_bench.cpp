// Measures the canvas on a crowded window: a full repaint, a rubber-band selection and a drag of
// one widget with the repaints that follow them, against plain rectangles drawn through the same
// painter; and a full repaint of a window whose widgets are as large, and whose counts as high, as
// a window file can make them. Prints figures only; nothing here is a pass or a fail.

#include "editor/app/tamloview.h"
#include "catalogue/builtinwidgets.h"
#include "widgets/hmipainterdc.h"
#include "widgets/tamlodoc.h"

#include <QApplication>
#include <QImage>
#include <QMouseEvent>
#include <QPainter>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <functional>
#include <random>
#include <string_view>
#include <vector>

namespace {

constexpr int kWindowWidth = 1920;
constexpr int kWindowHeight = 1080;
constexpr int kRepaintRepetitions = 7;
constexpr int kBandRepetitions = 5;
// Mouse moves between the press and the release of one rubber-band drag or widget drag.
constexpr int kBandMoves = 12;
// How far one widget drag takes the widget, to the right and down.
constexpr int kWidgetDragDistance = 120;
// The press lands in the empty margin below and right of the window, where no widget is.
constexpr int kPressInset = 2;
// The band ends this fraction of the window from its top-left corner, so that it encloses most widgets.
constexpr int kBandEndDivisor = 20;
constexpr auto kImageFormat = QImage::Format_ARGB32_Premultiplied;

// One kind of the mix: its class key, its usual size on a panel and how often it occurs.
struct WidgetKind {
    const char* key;
    int width;
    int height;
    int weight;
};

// A panel mix: many simple shapes and texts, fewer controls, a few large curves and alarm lists.
constexpr WidgetKind kMix[] = {
    {"rectangle", 60, 40, 6},
    {"line", 80, 2, 5},
    {"ellipse", 40, 40, 3},
    {"text", 90, 20, 6},
    {"gradrectangle", 80, 50, 2},
    {"gradellipse", 50, 50, 1},
    {"gradtriangle", 50, 40, 1},
    {"button", 90, 30, 4},
    {"numinput", 80, 24, 3},
    {"textinput", 100, 24, 2},
    {"timer", 30, 30, 1},
    {"curve", 240, 140, 1},
    {"alarmwnd", 320, 160, 1},
    {"bmptext", 100, 24, 2},
    {"picture", 100, 60, 2},
};

// A coordinate far outside any window, and a count as high as a file can hold.
constexpr int kHugeCoordinate = 1000000000;
constexpr const char* kHugeCount = "2147483647";

struct Timing {
    double median = 0;
    double min = 0;
};

// Median and minimum wall time of a few runs after one untimed warm-up, in milliseconds.
Timing Measure(int repetitions, const std::function<void()>& work)
{
    work();
    std::vector<double> times;
    for (int i = 0; i < repetitions; ++i) {
        const auto start = std::chrono::steady_clock::now();
        work();
        times.push_back(std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count());
    }
    std::sort(times.begin(), times.end());
    return {times[times.size() / 2], times.front()};
}

// A large window with widgetCount widgets of the mix at random places, the same for every run.
void FillDocument(CTamloDoc& document, int widgetCount)
{
    document.OnNewDocument();
    document.GetWindowWidget()->SetWidgetRect({0, 0, kWindowWidth, kWindowHeight});
    document.SetPictureFolder(KELVO_DEMO_DIR);
    std::vector<int> weights;
    for (const WidgetKind& kind : kMix)
        weights.push_back(kind.weight);
    std::mt19937 random(widgetCount);
    std::discrete_distribution<int> pickKind(weights.begin(), weights.end());
    for (int i = 0; i < widgetCount; ++i) {
        const WidgetKind& kind = kMix[pickKind(random)];
        HmiWidgetPtr widget = CHmiWidget::GetWidgetClass(kind.key)->CreateObject();
        const int x = std::uniform_int_distribution<int>(0, kWindowWidth - kind.width)(random);
        const int y = std::uniform_int_distribution<int>(0, kWindowHeight - kind.height)(random);
        widget->SetWidgetRect({x, y, x + kind.width, y + kind.height});
        if (std::string_view(kind.key) == "picture")
            widget->SetWidgetProperty("filename", "string", "logo.png", "32");
        document.AddWidget(std::move(widget), true);
    }
}

// Counts the paint events a widget receives and the pixels they repaint, to show that a drag
// really repainted the canvas, and how much of it.
class PaintCounter : public QObject {
public:
    int count = 0;
    qint64 pixels = 0;

protected:
    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() != QEvent::Paint)
            return false;
        ++count;
        for (const QRect& rect : static_cast<QPaintEvent*>(event)->region())
            pixels += qint64(rect.width()) * rect.height();
        return false;
    }
};

void SendMouse(QWidget& target, QEvent::Type type, QPoint point, Qt::MouseButton button, Qt::MouseButtons buttons)
{
    QMouseEvent event(type, QPointF(point), QPointF(target.mapToGlobal(point)), button, buttons, Qt::NoModifier);
    QCoreApplication::sendEvent(&target, &event);
}

// One drag of the selection tool from the empty margin up to near the window's top-left corner,
// letting the event loop repaint after every event as it does between real mouse events.
void DragRubberBand(CTamloView& view)
{
    const QPoint from(view.width() - kPressInset, view.height() - kPressInset);
    const QPoint to(kWindowWidth / kBandEndDivisor, kWindowHeight / kBandEndDivisor);
    SendMouse(view, QEvent::MouseButtonPress, from, Qt::LeftButton, Qt::LeftButton);
    QCoreApplication::processEvents();
    for (int step = 1; step <= kBandMoves; ++step) {
        SendMouse(view, QEvent::MouseMove, from + (to - from) * step / kBandMoves, Qt::NoButton, Qt::LeftButton);
        QCoreApplication::processEvents();
    }
    SendMouse(view, QEvent::MouseButtonRelease, to, Qt::LeftButton, Qt::NoButton);
    QCoreApplication::processEvents();
}

// One drag of a widget by its middle, letting the event loop repaint after every event. Drags
// take the widget there and back in turns, so that it stays inside the window.
void DragWidget(CTamloView& view, const CHmiWidget& widget, bool back)
{
    const HmiRect& rect = widget.GetWidgetRect();
    const QPoint from((rect.left + rect.right) / 2, (rect.top + rect.bottom) / 2);
    const QPoint distance = back ? -QPoint(kWidgetDragDistance, kWidgetDragDistance)
                                 : QPoint(kWidgetDragDistance, kWidgetDragDistance);
    SendMouse(view, QEvent::MouseButtonPress, from, Qt::LeftButton, Qt::LeftButton);
    QCoreApplication::processEvents();
    for (int step = 1; step <= kBandMoves; ++step) {
        SendMouse(view, QEvent::MouseMove, from + distance * step / kBandMoves, Qt::NoButton, Qt::LeftButton);
        QCoreApplication::processEvents();
    }
    SendMouse(view, QEvent::MouseButtonRelease, from + distance, Qt::LeftButton, Qt::NoButton);
    QCoreApplication::processEvents();
}

// A rectangle in the window's top-left quarter, brought to the top of the drawing order, so
// that a press on it takes it wherever it stands. The offscreen screen is smaller than the
// window, and only what lies on it is repainted.
const CHmiWidget& WidgetToDrag(CTamloDoc& document)
{
    const HmiRect corner{0, 0, kWindowWidth / 4, kWindowHeight / 4};
    CHmiWidget& widget = **std::find_if(document.Widgets().begin(), document.Widgets().end(),
                                        [&corner](const HmiWidgetPtr& widget) {
                                            return widget->GetWidgetClassName() == "rectangle" &&
                                                   widget->Intersects(corner);
                                        });
    document.MoveWidget(&widget, document.Widgets().size());
    return widget;
}

void PrintRow(int widgetCount, const char* label, const Timing& timing, const Timing& baseline)
{
    std::printf("%7d  %-26s %9.2f %9.2f %9.1fx\n", widgetCount, label, timing.median, timing.min,
                timing.median / baseline.median);
}

// One widget of each kind of the mix over the whole drawing range and far beyond, with every
// count of grid lines and points as high as a file can hold.
void FillWithHugeWidgets(CTamloDoc& document)
{
    document.OnNewDocument();
    document.GetWindowWidget()->SetWidgetRect({0, 0, kWindowWidth, kWindowHeight});
    for (const WidgetKind& kind : kMix) {
        HmiWidgetPtr widget = CHmiWidget::GetWidgetClass(kind.key)->CreateObject();
        widget->SetWidgetRect({-kHugeCoordinate, -kHugeCoordinate, kHugeCoordinate, kHugeCoordinate});
        for (const char* count : {"hlines", "vlines", "xpoints"})
            widget->SetWidgetProperty(count, "ushort", kHugeCount, "");
        document.AddWidget(std::move(widget), true);
    }
}

// A full repaint of the canvas against plain rectangles drawn through the same painter, with
// the same rectangles as the widgets and the painter's default pen and brush.
struct RepaintTimings {
    Timing baseline;
    Timing repaint;
};

RepaintTimings MeasureRepaint(const CTamloDoc& document, CTamloView& view, QImage& image)
{
    std::vector<HmiRect> rects;
    for (const HmiWidgetPtr& widget : document.Widgets())
        if (widget.get() != document.GetWindowWidget())
            rects.push_back(widget->GetWidgetRect());
    const Timing baseline = Measure(kRepaintRepetitions, [&] {
        QPainter painter(&image);
        CHmiPainterDC dc(painter);
        for (const HmiRect& rect : rects)
            dc.Rectangle(rect);
    });
    return {baseline, Measure(kRepaintRepetitions, [&] { view.render(&image); })};
}

void MeasureHugeWidgets()
{
    CTamloDoc document;
    FillWithHugeWidgets(document);
    CCanvasTools tools;
    CTamloView view(document, tools);
    view.show();
    QCoreApplication::processEvents();
    QImage image(view.size(), kImageFormat);
    const auto [baseline, repaint] = MeasureRepaint(document, view, image);
    const int widgetCount = int(std::size(kMix));
    PrintRow(widgetCount, "huge: plain rectangles", baseline, baseline);
    PrintRow(widgetCount, "huge: full canvas repaint", repaint, baseline);
}

void MeasureCanvas(int widgetCount)
{
    CTamloDoc document;
    FillDocument(document, widgetCount);
    CCanvasTools tools;
    CTamloView view(document, tools);
    view.show();
    QCoreApplication::processEvents();
    QImage image(view.size(), kImageFormat);
    const auto [baseline, repaint] = MeasureRepaint(document, view, image);

    PaintCounter paints;
    view.installEventFilter(&paints);
    int drags = 0;
    const Timing band = Measure(kBandRepetitions, [&] {
        DragRubberBand(view);
        ++drags;
    });
    const std::size_t banded = view.Selection().Widgets().size();
    const int bandPaints = paints.count / drags;

    // The band left most widgets selected, and a press on a selected widget drags them all.
    view.Selection().Select(nullptr, false);
    QCoreApplication::processEvents();
    paints.count = 0;
    paints.pixels = 0;
    drags = 0;
    const CHmiWidget& dragged = WidgetToDrag(document);
    const Timing widgetDrag = Measure(kBandRepetitions, [&] { DragWidget(view, dragged, drags++ % 2 == 1); });
    view.removeEventFilter(&paints);

    PrintRow(widgetCount, "plain rectangles", baseline, baseline);
    PrintRow(widgetCount, "full canvas repaint", repaint, baseline);
    PrintRow(widgetCount, "rubber band with repaints", band, baseline);
    std::printf("%7s  (the band selects %zu of %d widgets; %d repaints per drag)\n", "", banded, widgetCount,
                bandPaints);
    PrintRow(widgetCount, "one widget dragged", widgetDrag, baseline);
    const qint64 canvasPixels = qint64(view.width()) * view.height();
    std::printf("%7s  (%d repaints per drag, together %.2f times the canvas's area)\n", "", paints.count / drags,
                double(paints.pixels) / drags / double(canvasPixels));
}

} // namespace

int main(int argc, char* argv[])
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    RegisterBuiltinWidgetClasses();
    std::printf("Canvas of a %d x %d window; median and min of %d runs (rubber band: %d runs of %d moves)\n",
                kWindowWidth, kWindowHeight, kRepaintRepetitions, kBandRepetitions, kBandMoves);
    std::printf("%7s  %-26s %9s %9s %10s\n", "widgets", "case", "median ms", "min ms", "/ plain");
    for (int count : {1000, 5000})
        MeasureCanvas(count);
    MeasureHugeWidgets();
    return 0;
}
