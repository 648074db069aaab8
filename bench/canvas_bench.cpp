// Measures the canvas on a crowded window: a full repaint, a rubber-band selection and a drag of
// one widget with the repaints that follow them, also with snapping to the grid and to widgets
// and with the snapping's search on its own, against plain rectangles drawn through the same
// painter; a band over every widget and a drag of them all, against one full repaint; opening a
// window file of 10,000 widgets in the editor to its first paint, against loading the file; the
// editor's start to its first paint, against a bare main window started the same way; and a full
// repaint of a window whose widgets are as large, and whose counts as high, as a window file can
// make them. Prints figures only; nothing here is a pass or a fail. With "--start", only the
// opening and the start-up.

#include "bench/benchtiming.h"
#include "editor/app/childframe.h"
#include "editor/app/editorprompts.h"
#include "editor/app/firstpaintexit.h"
#include "editor/app/mainframe.h"
#include "editor/app/tamloview.h"
#include "editor/model/editcommands.h"
#include "editor/model/editorsession.h"
#include "editor/propertypane/propertypane.h"
#include "editor/propertypane/propertypaneitem.h"
#include "editor/model/snapper.h"
#include "catalogue/builtinwidgets.h"
#include "widgets/hmipainterdc.h"
#include "widgets/tamlodoc.h"
#include "widgets/widgetfilereader.h"

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QImage>
#include <QMouseEvent>
#include <QPainter>
#include <QProcess>
#include <QTreeWidget>
#include <QSettings>
#include <QTemporaryDir>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstring>
#include <functional>
#include <random>
#include <string>
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

// One kind of the mix: its class key, its usual size on a panel, how often it occurs, and the
// codes of its gradient directions (none: no gradient).
struct WidgetKind {
    const char* key;
    int width;
    int height;
    int weight;
    int firstDirection = 0;
    int directionCount = 0;
};

// A panel mix: many simple shapes and texts, fewer controls, a few large curves and alarm lists.
constexpr WidgetKind kMix[] = {
    {"rectangle", 60, 40, 6},
    {"line", 80, 2, 5},
    {"ellipse", 40, 40, 3},
    {"text", 90, 20, 6},
    {"gradrectangle", 80, 50, 2, 32, 8},
    {"gradellipse", 50, 50, 1, 0, 3},
    {"gradtriangle", 50, 40, 1, 1, 4},
    {"button", 90, 30, 4},
    {"checkbox", 90, 20, 1},
    {"combobox", 100, 24, 1},
    {"numinput", 80, 24, 3},
    {"textinput", 100, 24, 2},
    {"timer", 30, 30, 1},
    {"curve", 240, 140, 1},
    {"hiscurve", 240, 140, 1},
    {"alarmwnd", 320, 160, 1},
    {"hislist", 320, 160, 1},
    {"bmptext", 100, 24, 2},
    {"picture", 100, 60, 2},
};

// The snapping of the drags that snap: what the user turns on, and the canvas's reach at 100 %.
constexpr LayoutAids kSnapping{.gridSize = 10, .snapToGrid = true, .snapToWidgets = true};
constexpr int kSnapReach = 5;

// The window of the editor's cases, as large as a window file of a crowded panel.
constexpr int kEditorWidgetCount = 10000;
// How many of its widgets are copied and pasted back at once.
constexpr std::size_t kPastedWidgetCount = 1000;
constexpr int kOpenRepetitions = 3;
constexpr int kStartRepetitions = 5;
// Makes the editor and the bare window end after their first paint.
constexpr const char* kExitAfterFirstPaint = "KELVO_EXIT_AFTER_FIRST_PAINT";

// A coordinate far outside any window, and a count as high as a file can hold.
constexpr int kHugeCoordinate = 1000000000;
constexpr const char* kHugeCount = "2147483647";

struct Timing {
    double median = 0;
    double min = 0;
};

