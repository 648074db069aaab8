// Hostile files are refused quickly: every reader of the window file and the project files,
// given a file whose entities would expand into gigabytes, gives its defined empty result in
// about the time and memory an ordinary file of that size takes.

#include "catalogue/builtinwidgets.h"
#include "project/namelists.h"
#include "project/projectpath.h"
#include "project/variabledatabase.h"
#include "project/windowlist.h"
#include "tests/support/childcost.h"
#include "tests/support/hostilefiles.h"
#include "tests/support/tempdir.h"
#include "widgets/tamlodoc.h"

#include <gtest/gtest.h>

#include <functional>

namespace {

// One reader of a project or window file: the file it reads, the root and element whose values
// it reads, and its read, which returns 0 when it gave its empty result.
struct Reader {
    const char* file;
    const char* root;
    const char* element;
    std::function<int(const std::string& path)> read;
};

const Reader kReaders[] = {
    {"window.xml", "hmiwidget", "widget", [](const std::string& path) {
         CTamloDoc doc;
         return doc.Load(path) || doc.Widgets().size() != 1 ? 1 : 0;
     }},
    {"hmiwindow.xml", "hmiwindow", "window", [](const std::string& path) {
         int entries = 0;
         ReadWindowList(path, [&](const HmiWindowEntry&) { ++entries; });
         return entries;
     }},
    {"rtdb.xml", "rtdbs", "rtdb", [](const std::string& path) {
         CHmiVariableDatabase database;
         database.ReadRealtimeDatabase(path);
         return int(database.AllReferenceTexts().size());
     }},
    {"hmidb.xml", "hmidb", "datagroup", [](const std::string& path) {
         CHmiVariableDatabase database;
         database.ReadHmiDatabase(path);
         return int(database.AllReferenceTexts().size());
     }},
    {"history.xml", "zqhistory", "historydb", [](const std::string&) {
         std::string names[kMaxHistoryDbNames];
         int count = 0;
         GetHmiHistoryDbname(names, count);
         return count;
     }},
    {"datalog.xml", "datalog", "log", [](const std::string&) {
         std::string names[kMaxDataLogNames];
         int count = 0;
         GetHmiLognameDesp(names, count);
         return count;
     }},
};

constexpr int kCpuLimitSeconds = 60; // a reader that expands the entities runs far longer

} // namespace

TEST(HostileFiles, EntityExpansionIsRefusedByEveryReaderWithinTheCostOfAnOrdinaryFile)
{
    RegisterBuiltinWidgetClasses();
    TempDir dir;
    SetProjectPath(dir.Path(""));
    for (const Reader& reader : kReaders) {
        const std::string hostile = EntityExpansionFile(reader.root, reader.element);
        // The baseline: the same reader on an ordinary file of the same size, measured here.
        const std::string ordinary = "<" + std::string(reader.root) + "><" + reader.element + " name=\"" +
                                     std::string(hostile.size(), 'x') + "\"/></" + reader.root + ">";
        const std::string path = dir.Path(reader.file);
        dir.Write(reader.file, ordinary);
        const ChildCost baseline = RunInChild([&] { return reader.read(path) >= 0 ? 0 : 1; }, kCpuLimitSeconds);
        dir.Write(reader.file, hostile);
        const ChildCost cost = RunInChild([&] { return reader.read(path); }, kCpuLimitSeconds);

        ASSERT_TRUE(baseline.exited) << reader.file;
        ASSERT_TRUE(cost.exited) << reader.file << " was stopped by its CPU limit";
        EXPECT_EQ(cost.status, 0) << reader.file << " gives its empty result";
        EXPECT_LT(cost.cpuSeconds, baseline.cpuSeconds + 1.0) << reader.file;
        EXPECT_LT(cost.peakKiB, baseline.peakKiB + long(8 * hostile.size() / 1024)) << reader.file;
    }
    SetProjectPath("");
    CHmiWidget::RemoveAllRunTimeClass();
}
