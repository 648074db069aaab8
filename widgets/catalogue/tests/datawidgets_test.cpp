// The data widgets: control widgets, curves, alarm window and history list; their file blocks,
// the name lists they offer, their columns and the curve preview.

#include "ownproperties.h"
#include "project/namelists.h"
#include "project/projectpath.h"
#include "tests/support/memoryoptiontree.h"
#include "tests/support/recordingdc.h"
#include "tests/support/tempdir.h"
#include "widgets/catalogue/builtinwidgets.h"
#include "widgets/catalogue/controlpictures.h"
#include "widgets/catalogue/hmiwidgetalarmwnd.h"
#include "widgets/catalogue/hmiwidgetcontrols.h"
#include "widgets/catalogue/hmiwidgetcurve.h"
#include "widgets/catalogue/hmiwidgethiscurve.h"
#include "widgets/catalogue/hmiwidgethislist.h"
#include "widgets/core/widgetfilereader.h"

#include <gtest/gtest.h>

#include <climits>

namespace {

std::string Line(const std::string& name, const char* type, const std::string& value, const char* length = nullptr)
{
    std::string line = "\t\t\t<property name=\"" + name + "\" type=\"" + type + "\" ";
    if (length)
        line += std::string("length=\"") + length + "\" ";
    return line + "value=\"" + value + "\" />\n";
}

std::string SeriesLines()
{
    std::string lines;
    for (int n = 1; n <= 16; ++n) {
        const std::string number = std::to_string(n);
        lines += Line("dataname" + number, "string", "", "32") + Line("datacolor" + number, "ulong", "255") +
                 Line("adddata" + number, "float", "0.000000") + Line("valuevarname" + number, "string", "", "32");
    }
    return lines;
}

// A project with two history databases and two data logs.
struct ProjectTest : ::testing::Test {
    void SetUp() override
    {
        dir.Write("history.xml", "<zqhistory><historydb name=\"boiler\"/><historydb name=\"pumps\"/></zqhistory>");
        dir.Write("datalog.xml", "<datalog><log name=\"fast\"/><log name=\"slow\"/></datalog>");
        SetProjectPath(dir.Path(""));
    }
    void TearDown() override { SetProjectPath(""); }

    TempDir dir;
};

// A fixed sequence of samples for the curve preview, counting those taken.
struct FixedSamples {
    explicit FixedSamples(std::vector<int> values) : saved(CurveSettings::RandomSample())
    {
        CurveSettings::RandomSample() = [this, values]() { return values[taken++ % values.size()]; };
    }
    ~FixedSamples() { CurveSettings::RandomSample() = saved; }
    FixedSamples(const FixedSamples&) = delete;
    FixedSamples& operator=(const FixedSamples&) = delete;

    mutable std::size_t taken = 0;

    std::function<int()> saved;
};

} // namespace

TEST(ControlWidgets, WriteVariablesWithTheShortLengthAndListsAsTyped)
{
    CHmiWidgetCheckbox checkbox;
    checkbox.m_strCaption = "Run pump";
    checkbox.m_strVariable = "$pump";
    EXPECT_EQ(OwnPropertyLines(checkbox), Line("caption", "string", "Run pump") + Line("variable", "string", "$pump", "32"));
    checkbox.m_strVariable = std::string(40, 'v');
    EXPECT_EQ(OwnPropertyLines(checkbox), Line("caption", "string", "Run pump") +
                                              Line("variable", "string", std::string(40, 'v')));

    CHmiWidgetCombobox combobox;
    ASSERT_EQ(combobox.SetWidgetProperty("list", "string", "a,b,,c", ""), 1);
    EXPECT_EQ(OwnPropertyLines(combobox), Line("list", "string", "a,b,,c") + Line("variable", "string", "", "32") +
                                              Line("itemheight", "ulong", "0"));
    combobox.SetWidgetEventCode("selchange", "show();");
    ASSERT_EQ(combobox.GetEvents().size(), 3u);
    EXPECT_EQ(combobox.GetEvents()[2].label, "Select changed");
    EXPECT_EQ(combobox.GetEvents()[2].code, "show();");

    CHmiWidgetEdit edit;
    EXPECT_EQ(edit.GetWidgetClassName(), "edit");
    EXPECT_EQ(OwnPropertyRows(edit), (std::vector<PropertyRow>{{"variable", "variable", "set variable", 1,
                                                                PROP_VARIABLE, "Edit", {}}}));
    edit.SetWidgetRect({10, 10, 110, 30});
    RecordingDC dc;
    edit.Draw(dc);
    ASSERT_EQ(dc.shapes.size(), 1u) << "without a live control, a still picture of the box";
    EXPECT_EQ(dc.shapes[0].rect, (HmiRect{10, 10, 110, 30}));

    combobox.SetWidgetRect({0, 0, 100, 20});
    RecordingDC combo;
    combobox.Draw(combo);
    ASSERT_EQ(combo.ShapesOfKind("text").size(), 1u);
    EXPECT_EQ(combo.ShapesOfKind("text")[0].text, "a") << "the first item shows";
}

