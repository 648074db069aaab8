// Measures loading and saving of window files against libxml2's bare parse of the same file.
// Prints figures; the targets are load within 1.5 and save within 0.5 times the bare parse. A
// save includes the check that its text reads back as it stands, whose cost has a line of its own.

#include "dynamics/dynamictype.h"
#include "tests/support/childcost.h"
#include "tests/support/hostilefiles.h"
#include "catalogue/builtinwidgets.h"
#include "widgets/tamlodoc.h"

#include <libxml/parser.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <filesystem>
#include <functional>
#include <string>
#include <vector>

namespace {

constexpr int kRepetitions = 7;

// The median wall time of a few runs, in milliseconds.
double MedianMilliseconds(const std::function<void()>& work)
{
    std::vector<double> times;
    for (int i = 0; i < kRepetitions; ++i) {
        const auto start = std::chrono::steady_clock::now();
        work();
        times.push_back(std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count());
    }
    std::sort(times.begin(), times.end());
    return times[times.size() / 2];
}

// A document of widgetCount widgets cycling through every registered kind and one unknown
// kind, with bindings and event scripts on some of them.
void FillDocument(CTamloDoc& doc, int widgetCount)
{
    std::vector<std::string> keys;
    for (const CWidgetRunTimeClass& entry : CHmiWidget::WidgetClassList)
        keys.push_back(entry.m_strClassKey);
    keys.push_back("gauge");
    doc.OnNewDocument();
    for (int i = 0; i < widgetCount; ++i) {
        HmiWidgetPtr widget = CHmiWidget::GetWidgetClass(keys[i % keys.size()])->CreateObject();
        const int x = (i * 37) % 1000;
        const int y = (i * 53) % 700;
        widget->SetWidgetRect({x, y, x + 40, y + 20});
        if (i % 3 == 0) {
            widget->AddWidgetDynProp("visible", "$plc.running");
            if (CHmiWidgetProp* left = widget->AddWidgetDynProp("left", "(x)?0xff:0x0")) {
                auto type = CreateDynamicType("color_digit");
                type->expression = "$plc.x1 > 3 && \"ok\"";
                left->SetDynamicType(std::move(type));
            }
        }
        if (i % 5 == 0)
            widget->SetWidgetEventCode("click", "setvar(\"$plc.x1\", 1);\nshowwindow(\"main\");");
        doc.AddWidget(std::move(widget), true);
    }
}

void Measure(const std::filesystem::path& folder, int widgetCount)
{
    const std::string path = (folder / ("window" + std::to_string(widgetCount) + ".xml")).string();
    CTamloDoc source;
    FillDocument(source, widgetCount);
    if (!source.Save(path)) {
        std::fprintf(stderr, "cannot write %s\n", path.c_str());
        return;
    }
    const auto size = std::filesystem::file_size(path);

    // libxml2 on its own, with the options the window reader uses.
    const double parse = MedianMilliseconds([&] {
        xmlFreeDoc(xmlReadFile(path.c_str(), nullptr, XML_PARSE_NOBLANKS | XML_PARSE_NONET));
    });
    CTamloDoc loaded;
    const double load = MedianMilliseconds([&] { loaded.Load(path); });
    const double serialize = MedianMilliseconds([&] { loaded.Serialize(); });
    std::string checkedText;
    const double checked = MedianMilliseconds([&] { loaded.SerializeChecked(checkedText); });
    const std::string savedPath = path + ".saved";
    const double save = MedianMilliseconds([&] { loaded.Save(savedPath); });

    std::printf("%6d widgets  %8.1f KiB  parse %7.2f ms  load %7.2f ms (%.2fx)  "
                "save %7.2f ms (%.2fx; text alone %.2f ms, %.2fx)\n",
                widgetCount, double(size) / 1024, parse, load, load / parse, save, save / parse, serialize,
                serialize / parse);
    std::printf("%6d widgets  read-back check of the save %7.2f ms (%.2fx the parse, %.1f%% of the save)\n",
                widgetCount, checked - serialize, (checked - serialize) / parse, 100 * (checked - serialize) / save);
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

int main()
{
    RegisterBuiltinWidgetClasses();
    const std::filesystem::path folder = std::filesystem::temp_directory_path() / "kelvo-windowfile-bench";
    std::filesystem::create_directories(folder);
    std::printf("Window files, median of %d runs; ratios against the bare libxml2 parse of the same file\n",
                kRepetitions);
    // First, while the bench itself holds little memory.
    MeasureEntityExpansion(folder);
    for (int count : {1000, 10000})
        Measure(folder, count);
    std::filesystem::remove_all(folder);
    return 0;
}
