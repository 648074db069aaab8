// The command-line tool as scripts use it: its output, its files and its exit status.

#include "catalogue/curvesettings.h"
#include "tests/support/commalocale.h"
#include "tests/support/fulldiskscope.h"
#include "tests/support/mixedwindow.h"
#include "tests/support/registryscope.h"
#include "tests/support/tempdir.h"
#include "widgets/hmiimagedc.h"
#include "widgets/tamlodoc.h"
#include "widgets/windowpainter.h"

#include <QCryptographicHash>
#include <QImage>
#include <QRgb>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <random>
#include <sstream>
#include <sys/wait.h>

namespace {

struct ToolRun {
    int status = -1; // -1 when the tool did not exit by itself
    std::string output;
    std::string errors;
};

// Runs the tool with the arguments (already quoted for the shell), capturing stdout and
// stderr, after the shell text in prefix (ulimit settings or environment assignments).
ToolRun RunTool(const std::string& arguments, const std::string& prefix = "")
{
    ToolRun run;
    const TempDir dir;
    const std::string command = prefix + std::string(KELVO_HMI_TOOL) + " " + arguments + " 2>'" +
                                dir.Path("errors") + "'";
    FILE* pipe = popen(command.c_str(), "r");
    if (!pipe)
        return run;
    char buffer[4096];
    for (std::size_t got; (got = std::fread(buffer, 1, sizeof buffer, pipe)) > 0;)
        run.output.append(buffer, got);
    const int status = pclose(pipe);
    run.status = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    run.errors = dir.Read("errors");
    return run;
}

// Half a minute of processor time and a gigabyte of address space are far more than any of them
// needs; address-sanitised programs reserve terabytes up front, so there only the time counts.
#if defined(__SANITIZE_ADDRESS__)
constexpr bool kSanitized = true;
const char* const kRenderLimits = "ulimit -t 30; ";
#else
constexpr bool kSanitized = false;
const char* const kRenderLimits = "ulimit -t 30; ulimit -v 1048576; ";
#endif

// A red window of the given size with a timer on it.
std::string WindowFile(int right = 40, int bottom = 30)
{
    return "<?xml version=\"1.0\" encoding=\"GB2312\"?>\n<hmiwidget>\n"
           "<widget name=\"window\" class=\"window\"><properties>"
           "<property name=\"right\" type=\"short\" value=\"" + std::to_string(right) + "\"/>"
           "<property name=\"bottom\" type=\"short\" value=\"" + std::to_string(bottom) + "\"/>"
           "<property name=\"bkcolor\" type=\"ulong\" value=\"255\"/>"
           "</properties></widget>\n"
           "<widget name=\"tick\" class=\"timer\"><properties>"
           "<property name=\"left\" type=\"short\" value=\"5\"/>"
           "<property name=\"right\" type=\"short\" value=\"9\"/>"
           "</properties></widget>\n</hmiwidget>\n";
}

} // namespace

// What a round trip writes is checked against the recorded bytes below.
TEST(CommandLine, ListsWidgetsAndVariables)
{
    TempDir dir;
    const ToolRun list = RunTool("list '" + dir.Write("w.xml", WindowFile()) + "'");
    EXPECT_EQ(list.status, 0);
    EXPECT_EQ(list.output, "tick\ttimer\t5\t0\t9\t0\nwindow\twindow\t0\t0\t40\t30\n");

    const ToolRun vars = RunTool(std::string("vars '") + KELVO_DEMO_DIR + "'");
    EXPECT_EQ(vars.status, 0);
    for (const char* reference : {"$plc.temperature\n", "$sim.tick\n", "$pump1\n", "$current_window\n"})
        EXPECT_NE(vars.output.find(reference), std::string::npos) << reference;
}