TEST_F(ProjectTest, RealtimeCurveWritesItsDefaultsWithTheLogName)
{
    CHmiWidgetCurve curve;
    EXPECT_EQ(OwnPropertyLines(curve),
              Line("bkcolor", "ulong", "12648447") + Line("framecolor", "ulong", "8421504") +
                  Line("textcolor", "ulong", "0") + Line("hlinecolor", "ulong", "0") +
                  Line("vlinecolor", "ulong", "0") + Line("xmaxpoints", "ushort", "50") +
                  Line("xpoints", "ushort", "50") + Line("hmaxlines", "ushort", "5") + Line("hlines", "ushort", "5") +
                  Line("vlines", "ushort", "3") + Line("framehspace", "ushort", "30") +
                  Line("framevspace", "ushort", "15") + Line("lognamenum", "ushort", "0") +
                  Line("logname", "string", "fast", "32") + Line("curvenum", "ushort", "2") +
                  Line("minvalue", "float", "0.000000") + Line("maxvalue", "float", "100.000000") +
                  Line("datasource", "uchar", "0") + Line("filepath", "char", "0") +
                  Line("filename", "string", "", "32") + Line("startpoint", "ulong", "0") +
                  Line("timevarname", "string", "", "32") + Line("enableind", "uchar", "0") +
                  Line("indcolor", "ulong", "16711680") + SeriesLines());

    curve.SetWidgetProperty("lognamenum", "ushort", "1", "");
    curve.SetWidgetProperty("logname", "string", "slow", "");
    curve.SetWidgetProperty("datacolor16", "ulong", "0xFF00", "");
    curve.SetWidgetProperty("adddata3", "float", "2.5", "");
    curve.SetWidgetProperty("valuevarname1", "string", "$speed", "");
    EXPECT_NE(OwnPropertyLines(curve).find(Line("logname", "string", "slow", "32")), std::string::npos);
    EXPECT_EQ(curve.m_dataColor[15], 0xFF00u);
    EXPECT_FLOAT_EQ(curve.m_addData[2], 2.5f);
    EXPECT_EQ(curve.m_valueVarName[0], "$speed");
}

TEST_F(ProjectTest, RealtimeCurveRecordsAndRows)
{
    CHmiWidgetCurve curve;
    const auto rows = OwnPropertyRows(curve);
    ASSERT_EQ(rows.size(), 19u + 32u + 3u + 16u);
    EXPECT_EQ(rows[15], (PropertyRow{"lognamenum", "logname", "Set the log name of In memory data source", 0,
                                     PROP_COMBO, "Realtime curve basic properties", {"fast", "slow"}}));
    EXPECT_EQ(rows[19], (PropertyRow{"dataname1", "Var1", "Set the curve variable name", 1, PROP_VARIABLE,
                                     "Curve properties", {}}));
    EXPECT_EQ(rows[20], (PropertyRow{"datacolor1", "Color1", "Set the curve color", 1, PROP_COLOR,
                                     "Curve properties", {}}));
    EXPECT_EQ(std::get<0>(rows.back()), "valuevarname16");
    EXPECT_EQ(std::get<1>(rows.back()), "Value16");
    EXPECT_EQ(std::get<5>(rows.back()), "Curve indicator properties");

    MemoryOptionTree tree;
    curve.CreateWidgetPropertyTree(tree);
    EXPECT_EQ(tree.Find("Curve properties")->info, "Curve properties");
    MemoryOptionItem* colour = tree.Find("Color2", "Curve properties");
    ASSERT_NE(colour, nullptr);
    colour->SetColor(0x00FF00);
    curve.UpdateWidgetPropByTree(colour);
    EXPECT_EQ(curve.m_dataColor[1], 0x00FF00u);
    MemoryOptionItem* minimum = tree.Find("minimum value");
    minimum->SetEditText("-5.5");
    curve.UpdateWidgetPropByTree(minimum);
    EXPECT_FLOAT_EQ(curve.m_fMinValue, -5.5f);

    const HmiWidgetPtr copy = curve.Clone();
    const auto& clone = dynamic_cast<const CHmiWidgetCurve&>(*copy);
    EXPECT_EQ(clone.m_dataColor[1], 0x00FF00u);
    EXPECT_FLOAT_EQ(clone.m_fMinValue, -5.5f);
}