// The median and the minimum of some times.
Timing Summarise(std::vector<double> times)
{
    std::sort(times.begin(), times.end());
    return {times[times.size() / 2], times.front()};
}

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
    return Summarise(std::move(times));
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
        if (kind.directionCount > 0) {
            const int direction = kind.firstDirection + i / int(std::size(kMix)) % kind.directionCount;
            widget->SetWidgetProperty("direction", "ulong", std::to_string(direction), "");
        }
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

// A drag of the selection tool between two points, letting the event loop repaint after every event.
void Drag(CTamloView& view, QPoint from, QPoint to, int moves)
{
    SendMouse(view, QEvent::MouseButtonPress, from, Qt::LeftButton, Qt::LeftButton);
    QCoreApplication::processEvents();
    for (int step = 1; step <= moves; ++step) {
        SendMouse(view, QEvent::MouseMove, from + (to - from) * step / moves, Qt::NoButton, Qt::LeftButton);
        QCoreApplication::processEvents();
    }
    SendMouse(view, QEvent::MouseButtonRelease, to, Qt::LeftButton, Qt::NoButton);
    QCoreApplication::processEvents();
}

// One drag of the selection tool from the empty margin up to near the window's top-left corner.
void DragRubberBand(CTamloView& view)
{
    Drag(view, QPoint(view.width() - kPressInset, view.height() - kPressInset),
         QPoint(kWindowWidth / kBandEndDivisor, kWindowHeight / kBandEndDivisor), kBandMoves);
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

void PrintRow(int widgetCount, const char* label, const Timing& timing, const Timing& baseline)
{
    std::printf("%7d  %-26s %9.2f %9.2f %9.1fx\n", widgetCount, label, timing.median, timing.min,
                timing.median / baseline.median);
}

// A widget of the class in the window's top-left quarter, brought to the top of the drawing
// order, so that a press on it takes it wherever it stands; null when there is none. The
// offscreen screen is smaller than the window, and only what lies on it is repainted.
const CHmiWidget* WidgetToDrag(CTamloDoc& document, std::string_view classKey)
{
    const HmiRect corner{0, 0, kWindowWidth / 4, kWindowHeight / 4};
    const auto found = std::find_if(document.Widgets().begin(), document.Widgets().end(),
                                    [&corner, classKey](const HmiWidgetPtr& widget) {
                                        return widget->GetWidgetClassName() == classKey &&
                                               widget->Intersects(corner);
                                    });
    if (found == document.Widgets().end())
        return nullptr;
    CHmiWidget* widget = found->get();
    document.MoveWidget(widget, document.Widgets().size());
    return widget;
}

// Drags of one widget of the class there and back, with the repaints they cause.
void MeasureWidgetDrags(CTamloDoc& document, CTamloView& view, std::string_view classKey, const char* label,
                        const Timing& baseline)
{
    const CHmiWidget* dragged = WidgetToDrag(document, classKey);
    if (!dragged)
        return;
    PaintCounter paints;
    view.installEventFilter(&paints);
    int drags = 0;
    const Timing drag = Measure(kBandRepetitions, [&] { DragWidget(view, *dragged, drags++ % 2 == 1); });
    view.removeEventFilter(&paints);
    PrintRow(int(document.Widgets().size()) - 1, label, drag, baseline);
    const qint64 canvasPixels = qint64(view.width()) * view.height();
    std::printf("%7s  (%d repaints per drag, together %.2f times the canvas's area; %.3f ms per mouse event)\n",
                "", paints.count / drags, double(paints.pixels) / drags / double(canvasPixels),
                drag.median / (kBandMoves + 2));
}

// The snapping's search alone for one widget's drag: its rectangle snapped where each mouse event
// of a drag takes it.
void MeasureSnapSearch(CTamloDoc& document, std::string_view classKey)
{
    const CHmiWidget* dragged = WidgetToDrag(document, classKey);
    if (!dragged)
        return;
    const CSnapper snapper(document, kSnapping, kSnapReach, {dragged});
    const HmiRect rect = dragged->GetWidgetRect();
    std::size_t guides = 0;
    const Timing search = Measure(kBandRepetitions, [&] {
        for (int step = 1; step <= kBandMoves; ++step) {
            const int distance = kWidgetDragDistance * step / kBandMoves;
            const HmiRect moved{rect.left + distance, rect.top + distance, rect.right + distance,
                                rect.bottom + distance};
            guides += snapper.SnapRect(moved).guides.size();
        }
    });
    std::printf("%7s  (snapping's search alone: %.3f ms per mouse event, min %.3f; %.1f guides on average)\n", "",
                search.median / kBandMoves, search.min / kBandMoves,
                double(guides) / ((kBandRepetitions + 1) * kBandMoves));
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
// the same rectangles as the widgets and the painter's default pen and brush. The two are timed
// in turns and in processor time, so that other work on the machine weighs on neither.
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
    const auto plain = [&] {
        QPainter painter(&image);
        CHmiPainterDC dc(painter);
        for (const HmiRect& rect : rects)
            dc.Rectangle(rect);
    };
    const auto repaint = [&] { view.render(&image); };
    const auto timeOnce = [](const auto& work) {
        const double start = CpuMilliseconds();
        work();
        return CpuMilliseconds() - start;
    };
    plain();
    repaint();
    std::vector<double> plainTimes;
    std::vector<double> repaintTimes;
    for (int i = 0; i < kRepaintRepetitions; ++i) {
        plainTimes.push_back(timeOnce(plain));
        repaintTimes.push_back(timeOnce(repaint));
    }
    return {Summarise(std::move(plainTimes)), Summarise(std::move(repaintTimes))};
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

    view.removeEventFilter(&paints);

    PrintRow(widgetCount, "plain rectangles", baseline, baseline);
    PrintRow(widgetCount, "full canvas repaint", repaint, baseline);
    PrintRow(widgetCount, "rubber band with repaints", band, baseline);
    std::printf("%7s  (the band selects %zu of %d widgets; %d repaints per drag)\n", "", banded, widgetCount,
                bandPaints);
    // The band left most widgets selected, and a press on a selected widget drags them all.
    view.Selection().Select(nullptr, false);
    QCoreApplication::processEvents();
    MeasureWidgetDrags(document, view, "rectangle", "one widget dragged", baseline);
    view.SetLayoutAids(kSnapping);
    MeasureWidgetDrags(document, view, "rectangle", "one widget dragged, snaps", baseline);
    MeasureSnapSearch(document, "rectangle");
    view.SetLayoutAids({});
    MeasureWidgetDrags(document, view, "curve", "one large curve dragged", baseline);
}


// Milliseconds one piece of work takes, once.
double TimeOnce(const std::function<void()>& work)
{
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count();
}

// A paste of many widgets into the crowded window, each of them renamed since their names are
// taken, against reading the pasted text alone. Each paste is taken back before the next.
void MeasurePaste(CTamloDoc& document)
{
    std::vector<CHmiWidget*> copied;
    for (const HmiWidgetPtr& widget : document.Widgets())
        if (widget.get() != document.GetWindowWidget() && copied.size() < kPastedWidgetCount)
            copied.push_back(widget.get());
    const std::string text = CopyWidgets(document, copied);
    const Timing read = Measure(kBandRepetitions, [&text] { ReadWindowText(text, [](HmiWidgetPtr) {}); });
    const Timing paste = Measure(kBandRepetitions, [&] {
        PasteWidgets(document, text);
        document.Undo();
    });
    PrintRow(int(copied.size()), "read of the pasted text", read, read);
    PrintRow(int(copied.size()), "paste with undo", paste, read);
}

// A band over the whole window, which selects every widget, and a drag of them all by one
// step, each against one full repaint of the canvas. Both start from the window widget alone
// selected, as after a click on the empty canvas.
void MeasureBulkEdits(int widgetCount)
{
    CTamloDoc document;
    FillDocument(document, widgetCount);
    CCanvasTools tools;
    CTamloView view(document, tools);
    view.show();
    QCoreApplication::processEvents();
    QImage image(view.size(), kImageFormat);
    const Timing repaint = Measure(kRepaintRepetitions, [&] { view.render(&image); });

    const QPoint margin(view.width() - kPressInset, view.height() - kPressInset);
    std::vector<double> bands;
    std::vector<double> drags;
    std::size_t banded = 0;
    for (int i = 0; i < kBandRepetitions; ++i) {
        view.Selection().Select(nullptr, false);
        QCoreApplication::processEvents();
        bands.push_back(TimeOnce([&] { Drag(view, margin, QPoint(0, 0), 1); }));
        banded = view.Selection().Widgets().size();
        // A press on the widget selected last drags the whole selection, back and forth in turns.
        const HmiRect& rect = view.Selection().Widgets().back()->GetWidgetRect();
        const QPoint from((rect.left + rect.right) / 2, (rect.top + rect.bottom) / 2);
        const QPoint step = i % 2 == 0 ? QPoint(1, 1) : QPoint(-1, -1);
        drags.push_back(TimeOnce([&] { Drag(view, from, from + step, 1); }));
    }
    // The canvas as the band and the drag leave it shows the handles of every widget. The canvas
    // keeps what it drew; a zoom's round trip drops all of it, so that each repaint draws the
    // document and every handle anew.
    std::vector<double> selectedRepaints;
    for (int i = 0; i < kRepaintRepetitions; ++i) {
        view.SetZoomPercent(CCanvasMapping::StepOut(100));
        view.SetZoomPercent(100);
        selectedRepaints.push_back(TimeOnce([&] { view.render(&image); }));
        QCoreApplication::processEvents();
    }
    const Timing selectedRepaint = Summarise(selectedRepaints);
    const Timing band = Summarise(bands);
    const Timing drag = Summarise(drags);
    PrintRow(widgetCount, "full canvas repaint", repaint, repaint);
    PrintRow(widgetCount, "band over all, repaints", band, repaint);
    std::printf("%7s  (the band selects %zu of %d widgets)\n", "", banded, widgetCount);
    PrintRow(widgetCount, "drag of all by one step", drag, repaint);
    PrintRow(widgetCount, "repaint, all selected", selectedRepaint, selectedRepaint);
    PrintRow(widgetCount, "band over all, repaints", band, selectedRepaint);
    PrintRow(widgetCount, "drag of all by one step", drag, selectedRepaint);
    MeasurePaste(document);
}

// A band over the whole window and a drag of all the widgets by one step, first without and
// then with a property pane that follows the selection as the main frame's does: until the
// canvas has handled them, and until the pane, which reads the widgets a part at a time, shows
// their rows. Then the pane filled for all the widgets alone, and one edit in the pane, which
// goes to every widget and which the pane then shows again. Each against the band without a pane.
void MeasurePaneOfAll(int widgetCount)
{
    CTamloDoc document;
    FillDocument(document, widgetCount);
    CCanvasTools tools;
    CTamloView view(document, tools);
    view.show();
    CPropertyPane pane;
    QCoreApplication::processEvents();
    const auto untilPaneShows = [&pane] {
        while (pane.IsReading())
            QCoreApplication::processEvents();
    };
    struct Rounds {
        std::vector<double> band, bandWithRows, drag, dragWithRows;
    };
    const QPoint margin(view.width() - kPressInset, view.height() - kPressInset);
    // Each round bands over all from the window widget alone selected, then drags all back or forth.
    const auto measureRounds = [&] {
        Rounds rounds;
        for (int i = 0; i < kBandRepetitions; ++i) {
            view.Selection().Select(nullptr, false);
            QCoreApplication::processEvents();
            rounds.band.push_back(TimeOnce([&] { Drag(view, margin, QPoint(0, 0), 1); }));
            rounds.bandWithRows.push_back(rounds.band.back() + TimeOnce(untilPaneShows));
            const HmiRect& rect = view.Selection().Widgets().back()->GetWidgetRect();
            const QPoint from((rect.left + rect.right) / 2, (rect.top + rect.bottom) / 2);
            const QPoint step = i % 2 == 0 ? QPoint(1, 1) : QPoint(-1, -1);
            rounds.drag.push_back(TimeOnce([&] { Drag(view, from, from + step, 1); }));
            rounds.dragWithRows.push_back(rounds.drag.back() + TimeOnce(untilPaneShows));
        }
        return rounds;
    };
    const Rounds bare = measureRounds();
    QObject::connect(&view, &CTamloView::selectionChanged, &pane,
                     [&] { pane.ShowWidgets(view.Selection().Widgets()); });
    const Rounds followed = measureRounds();

    const std::vector<CHmiWidget*> all = view.Selection().Widgets();
    const Timing filled = Measure(kBandRepetitions, [&] {
        pane.ShowWidgets(all);
        untilPaneShows();
    });
    int speed = 1;
    const Timing edit = Measure(kBandRepetitions, [&] {
        CPropertyPaneItem* row = pane.FindItem("Flash speed");
        row->SetEditText(std::to_string(++speed));
        emit pane.itemChanged(row);
        QCoreApplication::processEvents();
        untilPaneShows();
    });
    int rows = 0;
    for (int group = 0; group < pane.Tree()->topLevelItemCount(); ++group)
        rows += pane.Tree()->topLevelItem(group)->childCount();

    const Timing baseline = Summarise(bare.band);
    PrintRow(widgetCount, "band over all, no pane", baseline, baseline);
    PrintRow(widgetCount, "band, pane follows", Summarise(followed.band), baseline);
    PrintRow(widgetCount, "band, until the pane shows", Summarise(followed.bandWithRows), baseline);
    PrintRow(widgetCount, "drag of all, no pane", Summarise(bare.drag), baseline);
    PrintRow(widgetCount, "drag, pane follows", Summarise(followed.drag), baseline);
    PrintRow(widgetCount, "drag, until the pane shows", Summarise(followed.dragWithRows), baseline);
    PrintRow(widgetCount, "pane filled for all", filled, baseline);
    std::printf("%7s  (the pane shows %d rows the %zu widgets share)\n", "", rows, all.size());
    PrintRow(widgetCount, "pane edit given to all", edit, baseline);
}

// Opening a window file in the editor's main frame until its canvas has painted, against
// reading the same file into a document.
void MeasureOpening(int widgetCount)
{
    QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("crowded.xml"));
    {
        CTamloDoc document;
        FillDocument(document, widgetCount);
        if (!document.Save(path.toStdString())) {
            std::printf("%7d  cannot write %s\n", widgetCount, qPrintable(path));
            return;
        }
    }
    const Timing load = Measure(kOpenRepetitions, [&] {
        CTamloDoc document;
        document.Load(path.toStdString());
    });

    QSettings settings(folder.filePath(QStringLiteral("settings.ini")), QSettings::IniFormat);
    CEditorPrompts prompts;
    CEditorSession session;
    CMainFrame frame(prompts, settings, session);
    frame.show();
    QCoreApplication::processEvents();
    const Timing open = Measure(kOpenRepetitions, [&] {
        PaintCounter paints;
        CChildFrame* child = frame.OpenDocument(path);
        child->View().installEventFilter(&paints);
        while (paints.count == 0)
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        child->View().removeEventFilter(&paints);
        delete child;
    });
    PrintRow(widgetCount, "load of the window file", load, load);
    PrintRow(widgetCount, "opened in the editor", open, load);
}

