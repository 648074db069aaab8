// Measures the unlimited undo history on a generated window of 10,000 widgets of every kind: the
// memory of the widget states it keeps, the time to start it, and the time per entry of a drag of
// one widget, of a drag of all of them, of a property edit of one and of all, and of undoing and
// redoing them. Times are processor time, the median of a few runs; memory is the growth of the
// process's resident set.

#include "bench/benchtiming.h"
#include "catalogue/builtinwidgets.h"
#include "editor/model/canvasselection.h"
#include "editor/model/undohistory.h"
#include "tests/support/demowindows.h"
#include "tests/support/fakeview.h"
#include "widgets/tamlodoc.h"

#include <QGuiApplication>

#include <cstdio>
#include <fstream>
#include <memory>
#include <unistd.h>

namespace {

constexpr int kWidgets = 10000;

double ResidentMegabytes()
{
    std::ifstream statm("/proc/self/statm");
    long pages = 0;
    long resident = 0;
    statm >> pages >> resident;
    return double(resident) * double(sysconf(_SC_PAGESIZE)) / (1024.0 * 1024.0);
}

// What the canvas does at the end of a drag: one undo step that moves every widget given.
void Drag(CTamloDoc& document, const std::vector<CHmiWidget*>& widgets, int dx)
{
    CUndoStepGuard step(document);
    for (CHmiWidget* widget : widgets) {
        step.Record(UndoOperation::Changed, widget);
        const HmiRect& r = widget->GetWidgetRect();
        widget->MoveTo({r.left + dx, r.top, r.right + dx, r.bottom}, nullptr);
    }
}

// What the property pane does for an edit of several widgets: one change of their properties.
void Hide(CTamloDoc& document, const std::vector<CHmiWidget*>& widgets, bool hidden)
{
    CTamloDoc::CChangeBatch batch(document);
    for (CHmiWidget* widget : widgets) {
        widget->m_bVisible = hidden ? 0 : 1;
        document.WidgetChanged(*widget, DocChange::Properties);
    }
}

} // namespace

int main(int argc, char* argv[])
{
    QGuiApplication application(argc, argv);
    RegisterBuiltinWidgetClasses();
    const CGeneratedWindows windows(KELVO_DEMO_DIR);
    if (!windows.IsValid())
        return std::fprintf(stderr, "history-bench: cannot read the demo windows\n"), 1;
    CTamloDoc document;
    FakeView view;
    document.AddView(&view);
    windows.Fill(document, kWidgets);
    CCanvasSelection selection(document, view);
    std::vector<CHmiWidget*> all;
    for (const HmiWidgetPtr& widget : document.Widgets())
        all.push_back(widget.get());
    const std::vector<CHmiWidget*> one{all[kWidgets / 2]};
    const std::size_t fileSize = document.Serialize().size();

    const double before = ResidentMegabytes();
    double start = CpuMilliseconds();
    auto history = std::make_unique<CUndoHistory>(document, selection);
    const double startMs = CpuMilliseconds() - start;
    const double kept = ResidentMegabytes() - before;
    QUndoStack& stack = history->Stack();

    int dx = 1;
    const double dragOne = MedianMilliseconds(21, [&] { Drag(document, one, dx = -dx); });
    double grown = ResidentMegabytes();
    const double dragAll = MedianMilliseconds(5, [&] { Drag(document, all, dx = -dx); });
    const double perDragAll = (ResidentMegabytes() - grown) / 5;
    const double undoDragAll = MedianMilliseconds(3, [&] { stack.undo(); stack.redo(); }) / 2;
    bool hidden = false;
    const double editOne = MedianMilliseconds(21, [&] { Hide(document, one, hidden = !hidden); });
    grown = ResidentMegabytes();
    const double editAll = MedianMilliseconds(3, [&] { Hide(document, all, hidden = !hidden); });
    const double perEditAll = (ResidentMegabytes() - grown) / 3;
    start = CpuMilliseconds();
    stack.undo();
    const double undoEditAll = CpuMilliseconds() - start;
    start = CpuMilliseconds();
    stack.redo();
    const double redoEditAll = CpuMilliseconds() - start;

    std::printf("%d widgets, a window file of %.1f MB; %d entries made\n", kWidgets, double(fileSize) / 1e6,
                stack.count());
    std::printf("history started (every widget's state kept)   %8.1f ms, %6.1f MB resident\n", startMs, kept);
    std::printf("entry of a drag of one widget                 %8.3f ms\n", dragOne);
    std::printf("entry of a drag of all widgets                %8.1f ms, %6.2f MB each\n", dragAll, perDragAll);
    std::printf("undo or redo of a drag of all widgets         %8.1f ms\n", undoDragAll);
    std::printf("entry of a property edit of one widget        %8.3f ms\n", editOne);
    std::printf("entry of a property edit of all widgets       %8.1f ms, %6.1f MB each\n", editAll, perEditAll);
    std::printf("undo, redo of a property edit of all widgets  %8.1f ms, %.1f ms (new objects read back)\n",
                undoEditAll, redoEditAll);
    return 0;
}