TEST_F(ProjectTest, HistoryCurveWritesTheNameOfItsDatabase)
{
    CHmiWidgetHisCurve curve;
    std::string expected = Line("historyname", "string", "boiler", "32") + Line("bkcolor", "ulong", "12648447") +
                           Line("framecolor", "ulong", "8421504") + Line("textcolor", "ulong", "0") +
                           Line("hlinecolor", "ulong", "0") + Line("vlinecolor", "ulong", "0") +
                           Line("minvalue", "float", "0.000000") + Line("maxvalue", "float", "100.000000") +
                           Line("xpoints", "ushort", "50") + Line("hlines", "ushort", "5") +
                           Line("vlines", "ushort", "3") + Line("framehspace", "ushort", "30") +
                           Line("framevspace", "ushort", "15") + Line("curvenum", "ushort", "2");
    for (const char* key : {"startyear", "startmonth", "startday", "starthour", "startmin", "startsec", "endyear",
                            "endmonth", "endday", "endhour", "endmin", "endsec"})
        expected += Line(key, "ushort", "0");
    expected += Line("redrawvar", "string", "", "32") + Line("timevarname", "string", "", "32") +
                Line("enableind", "uchar", "0") + Line("indcolor", "ulong", "16711680") + SeriesLines();
    EXPECT_EQ(OwnPropertyLines(curve), expected);

    curve.SetWidgetProperty("historyname", "string", "pumps", "");
    EXPECT_EQ(curve.m_nHistoryName, 1);

    const auto rows = OwnPropertyRows(curve);
    EXPECT_EQ(std::get<3>(rows[2]), 0) << "the history curve's xpoints is not bindable";
    EXPECT_EQ(std::get<2>(rows[12]), "Set the start year of curve");
    EXPECT_EQ(std::get<1>(rows[27]), "variable1");
    EXPECT_EQ(std::get<1>(rows.back()), "valuevarname16");
}

TEST(HistoryWidgets, AnEmptyHistoryConfigurationWritesAnEmptyName)
{
    CHmiWidgetHisList list;
    EXPECT_EQ(list.HistoryNames().Count(), 0);
    EXPECT_EQ(OwnPropertyLines(list).substr(0, Line("historyname", "string", "", "32").size()),
              Line("historyname", "string", "", "32"));
}

TEST_F(ProjectTest, HistoryListKeepsItsColumnsWithoutAControl)
{
    CHmiWidgetHisList list;
    EXPECT_EQ(list.m_columns, (std::vector<ListColumn>{{"DateTime", 150}}));
    std::string expected = Line("historyname", "string", "boiler", "32") + Line("rows", "ushort", "20") +
                           Line("itemheight", "ulong", "0") + Line("dispfields", "string", "DateTime", "32") +
                           Line("fieldswidth", "string", "150,", "32") + Line("redrawvar", "string", "", "32");
    for (const char* key : {"startyear", "startmonth", "startday", "starthour", "startmin", "startsec", "endyear",
                            "endmonth", "endday", "endhour", "endmin", "endsec"})
        expected += Line(key, "ushort", "0");
    expected += Line("auto_update", "uchar", "1");
    EXPECT_EQ(OwnPropertyLines(list), expected);

    list.SetWidgetProperty("dispfields", "string", "DateTime,temperature,", "");
    list.SetWidgetProperty("fieldswidth", "string", "120,60,", "");
    EXPECT_EQ(list.m_columns, (std::vector<ListColumn>{{"DateTime", 120}, {"temperature", 60}}));
    list.m_columns[1].width = 75; // dragged in the editor
    EXPECT_NE(OwnPropertyLines(list).find(Line("fieldswidth", "string", "120,75,", "32")), std::string::npos);

    list.SetWidgetEventCode("insertdata", "refresh();");
    ASSERT_EQ(list.GetEvents().size(), 1u);
    EXPECT_EQ(list.GetEvents()[0].description, "When Insert data to list widget, system triggle this event.");
}

