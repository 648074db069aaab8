// The main frame's menus, files and windows, driven through its actions.
#include "editorfixture.h"

#include "editor/projectdialogs/tests/dialogdriver.h"
#include "project/projectpath.h"
#include "catalogue/builtinwidgets.h"

#include <QAction>
#include <QDialog>
#include <QFile>
#include <QTreeWidget>

namespace {

std::vector<std::string> DrawingOrder(const CTamloDoc& document)
{
    std::vector<std::string> names;
    for (const HmiWidgetPtr& widget : document.Widgets())
        names.push_back(widget->GetWidgetName());
    return names;
}

} // namespace

class MainFrameTest : public QObject {
    Q_OBJECT

private:
    std::unique_ptr<EditorUnderTest> editor;

    QAction* Action(const char* name) const
    {
        auto* action = editor->frame.findChild<QAction*>(QString::fromLatin1(name));
        if (!action)
            qFatal("no action %s", name);
        return action;
    }
    QString FilePath(const QString& name) const { return editor->folder.filePath(name); }

private slots:
    void initTestCase() { RegisterBuiltinWidgetClasses(); }

    void init() { editor = std::make_unique<EditorUnderTest>(); }
    void cleanup() { editor.reset(); }

    // Each action runs its command on the selection; the rows pin what each command computes.
    void formatCommandsChangeTheSelection_data()
    {
        QTest::addColumn<QString>("action");
        QTest::addColumn<HmiRect>("first");
        QTest::addColumn<HmiRect>("second");
        QTest::addColumn<HmiRect>("reference");
        // Selected in this order: a, b, then the reference c.
        using R = HmiRect;
        const R a{10, 10, 41, 30}, b{60, 50, 100, 90}, c{10, 100, 110, 140};
        QTest::newRow("align left") << "actionAlignLeft" << a << R{10, 50, 50, 90} << c;
        QTest::newRow("center horizontal") << "actionCenterHorizontal" << R{45, 10, 75, 30} << R{40, 50, 80, 90} << c;
        QTest::newRow("align right") << "actionAlignRight" << R{79, 10, 110, 30} << R{70, 50, 110, 90} << c;
        QTest::newRow("align top") << "actionAlignTop" << R{10, 100, 41, 120} << R{60, 100, 100, 140} << c;
        QTest::newRow("center vertical") << "actionCenterVertical" << R{10, 110, 41, 130} << R{60, 100, 100, 140} << c;
        QTest::newRow("align bottom") << "actionAlignBottom" << R{10, 120, 41, 140} << R{60, 100, 100, 140} << c;
        QTest::newRow("same width") << "actionSameWidth" << R{10, 10, 110, 30} << R{60, 50, 160, 90} << c;
        QTest::newRow("same height") << "actionSameHeight" << R{10, 10, 41, 50} << b << c;
        QTest::newRow("same size") << "actionSameSize" << R{10, 10, 110, 50} << R{60, 50, 160, 90} << c;
        // The canvas's own menu names the two spacing commands the other way round.
        QTest::newRow("space down") << "actionSpaceHorizontal" << R{70, 10, 101, 30} << R{61, 50, 101, 90} << c;
        QTest::newRow("context across") << "contextSpaceHorizontal" << R{70, 10, 101, 30} << R{61, 50, 101, 90} << c;
        QTest::newRow("space across") << "actionSpaceVertical" << a << R{60, 45, 100, 85} << c;
        QTest::newRow("context down") << "contextSpaceVertical" << a << R{60, 45, 100, 85} << c;
        QTest::newRow("zoom 50%") << "actionZoom" << R{10, 10, 25, 20} << R{35, 30, 55, 50} << R{10, 55, 60, 75};
    }

    void formatCommandsChangeTheSelection()
    {
        QFETCH(QString, action);
        CTamloView& view = editor->NewWindow().View();
        const std::vector<CHmiWidget*> widgets{AddRect(view.Document(), {10, 10, 41, 30}),
                                               AddRect(view.Document(), {60, 50, 100, 90}),
                                               AddRect(view.Document(), {10, 100, 110, 140})};
        for (CHmiWidget* widget : widgets)
            view.Selection().Select(widget, widget != widgets.front());
        editor->prompts.zoomPercent = 50;
        Action(action.toLatin1().constData())->trigger();
        QTEST(widgets[0]->GetWidgetRect(), "first");
        QTEST(widgets[1]->GetWidgetRect(), "second");
        QTEST(widgets[2]->GetWidgetRect(), "reference");

        // A zoom the user cancels changes nothing.
        editor->prompts.zoomPercent.reset();
        const HmiRect before = widgets[0]->GetWidgetRect();
        Action("actionZoom")->trigger();
        QCOMPARE(widgets[0]->GetWidgetRect(), before);
    }

    void sequenceMovesTheEarliestSelectedWidgetWithoutUndo()
    {
        CTamloView& view = editor->NewWindow().View();
        CTamloDoc& document = view.Document();
        CHmiWidget* a = AddRect(document, {0, 0, 10, 10});
        CHmiWidget* b = AddRect(document, {20, 0, 30, 10});
        AddRect(document, {40, 0, 50, 10});
        const std::vector<std::string> before = DrawingOrder(document);
        view.Selection().Select(a, false);
        view.Selection().Select(b, true);
        Action("actionMoveToTop")->trigger();
        QCOMPARE(DrawingOrder(document), (std::vector<std::string>{before[0], before[2], before[3], before[1]}));
        Action("actionMoveToBottom")->trigger();
        QCOMPARE(DrawingOrder(document), before);
        QVERIFY(!document.CanUndo());
    }

