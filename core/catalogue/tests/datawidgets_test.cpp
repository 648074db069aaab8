// The data widgets: control widgets, curves, alarm window and history list; the names they take
// from the project, their columns and the curve preview. Their declarations and default lines
// are pinned down by the catalogue reference.

#include "catalogue/controlpictures.h"
#include "catalogue/hmiwidgetalarmwnd.h"
#include "catalogue/hmiwidgetcontrols.h"
#include "catalogue/hmiwidgetcurve.h"
#include "catalogue/hmiwidgethiscurve.h"
#include "catalogue/hmiwidgethislist.h"
#include "ownproperties.h"
#include "project/projectpath.h"
#include "tests/support/memoryoptiontree.h"
#include "tests/support/recordingdc.h"
#include "tests/support/tempdir.h"
#include "widgets/widgetfilereader.h"
#include "tests/support/registrytest.h"

#include <gtest/gtest.h>

#include <climits>
#include <tuple>

namespace {

std::string HistoryLine(const std::string& name)
{
    return PropertyLine("historyname", "string", name, "32");
}

std::string LogLines(const char* index, const std::string& name)
{
    return PropertyLine("lognamenum", "ushort", index) + PropertyLine("logname", "string", name, "32");
}

std::vector<HmiRect> RectsOf(const std::vector<RecordingDC::Shape>& shapes)
{
    std::vector<HmiRect> rects;
    for (const RecordingDC::Shape& shape : shapes)
        rects.push_back(shape.rect);
    return rects;
}

constexpr const char* kTwoDatabases = "<zqhistory><historydb name=\"boiler\"/><historydb name=\"pumps\"/></zqhistory>";
constexpr const char* kOlderHistory = "<history/>"; // lists one empty name
constexpr const char* kTwoLogs = "<datalog><log name=\"fast\"/><log name=\"slow\"/></datalog>";

// The built-in classes registered, and a project with the given name files made current.
struct ProjectNameTest : BuiltinRegistryTest {
    void TearDown() override { SetProjectPath(""); }

    // Makes a project with these name files current (null: no such file).
    void UseProject(const char* history, const char* datalog)
    {
        project = std::make_unique<TempDir>();
        if (history)
            project->Write("history.xml", history);
        if (datalog)
            project->Write("datalog.xml", datalog);
        SetProjectPath(project->Path(""));
    }

    // Reads a window file of one widget "w1" with these property lines.
    HmiWidgetPtr Read(const char* classKey, const std::string& lines)
    {
        return ReadWindow(std::string("\t<widget name=\"w1\"  class=\"") + classKey + "\">\n\t\t<properties>\n" +
                          lines + "\t\t</properties>\n\t</widget>\n");
    }

    // Reads widget elements as the editor and its paste command do.
    HmiWidgetPtr ReadWindow(const std::string& elements)
    {
        HmiWidgetPtr widget;
        const FileResult result = ReadWindowText("<hmiwidget>\n" + elements + "</hmiwidget>\n",
                                                 [&widget](HmiWidgetPtr read) { widget = std::move(read); });
        notices = result.notices;
        return widget;
    }

    std::unique_ptr<TempDir> project;
    std::vector<std::string> notices;
};

// A fixed sequence of samples for the curve preview, counting those taken.
struct FixedSamples {
    explicit FixedSamples(std::vector<int> values)
        : saved(std::exchange(CurveSettings::RandomSample(), [=, this] { return values[taken++ % values.size()]; }))
    {
    }
    ~FixedSamples() { CurveSettings::RandomSample() = saved; }
    FixedSamples(const FixedSamples&) = delete;
    FixedSamples& operator=(const FixedSamples&) = delete;

    std::size_t taken = 0;
    std::function<int()> saved;
};

} // namespace