// With --modules the tool loads widget libraries as the editor loads its own: a library's class
// is listed as itself and drawn by the library's code, and a file that is no library is named on
// stderr while stdout stays as it is.
TEST(CommandLine, LoadsWidgetLibrariesFromAModulesFolder)
{
    TempDir dir;
    const std::string modules = dir.Path("modules");
    std::filesystem::create_directory(modules);
    std::filesystem::create_symlink(KELVO_DIAL_LIBRARY, modules + "/dialwidgets.so");
    dir.Write("modules/notalibrary.so", "A text file named like a library.\n");
    std::string window = WindowFile();
    window.insert(window.find("<widget name=\"tick\""),
                  "<widget name=\"gauge\" class=\"dial\"><properties>"
                  "<property name=\"left\" type=\"short\" value=\"10\"/>"
                  "<property name=\"top\" type=\"short\" value=\"5\"/>"
                  "<property name=\"right\" type=\"short\" value=\"30\"/>"
                  "<property name=\"bottom\" type=\"short\" value=\"25\"/>"
                  "<property name=\"face\" type=\"ulong\" value=\"65280\"/>"
                  "</properties></widget>\n");
    const std::string in = dir.Write("w.xml", window);
    const std::string withModules = "--modules '" + modules + "' ";

    const ToolRun list = RunTool(withModules + "list '" + in + "'");
    EXPECT_EQ(list.status, 0);
    EXPECT_EQ(list.output, "tick\ttimer\t5\t0\t9\t0\ngauge\tdial\t10\t5\t30\t25\nwindow\twindow\t0\t0\t40\t30\n");
    EXPECT_EQ(list.errors, "kelvo-hmi: note: widget library notalibrary.so: cannot be loaded: file too short\n");

    // Inside the dial, off its needle: the face colour the file gives; without the library the
    // widget is a custom one, which paints nothing there.
    const auto pixelInsideDial = [&](const std::string& options) {
        EXPECT_EQ(RunTool(options + "render '" + in + "' '" + dir.Path("w.png") + "'").status, 0);
        return QImage(QString::fromStdString(dir.Path("w.png"))).pixel(14, 17);
    };
    EXPECT_EQ(pixelInsideDial(withModules), qRgb(0, 255, 0));
    EXPECT_EQ(pixelInsideDial(""), qRgb(255, 0, 0));
    EXPECT_EQ(RunTool("--modules").status, 2);
}

// Window files are a contract with the panel: every example window and every fuzz seed saves to
// the bytes recorded in roundtrip.sha256, one "SHA-256  path" line each ("refused" instead of the
// digest where the tool refuses the file). After a deliberate change to the saved bytes, record
// the digests again from the tool's output.
TEST(CommandLine, RoundTripsEveryExampleAndSeedToTheRecordedBytes)
{
    std::ifstream manifest(KELVO_ROUNDTRIP_MANIFEST);
    int entries = 0;
    for (std::string digest, path; manifest >> digest >> path; ++entries) {
        SCOPED_TRACE(path);
        TempDir dir;
        const ToolRun run = RunTool("roundtrip '" + std::string(KELVO_SOURCE_DIR) + "/" + path + "' '" +
                                    dir.Path("out.xml") + "'");
        if (digest == "refused") {
            EXPECT_EQ(run.status, 1);
            continue;
        }
        ASSERT_EQ(run.status, 0) << run.errors;
        const std::string bytes = dir.Read("out.xml");
        EXPECT_EQ(QCryptographicHash::hash(QByteArrayView(bytes.data(), qsizetype(bytes.size())),
                                           QCryptographicHash::Sha256).toHex().toStdString(),
                  digest);
    }
    EXPECT_GE(entries, 30);
}