TEST(AlarmWindow, SavesItsEightDefaultWidthsWithTrailingCommas)
{
    CHmiWidgetAlarmWnd alarm;
    EXPECT_EQ(OwnPropertyLines(alarm),
              Line("rows", "ushort", "20") + Line("confirmcolor", "ulong", "16711680") +
                  Line("restorecolor", "ulong", "0") + Line("alarmcolor", "ulong", "255") +
                  Line("dispfields", "string",
                       "Time,Event Type,Variable Name,Alarm info,Alarm value,Restore value,Limit value,Alarm group",
                       "91") +
                  Line("itemheight", "ulong", "0") + Line("fieldswidth", "string", "150,80,80,80,80,80,80,80,", "32") +
                  Line("disptype", "ulong", "0") + Line("highhighcolor", "ulong", "255") +
                  Line("highcolor", "ulong", "255") + Line("lowlowcolor", "ulong", "255") +
                  Line("lowcolor", "ulong", "255") + Line("opencolor", "ulong", "255") +
                  Line("closecolor", "ulong", "255"));

    CHmiWidgetAlarmWnd loaded;
    loaded.SetWidgetProperty("dispfields", "string", "Time,Event Type,", "");
    loaded.SetWidgetProperty("fieldswidth", "string", "150,80,80,", "");
    EXPECT_TRUE(loaded.m_columns.empty()) << "two fields and three widths give no columns";
    EXPECT_NE(OwnPropertyLines(loaded).find(Line("fieldswidth", "string", "", "32")), std::string::npos);

    loaded.SetDisplayFields("Time,Alarm group,");
    EXPECT_EQ(loaded.m_columns, (std::vector<ListColumn>{{"Time", 80}, {"Alarm group", 80}}));
    loaded.SetWidgetRect({0, 0, 120, 100});
    RecordingDC dc;
    loaded.Draw(dc);
    const auto headings = dc.ShapesOfKind("text");
    ASSERT_EQ(headings.size(), 2u) << "without a live control, the headings at their widths";
    EXPECT_EQ(headings[0].text, "Time");
    EXPECT_EQ(dc.ShapesOfKind("rectangle")[2].rect, (HmiRect{80, 0, 120, 20})) << "cut at the list's edge";
    loaded.SetDisplayFields("");
    EXPECT_TRUE(loaded.m_columns.empty());
}

TEST(CurvePreview, DrawsTheGridLabelsAndScaledSamples)
{
    const FixedSamples samples({0, 32767, 16384});
    CHmiWidgetCurve curve;
    curve.SetWidgetRect({0, 0, 260, 130});
    curve.m_nXPoints = 3;
    curve.m_nCurveNum = 1;
    RecordingDC dc;
    curve.Draw(dc);

    const auto rectangles = dc.ShapesOfKind("rectangle");
    ASSERT_EQ(rectangles.size(), 2u);
    EXPECT_EQ(rectangles[0].rect, (HmiRect{0, 0, 260, 130}));
    EXPECT_EQ(rectangles[1].rect, (HmiRect{30, 15, 230, 115}));
    const auto texts = dc.ShapesOfKind("text");
    ASSERT_EQ(texts.size(), 5u) << "fewer points than lines leave the time labels out";
    EXPECT_EQ(texts[0].text, "0.00");
    EXPECT_EQ(texts[0].rect, (HmiRect{5, 110, 30, 135}));
    EXPECT_EQ(texts[1].text, "25.00");
    EXPECT_EQ(texts[4].text, "100.00");
    EXPECT_EQ(texts[4].rect, (HmiRect{5, 10, 30, 35}));

    const auto lines = dc.ShapesOfKind("line");
    ASSERT_EQ(lines.size(), 5u + 3u + 3u);
    EXPECT_EQ(lines[0].rect, (HmiRect{63, 15, 63, 115})) << "the first vertical line";
    EXPECT_EQ(lines[5].rect, (HmiRect{30, 40, 230, 40})) << "the first horizontal line";
    EXPECT_EQ(lines[8].rect, (HmiRect{30, 115, 30, 115})) << "the first sample at the bottom";
    EXPECT_EQ(lines[9].rect, (HmiRect{30, 115, 130, 15})) << "the largest sample at the top";
    EXPECT_EQ(lines[10].rect.right, 230);
    EXPECT_EQ(lines[10].pen, (HmiPen{HmiPenStyle::Solid, 0, 0xFF}));
    EXPECT_EQ(dc.pen, HmiPen{}) << "the curve pen is released";
}