TEST(ControlWidgets, WriteWhatWasTypedAndShowTheFirstItemWithoutAControl)
{
    CHmiWidgetCheckbox checkbox;
    checkbox.m_strVariable = std::string(40, 'v');
    EXPECT_TRUE(OwnPropertyLines(checkbox).ends_with(PropertyLine("variable", "string", std::string(40, 'v'))))
        << "a variable longer than the short length is written without one";

    CHmiWidgetCombobox combobox;
    ASSERT_EQ(combobox.SetWidgetProperty("list", "string", "a,b,,c", ""), 1);
    EXPECT_TRUE(OwnPropertyLines(combobox).starts_with(PropertyLine("list", "string", "a,b,,c")));
    combobox.SetWidgetRect({0, 0, 100, 20});
    const RecordingDC combo = DrawnBy(combobox);
    ASSERT_EQ(combo.ShapesOfKind("text").size(), 1u);
    EXPECT_EQ(combo.ShapesOfKind("text")[0].text, "a") << "the first item shows";
}

TEST_F(ProjectNameTest, NewWidgetsWriteTheFirstNameTheProjectLists)
{
    UseProject(kTwoDatabases, kTwoLogs);
    EXPECT_NE(OwnPropertyLines(CHmiWidgetCurve()).find(LogLines("0", "fast")), std::string::npos);
    for (const HmiWidgetPtr& widget : {HmiWidgetPtr(new CHmiWidgetHisCurve), HmiWidgetPtr(new CHmiWidgetHisList)})
        EXPECT_TRUE(OwnPropertyLines(*widget).starts_with(HistoryLine("boiler")));
}

// Dragged widths and the field dialog's columns are covered with the editor's live list controls.
TEST(ListColumns, FieldsAndWidthsOfTheSameCountMakeTheColumns)
{
    CHmiWidgetHisList list;
    list.SetWidgetProperty("dispfields", "string", "DateTime,temperature,", "");
    list.SetWidgetProperty("fieldswidth", "string", "120,60,", "");
    EXPECT_EQ(list.m_columns, (std::vector<ListColumn>{{"DateTime", 120}, {"temperature", 60}}));

    CHmiWidgetAlarmWnd alarm;
    alarm.SetWidgetProperty("dispfields", "string", "Time,Event Type,", "");
    alarm.SetWidgetProperty("fieldswidth", "string", "150,80,80,", "");
    EXPECT_TRUE(alarm.m_columns.empty()) << "two fields and three widths give no columns";
    EXPECT_NE(OwnPropertyLines(alarm).find(PropertyLine("fieldswidth", "string", "", "32")), std::string::npos);
}

TEST(CurvePreview, DrawsTheGridLabelsAndScaledSamples)
{
    const FixedSamples samples({0, 32767, 16384});
    CHmiWidgetCurve curve;
    curve.SetWidgetRect({0, 0, 260, 130});
    curve.m_nXPoints = 3;
    curve.m_nCurveNum = 1;
    const RecordingDC dc = DrawnBy(curve);

    EXPECT_EQ(RectsOf(dc.ShapesOfKind("rectangle")), (std::vector<HmiRect>{{0, 0, 260, 130}, {30, 15, 230, 115}}));
    const auto texts = dc.ShapesOfKind("text");
    const char* const labels[] = {"0.00", "25.00", "50.00", "75.00", "100.00"};
    ASSERT_EQ(texts.size(), std::size(labels)) << "fewer points than lines leave the time labels out";
    for (std::size_t t = 0; t < texts.size(); ++t) {
        EXPECT_EQ(texts[t].text, labels[t]);
        EXPECT_EQ(texts[t].rect, (HmiRect{5, 110 - 25 * std::int32_t(t), 30, 135 - 25 * std::int32_t(t)}));
    }
    // Five vertical and three horizontal grid lines, then the samples 0, 32767 and 16384.
    const auto lines = dc.ShapesOfKind("line");
    EXPECT_EQ(RectsOf(lines), (std::vector<HmiRect>{{63, 15, 63, 115}, {96, 15, 96, 115}, {130, 15, 130, 115},
                                                     {163, 15, 163, 115}, {196, 15, 196, 115}, {30, 40, 230, 40},
                                                     {30, 65, 230, 65}, {30, 90, 230, 90}, {30, 115, 30, 115},
                                                     {30, 115, 130, 15}, {130, 15, 230, 65}}));
    EXPECT_EQ(lines.back().pen, (HmiPen{HmiPenStyle::Solid, 0, 0xFF}));
    EXPECT_EQ(dc.pen, HmiPen{}) << "the curve pen is released";

    // With more points than vertical lines, time labels stand under the left edge and each line.
    curve.m_nXPoints = 60;
    const auto times = DrawnBy(curve).ShapesOfKind("text");
    ASSERT_EQ(times.size(), 5u + 6u);
    for (std::size_t t = 0; t < 6; ++t) {
        const std::int32_t x = 30 + 200 * std::int32_t(t) / 6;
        EXPECT_EQ(times[5 + t].rect, (HmiRect{x, 115, x + 100, 135}));
        EXPECT_EQ(std::count(times[5 + t].text.begin(), times[5 + t].text.end(), ':'), 2);
    }
}