// Drawing is as much a contract as the bytes: generated windows of every widget kind, saved and
// loaded again, draw as `render` draws them to the pixels recorded in render.sha256, one
// "SHA-256  mixed-COUNT-seed-SEED" line each, the digest taken over the image's 32-bit pixels row
// by row. They are drawn here rather than by the tool so that the curves' random preview and time
// labels can be held still. After a deliberate change to what is drawn, record the digests again
// from this test's output.
TEST(CommandLine, RenderDrawsGeneratedWindowsToTheRecordedPixels)
{
    const CRegistryScope registry;
    const auto savedLabelTime = std::exchange(CurveSettings::LabelTime(), [] {
        std::tm noon{};
        noon.tm_hour = 12;
        return noon;
    });
    const auto savedSample = CurveSettings::RandomSample();
    std::ifstream manifest(KELVO_RENDER_MANIFEST);
    int entries = 0;
    for (std::string digest, name; manifest >> digest >> name; ++entries) {
        SCOPED_TRACE(name);
        int count = 0;
        unsigned seed = 0;
        ASSERT_EQ(std::sscanf(name.c_str(), "mixed-%d-seed-%u", &count, &seed), 2);
        if (kSanitized && count > 1000)
            continue; // seconds of work there; the plain build checks it
        TempDir dir;
        CTamloDoc generated;
        FillMixedWindow(generated, count, seed);
        ASSERT_TRUE(generated.Save(dir.Path("in.xml")));
        CTamloDoc loaded;
        ASSERT_TRUE(loaded.Load(dir.Path("in.xml")));
        loaded.SetPictureFolder(KELVO_DEMO_DIR);
        CurveSettings::RandomSample() = [engine = std::minstd_rand()]() mutable { return int(engine() % 32768); };
        CHmiImageDC image(kMixedWindowWidth, kMixedWindowHeight);
        DrawWindow(loaded, image);
        std::vector<std::uint32_t> pixels;
        for (int y = 0; y < image.Height(); ++y)
            for (int x = 0; x < image.Width(); ++x)
                pixels.push_back(image.GetPixel(x, y));
        const QByteArrayView bytes(reinterpret_cast<const char*>(pixels.data()), qsizetype(pixels.size() * 4));
        EXPECT_EQ(QCryptographicHash::hash(bytes, QCryptographicHash::Sha256).toHex().toStdString(), digest);
    }
    CurveSettings::LabelTime() = savedLabelTime;
    CurveSettings::RandomSample() = savedSample;
    EXPECT_GE(entries, 3);
}

TEST(CommandLine, ReportsBadInputWithStatusOneAndBadUsageWithTwo)
{
    TempDir dir;
    EXPECT_EQ(RunTool("list '" + dir.Path("missing.xml") + "'").status, 1);
    EXPECT_EQ(RunTool("render '" + dir.Path("missing.xml") + "' '" + dir.Path("x.png") + "'").status, 1);
    EXPECT_EQ(RunTool("render '" + dir.Write("w.xml", WindowFile()) + "' '" + dir.Path("none/x.png") + "'").status, 1);
    EXPECT_EQ(RunTool("list").status, 2);
    EXPECT_EQ(RunTool("vars /nonexistent/project").status, 1);
    EXPECT_EQ(RunTool("render a b --folder c").status, 2);
    EXPECT_EQ(RunTool("frobnicate").status, 2);
    EXPECT_EQ(RunTool("--version").status, 0);

    // A byte the declared code page cannot convert: the tool alone reports it, in one line.
    const std::string badByte = dir.Write("bad.xml", "<?xml version=\"1.0\" encoding=\"GB2312\"?>\n"
                                                     "<hmiwidget><widget name=\"\xFF\xFE\"/></hmiwidget>");
    const ToolRun list = RunTool("list '" + badByte + "'");
    EXPECT_EQ(list.status, 1);
    EXPECT_EQ(list.errors, "kelvo-hmi: Cannot open " + badByte +
                               ": The file is not well-formed XML (input conversion failed due to input error, "
                               "bytes 0xFF 0xFE 0x22 0x2F).\n");
    std::filesystem::copy_file(badByte, dir.Path("rtdb.xml"));
    EXPECT_EQ(RunTool("vars '" + dir.Path("") + "'").errors, "");
}

