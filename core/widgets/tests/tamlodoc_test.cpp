#include "catalogue/builtinwidgets.h"
#include "tests/support/fakeview.h"
#include "tests/support/recordingnamelist.h"
#include "tests/support/tempdir.h"
#include "widgets/tamlodoc.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <tuple>
#include <utility>

namespace {

struct GaugeWidget : CHmiWidget {
    explicit GaugeWidget(bool initialises = true) : initialises(initialises) {}
    std::string GetWidgetClassName() const override { return "gauge"; }
    bool Init() override { return initialises; }
    const bool initialises;
};

std::vector<std::string> NamesOf(const CTamloDoc& doc)
{
    std::vector<std::string> names;
    for (const HmiWidgetPtr& widget : doc.Widgets())
        names.push_back(widget->GetWidgetName());
    return names;
}

HmiWidgetPtr MakeGauge(const std::string& name = {})
{
    HmiWidgetPtr widget(new GaugeWidget);
    widget->SetWidgetName(name);
    return widget;
}

struct TamloDocTest : ::testing::Test {
    void SetUp() override
    {
        CHmiWidget::RemoveAllRunTimeClass();
        RegisterBuiltinWidgetClasses();
        savedCounter = CTamloDoc::WidgetNameCounter();
    }
    void TearDown() override
    {
        CTamloDoc::WidgetNameCounter() = savedCounter;
        CHmiWidget::RemoveAllRunTimeClass();
    }

    std::string WidgetXml(const char* name, const char* classKey, const char* properties = "")
    {
        return std::string("<widget name=\"") + name + "\" class=\"" + classKey + "\"><properties>" + properties +
               "</properties></widget>";
    }

    int savedCounter = 1;
    TempDir dir;
};

} // namespace

TEST_F(TamloDocTest, NewWidgetsAreNamedFromTheSharedCounterSkippingTakenNames)
{
    CTamloDoc doc, other;
    CTamloDoc::WidgetNameCounter() = 3;
    doc.AddWidget(MakeGauge(), true, false);
    other.AddWidget(MakeGauge(), true, false);
    doc.AddWidget(MakeGauge("gauge5"), true, false);
    doc.AddWidget(MakeGauge(), true, false);
    EXPECT_EQ(NamesOf(doc), (std::vector<std::string>{"gauge3", "gauge5", "gauge6"})) << "gauge5 is taken";
    EXPECT_EQ(NamesOf(other), (std::vector<std::string>{"gauge4"})) << "the counter is shared by all documents";
    EXPECT_EQ(CTamloDoc::WidgetNameCounter(), 7);
}

TEST_F(TamloDocTest, AddingAtTheHeadOrTailAndRemoving)
{
    CTamloDoc doc;
    RecordingNameList names;
    doc.SetWidgetNameList(&names);
    EXPECT_FALSE(doc.AddWidget(HmiWidgetPtr(new GaugeWidget(false)), true, false)) << "it failed to initialise";
    EXPECT_FALSE(doc.IsModified());
    doc.AddWidget(MakeGauge("b"), true, false);
    doc.AddWidget(MakeGauge("a"), false, false);
    doc.AddWidget(MakeGauge("c"), true, true);
    EXPECT_EQ(NamesOf(doc), (std::vector<std::string>{"a", "b", "c"}));
    // The widgets know their document, and names are case-sensitive.
    EXPECT_EQ(std::tuple(doc.Widgets()[0]->m_pDocument, doc.IsModified(), doc.HasWidgetName("B")),
              std::tuple(&doc, true, false));

    doc.RemoveWidget(doc.Widgets()[1].get());
    EXPECT_EQ(NamesOf(doc), (std::vector<std::string>{"a", "c"}));
    EXPECT_EQ(names.log, (std::vector<std::string>{"add b", "add a", "add c selected", "remove b"}));
}

TEST_F(TamloDocTest, UnreadableFilesGiveAWindowAndAReason)
{
    const std::pair<std::string, std::string> cases[] = {
        {dir.Path("missing.xml"), "No such file"},
        {dir.Write("broken.xml", "<hmiwidget><widget"), "not well-formed XML"},
        {dir.Write("other.xml", "<hmiwindow/>"), "<hmiwindow>"},
    };
    // Why a file cannot be read at all (a folder, a device, no permission) is tested in fileio_test.
    for (const auto& [path, reason] : cases) {
        CTamloDoc doc;
        doc.AddWidget(MakeGauge("old"), true, false);
        const FileResult result = doc.Load(path);
        EXPECT_FALSE(result) << path;
        EXPECT_NE(result.error.find(reason), std::string::npos) << result.error;
        const std::size_t named = result.error.find(path);
        EXPECT_TRUE(named != std::string::npos && named == result.error.rfind(path)) << "names the path once: " << result.error;
        EXPECT_EQ(NamesOf(doc), (std::vector<std::string>{"window"}));
    }
}