TEST(CurvePreview, GuardsDivisionsAndCapsTheCurves)
{
    CHmiWidgetCurve curve;
    curve.SetWidgetRect({0, 0, 100, 100});
    curve.m_nCurveNum = 40;
    EXPECT_EQ(DrawnBy(curve).ShapesOfKind("line").size(), 5u + 3u + 16u * 50u) << "at most 16 curves";

    for (auto spoil : std::vector<std::function<void(CHmiWidgetCurve&)>>{
             [](auto& c) { c.m_nXPoints = 1; }, [](auto& c) { c.m_fMaxValue = c.m_fMinValue; },
             [](auto& c) { c.m_nVLines = c.m_nHLines = -1; }, [](auto& c) { c.m_nHLines = 80; },
             [](auto& c) { c.m_nCurveNum = -2; }}) {
        CHmiWidgetCurve odd;
        odd.SetWidgetRect({0, 0, 40, 20}); // narrower than its margins
        spoil(odd);
        EXPECT_FALSE(DrawnBy(odd).shapes.empty());
    }
}

// ---------------------------------------------------------------------------------------------
// A history database or data log that a window file names and the project does not list is
// kept as the file has it, shown marked in the pane and reported.

namespace {

struct NameCase {
    const char* title;
    const char* history;
    const char* datalog;
    const char* classKey;
    std::string lines; // read and written back byte for byte
    std::vector<std::string> choices; // of the combo row
    int selection;
    std::string notice; // none when the project lists the name
};

std::string Kept(const char* kind, const char* what, const char* name, const char* detail = "")
{
    return std::string(kind) + " \"w1\": the " + what + " \"" + name + "\"" + detail +
           " is not in the project; it is kept as it is.";
}

const std::vector<NameCase>& NameCases()
{
    static const std::vector<NameCase> cases = {
        {"unknown database of a curve", kTwoDatabases, nullptr, "hiscurve", HistoryLine("plant2"),
         {"boiler", "pumps", "plant2 (not in the project)"}, 2, Kept("History curve", "history database", "plant2")},
        {"listed database", kTwoDatabases, nullptr, "hislist", HistoryLine("pumps"), {"boiler", "pumps"}, 1, ""},
        {"no database where the project lists some", kTwoDatabases, nullptr, "hiscurve", HistoryLine(""),
         {"boiler", "pumps", "(no name) (not in the project)"}, 2, Kept("History curve", "history database", "")},
        {"no history.xml", nullptr, nullptr, "hislist", HistoryLine("boiler"), {"boiler (not in the project)"}, 0,
         Kept("History list", "history database", "boiler")},
        {"no history.xml and no name", nullptr, nullptr, "hislist", HistoryLine(""), {}, -1, ""},
        {"older history form", kOlderHistory, nullptr, "hiscurve", HistoryLine("plant2"),
         {"", "plant2 (not in the project)"}, 1, Kept("History curve", "history database", "plant2")},
        {"older history form and no name", kOlderHistory, nullptr, "hislist", HistoryLine(""), {""}, 0, ""},
        {"unknown log", nullptr, kTwoLogs, "curve", LogLines("3", "plant2"),
         {"fast", "slow", "plant2 (index 3, not in the project)"}, 2,
         Kept("Realtime curve", "data log", "plant2", " (index 3)")},
        {"listed log at another index", nullptr, kTwoLogs, "curve", LogLines("0", "slow"),
         {"fast", "slow", "slow (index 0, not in the project)"}, 2,
         Kept("Realtime curve", "data log", "slow", " (index 0)")},
        {"log index past the list", nullptr, kTwoLogs, "curve", LogLines("5", ""),
         {"fast", "slow", "(no name) (index 5, not in the project)"}, 2,
         Kept("Realtime curve", "data log", "", " (index 5)")},
        {"listed log", nullptr, kTwoLogs, "curve", LogLines("1", "slow"), {"fast", "slow"}, 1, ""},
        {"log by its index alone", nullptr, kTwoLogs, "curve", PropertyLine("lognamenum", "ushort", "1"),
         {"fast", "slow"}, 1, ""},
        {"no datalog.xml", nullptr, nullptr, "curve", LogLines("0", "fast"), {"fast (index 0, not in the project)"}, 0,
         Kept("Realtime curve", "data log", "fast", " (index 0)")},
        {"no datalog.xml and no name", nullptr, nullptr, "curve", LogLines("0", ""), {}, -1, ""},
    };
    return cases;
}

// The combo row that shows the name.
const char* RowCaption(const NameCase& c)
{
    return std::string_view(c.classKey) == "curve" ? "logname" : "historyname";
}

} // namespace