// The defect project holds one fault of each kind: thirteen findings, ten of them errors.
TEST(CommandLine, ChecksAProjectForPeopleScriptsAndCodeScanning)
{
    const std::string defects = "check '" + std::string(KELVO_DEFECT_PROJECT_DIR) + "'";
    const ToolRun text = RunTool(defects);
    EXPECT_EQ(text.status, 1);
    EXPECT_EQ(std::count(text.output.begin(), text.output.end(), '\n'), 13);
    EXPECT_NE(text.output.find("main.xml:speed:varname: error [unknown-variable]: \"$plc.speed\" is not a variable "
                               "of the project\n"), std::string::npos) << text.output;
    EXPECT_EQ(RunTool("check '" + std::string(KELVO_DEMO_DIR) + "'").status, 0);

    const QJsonArray findings = QJsonDocument::fromJson(QByteArray::fromStdString(
        RunTool(defects + " --format json").output))["findings"].toArray();
    ASSERT_EQ(findings.size(), 13);
    const auto speed = std::find_if(findings.begin(), findings.end(), [](const QJsonValue& f) { return f["widget"] == "speed"; });
    ASSERT_NE(speed, findings.end());
    EXPECT_EQ(speed->toObject()["place"].toObject(), (QJsonObject{{"kind", "property"}, {"name", "varname"}}));

    const QJsonObject sarif = QJsonDocument::fromJson(QByteArray::fromStdString(
        RunTool(defects + " --format sarif").output)).object();
    EXPECT_EQ(sarif["version"], "2.1.0");
    const QJsonObject run = sarif["runs"][0].toObject();
    const QJsonArray rules = run["tool"]["driver"]["rules"].toArray();
    EXPECT_EQ(rules.size(), 13);
    EXPECT_TRUE(run["originalUriBaseIds"]["PROJECTROOT"]["uri"].toString().endsWith("/tests/defect-project/"));
    ASSERT_EQ(run["results"].toArray().size(), 13);
    for (const QJsonValue result : run["results"].toArray()) {
        EXPECT_EQ(rules[result["ruleIndex"].toInt()]["id"], result["ruleId"]);
        EXPECT_TRUE(result["level"] == "error" || result["level"] == "warning");
        EXPECT_FALSE(result["message"]["text"].toString().isEmpty());
        EXPECT_EQ(result["locations"][0]["physicalLocation"]["artifactLocation"]["uriBaseId"], "PROJECTROOT");
    }

    // Warnings alone fail only a strict check; the options may follow the project.
    TempDir dir;
    dir.Write("hmiwindow.xml", "<hmiwindow/>");
    dir.Write("w.xml", WindowFile());
    EXPECT_EQ(RunTool("check '" + dir.Path("") + "'").status, 0);
    EXPECT_EQ(RunTool("check '" + dir.Path("") + "' --strict").status, 1);
    EXPECT_EQ(RunTool("check '" + dir.Path("") + "' --format xml").status, 2);
    EXPECT_EQ(RunTool("check '" + dir.Path("none") + "'").status, 2);
    std::filesystem::create_directory(dir.Path("modules"));
    std::filesystem::create_symlink(KELVO_DIAL_LIBRARY, dir.Path("modules/dialwidgets.so"));
    const ToolRun withDial = RunTool(defects + " --modules '" + dir.Path("modules") + "'");
    EXPECT_EQ(withDial.output.find("unknown-class"), std::string::npos);
    EXPECT_EQ(std::count(withDial.output.begin(), withDial.output.end(), '\n'), 12);
}

TEST(CommandLine, RenamesAVariableOrShowsWhatARenameWouldChange)
{
    TempDir dir;
    std::filesystem::copy(KELVO_DEMO_DIR, dir.Path("demo"));
    const std::string demo = "'" + dir.Path("demo") + "' ";
    const std::string pumps = dir.Read("demo/pumps.xml");
    const ToolRun dryRun = RunTool("rename-var " + demo + "'$plc.pump1_run' '$plc.pump1_on' --dry-run");
    EXPECT_EQ(dryRun.status, 0);
    EXPECT_EQ(dryRun.output, "pumps.xml:run1:variable: 1 reference\n  - $plc.pump1_run\n  + $plc.pump1_on\n"
                             "would write: pumps.xml\n");
    EXPECT_EQ(dir.Read("demo/pumps.xml"), pumps);

    EXPECT_EQ(RunTool("rename-var " + demo + "'$plc.pump1_run' '$plc.pump1_on' --declarations").status, 0);
    EXPECT_EQ(RunTool("check " + demo).status, 0) << "the windows and the declaration were renamed together";
    EXPECT_EQ(RunTool("rename-var " + demo + "plc.x '$y'").status, 2);
}