TEST_F(TamloDocTest, LoadingDropsMalformedWidgetsAndGivesTheRestInReverseAfterAWindow)
{
    const std::string path = dir.Write(
        "mixed.xml",
        "<hmiwidget>" + WidgetXml("first", "timer") + WidgetXml("", "timer") + WidgetXml("noclass", "") +
            WidgetXml("untyped", "timer", "<property name=\"left\" type=\"\" value=\"1\"/>") +
            WidgetXml("unnamed", "timer", "<property name=\"\" type=\"short\" value=\"1\"/>") +
            "<widget name=\"badevent\" class=\"timer\"><events><event name=\"timer\"></event></events></widget>"
            "<widget name=\"baddynamic\" class=\"timer\"><dynamics><dynamic propname=\"left\"/></dynamics></widget>"
            "<widget name=\"nosuchprop\" class=\"timer\"><dynamics>"
            "<dynamic propname=\"colour\" expression=\"x\"/><dynamic propname=\"left\" expression=\"$db.x\"/>"
            "</dynamics><extra/></widget>"
            "<other name=\"x\" class=\"timer\"/>" +
            WidgetXml("last", "timer", "<property name=\"left\" type=\"short\" value=\"7\"/><ignored/>") +
            "</hmiwidget>");
    CTamloDoc doc;
    FakeView view;
    doc.AddView(&view);
    ASSERT_TRUE(doc.Load(path));
    EXPECT_EQ(NamesOf(doc), (std::vector<std::string>{"window", "last", "nosuchprop", "first"}));
    EXPECT_EQ(std::tuple(doc.Widgets()[1]->GetWidgetRect().left, doc.Widgets()[1]->m_pView), std::tuple(7, &view));
    EXPECT_EQ(doc.Widgets()[2]->FindProperty("left")->m_strExpression, "$db.x");
    EXPECT_EQ(std::tuple(view.wholeViewInvalidations, doc.IsModified()), std::tuple(1, false));
}

TEST_F(TamloDocTest, ANewDocumentIsJustTheWindowUntilSavedUnderAPath)
{
    CTamloDoc doc;
    RecordingNameList names;
    doc.SetWidgetNameList(&names);
    doc.OnNewDocument();
    ASSERT_EQ(doc.Widgets().size(), 1u);
    EXPECT_EQ(std::tuple(doc.Widgets()[0]->GetWidgetClassName(), doc.IsModified()), std::tuple("window", false));
    EXPECT_EQ(names.log, (std::vector<std::string>{"add window selected"}));

    // Replacing the file whole and keeping its permissions is tested in fileio_test.
    doc.SetModifiedFlag();
    const std::string path = dir.Write("window.xml", "old bytes");
    ASSERT_TRUE(doc.Save(path));
    EXPECT_EQ(std::tuple(doc.GetPathName(), doc.GetPictureFolder()), std::tuple(path, dir.Path("")));
    EXPECT_EQ(dir.Read("window.xml"), doc.Serialize());
    EXPECT_FALSE(doc.IsModified());
}

TEST_F(TamloDocTest, HugeFilesAndLongValuesLoadUpToTheParsersLimit)
{
    constexpr int kWidgets = 200000;
    std::string many = "<hmiwidget>";
    for (int i = 0; i < kWidgets; ++i)
        many += "<widget name=\"w" + std::to_string(i) + "\" class=\"timer\"/>";
    CTamloDoc doc;
    const FileResult loaded = doc.Load(dir.Write("many.xml", many + "</hmiwidget>"));
    ASSERT_TRUE(loaded) << loaded.error;
    EXPECT_EQ(doc.Widgets().size(), std::size_t(kWidgets) + 1) << "every widget and the window";

    auto fileWithValueOf = [](std::size_t length) {
        return "<hmiwidget><widget name=\"long\" class=\"gauge\"><properties><property name=\"text\" "
               "type=\"string\" value=\"" + std::string(length, 'x') + "\"/></properties></widget></hmiwidget>";
    };
    ASSERT_TRUE(doc.Load(dir.Write("long.xml", fileWithValueOf(4 << 20))));
    EXPECT_EQ(doc.Widgets().size(), 2u);
    // Beyond ten million bytes the parser refuses the file: the document is then just a window.
    EXPECT_FALSE(doc.Load(dir.Write("longer.xml", fileWithValueOf(11000000))));
    EXPECT_EQ(NamesOf(doc), (std::vector<std::string>{"window"}));
}

TEST_F(TamloDocTest, EveryWayOfMarkingTheDocumentModifiedCountsARevision)
{
    CTamloDoc doc;
    doc.OnNewDocument();
    std::uint64_t seen = doc.Revision();
    const auto counted = [&doc, &seen] { return std::exchange(seen, doc.Revision()) != doc.Revision(); };

    ASSERT_TRUE(doc.AddWidget(MakeGauge("g"), true, false));
    CHmiWidget* gauge = doc.Widgets().back().get();
    EXPECT_TRUE(counted()) << "adding";
    doc.MoveWidget(gauge, 0);
    EXPECT_TRUE(counted()) << "reordering";
    CUndoStepGuard(doc).Record(UndoOperation::Changed, gauge);
    EXPECT_FALSE(counted()) << "a click that moved nothing";
    {
        CUndoStepGuard drag(doc);
        drag.Record(UndoOperation::Changed, gauge);
        gauge->SetWidgetRect({1, 2, 30, 40});
    }
    EXPECT_TRUE(counted()) << "an undo step that changed a rectangle";
    doc.Undo();
    EXPECT_TRUE(counted()) << "undo";
    gauge->MoveTo({5, 5, 50, 50}, nullptr);
    EXPECT_TRUE(counted()) << "a widget editing itself";
    doc.SetModifiedFlag();
    EXPECT_TRUE(counted()) << "a further change to a document that is modified already";

    ASSERT_TRUE(doc.Save(dir.Path("revision.xml")));
    EXPECT_FALSE(counted()) << "saving";
    doc.SetModifiedFlag(false);
    EXPECT_FALSE(counted()) << "clearing the flag";
    doc.RemoveWidget(gauge);
    EXPECT_TRUE(counted()) << "removing";
}