TEST(CurvePreview, TimeLabelsStandUnderTheLeftEdgeAndEachVerticalLine)
{
    CHmiWidgetCurve curve;
    curve.SetWidgetRect({0, 0, 260, 130});
    RecordingDC dc;
    curve.Draw(dc);
    const auto texts = dc.ShapesOfKind("text");
    ASSERT_EQ(texts.size(), 5u + 6u);
    for (std::size_t t = 0; t < 6; ++t) {
        const HmiRect& at = texts[5 + t].rect;
        EXPECT_EQ(at, (HmiRect{30 + 200 * std::int32_t(t) / 6, 115, 130 + 200 * std::int32_t(t) / 6, 135}));
        EXPECT_EQ(std::count(texts[5 + t].text.begin(), texts[5 + t].text.end(), ':'), 2);
    }
}

TEST(CurvePreview, GuardsDivisionsAndCapsTheCurves)
{
    CHmiWidgetCurve curve;
    curve.SetWidgetRect({0, 0, 100, 100});
    curve.m_nCurveNum = 40;
    RecordingDC many;
    curve.Draw(many);
    EXPECT_EQ(many.ShapesOfKind("line").size(), 5u + 3u + 16u * 50u) << "at most 16 curves";

    for (auto spoil : std::vector<std::function<void(CHmiWidgetCurve&)>>{
             [](CHmiWidgetCurve& c) { c.m_nXPoints = 1; },
             [](CHmiWidgetCurve& c) { c.m_fMaxValue = c.m_fMinValue; },
             [](CHmiWidgetCurve& c) { c.m_nVLines = -1; c.m_nHLines = -1; },
             [](CHmiWidgetCurve& c) { c.m_nHLines = 80; },
             [](CHmiWidgetCurve& c) { c.m_nCurveNum = -2; }}) {
        CHmiWidgetCurve odd;
        odd.SetWidgetRect({0, 0, 40, 20}); // narrower than its margins
        spoil(odd);
        RecordingDC dc;
        odd.Draw(dc);
        EXPECT_FALSE(dc.shapes.empty());
    }
}

// ---------------------------------------------------------------------------------------------
// A history database or data log that a window file names and the project does not list is
// kept as the file has it, shown marked in the pane and reported.

namespace {

constexpr const char* kTwoDatabases = "<zqhistory><historydb name=\"boiler\"/><historydb name=\"pumps\"/></zqhistory>";
constexpr const char* kOlderHistory = "<history/>"; // lists one empty name
constexpr const char* kTwoLogs = "<datalog><log name=\"fast\"/><log name=\"slow\"/></datalog>";

std::string LogLines(const char* index, const std::string& name)
{
    return Line("lognamenum", "ushort", index) + Line("logname", "string", name, "32");
}

// One widget "w1" whose name properties are these lines, in a project with these name files
// (null: no such file), and what the editor makes of it.
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
        {"unknown database of a list", kTwoDatabases, nullptr, "hislist", Line("historyname", "string", "plant2", "32"),
         {"boiler", "pumps", "plant2 (not in the project)"}, 2, Kept("History list", "history database", "plant2")},
        {"unknown database of a curve", kTwoDatabases, nullptr, "hiscurve",
         Line("historyname", "string", "plant2", "32"), {"boiler", "pumps", "plant2 (not in the project)"}, 2,
         Kept("History curve", "history database", "plant2")},
        {"listed database", kTwoDatabases, nullptr, "hislist", Line("historyname", "string", "pumps", "32"),
         {"boiler", "pumps"}, 1, ""},
        {"no database where the project lists some", kTwoDatabases, nullptr, "hiscurve",
         Line("historyname", "string", "", "32"), {"boiler", "pumps", "(no name) (not in the project)"}, 2,
         Kept("History curve", "history database", "")},
        {"no history.xml", nullptr, nullptr, "hislist", Line("historyname", "string", "boiler", "32"),
         {"boiler (not in the project)"}, 0, Kept("History list", "history database", "boiler")},
        {"no history.xml and no name", nullptr, nullptr, "hislist", Line("historyname", "string", "", "32"), {}, -1,
         ""},
        {"older history form", kOlderHistory, nullptr, "hiscurve", Line("historyname", "string", "plant2", "32"),
         {"", "plant2 (not in the project)"}, 1, Kept("History curve", "history database", "plant2")},
        {"older history form and no name", kOlderHistory, nullptr, "hislist", Line("historyname", "string", "", "32"),
         {""}, 0, ""},
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
        {"log by its index alone", nullptr, kTwoLogs, "curve", Line("lognamenum", "ushort", "1"), {"fast", "slow"}, 1,
         ""},
        {"no datalog.xml", nullptr, nullptr, "curve", LogLines("0", "fast"), {"fast (index 0, not in the project)"}, 0,
         Kept("Realtime curve", "data log", "fast", " (index 0)")},
        {"no datalog.xml and no name", nullptr, nullptr, "curve", LogLines("0", ""), {}, -1, ""},
    };
    return cases;
}

