#include "tests/support/fakeview.h"
#include "tests/support/tempdir.h"
#include "widgets/tamlodoc.h"
#include "tests/support/registrytest.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <functional>
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

struct TamloDocTest : BuiltinRegistryTest {
    void SetUp() override { savedCounter = CTamloDoc::WidgetNameCounter(); }
    void TearDown() override { CTamloDoc::WidgetNameCounter() = savedCounter; }

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
    doc.AddWidget(MakeGauge(), true);
    other.AddWidget(MakeGauge(), true);
    doc.AddWidget(MakeGauge("gauge5"), true);
    doc.AddWidget(MakeGauge(), true);
    EXPECT_EQ(NamesOf(doc), (std::vector<std::string>{"gauge3", "gauge5", "gauge6"})) << "gauge5 is taken";
    EXPECT_EQ(NamesOf(other), (std::vector<std::string>{"gauge4"})) << "the counter is shared by all documents";
    EXPECT_EQ(CTamloDoc::WidgetNameCounter(), 7);
}

TEST_F(TamloDocTest, AddingAtTheHeadOrTailAndRemoving)
{
    CTamloDoc doc;
    EXPECT_FALSE(doc.AddWidget(HmiWidgetPtr(new GaugeWidget(false)), true)) << "it failed to initialise";
    EXPECT_FALSE(doc.IsModified());
    doc.AddWidget(MakeGauge("b"), true);
    doc.AddWidget(MakeGauge("a"), false);
    doc.AddWidget(MakeGauge("c"), true);
    EXPECT_EQ(NamesOf(doc), (std::vector<std::string>{"a", "b", "c"}));
    // The widgets know their document, and names are case-sensitive.
    EXPECT_EQ(std::tuple(doc.Widgets()[0]->m_pDocument, doc.IsModified(), doc.HasWidgetName("B")),
              std::tuple(&doc, true, false));

    doc.RemoveWidget(doc.Widgets()[1].get());
    EXPECT_EQ(NamesOf(doc), (std::vector<std::string>{"a", "c"}));
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
        doc.AddWidget(MakeGauge("old"), true);
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
    EXPECT_FALSE(doc.IsModified());
}