// Wall time of a program from its start to its first paint, which it tells on its standard
// output (firstpaintexit.h), and until it has ended after that paint.
struct StartTimings {
    Timing firstPaint;
    Timing end;
};

StartTimings MeasureStart(const QString& program, const QStringList& arguments = {})
{
    std::vector<double> paints;
    std::vector<double> ends;
    for (int run = 0; run <= kStartRepetitions; ++run) {
        QProcess process;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QString::fromLatin1(kExitAfterFirstPaint), QStringLiteral("1"));
        process.setProcessEnvironment(environment);
        const auto start = std::chrono::steady_clock::now();
        process.start(program, arguments);
        process.waitForFinished(-1);
        const auto end = std::chrono::steady_clock::now();
        const QByteArray output = process.readAllStandardOutput();
        const qsizetype line = output.indexOf(CFirstPaintExit::kFirstPaintLine);
        if (line < 0) {
            std::printf("%s did not tell its first paint\n", qPrintable(program));
            return {};
        }
        const std::chrono::nanoseconds painted(
            output.mid(line + qsizetype(std::strlen(CFirstPaintExit::kFirstPaintLine))).trimmed().split('\n').front().toLongLong());
        if (run == 0)
            continue; // the warm-up
        paints.push_back(std::chrono::duration<double, std::milli>(painted - start.time_since_epoch()).count());
        ends.push_back(std::chrono::duration<double, std::milli>(end - start).count());
    }
    return {Summarise(paints), Summarise(ends)};
}