struct UnlistedNameTest : ::testing::Test {
    void SetUp() override
    {
        CHmiWidget::RemoveAllRunTimeClass();
        RegisterBuiltinWidgetClasses();
    }
    void TearDown() override
    {
        SetProjectPath("");
        CHmiWidget::RemoveAllRunTimeClass();
    }

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

    static const char* RowCaption(const NameCase& c)
    {
        return std::string_view(c.classKey) == "curve" ? "logname" : "historyname";
    }

    std::unique_ptr<TempDir> project;
    std::vector<std::string> notices;
};

} // namespace

TEST_F(UnlistedNameTest, LoadAndSaveKeepTheNameAndReportIt)
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
        const HmiWidgetPtr pasted = ReadWindow(copied);
        ASSERT_NE(pasted, nullptr);
        EXPECT_EQ(OwnPropertyLines(*pasted), OwnPropertyLines(*widget));
        EXPECT_EQ(OwnPropertyLines(*widget->Clone()), OwnPropertyLines(*widget));
    }
}

TEST_F(UnlistedNameTest, PaneMarksAKeptNameAndAPickedOneReplacesIt)
{
    for (const NameCase& c : NameCases()) {
        SCOPED_TRACE(c.title);
        UseProject(c.history, c.datalog);
        const HmiWidgetPtr widget = Read(c.classKey, c.lines);
        for (const HmiWidgetPtr& shown : {widget->Clone(), Read(c.classKey, c.lines)}) {
            MemoryOptionTree tree;
            shown->CreateWidgetPropertyTree(tree);
            MemoryOptionItem* row = tree.Find(RowCaption(c));
            ASSERT_NE(row, nullptr);
            EXPECT_EQ(row->choices, c.choices);
            EXPECT_EQ(row->selection, c.selection);
            if (c.notice.empty() || c.choices.size() < 2)
                continue;

            // The first listed name makes it write what a new widget writes; the kept name stays
            // in the list and brings the file's lines back.
            row->SetCurSel(0);
            shown->UpdateWidgetPropByTree(row);
            const HmiWidgetPtr fresh = CHmiWidget::GetWidgetClass(c.classKey)->CreateObject();
            EXPECT_EQ(OwnPropertyLines(*shown), OwnPropertyLines(*fresh));
            shown->UpdateTreeByWidgetProp();
            EXPECT_EQ(row->choices, c.choices);
            EXPECT_EQ(row->selection, 0);
            row->SetCurSel(c.selection);
            shown->UpdateWidgetPropByTree(row);
            EXPECT_NE(OwnPropertyLines(*shown).find(c.lines), std::string::npos);
        }
    }
}

