// Measures loading and saving of window files, and the command-line tool's list and roundtrip,
// against libxml2's bare parse of the same file (what `xmllint --noout` does), on generated
// windows of every widget kind. Targets: load within 1.3, the saved text within 0.3 times the
// parse, the peak memory of a load within 4 times the file size. A save includes the check that
// its text reads back as it stands, whose cost has a line of its own. Times are CPU times.

#include "bench/benchtiming.h"
#include "tests/support/demowindows.h"
#include "tests/support/childcost.h"
#include "tests/support/hostilefiles.h"
#include "catalogue/builtinwidgets.h"
#include "widgets/tamlodoc.h"

#include <QGuiApplication>

#include <libxml/parser.h>

#include <malloc.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <functional>
#include <string>
#include <vector>

namespace {

constexpr const char* kLoadPeakOption = "--load-peak";
// The small window loaded before the peak is measured: enough for every kind to appear.
constexpr int kWarmUpWidgets = 60;

std::unique_ptr<CTamloDoc> NewDocument()
{
    return std::make_unique<CTamloDoc>();
}

// The command-line tool's list, printed where nobody reads it.
void List(const CTamloDoc& document, std::FILE* out)
{
    for (const HmiWidgetPtr& widget : document.Widgets()) {
        const HmiRect& r = widget->GetWidgetRect();
        std::fprintf(out, "%s\t%s\t%d\t%d\t%d\t%d\n", widget->GetWidgetName().c_str(),
                     widget->GetWidgetClassName().c_str(), r.left, r.top, r.right, r.bottom);
    }
}

// Run as a program of its own (the bench with kLoadPeakOption): loads a small window of every kind
// first, so that what any first load costs once (code paged in, the parser's and the codec's
// tables) does not count, then loads the file and prints by how many KiB the resident memory grew
// at its peak, so that nothing the bench holds counts either.
int PrintLoadPeak(const char* warmUpPath, const char* path)
{
    const auto statusKiB = [](const char* field) {
        std::ifstream status("/proc/self/status");
        for (std::string line; std::getline(status, line);)
            if (line.rfind(field, 0) == 0)
                return std::atol(line.c_str() + std::strlen(field));
        return 0L;
    };
    RegisterBuiltinWidgetClasses();
    CTamloDoc().Load(warmUpPath);
    malloc_trim(0); // what the small window held goes back, so the load cannot reuse it
    std::ofstream("/proc/self/clear_refs") << "5"; // the peak starts from here
    const long before = statusKiB("VmRSS:");
    CTamloDoc document;
    const bool loaded = bool(document.Load(path));
    std::printf("%ld\n", statusKiB("VmHWM:") - before);
    return loaded ? 0 : 1;
}

long LoadPeakKiB(const std::string& warmUpPath, const std::string& path)
{
    const std::string self = std::filesystem::read_symlink("/proc/self/exe").string();
    const std::string command = "'" + self + "' " + kLoadPeakOption + " '" + warmUpPath + "' '" + path + "'";
    std::FILE* child = popen(command.c_str(), "r");
    long peak = -1;
    if (!child || std::fscanf(child, "%ld", &peak) != 1)
        peak = -1;
    return child && pclose(child) == 0 ? peak : -1;
}

void Measure(const CGeneratedWindows& windows, const std::filesystem::path& folder, int widgetCount, int runs)
{
    const std::string path = (folder / ("window" + std::to_string(widgetCount) + ".xml")).string();
    CTamloDoc generated;
    windows.Fill(generated, widgetCount);
    if (!generated.Save(path)) {
        std::fprintf(stderr, "cannot write %s\n", path.c_str());
        return;
    }
    const double size = double(std::filesystem::file_size(path));
    const double parse = MedianMilliseconds(runs, [&] {
        xmlFreeDoc(xmlReadFile(path.c_str(), nullptr, XML_PARSE_COMPACT | XML_PARSE_BIG_LINES));
    });
    std::printf("%6d widgets, %.1f MiB: parse %.1f ms\n", widgetCount, size / (1 << 20), parse);
    const auto ratio = [&](const char* what, double ms, const char* target) {
        std::printf("%6d widgets  %-28s %9.1f ms  %5.2fx the parse  (target %s)\n", widgetCount, what, ms,
                    ms / parse, target);
    };

    const double text = MedianMilliseconds(runs, [&] { generated.Serialize(); });
    ratio("saved text", text, "0.3x");
    std::string checkedText;
    const double checked = MedianMilliseconds(runs, [&] { generated.SerializeChecked(checkedText); });
    ratio("read-back check of the save", checked - text, "-");

    if (FileResult result = CTamloDoc().Load(path); !result) {
        std::printf("%6d widgets  cannot be loaded: %s\n", widgetCount, result.error.c_str());
        return;
    }
    ratio("load", MedianMilliseconds<std::unique_ptr<CTamloDoc>>(runs, NewDocument, [&](auto& doc) { doc->Load(path); }),
          "1.3x");
    const auto loadedDocument = [&] {
        auto doc = NewDocument();
        doc->Load(path);
        return doc;
    };
    ratio("saved text, first after load", MedianMilliseconds<std::unique_ptr<CTamloDoc>>(runs, loadedDocument, [&](auto& doc) {
        doc->Serialize();
    }), "-");
    std::FILE* nowhere = std::fopen("/dev/null", "w");
    ratio("list", MedianMilliseconds<std::unique_ptr<CTamloDoc>>(runs, NewDocument, [&](auto& doc) {
        doc->Load(path);
        List(*doc, nowhere);
    }), "-");
    std::fclose(nowhere);
    const std::string savedPath = path + ".saved";
    ratio("roundtrip", MedianMilliseconds<std::unique_ptr<CTamloDoc>>(runs, NewDocument, [&](auto& doc) {
        doc->Load(path);
        doc->Save(savedPath);
    }), "-");
    const std::string warmUpPath = (folder / "warm-up.xml").string();
    CTamloDoc warmUp;
    windows.Fill(warmUp, kWarmUpWidgets);
    const long peak = warmUp.Save(warmUpPath) ? LoadPeakKiB(warmUpPath, path) : -1;
    std::printf("%6d widgets  %-28s %9.1f MiB  %5.2fx the file   (target 4x)\n", widgetCount, "peak memory of a load",
                double(peak) / 1024, double(peak) * 1024 / size);
}

// A hostile file whose entities would expand into gigabytes, against an ordinary file of the same
// size, each read in a child process of its own so that its peak memory can be told apart.
void MeasureEntityExpansion(const std::filesystem::path& folder)
{
    const std::string hostile = EntityExpansionFile("hmiwidget", "widget");
    const std::string ordinary = "<hmiwidget><widget name=\"" + std::string(hostile.size(), 'x') + "\"/></hmiwidget>";
    const std::string path = (folder / "entities.xml").string();
    const auto readCost = [&](const std::string& text) {
        if (!WriteFileAtomically(path, text))
            return ChildCost{};
        return RunInChild([&] {
            CTamloDoc doc;
            return doc.Load(path) ? 0 : 1;
        }, 600);
    };
    const ChildCost baseline = readCost(ordinary);
    const ChildCost cost = readCost(hostile);
    std::printf("entity expansion, %.1f KiB: %s in %.1f ms CPU, peak %ld KiB; an ordinary file of that size: "
                "%.1f ms, peak %ld KiB\n",
                double(hostile.size()) / 1024, cost.exited && cost.status == 1 ? "refused" : "READ", cost.cpuSeconds * 1000,
                cost.peakKiB, baseline.cpuSeconds * 1000, baseline.peakKiB);
}

} // namespace