// The editor's start with the demo window to its first paint, against a bare main window and
// against one with an empty menu bar, tool bar and panes. All run in a home and a current folder
// of their own, so that no settings and no library count.
void MeasureStartUp()
{
    QTemporaryDir home;
    const QString programs = QCoreApplication::applicationDirPath() + QLatin1Char('/');
    qputenv("HOME", home.path().toLocal8Bit());
    qputenv("XDG_CONFIG_HOME", home.path().toLocal8Bit());
    qputenv("XDG_STATE_HOME", home.path().toLocal8Bit());
    qputenv("XDG_RUNTIME_DIR", home.path().toLocal8Bit());
    QDir::setCurrent(home.path());
    const StartTimings bare = MeasureStart(programs + QStringLiteral("bare-window"));
    const StartTimings furnished = MeasureStart(programs + QStringLiteral("bare-window"), {QStringLiteral("--furnished")});
    const StartTimings editor = MeasureStart(programs + QStringLiteral("kelvo-hmi-editor"));
    PrintRow(0, "start: bare, first paint", bare.firstPaint, bare.firstPaint);
    PrintRow(0, "start: frame, first paint", furnished.firstPaint, bare.firstPaint);
    PrintRow(0, "start: editor, first paint", editor.firstPaint, bare.firstPaint);
    PrintRow(0, "  editor / frame", editor.firstPaint, furnished.firstPaint);
    PrintRow(0, "start: bare, to its end", bare.end, bare.end);
    PrintRow(0, "start: editor, to its end", editor.end, bare.end);
}

} // namespace

