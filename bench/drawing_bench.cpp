// Measures drawing on generated windows that mix every widget kind: the `render` command (load,
// draw into the image, encode the PNG) against loading the same file, and a full paint through
// the painter target against painting plain rectangles at the same places, with the memory its
// kept drawings take. Prints figures with
// their targets (render within 2x the load, the paint within 4x the rectangles); nothing here
// is a pass or a fail. Times are processor time, the median of a few runs.

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
#include <memory>
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
    for (const int count : {1000, 10000, 100000})
        MeasureRender(folder, count);
    for (const int count : {5000, 10000})
        MeasurePaint(count);
    std::filesystem::remove_all(folder);
    return 0;
}