    // A save that fails says why and keeps the window modified and unnamed; closing asks first.
    void savingOrClosingAModifiedWindow()
    {
        CChildFrame& child = editor->NewWindow();
        AddRect(child.Document(), {0, 0, 10, 10});
        editor->prompts.saveFileName = FilePath(QStringLiteral("missing/window.xml"));
        QVERIFY(!child.Save());
        QCOMPARE(editor->prompts.errors.size(), 1);
        QCOMPARE(editor->prompts.errors.first().count(QStringLiteral("missing/window.xml")), 1);
        QVERIFY(child.Document().IsModified());
        QVERIFY(child.DisplayName().startsWith(QStringLiteral("Tamlo")));

        editor->prompts.saveAnswer = CEditorPrompts::SaveAnswer::Cancel;
        QVERIFY(!child.close());
        QCOMPARE(editor->prompts.savedQuestions, QStringList{child.DisplayName()});
        editor->prompts.saveAnswer = CEditorPrompts::SaveAnswer::Save;
        editor->prompts.saveFileName = FilePath(QStringLiteral("saved.xml"));
        QVERIFY(child.close());
        QCOMPARE(editor->frame.RecentFiles().Files(), QStringList{FilePath(QStringLiteral("saved.xml"))});
    }

    void aSecondWindowOpensMaximizedAndQuittingAsksForBoth()
    {
        CChildFrame& first = editor->NewWindow();
        first.showMaximized();
        CChildFrame& second = editor->NewWindow();
        QCOMPARE(second.geometry(), second.parentWidget()->rect());
        AddRect(first.Document(), {0, 0, 10, 10});
        AddRect(second.Document(), {0, 0, 10, 10});
        editor->prompts.saveAnswer = CEditorPrompts::SaveAnswer::Discard;
        QVERIFY(editor->frame.close());
        QCOMPARE(editor->prompts.savedQuestions.size(), 2);

        editor->frame.show();
        editor->prompts.saveAnswer = CEditorPrompts::SaveAnswer::Cancel;
        QVERIFY(!editor->frame.close());
    }

    void openingFilesKeepsTheRecentList()
    {
        QStringList paths;
        for (int i = 0; i < 5; ++i) {
            CChildFrame& child = editor->NewWindow();
            paths.prepend(FilePath(QStringLiteral("w%1.xml").arg(i)));
            editor->prompts.saveFileName = paths.first();
            QVERIFY(child.SaveAs());
        }
        QCOMPARE(editor->frame.RecentFiles().Files(), paths.mid(0, 4));

        // An open file is shown, not opened twice.
        QCOMPARE(editor->frame.OpenDocument(paths.last()), editor->frame.Children().first());

        // A file that cannot be read says why and leaves the recent list.
        QVERIFY(WriteBytes(paths.first(), "<window"));
        qDeleteAll(editor->frame.Children());
        QVERIFY(!editor->frame.OpenDocument(paths.first()));
        QCOMPARE(editor->prompts.errors.size(), 1);
        QCOMPARE(editor->prompts.errors.first().count(paths.first()), 1);
        QVERIFY(!editor->frame.RecentFiles().Files().contains(paths.first()));
    }

    void openingAFileTellsWhatTheReaderNoted()
    {
        const QString path = FilePath(QStringLiteral("euro.xml"));
        QVERIFY(WriteBytes(path, "<?xml version=\"1.0\" encoding=\"UTF-8\"?>"
                                 "<hmiwidget><widget name=\"price \xE2\x82\xAC\" class=\"text\"/></hmiwidget>"));
        QVERIFY(editor->frame.OpenDocument(path));
        QTRY_COMPARE(editor->prompts.information.size(), 1);
        QVERIFY(editor->prompts.information.first().contains(QStringLiteral("euro.xml")));
        QVERIFY(editor->prompts.information.first().contains(QStringLiteral("character references")));
        QVERIFY(editor->prompts.errors.isEmpty());
    }

    void openProjectWindowOpensTheChosenWindow()
    {
        const QString project = QFINDTESTDATA("../../../examples/demo/hmiwindow.xml").section('/', 0, -2);
        QVERIFY(!project.isEmpty());
        SetProjectPath(QFile::encodeName(project).toStdString());
        editor->prompts.projectDialogs.runDialog = DriveWith([](QDialog& dialog) {
            auto* list = dialog.findChild<QTreeWidget*>();
            list->setCurrentItem(list->topLevelItem(0)); // the last window of the list comes first
            ClickButton(dialog, QStringLiteral("OK"));
        });
        Action("actionOpenProjectWindow")->trigger();
        SetProjectPath({});
        QCOMPARE(editor->frame.Children().size(), 1);
        QCOMPARE(editor->frame.ActiveChild()->DisplayName(), QStringLiteral("trends.xml"));
    }
};

QTEST_MAIN(MainFrameTest)
#include "mainframe_test.moc"