int main(int argc, char* argv[])
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    RegisterBuiltinWidgetClasses();
    // "--start" measures only the opening of the crowded window and the editor's start.
    if (QCoreApplication::arguments().contains(QStringLiteral("--start"))) {
        std::printf("%7s  %-26s %9s %9s %10s\n", "widgets", "case", "median ms", "min ms", "/ first");
        MeasureOpening(kEditorWidgetCount);
        MeasureStartUp();
        return 0;
    }
    // "--bulk" measures only the band over all widgets and the drag of all of them.
    if (QCoreApplication::arguments().contains(QStringLiteral("--bulk"))) {
        std::printf("%7s  %-26s %9s %9s %10s\n", "widgets", "case", "median ms", "min ms", "/ first");
        MeasureBulkEdits(kEditorWidgetCount);
        return 0;
    }
    std::printf("Canvas of a %d x %d window; median and min of %d runs (rubber band: %d runs of %d moves); the\n"
                "repaints against plain rectangles in processor time, timed in turns, the rest in wall time\n",
                kWindowWidth, kWindowHeight, kRepaintRepetitions, kBandRepetitions, kBandMoves);
    std::printf("%7s  %-26s %9s %9s %10s\n", "widgets", "case", "median ms", "min ms", "/ plain");
    for (int count : {1000, 5000, kEditorWidgetCount})
        MeasureCanvas(count);
    MeasureHugeWidgets();
    std::printf("\nEditor cases (ratio to the first row of each group)\n");
    MeasureBulkEdits(kEditorWidgetCount);
    MeasurePaneOfAll(kEditorWidgetCount);
    MeasureOpening(kEditorWidgetCount);
    MeasureStartUp();
    return 0;
}