// windowfile-bench [WIDGET-COUNT...]
int main(int argc, char* argv[])
{
    if (argc == 4 && std::strcmp(argv[1], kLoadPeakOption) == 0)
        return PrintLoadPeak(argv[2], argv[3]);
    // Saving renders the bitmap texts, which needs fonts.
    setenv("QT_QPA_PLATFORM", "offscreen", 0);
    QGuiApplication application(argc, argv);
    RegisterBuiltinWidgetClasses();
    const CGeneratedWindows windows(KELVO_DEMO_DIR);
    if (!windows.IsValid()) {
        std::fprintf(stderr, "cannot read the demo windows in %s\n", KELVO_DEMO_DIR);
        return 1;
    }
    const std::filesystem::path folder = std::filesystem::temp_directory_path() / "kelvo-windowfile-bench";
    std::filesystem::create_directories(folder);
    std::printf("Window files: median CPU time of a few runs; ratios against libxml2's bare parse of the same file\n");
    MeasureEntityExpansion(folder);
    // The widget counts may be given as arguments, for profiling one of them.
    std::vector<int> counts;
    for (int i = 1; i < argc; ++i)
        counts.push_back(std::atoi(argv[i]));
    if (counts.empty())
        counts = {1000, 10000, 100000};
    for (const int count : counts)
        Measure(windows, folder, count, count >= 100000 ? 3 : count >= 10000 ? 5 : 7);
    std::filesystem::remove_all(folder);
    return 0;
}
