// The main frame's menus, files and windows, driven through its actions.
#include "editorfixture.h"

#include "editor/app/toolbox.h"
#include "editor/projectdialogs/tests/dialogdriver.h"
#include "project/projectpath.h"
#include "widgets/catalogue/builtinwidgets.h"

#include <QAction>
#include <QDialog>
#include <QDir>
#include <QFile>
#include <QMdiArea>
#include <QMenu>
#include <QMenuBar>
#include <QTreeWidget>

namespace {

QStringList Labels(const QMenu& menu)
{
    QStringList labels;
    for (const QAction* action : menu.actions())
        labels << (action->isSeparator() ? QStringLiteral("-") : action->text());
    return labels;
}

QMenu* Submenu(const QMenu& menu, const QString& title)
{
    for (const QAction* action : menu.actions())
        if (action->menu() && action->text() == title)
            return action->menu();
    return nullptr;
}

QMenu* MenuBarMenu(const QMainWindow& frame, const QString& title)
{
    for (const QAction* action : frame.menuBar()->actions())
        if (action->text() == title)
            return action->menu();
    return nullptr;
}

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
    void initTestCase()
    {
        CHmiWidget::RemoveAllRunTimeClass();
        RegisterBuiltinWidgetClasses();
    }

    void init() { editor = std::make_unique<EditorUnderTest>(); }
    void cleanup() { editor.reset(); }

    void formatMenusCarryTheirLabels()
    {
        QMenu* format = MenuBarMenu(editor->frame, QStringLiteral("F&ormat"));
        QVERIFY(format);
        QCOMPARE(Labels(*format), (QStringList{"Align(&A)", "Make Same Size", "Space Down", "Space Across",
                                              "Lock Control", "Sequence"}));
        QCOMPARE(Labels(*Submenu(*format, "Align(&A)")),
                 (QStringList{"Align Left", "Center Horizontal", "Align Right", "-", "Align Top", "Center Vertical",
                              "Align Bottom"}));
        QCOMPARE(Labels(*Submenu(*format, "Make Same Size")),
                 (QStringList{"Make Same Width", "Make Same Height", "Make Same Size"}));
        QCOMPARE(Labels(*Submenu(*format, "Sequence")), (QStringList{"Move to Top", "Move to Bottom"}));

        // The canvas's own menu names the spacing commands the other way round and can zoom.
        editor->NewWindow();
        QMenu* context = editor->frame.findChildren<QMenu*>().constFirst();
        for (QMenu* menu : editor->frame.findChildren<QMenu*>())
            if (menu->actions().size() == 7 && menu->actions().last()->text() == "Zoom...")
                context = menu;
        QCOMPARE(Labels(*context), (QStringList{"Align(&A)", "Make Same Size", "Space Across", "Space Down",
                                               "Lock Control", "Sequence", "Zoom..."}));
        QCOMPARE(context->actions().at(2)->statusTip(), QStringLiteral("Set Space Down"));
        QCOMPARE(Action("actionAlignLeft")->statusTip(), QStringLiteral("Set Align Left"));
        QCOMPARE(Action("actionAlignLeft")->toolTip(), QStringLiteral("Align Left"));
        QCOMPARE(Action("actionZoom")->statusTip(), QStringLiteral("Zoom Widget of  Selected"));

        QMenu* edit = MenuBarMenu(editor->frame, QStringLiteral("&Edit"));
        QCOMPARE(edit->actions().first()->text(), QStringLiteral("Undo(&U)\tCtrl+Z"));
    }

