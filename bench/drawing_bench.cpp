// Measures drawing on generated windows that mix every widget kind: the `render` command (load,
// draw into the image, encode the PNG) against loading the same file, and a full paint through
// the painter target against painting plain rectangles at the same places, with the memory its
// kept drawings take. Prints figures with their targets (render within 2x the load, the paint
// within 4x the rectangles); nothing here is a pass or a fail. Times are processor time, the
// median of a few runs. With "--paint", only the paints.

#include "bench/benchtiming.h"
#include "catalogue/builtinwidgets.h"
#include "tests/support/mixedwindow.h"
#include "widgets/hmiimagedc.h"
#include "widgets/hmipainterdc.h"
#include "widgets/tamlodoc.h"
#include "widgets/windowpainter.h"

#include <QGuiApplication>
#include <QImage>
#include <QPainter>

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

namespace {

constexpr unsigned kSeed = 1;

// The render command's steps, each timed on its own: loading, drawing, encoding.
void MeasureRender(const std::filesystem::path& folder, int widgetCount)
{
    const std::string path = (folder / ("mixed" + std::to_string(widgetCount) + ".xml")).string();
    const int repetitions = widgetCount >= 100000 ? 3 : 5;
    CTamloDoc document;
    FillMixedWindow(document, widgetCount, kSeed);
    if (!document.Save(path)) {
        std::fprintf(stderr, "cannot write %s\n", path.c_str());
        return;
    }
    // A file over the size limit is refused: then the generated document is drawn.
    FileResult loaded;
    const double load = MedianMilliseconds(repetitions, [&] { loaded = document.Load(path); });
    if (!loaded)
        FillMixedWindow(document, widgetCount, kSeed);
    document.SetPictureFolder(KELVO_DEMO_DIR);
    const HmiRect window = document.GetWindowWidget()->GetWidgetRect().Normalized();
    CHmiImageDC image(window.Width(), window.Height());
    const double draw = MedianMilliseconds(repetitions, [&] { DrawWindow(document, image); });
    const double encode = MedianMilliseconds(repetitions, [&] { image.SavePng(path + ".png"); });
    const double pngKiB = double(std::filesystem::file_size(path + ".png")) / 1024;
    std::printf("%7d  %8.1f KiB  ", widgetCount, double(std::filesystem::file_size(path)) / 1024);
    if (!loaded) {
        std::printf("load refused (over the file size limit); draw %.1f ms, PNG %.1f ms (%.1f KiB)\n", draw, encode,
                    pngKiB);
        return;
    }
    const double render = load + draw + encode;
    std::printf("load %8.1f ms  render %8.1f ms = %5.2fx the load (target 2x; draw %.1f ms, PNG %.1f ms, %.1f KiB)\n",
                load, render, render / load, draw, encode, pngKiB);
}

// A full paint of the mixed window through the painter target, as the canvas paints, against
// rectangles at the same places: the repaints, which find the widgets' drawings kept, and the
// first paint, which keeps them.
void MeasurePaint(int widgetCount)
{
    CTamloDoc mixed;
    FillMixedWindow(mixed, widgetCount, kSeed);
    CTamloDoc rectangles;
    rectangles.OnNewDocument();
    rectangles.GetWindowWidget()->SetWidgetRect(mixed.GetWindowWidget()->GetWidgetRect());
    for (const HmiWidgetPtr& widget : mixed.Widgets()) {
        if (widget.get() == mixed.GetWindowWidget())
            continue;
        HmiWidgetPtr rectangle = CHmiWidget::GetWidgetClass("rectangle")->CreateObject();
        rectangle->SetWidgetName(widget->GetWidgetName());
        rectangle->SetWidgetRect(widget->GetWidgetRect());
        rectangles.AddWidget(std::move(rectangle), true);
    }
    QImage image(kMixedWindowWidth, kMixedWindowHeight, QImage::Format_ARGB32_Premultiplied);
    const auto paint = [&](const CTamloDoc& document, CHmiDrawingCache& drawings) {
        QPainter painter(&image);
        CHmiPainterDC dc(painter, &drawings);
        DrawWindow(document, dc);
    };
    CHmiDrawingCache plainDrawings;
    CHmiDrawingCache mixedDrawings;
    const double plain = MedianMilliseconds(7, [&] { paint(rectangles, plainDrawings); });
    const double first = MedianMilliseconds<std::unique_ptr<CHmiDrawingCache>>(
        3, [] { return std::make_unique<CHmiDrawingCache>(); },
        [&](std::unique_ptr<CHmiDrawingCache>& fresh) { paint(mixed, *fresh); });
    const double repaint = MedianMilliseconds(7, [&] { paint(mixed, mixedDrawings); });
    std::printf("%7d  repaint %8.1f ms, plain rectangles %6.1f ms = %5.2fx (target 4x); first paint %.1f ms = %.2fx, "
                "keeping %.1f MiB of drawings\n",
                widgetCount, repaint, plain, repaint / plain, first, first / plain,
                double(mixedDrawings.Bytes()) / (1 << 20));
}

// The repaint of the mixed window split by kind: each kind's widgets alone, where the mix places
// them, repainted with their drawings kept, against as many plain rectangles; the costliest first.
void MeasurePaintByKind(int widgetCount)
{
    CTamloDoc mixed;
    FillMixedWindow(mixed, widgetCount, kSeed);
    std::map<std::string, std::vector<CHmiWidget*>> kinds;
    for (const HmiWidgetPtr& widget : mixed.Widgets())
        if (widget.get() != mixed.GetWindowWidget())
            kinds[widget->GetWidgetClassName()].push_back(widget.get());
    QImage image(kMixedWindowWidth, kMixedWindowHeight, QImage::Format_ARGB32_Premultiplied);
    struct Cost {
        std::string kind;
        std::size_t count;
        double repaint;
        double plain;
    };
    std::vector<Cost> costs;
    for (const auto& [kind, widgets] : kinds) {
        CHmiDrawingCache drawings;
        const auto paint = [&](bool plain) {
            QPainter painter(&image);
            CHmiPainterDC dc(painter, &drawings);
            for (CHmiWidget* widget : widgets) {
                if (plain)
                    dc.Rectangle(widget->GetWidgetRect());
                else
                    widget->Draw(dc);
            }
        };
        paint(false); // the first paint notes the drawings to keep, the second keeps them
        costs.push_back({kind, widgets.size(), MedianMilliseconds(7, [&] { paint(false); }),
                         MedianMilliseconds(7, [&] { paint(true); })});
    }
    std::sort(costs.begin(), costs.end(), [](const Cost& a, const Cost& b) { return a.repaint > b.repaint; });
    std::printf("%7d  repaint by kind: ms for the kind's widgets alone (x their plain rectangles)\n", widgetCount);
    for (const Cost& cost : costs)
        std::printf("%7s  %-16s %5zu widgets %8.2f ms (%6.1fx)\n", "", cost.kind.c_str(), cost.count, cost.repaint,
                    cost.repaint / cost.plain);
}

} // namespace

int main(int argc, char* argv[])
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication application(argc, argv);
    RegisterBuiltinWidgetClasses();
    const std::filesystem::path folder = std::filesystem::temp_directory_path() / "kelvo-drawing-bench";
    std::filesystem::create_directories(folder);
    std::printf("Drawing mixed %d x %d windows; processor time, median of a few runs\n", kMixedWindowWidth,
                kMixedWindowHeight);
    // "--paint" measures only the paints.
    if (!QCoreApplication::arguments().contains(QStringLiteral("--paint")))
        for (const int count : {1000, 10000, 100000})
            MeasureRender(folder, count);
    for (const int count : {5000, 10000})
        MeasurePaint(count);
    MeasurePaintByKind(5000);
    std::filesystem::remove_all(folder);
    return 0;
}