TEST_F(TamloDocTest, ANewDocumentIsJustTheWindowUntilSavedUnderAPath)
{
    CTamloDoc doc;
    doc.OnNewDocument();
    ASSERT_EQ(doc.Widgets().size(), 1u);
    EXPECT_EQ(std::tuple(doc.Widgets()[0]->GetWidgetClassName(), doc.IsModified()), std::tuple("window", false));

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

namespace {

std::string KindsOf(DocChange what)
{
    static const char* const kNames[] = {"geometry", "properties", "bindings", "events", "added",
                                         "removed",  "order",      "modified", "reloaded"};
    std::string kinds;
    for (std::size_t bit = 0; bit < std::size(kNames); ++bit)
        if (HasAny(what, DocChange(1 << bit)))
            kinds += (kinds.empty() ? "" : "+") + std::string(kNames[bit]);
    return kinds;
}

// What an observer heard, a line per change: the document's own kinds, then each widget with
// its kinds and, when it moved, the top-left corner it had. Removed widgets are read while told.
struct RecordingObserver : CDocumentObserver {
    void DocumentChanged(const CDocumentChange& change) override
    {
        std::string line;
        DocChange ofWidgets = DocChange::None;
        for (const auto& [widget, what, before] : change.widgets) {
            ofWidgets |= what;
            line += " " + widget->GetWidgetName() + ":" + KindsOf(what);
            if (HasAny(what, DocChange::Geometry))
                line += "<" + std::to_string(before.left) + "," + std::to_string(before.top);
        }
        heard.push_back(KindsOf(DocChange(std::uint16_t(change.what) & ~std::uint16_t(ofWidgets))) + ";" + line);
    }
    std::vector<std::string> heard;
};

// A window with gauges a (10,10)-(50,50) and b (60,10)-(90,40), unmodified.
struct EditedWindow {
    EditedWindow()
    {
        doc.OnNewDocument();
        doc.AddWidget(MakeGauge("a"), true);
        doc.AddWidget(MakeGauge("b"), true);
        window = doc.Widgets()[0].get();
        a = doc.Widgets()[1].get();
        b = doc.Widgets()[2].get();
        a->SetWidgetRect({10, 10, 50, 50});
        b->SetWidgetRect({60, 10, 90, 40});
        doc.SetModifiedFlag(false);
    }
    void DragBoth()
    {
        CUndoStepGuard step(doc);
        for (CHmiWidget* widget : {a, b}) {
            step.Record(UndoOperation::Changed, widget);
            const HmiRect r = widget->GetWidgetRect();
            widget->MoveTo({r.left + 5, r.top + 5, r.right + 5, r.bottom + 5}, nullptr);
        }
    }
    void Delete(CHmiWidget* widget) { CUndoStepGuard(doc).Record(UndoOperation::Deleted, widget); }
    void Paste()
    {
        CUndoStepGuard step(doc);
        doc.AddWidget(MakeGauge("c"), true);
        step.Record(UndoOperation::Added, doc.Widgets().back().get());
    }

    CTamloDoc doc;
    CHmiWidget* window = nullptr;
    CHmiWidget* a = nullptr;
    CHmiWidget* b = nullptr;
};

// Keeps what leaves the document, as an undo history does.
struct KeepingHistory : CDocumentHistory {
    void DocumentChanged(const CDocumentChange& change) override { told.push_back(change.what); }
    void KeepRemovedWidget(HmiWidgetPtr widget) override { kept.push_back(std::move(widget)); }
    std::vector<DocChange> told;
    std::vector<HmiWidgetPtr> kept;
};

} // namespace

// Each edit is told once, as one change, after it is complete; and every edit that marks the
// document modified counts a revision, for the recovery copies.
TEST_F(TamloDocTest, EveryEditIsToldOnceAndCountsARevision)
{
    const std::string file = dir.Write("one.xml", "<hmiwidget>" + WidgetXml("t", "timer") + "</hmiwidget>");
    using Edit = std::function<void(EditedWindow&)>;
    const auto none = [](EditedWindow&) {};
    const struct {
        const char* name;
        Edit prepare;
        Edit edit;
        std::vector<std::string> heard;
        bool revises;
    } rows[] = {
        {"adding", none, [](EditedWindow& w) { w.doc.AddWidget(MakeGauge("c"), true); }, {"modified; c:added"}, true},
        {"removing", none, [](EditedWindow& w) { w.doc.RemoveWidget(w.a); }, {"modified; a:removed"}, true},
        {"reordering", none, [](EditedWindow& w) { w.doc.MoveWidget(w.a, 3); }, {"modified; a:order"}, true},
        {"a widget moving itself", none, [](EditedWindow& w) { w.a->MoveTo({0, 0, 5, 5}, nullptr); },
         {"modified; a:geometry<10,10"}, true},
        {"a drag in one undo step", none, [](EditedWindow& w) { w.DragBoth(); },
         {"modified; a:geometry<10,10 b:geometry<60,10"}, true},
        {"a click", none, [](EditedWindow& w) { CUndoStepGuard(w.doc).Record(UndoOperation::Changed, w.a); }, {},
         false},
        {"deleting", none, [](EditedWindow& w) { w.Delete(w.a); }, {"modified; a:removed"}, true},
        {"pasting", none, [](EditedWindow& w) { w.Paste(); }, {"modified; c:added"}, true},
        {"undoing a drag", [](EditedWindow& w) { w.DragBoth(); }, [](EditedWindow& w) { w.doc.Undo(); },
         {"; b:geometry<65,15 a:geometry<15,15"}, true},
        {"undoing a deletion", [](EditedWindow& w) { w.Delete(w.b); }, [](EditedWindow& w) { w.doc.Undo(); },
         {"; b:added"}, true},
        {"undoing a paste", [](EditedWindow& w) { w.Paste(); }, [](EditedWindow& w) { w.doc.Undo(); },
         {"; c:removed"}, true},
        {"an edit that moves", none,
         [](EditedWindow& w) {
             w.a->SetWidgetRect({20, 10, 60, 50});
             w.doc.WidgetChanged(*w.a, DocChange::Properties, {10, 10, 50, 50});
         },
         {"modified; a:geometry+properties<10,10"}, true},
        {"putting a widget back", none, [](EditedWindow& w) { w.doc.PutBackWidget(MakeGauge("c"), 1); },
         {"modified; c:added"}, true},
        {"replacing a widget", none, [](EditedWindow& w) { w.doc.ReplaceWidget(w.a, MakeGauge("new")); },
         {"modified; a:removed new:added"}, true},
        {"restoring an order", none, [](EditedWindow& w) { w.doc.RestoreOrder({w.b, w.a, w.window}); },
         {"modified; b:order window:order"}, true},
        {"an order of other widgets", none, [](EditedWindow& w) { w.doc.RestoreOrder({w.a, w.a, w.b}); }, {}, false},
        {"loading", none, [&file](EditedWindow& w) { w.doc.Load(file); }, {"reloaded;"}, true},
        {"saving", [](EditedWindow& w) { w.doc.SetModifiedFlag(); },
         [this](EditedWindow& w) { w.doc.Save(dir.Path("saved.xml")); }, {"modified;"}, false},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        RecordingObserver observer; // outlives the document, which tells it that it goes
        EditedWindow window;
        window.doc.AddObserver(&observer);
        row.prepare(window);
        observer.heard.clear();
        const std::uint64_t revision = window.doc.Revision();
        row.edit(window);
        EXPECT_EQ(observer.heard, row.heard);
        EXPECT_EQ(window.doc.Revision() != revision, row.revises);
    }
}

// With a history, a deleted widget leaves the list at once and lives on in the history, which
// can put the same object back; the document keeps no undo step of its own.
TEST_F(TamloDocTest, AHistoryKeepsTheWidgetsThatLeaveTheDocument)
{
    EditedWindow window;
    window.Delete(window.b); // the document's own step, which the history ends
    KeepingHistory history;
    window.doc.SetHistory(&history);
    EXPECT_EQ(NamesOf(window.doc), (std::vector<std::string>{"window", "a"}));
    EXPECT_TRUE(history.kept.empty()) << "the document's own step destroyed its deleted widget";

    window.Delete(window.a);
    EXPECT_EQ(NamesOf(window.doc), std::vector<std::string>{"window"});
    ASSERT_EQ(history.kept.size(), 1u);
    EXPECT_EQ(history.kept.front().get(), window.a);
    EXPECT_EQ(history.told, std::vector<DocChange>{DocChange::Removed}) << "the history hears first";
    EXPECT_FALSE(window.doc.CanUndo());
    EXPECT_EQ(window.doc.Serialize().find("\"a\""), std::string::npos);

    window.doc.PutBackWidget(std::move(history.kept.front()), 5);
    EXPECT_EQ(window.doc.Widgets().back().get(), window.a);
    window.doc.SetHistory(nullptr);
}