    void formatCommandsChangeTheSelection_data()
    {
        QTest::addColumn<QString>("action");
        QTest::addColumn<HmiRect>("first");
        QTest::addColumn<HmiRect>("second");
        QTest::addColumn<HmiRect>("reference");
        // Selected in this order: (10, 10, 41, 30), (60, 50, 100, 90), then the reference (10, 100, 110, 140).
        const HmiRect a{10, 10, 41, 30};
        const HmiRect b{60, 50, 100, 90};
        const HmiRect c{10, 100, 110, 140};
        QTest::newRow("align left") << "actionAlignLeft" << a << HmiRect{10, 50, 50, 90} << c;
        QTest::newRow("center horizontal loses a pixel of an odd width")
            << "actionCenterHorizontal" << HmiRect{45, 10, 75, 30} << HmiRect{40, 50, 80, 90} << c;
        QTest::newRow("align right") << "actionAlignRight" << HmiRect{79, 10, 110, 30} << HmiRect{70, 50, 110, 90}
                                     << c;
        QTest::newRow("align top") << "actionAlignTop" << HmiRect{10, 100, 41, 120} << HmiRect{60, 100, 100, 140}
                                   << c;
        QTest::newRow("center vertical") << "actionCenterVertical" << HmiRect{10, 110, 41, 130}
                                         << HmiRect{60, 100, 100, 140} << c;
        QTest::newRow("align bottom") << "actionAlignBottom" << HmiRect{10, 120, 41, 140}
                                      << HmiRect{60, 100, 100, 140} << c;
        QTest::newRow("same width") << "actionSameWidth" << HmiRect{10, 10, 110, 30} << HmiRect{60, 50, 160, 90}
                                    << c;
        QTest::newRow("same height") << "actionSameHeight" << HmiRect{10, 10, 41, 50} << b << c;
        QTest::newRow("same size") << "actionSameSize" << HmiRect{10, 10, 110, 50} << HmiRect{60, 50, 160, 90} << c;
        // By left: the reference, the first, the second; gap (100 - 10 - 171) / 2 truncates to -40.
        QTest::newRow("space down") << "actionSpaceHorizontal" << HmiRect{70, 10, 101, 30}
                                    << HmiRect{61, 50, 101, 90} << c;
        QTest::newRow("space across, context menu")
            << "contextSpaceHorizontal" << HmiRect{70, 10, 101, 30} << HmiRect{61, 50, 101, 90} << c;
        // By top: gap (140 - 10 - 100) / 2 = 15.
        QTest::newRow("space across") << "actionSpaceVertical" << a << HmiRect{60, 45, 100, 85} << c;
        QTest::newRow("space down, context menu") << "contextSpaceVertical" << a << HmiRect{60, 45, 100, 85} << c;
        // Half size about the selection's top-left corner (10, 10).
        QTest::newRow("zoom 50%") << "actionZoom" << HmiRect{10, 10, 25, 20} << HmiRect{35, 30, 55, 50}
                                  << HmiRect{10, 55, 60, 75};
    }