TEST_F(ProjectNameTest, LoadSaveAndCopiesKeepTheNameAndThePaneMarksIt)
{
    for (const NameCase& c : NameCases()) {
        SCOPED_TRACE(c.title);
        UseProject(c.history, c.datalog);
        const HmiWidgetPtr widget = Read(c.classKey, c.lines);
        ASSERT_NE(widget, nullptr);
        EXPECT_NE(OwnPropertyLines(*widget).find(c.lines), std::string::npos) << OwnPropertyLines(*widget);
        EXPECT_EQ(notices, c.notice.empty() ? std::vector<std::string>{} : std::vector<std::string>{c.notice});

        // Copy and paste writes the widget and reads it back; Clone copies it in memory.
        std::string copied;
        widget->Serialize(copied);
        for (const HmiWidgetPtr& shown : {ReadWindow(copied), widget->Clone()}) {
            ASSERT_NE(shown, nullptr);
            EXPECT_EQ(OwnPropertyLines(*shown), OwnPropertyLines(*widget));
            MemoryOptionTree tree;
            shown->CreateWidgetPropertyTree(tree);
            MemoryOptionItem* row = tree.Find(RowCaption(c));
            ASSERT_NE(row, nullptr);
            EXPECT_EQ(std::tuple(row->choices, row->selection), std::tuple(c.choices, c.selection));
            if (c.notice.empty() || c.choices.size() < 2)
                continue;

            // The first listed name makes it write what a new widget writes; the kept name stays
            // in the list and brings the file's lines back.
            row->SetCurSel(0);
            shown->UpdateWidgetPropByTree(row);
            const HmiWidgetPtr fresh = CHmiWidget::GetWidgetClass(c.classKey)->CreateObject();
            EXPECT_EQ(OwnPropertyLines(*shown), OwnPropertyLines(*fresh));
            shown->UpdateTreeByWidgetProp();
            EXPECT_EQ(std::tuple(row->choices, row->selection), std::tuple(c.choices, 0));
            row->SetCurSel(c.selection);
            shown->UpdateWidgetPropByTree(row);
            EXPECT_NE(OwnPropertyLines(*shown).find(c.lines), std::string::npos);
        }
    }
}