// Each window as render draws it, named after the window; a window that cannot be drawn fails
// the run, and the others are drawn all the same.
TEST(CommandLine, RendersEveryWindowOfAProjectInParallel)
{
    TempDir dir;
    EXPECT_EQ(RunTool("render-all '" + std::string(KELVO_DEMO_DIR) + "' '" + dir.Path("demo") + "'").status, 0);
    EXPECT_EQ(RunTool("render '" + std::string(KELVO_DEMO_DIR) + "/pumps.xml' '" + dir.Path("pumps.png") + "'").status, 0);
    EXPECT_EQ(dir.Read("demo/pumps.png"), dir.Read("pumps.png"));
    EXPECT_EQ(dir.Entries(), (std::vector<std::string>{"demo", "pumps.png"}));
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(dir.Path("demo")), {}), 3);

    const ToolRun defects = RunTool("render-all '" + std::string(KELVO_DEFECT_PROJECT_DIR) + "' '" + dir.Path("d") + "'");
    EXPECT_EQ(defects.status, 1);
    EXPECT_TRUE(std::filesystem::exists(dir.Path("d/main.png")));
    EXPECT_NE(defects.errors.find("window gone: its file \"gone.xml\" does not exist"), std::string::npos);
    EXPECT_NE(defects.errors.find("broken.xml: The file is not well-formed XML"), std::string::npos) << defects.errors;
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(dir.Path("d")), {}), 1);
}

TEST(CommandLine, RoundTripsTheSameBytesUnderACommaLocale)
{
    std::string why;
    ASSERT_TRUE(CommaLocale::Prepare(why)) << why;
    TempDir dir;
    for (const std::string window : {"main.xml", "pumps.xml", "trends.xml"}) {
        const std::string roundtrip = "roundtrip '" + std::string(KELVO_DEMO_DIR) + "/" + window + "' '" + dir.Path("");
        ASSERT_EQ(RunTool(roundtrip + "plain-" + window + "'").status, 0);
        ASSERT_EQ(RunTool(roundtrip + "comma-" + window + "'", CommaLocale::ShellEnvironment() + " ").status, 0);
        EXPECT_EQ(dir.Read("comma-" + window), dir.Read("plain-" + window)) << window;
    }
    EXPECT_NE(dir.Read("comma-trends.xml").find("type=\"float\" value=\"150.000000\""), std::string::npos);
}

TEST(CommandLine, RenderingOnAFullDiskKeepsTheOlderImage)
{
    TempDir dir;
    const std::string in = dir.Write("w.xml", WindowFile());
    const std::string out = dir.Write("w.png", "older image");
    ToolRun run;
    {
        FullDiskScope full;
        run = RunTool("render '" + in + "' '" + out + "'");
    }
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(dir.Read("w.png"), "older image");
    EXPECT_EQ(dir.Entries(), (std::vector<std::string>{"w.png", "w.xml"})) << "no temporary file is left";
}

TEST(CommandLine, RendersHostileWindowsWithinBoundedMemoryAndTime)
{
    // The window files of the fuzz corpus with huge coordinates and counts.
    int rendered = 0;
    for (const auto& entry : std::filesystem::directory_iterator(KELVO_HOSTILE_WINDOWS_DIR)) {
        const std::string name = entry.path().filename().string();
        if (!name.starts_with("huge-") && !name.starts_with("reversed-"))
            continue;
        SCOPED_TRACE(name);
        ++rendered;
        TempDir dir;
        const ToolRun run =
            RunTool("render '" + entry.path().string() + "' '" + dir.Path("out.png") + "'", kRenderLimits);
        EXPECT_EQ(run.status, 0) << run.errors;
        const QImage image(QString::fromStdString(dir.Path("out.png")));
        EXPECT_FALSE(image.isNull());
        EXPECT_LE(std::max(image.width(), image.height()), 4096);
    }
    EXPECT_GE(rendered, 8);
}

TEST(CommandLine, DrawsAHugeWindowClippedToItsTopLeftAndSaysSo)
{
    TempDir dir;
    const std::string in = dir.Write("w.xml", WindowFile(100000, 300));
    const ToolRun run = RunTool("render '" + in + "' '" + dir.Path("w.png") + "'", kRenderLimits);
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.errors, "kelvo-hmi: the window is 100000 x 300 pixels; drawn clipped to its top-left 4096 x 300\n");
    const QImage image(QString::fromStdString(dir.Path("w.png")));
    EXPECT_EQ(image.size(), QSize(4096, 300));
    EXPECT_EQ(image.pixel(4095, 150), qRgb(255, 0, 0));
}