    void formatCommandsChangeTheSelection()
    {
        QFETCH(QString, action);
        QFETCH(HmiRect, first);
        QFETCH(HmiRect, second);
        QFETCH(HmiRect, reference);
        CTamloView& view = editor->NewWindow().View();
        CTamloDoc& document = view.Document();
        const std::vector<CHmiWidget*> widgets{AddRect(document, {10, 10, 41, 30}),
                                               AddRect(document, {60, 50, 100, 90}),
                                               AddRect(document, {10, 100, 110, 140})};
        for (CHmiWidget* widget : widgets)
            view.Selection().Select(widget, widget != widgets.front());
        editor->prompts.zoomPercent = 50;

        Action(action.toLatin1().constData())->trigger();
        QCOMPARE(widgets[0]->GetWidgetRect(), first);
        QCOMPARE(widgets[1]->GetWidgetRect(), second);
        QCOMPARE(widgets[2]->GetWidgetRect(), reference);

        Action("actionSameSize")->trigger(); // a later command replaces the step, Undo reverts only it
        Action("actionSameSize")->trigger();
        QTest::keyClick(&view, Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(widgets[0]->GetWidgetRect(),
                 (HmiRect{first.left, first.top, first.left + reference.Width(), first.top + reference.Height()}));
    }

    void zoomCancelledChangesNothing()
    {
        CTamloView& view = editor->NewWindow().View();
        CHmiWidget* widget = AddRect(view.Document(), {10, 10, 30, 30});
        view.Selection().Select(widget, false);
        editor->prompts.zoomPercent.reset();
        Action("actionZoom")->trigger();
        QCOMPARE(widget->GetWidgetRect(), (HmiRect{10, 10, 30, 30}));
        QVERIFY(!view.Document().CanUndo());
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

    void closingAModifiedWindowAsksToSave()
    {
        CChildFrame& child = editor->NewWindow();
        AddRect(child.Document(), {0, 0, 10, 10});
        editor->prompts.saveAnswer = CEditorPrompts::SaveAnswer::Cancel;
        QVERIFY(!child.close());
        QCOMPARE(editor->prompts.savedQuestions, QStringList{child.DisplayName()});
        QCOMPARE(editor->frame.Children().size(), 1);

        editor->prompts.saveAnswer = CEditorPrompts::SaveAnswer::Save;
        editor->prompts.saveFileName = FilePath(QStringLiteral("saved.xml"));
        QVERIFY(child.close());
        QVERIFY(QFile::exists(FilePath(QStringLiteral("saved.xml"))));
        QCOMPARE(editor->frame.RecentFiles().Files(), QStringList{FilePath(QStringLiteral("saved.xml"))});
    }

    void aFailedSaveSaysWhyAndKeepsTheDocumentModified()
    {
        CChildFrame& child = editor->NewWindow();
        AddRect(child.Document(), {0, 0, 10, 10});
        editor->prompts.saveFileName = FilePath(QStringLiteral("missing/window.xml"));
        QVERIFY(!child.Save());
        QCOMPARE(editor->prompts.errors.size(), 1);
        QVERIFY(editor->prompts.errors.first().contains(QStringLiteral("missing/window.xml")));
        QVERIFY(child.Document().IsModified());
        QVERIFY(child.DisplayName().startsWith(QStringLiteral("Tamlo")));
    }

    void quittingAsksForEveryModifiedWindow()
    {
        CChildFrame& first = editor->NewWindow();
        CChildFrame& second = editor->NewWindow();
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
        const qsizetype open = editor->frame.Children().size();
        QCOMPARE(editor->frame.OpenDocument(paths.last()), editor->frame.Children().first());
        QCOMPARE(editor->frame.Children().size(), open);

        // A file that cannot be read says why and leaves the recent list.
        QFile broken(paths.first());
        QVERIFY(broken.open(QIODevice::WriteOnly));
        broken.write("<window");
        broken.close();
        qDeleteAll(editor->frame.Children());
        QVERIFY(!editor->frame.OpenDocument(paths.first()));
        QCOMPARE(editor->prompts.errors.size(), 1);
        QVERIFY(!editor->frame.RecentFiles().Files().contains(paths.first()));
    }

    void openingAFileTellsWhatTheReaderNoted()
    {
        const QString path = FilePath(QStringLiteral("euro.xml"));
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("<?xml version=\"1.0\" encoding=\"UTF-8\"?><hmiwidget><widget name=\"price \xE2\x82\xAC\" "
                   "class=\"text\"/></hmiwidget>");
        file.close();
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

    void toolboxOffersTheWidgetKindsInOrder()
    {
        QStringList labels;
        for (const ToolboxEntry& entry : ToolboxEntries())
            labels << entry.label;
        QCOMPARE(labels, (QStringList{"Pointer", "Rectangle", "Line", "Ellipse", "Text", "Picture",
                                      "Gradient rectangle", "Gradient ellipse", "Gradient triangle", "Timer",
                                      "Data input", "Text input", "Button", "Checkbox", "Combobox", "Alarm window",
                                      "Realtime curve", "History curve", "Vector Text", "hislist"}));
    }
};

QTEST_MAIN(MainFrameTest)
#include "mainframe_test.moc"