TEST(CurvePreview, CountsAsLargeAsAFileCanHoldDrawOnlyWhatTheViewShows)
{
    // A plot of 540 x 370 pixels, at (30, 15), in a view of 640 x 480.
    CHmiWidgetCurve curve;
    curve.SetWidgetRect({0, 0, 600, 400});
    curve.m_nHLines = curve.m_nVLines = curve.m_nXPoints = INT_MAX;
    curve.m_nCurveNum = 1;
    FixedSamples samples({0, 32767});
    const RecordingDC dc = DrawnBy(curve, {0, 0, 640, 480});
    const auto lines = dc.ShapesOfKind("line");
    const auto gridLines = std::count_if(lines.begin(), lines.end(), [](const auto& l) { return l.pen.width == 1; });
    EXPECT_LE(gridLines, 540 + 370) << "one grid line per pixel column and row of the plot";
    EXPECT_LE(dc.ShapesOfKind("text").size(), 2u * 640u) << "one label per pixel row and column";
    EXPECT_EQ(samples.taken, 65535u) << "the panel's 16-bit count of points";

    // One point per pixel column of the plot, x = 30 + p: those past the view are neither sampled
    // nor drawn.
    curve.m_nXPoints = 541;
    samples.taken = 0;
    EXPECT_EQ(DrawnBy(curve, {0, 0, 100, 100}).ShapesOfKind("line").back().rect.right, 100);
    EXPECT_EQ(samples.taken, 71u) << "the points at x 30 to 99 and the next one";

    CHmiWidgetHisCurve margins;
    margins.SetWidgetRect({INT_MIN, INT_MIN, INT_MAX, INT_MAX});
    margins.m_nFrameHSpace = INT_MAX;
    margins.m_nFrameVSpace = INT_MIN;
    margins.m_nHLines = 1000000000;
    margins.m_nVLines = -1000000000;
    margins.m_nXPoints = INT_MAX;
    margins.m_fMinValue = -3e38f;
    margins.m_fMaxValue = 3e38f;
    const RecordingDC view = DrawnBy(margins, {0, 0, 640, 480});
    EXPECT_LE(view.shapes.size(), 2u * 65535u + 2u * (640u + 480u));
}

TEST(ListPicture, HeadingsStopAtTheEdgeOfTheListOrOfTheView)
{
    RecordingDC ends;
    ends.clipBox = {0, 0, 640, 480};
    DrawListPicture(ends, {INT_MIN, 0, INT_MAX, INT_MAX}, {{"a", INT_MAX}, {"b", INT_MAX}, {"c", INT_MIN}, {"d", 0}});
    ASSERT_EQ(ends.ShapesOfKind("text").size(), 1u) << "the first column spans the list";
    EXPECT_EQ(ends.ShapesOfKind("text")[0].text, "a");

    RecordingDC view;
    view.clipBox = {0, 0, 100, 100};
    DrawListPicture(view, {0, 0, INT_MAX, 100}, std::vector<ListColumn>(100000, {"n", 10}));
    EXPECT_EQ(view.ShapesOfKind("text").size(), 10u) << "the headings that reach into the view";

    RecordingDC hidden;
    DrawListPicture(hidden, {0, 0, 70, 100}, {{"a", 40}, {"hidden", 0}, {"b", 40}});
    EXPECT_EQ(RectsOf(hidden.shapes), (std::vector<HmiRect>{{0, 0, 70, 100}, {0, 0, 40, 20}, {2, 0, 38, 20},
                                                            {40, 0, 70, 20}, {42, 0, 68, 20}}))
        << "a column without width shows nothing; the last is cut at the list's edge";
}