TEST_F(UnlistedNameTest, TheHistoryListFindsNoVariablesOfAKeptDatabase)
{
    UseProject("<zqhistory><historydb name=\"boiler\"><history dataname=\"temperature\"/></historydb></zqhistory>",
               nullptr);
    const HmiWidgetPtr widget = Read("hislist", Line("historyname", "string", "plant2", "32"));
    const auto& list = dynamic_cast<const CHmiWidgetHisList&>(*widget);
    EXPECT_EQ(list.HistoryName(), "plant2");
    EXPECT_TRUE(GetHistoryVariableNames(list.HistoryName()).empty());
    EXPECT_EQ(GetHistoryVariableNames(list.HistoryNames().NameAt(0)), std::vector<std::string>{"temperature"});
}

TEST(CurvePreview, CountsAsLargeAsAFileCanHoldDrawOnlyWhatTheViewShows)
{
    // A plot of 540 x 370 pixels, at (30, 15), in a view of 640 x 480.
    CHmiWidgetCurve curve;
    curve.SetWidgetRect({0, 0, 600, 400});
    curve.m_nHLines = INT_MAX;
    curve.m_nVLines = INT_MAX;
    curve.m_nXPoints = INT_MAX;
    curve.m_nCurveNum = 1;
    const FixedSamples samples({0, 32767});
    RecordingDC dc;
    dc.clipBox = {0, 0, 640, 480};
    curve.Draw(dc);

    std::size_t gridLines = 0;
    for (const RecordingDC::Shape& line : dc.ShapesOfKind("line"))
        gridLines += line.pen.width == 1 ? 1 : 0;
    EXPECT_LE(gridLines, 540u + 370u) << "one grid line per pixel column and row of the plot";
    EXPECT_LE(dc.ShapesOfKind("text").size(), 2u * 640u) << "one label per pixel row and column";
    EXPECT_EQ(samples.taken, 65535u) << "the panel's 16-bit count of points";

    CHmiWidgetHisCurve margins;
    margins.SetWidgetRect({INT_MIN, INT_MIN, INT_MAX, INT_MAX});
    margins.m_nFrameHSpace = INT_MAX;
    margins.m_nFrameVSpace = INT_MIN;
    margins.m_nHLines = 1000000000;
    margins.m_nVLines = -1000000000;
    margins.m_nXPoints = INT_MAX;
    margins.m_fMinValue = -3e38f;
    margins.m_fMaxValue = 3e38f;
    RecordingDC view;
    view.clipBox = {0, 0, 640, 480};
    margins.Draw(view);
    EXPECT_LE(view.shapes.size(), 2u * 65535u + 2u * (640u + 480u));
}

TEST(CurvePreview, PointsPastTheViewAreNeitherSampledNorDrawn)
{
    CHmiWidgetCurve curve;
    curve.SetWidgetRect({0, 0, 600, 400});
    curve.m_nXPoints = 541; // one point per pixel column of the plot, x = 30 + p
    curve.m_nCurveNum = 1;
    const FixedSamples samples({16384});
    RecordingDC dc;
    dc.clipBox = {0, 0, 100, 100};
    curve.Draw(dc);
    EXPECT_EQ(samples.taken, 71u) << "the points at x 30 to 99 and the next one";
    EXPECT_EQ(dc.ShapesOfKind("line").back().rect.right, 100);
}

TEST(ListPicture, HeadingsStopAtTheEdgeOfTheListOrOfTheView)
{
    RecordingDC ends;
    ends.clipBox = {0, 0, 640, 480};
    DrawListPicture(ends, {INT_MIN, 0, INT_MAX, INT_MAX}, {{"a", INT_MAX}, {"b", INT_MAX}, {"c", INT_MIN}, {"d", 0}});
    const auto headings = ends.ShapesOfKind("text");
    ASSERT_EQ(headings.size(), 1u) << "the first column spans the list";
    EXPECT_EQ(headings[0].text, "a");

    RecordingDC view;
    view.clipBox = {0, 0, 100, 100};
    DrawListPicture(view, {0, 0, INT_MAX, 100}, std::vector<ListColumn>(100000, {"n", 10}));
    EXPECT_EQ(view.ShapesOfKind("text").size(), 10u) << "the headings that reach into the view";

    RecordingDC hidden;
    DrawListPicture(hidden, {0, 0, 200, 100}, {{"a", 40}, {"hidden", 0}, {"b", 40}});
    ASSERT_EQ(hidden.ShapesOfKind("text").size(), 2u) << "a column without width shows nothing";
    EXPECT_EQ(hidden.ShapesOfKind("rectangle")[2].rect, (HmiRect{40, 0, 80, 20}));
}