// A scenario's values drawn: a colour binding at two values, a formatted number drawn as that
// text would be, a widget hidden by its visibility binding, and a binding that fails told.
TEST(CommandLine, RendersAWindowWithTheValuesOfAValueSet)
{
    TempDir dir;
    dir.Write("rtdb.xml", "<rtdbs><rtdb name=\"p\"><data name=\"v\" type=\"long\" init=\"0\"/></rtdb></rtdbs>");
    const auto window = [&](const std::string& text, const std::string& textBinding) {
        const auto rect = [](const char* name, int left, const std::string& dynamic) {
            return std::string("<widget name=\"") + name + "\" class=\"rectangle\"><properties>"
                   "<property name=\"left\" type=\"short\" value=\"" + std::to_string(left) + "\"/>"
                   "<property name=\"right\" type=\"short\" value=\"" + std::to_string(left + 10) + "\"/>"
                   "<property name=\"bottom\" type=\"short\" value=\"10\"/></properties>"
                   "<dynamics>" + dynamic + "</dynamics></widget>\n";
        };
        return dir.Write("w.xml", "<?xml version=\"1.0\" encoding=\"GB2312\"?>\n<hmiwidget>\n" +
            rect("lamp", 0, "<dynamic propname=\"fillcolor\" expression=\"($p.v&gt;5)?0xff:0xff00\"/>") +
            rect("box", 20, "<dynamic propname=\"visible\" expression=\"$p.v&lt;10\"/>"
                            "<dynamic propname=\"edgecolor\" expression=\"0xff00ff%($p.v-7)\"/>") +
            "<widget name=\"number\" class=\"text\"><properties><property name=\"top\" type=\"short\" value=\"12\"/>"
            "<property name=\"right\" type=\"short\" value=\"60\"/><property name=\"bottom\" type=\"short\" value=\"30\"/>"
            "<property name=\"text\" type=\"string\" length=\"32\" value=\"" + text + "\"/></properties><dynamics>" +
            textBinding + "</dynamics></widget>\n</hmiwidget>\n");
    };
    const auto render = [&](int value, const std::string& in) {
        const std::string values = dir.Write("v.json", "{\"values\": {\"$p.v\": " + std::to_string(value) + "}}");
        const ToolRun run = RunTool("render '" + in + "' '" + dir.Path("out.png") + "' --values '" + values + "'");
        EXPECT_EQ(run.status, 0) << run.errors;
        return std::pair(QImage(QString::fromStdString(dir.Path("out.png"))), run.errors);
    };
    const std::string bound = window("", "<dynamic propname=\"text\" expression=\"(float2str3(($p.v*1.25),2,1))\"/>");
    const auto [six, sixErrors] = render(6, bound);
    const auto [four, fourErrors] = render(4, bound);
    const auto [twelve, twelveErrors] = render(12, bound);
    const auto [seven, sevenErrors] = render(7, bound);
    EXPECT_EQ(std::tuple(six.pixel(5, 5), four.pixel(5, 5)), std::tuple(qRgb(255, 0, 0), qRgb(0, 255, 0)));
    EXPECT_EQ(std::tuple(four.pixel(20, 5), twelve.pixel(20, 5)), std::tuple(qRgb(0, 0, 0), twelve.pixel(19, 5)))
        << "the box's edge at 0xff00ff % -3, then no box at all";
    EXPECT_EQ(sevenErrors, "kelvo-hmi: " + bound + ": note: box: binding of edgecolor: division by zero at 8 of '0xff00ff%($p.v-7)'\n");
    EXPECT_EQ(six, render(6, window(" 7.5", "")).first);
    EXPECT_NE(six, render(6, window(" 7.4", "")).first);
    EXPECT_EQ(RunTool("render '" + bound + "' '" + dir.Path("x.png") + "' --values '" + dir.Path("none.json") + "'").status, 1);
}
