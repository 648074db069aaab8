// Start-up as the program runs it: widget libraries and their report, the project argument, the
// demo project, and a second editor process that hands its file over to the first.
#include "editorfixture.h"

#include "editor/app/pathtext.h"
#include "editor/app/tamloapp.h"
#include "editor/app/toolbox.h"
#include "editor/app/widgetlibrarydialog.h"
#include "editor/canvascontrols/controlkinds.h"
#include "editor/extensions/canvascontrol.h"
#include "editor/propertypane/propertypane.h"
#include "editor/propertypane/propertypaneitem.h"
#include "editor/recovery/recoverystore.h"
#include "libraries/librarycrashguard.h"
#include "libraries/widgetlibraryloader.h"
#include "project/projectpath.h"
#include "tests/support/registryscope.h"

#include <QDial>
#include <QFileInfo>
#include <QListWidget>
#include <QMenuBar>
#include <QProcess>
#include <QPushButton>
#include <QSignalSpy>
#include <QSpinBox>
#include <QToolButton>
#include <QTreeWidget>

#include <functional>

namespace {

const QString kDemo = QFileInfo(QStringLiteral(KELVO_DEMO_DIR)).canonicalFilePath();

QString ActiveFile(const CMainFrame& frame)
{
    return frame.ActiveChild() ? QFileInfo(frame.ActiveChild()->FilePath()).canonicalFilePath() : QString();
}

} // namespace

class StartupTest : public QObject {
    Q_OBJECT

private:
    QTemporaryDir sandbox; // profile and local sockets of the editors under test
    ScriptedPrompts prompts;

    QStringList Arguments(const QString& file) const { return {QStringLiteral("kelvo-hmi-editor"), file}; }

    // Runs the editor program in the folder until it ends, answering hand-overs meanwhile.
    void RunEditorProgram(QProcess& program, const QString& folder, const QStringList& arguments)
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
        environment.insert(QStringLiteral("LANGUAGE"), QStringLiteral("en")); // whatever the machine's locale
        program.setProcessEnvironment(environment);
        program.setWorkingDirectory(folder);
        program.start(QStringLiteral(KELVO_EDITOR_PROGRAM), arguments);
        QTRY_VERIFY_WITH_TIMEOUT(program.state() == QProcess::NotRunning, 20000);
    }

private slots:
    void initTestCase()
    {
        QVERIFY(!kDemo.isEmpty());
        qputenv("XDG_CONFIG_HOME", sandbox.filePath(QStringLiteral("config")).toLocal8Bit());
        qputenv("XDG_STATE_HOME", sandbox.filePath(QStringLiteral("state")).toLocal8Bit());
        qputenv("TMPDIR", sandbox.path().toLocal8Bit());
    }

    void cleanup() { SetProjectPath({}); }

    // A library's class comes last in the toolbox, with the label and icon it registered (the
    // window is no tool). Placed, it stands on the canvas as the library's live control, and
    // the button of its own row runs the library's dialog, whose choice the control shows.
    void aLibraryExtendsTheToolboxTheCanvasAndThePropertyPane()
    {
        const CRegistryScope registry;
        RegisterBuiltinCanvasControls();
        LoadWidgetLibraries({KELVO_DIAL_MODULES_DIR}, {});
        EditorUnderTest editor;
        CToolbox& toolbox = editor.frame.Toolbox();
        QListWidgetItem* dial = toolbox.item(toolbox.count() - 1);
        QCOMPARE(dial->text(), QStringLiteral("Dial"));
        QVERIFY(!dial->icon().isNull());
        QVERIFY(toolbox.findItems(QStringLiteral("window"), Qt::MatchExactly).isEmpty());
        Click(toolbox.viewport(), toolbox.visualItemRect(dial).center());
        CChildFrame& child = editor.NewWindow();
        Drag(&child.View(), QPoint(40, 40), QPoint(140, 100));
        auto& placed = dynamic_cast<CHmiCtrlWidget&>(*child.Document().Widgets().back());
        QCOMPARE(placed.GetWidgetClassName(), std::string("dial"));
        auto* control = dynamic_cast<CCanvasControl*>(placed.GetControl());
        QVERIFY(control);
        auto* shown = qobject_cast<QDial*>(control->Widget());
        QVERIFY(shown && shown->isVisible());
        QCOMPARE(shown->maximum(), 100);

        editor.prompts.projectDialogs.runDialog = [](QDialog& dialog) {
            dialog.findChild<QSpinBox*>(QStringLiteral("scale"))->setValue(250);
            return int(QDialog::Accepted);
        };
        QCOMPARE(editor.frame.PropertyPane().CurrentWidget(), &placed);
        editor.frame.PropertyPane().FindItem("Scale")->BrowseButton()->click();
        std::string saved;
        placed.SaveWidgetProperties(saved);
        QVERIFY(saved.find("name=\"scale\" type=\"long\" value=\"250\"") != std::string::npos);
        QCOMPARE(shown->maximum(), 250);
        QVERIFY(child.Document().IsModified());
    }

    // A library crashes the real program; the next start skips it, and the report, opened from
    // the Help menu, says so and what became of the others, those of --modules included. Asked
    // for, it is let in again.
    void theLibraryReportTellsWhatBecameOfEachLibrary()
    {
        const QDir run(sandbox.filePath(QStringLiteral("run")));
        QVERIFY(run.mkpath(QStringLiteral("modules")) && run.mkpath(QStringLiteral("more")));
        const QString modules = QStringLiteral(KELVO_TEST_MODULES_DIR "/");
        for (const QString& library : {QStringLiteral(KELVO_CRASHING_MODULES_DIR "/crashingwidgets.so"),
                                       modules + "notalibrary.so", modules + "samplewidgets.so",
                                       modules + "throwingwidgets.so"})
            QVERIFY(QFile::link(library, run.filePath("modules/" + QFileInfo(library).fileName())));
        QVERIFY(QFile::link(modules + "futurewidgets.so", run.filePath("more/futurewidgets.so")));
        QProcess crashed;
        RunEditorProgram(crashed, run.path(), {});
        QCOMPARE(crashed.exitStatus(), QProcess::CrashExit);

        const QString previous = QDir::currentPath();
        QDir::setCurrent(run.path());
        CTamloApp editor(prompts, QStringLiteral("library-test"));
        const CTamloApp::StartResult started =
            editor.Start({QStringLiteral("kelvo-hmi-editor"), QStringLiteral("--modules"), run.filePath("more")});
        QDir::setCurrent(previous);
        QCOMPARE(started, CTamloApp::StartResult::Started);
        CMainFrame& frame = *editor.MainFrame();
        QVERIFY(frame.findChild<QPushButton*>("widgetLibraryNotice"));

        const QList<QAction*> menus = frame.menuBar()->actions();
        const auto help =
            std::find_if(menus.begin(), menus.end(), [](QAction* menu) { return menu->text() == "&Help"; });
        QVERIFY(help != menus.end());
        (*help)->menu()->actions().constFirst()->trigger();
        auto* dialog = frame.findChild<CWidgetLibraryDialog*>();
        QVERIFY(dialog && dialog->isVisible());
        auto* list = dialog->findChild<QTreeWidget*>();
        QStringList rows;
        for (int row = 0; row < list->topLevelItemCount(); ++row) {
            const QTreeWidgetItem* item = list->topLevelItem(row);
            rows << QStringList{item->text(0), item->text(1), item->text(3), item->text(4)}.join(" | ");
        }
        QCOMPARE(rows, QStringList({"crashingwidgets.so | – | skipped after a crash | "
                                    "it ended the editor while it was being loaded at an earlier start",
                                    "notalibrary.so | – | cannot be loaded | file too short",
                                    "samplewidgets.so | 1 | loaded | registered 1 widget class",
                                    "throwingwidgets.so | 1 | threw | the dial calibration file is missing",
                                    "futurewidgets.so | 1000 | incompatible | it was built for widget-library "
                                    "interface version 1000; this program needs version 1"}));
        QCOMPARE(list->topLevelItem(0)->text(2), run.filePath("modules"));
        QCOMPARE(list->topLevelItem(4)->text(2), run.filePath("more"));

        const std::string state = ToModelPath(EditorStateFolder());
        QCOMPARE(CLibraryCrashGuard::CrashedLibraries(state).size(), std::size_t(1));
        list->setCurrentItem(list->topLevelItem(0));
        for (QPushButton* button : dialog->findChildren<QPushButton*>())
            if (button->text() == "&Load Again at Next Start")
                button->click();
        QVERIFY(CLibraryCrashGuard::CrashedLibraries(state).empty());
    }

    // "*project*window" names the project and a window of it; without a file the demo opens, its
    // window's rows in the property pane each as tall as its editor, a check box with its button.
    void theStarArgumentOrTheDemoNamesTheProject()
    {
        const std::pair<QStringList, QString> starts[] = {
            {Arguments(QLatin1Char('*') + kDemo + QStringLiteral("*pumps.xml")), QStringLiteral("/pumps.xml")},
            {{QStringLiteral("kelvo-hmi-editor")}, QStringLiteral("/main.xml")}};
        for (const auto& [arguments, window] : starts) {
            CTamloApp editor(prompts, sandbox.filePath(QStringLiteral("project-test")));
            QSignalSpy finished(&editor, &CTamloApp::startFinished); // the window opens after the first paint
            QCOMPARE(editor.Start(arguments), CTamloApp::StartResult::Started);
            QVERIFY(finished.wait());
            QCOMPARE(GetProjectPath(), QFile::encodeName(kDemo + QLatin1Char('/')).toStdString());
            const CPropertyPaneItem* visible = editor.MainFrame()->PropertyPane().FindItem("Visible");
            QVERIFY(visible && visible->BindButton());
            QCOMPARE(editor.MainFrame()->PropertyPane().Tree()->visualItemRect(visible->Row()).height(),
                     visible->BindButton()->parentWidget()->sizeHint().height());
            QCOMPARE(ActiveFile(*editor.MainFrame()), kDemo + window);
            SetProjectPath({});
        }
    }

    void aFileThatCannotBeOpenedFailsTheStart()
    {
        CTamloApp editor(prompts, sandbox.filePath(QStringLiteral("missing-test")));
        prompts.errors.clear();
        QCOMPARE(editor.Start(Arguments(sandbox.filePath("none.xml"))), CTamloApp::StartResult::Failed);
        QCOMPARE(prompts.errors.size(), 1);
    }

    void aSecondEditorHandsItsFileOver()
    {
        CTamloApp first(prompts);
        QCOMPARE(first.Start(Arguments(kDemo + QStringLiteral("/main.xml"))), CTamloApp::StartResult::Started);
        const std::string project = GetProjectPath();

        const auto startSecond = [this](const QString& folder, const QString& argument) {
            QProcess second;
            RunEditorProgram(second, folder, {argument});
            QCOMPARE(second.exitStatus(), QProcess::NormalExit);
            QCOMPARE(second.exitCode(), 0);
        };

        startSecond(sandbox.path(), kDemo + QStringLiteral("/pumps.xml"));
        QTRY_COMPARE(ActiveFile(*first.MainFrame()), kDemo + QStringLiteral("/pumps.xml"));
        // A relative path in the star form is meant from where the second editor started.
        startSecond(kDemo, QStringLiteral("**trends.xml"));
        QTRY_COMPARE(ActiveFile(*first.MainFrame()), kDemo + QStringLiteral("/trends.xml"));
        QCOMPARE(first.MainFrame()->Children().size(), 3);
        QCOMPARE(GetProjectPath(), project);
    }

    // A burst of starts hands over files that cannot be opened and then one that can: the
    // failures are told in one message, or in one more after it, never in a message box opened
    // inside another one. The user closes the first message once the good file is open.
    void aBurstOfHandOversGivesOneMessage()
    {
        struct : ScriptedPrompts {
            void ShowError(QWidget* parent, const QString& text) override
            {
                ScriptedPrompts::ShowError(parent, text);
                deepest = std::max(deepest, ++depth);
                QVERIFY(QTest::qWaitFor(closed, 20000)); // the events a message box runs
                --depth;
            }
            std::function<bool()> closed = [] { return true; };
            int depth = 0, deepest = 0;
        } modal;
        CTamloApp editor(modal, sandbox.filePath(QStringLiteral("burst")));
        QCOMPARE(editor.Start(Arguments(kDemo + QStringLiteral("/main.xml"))), CTamloApp::StartResult::Started);
        const QString good = kDemo + QStringLiteral("/pumps.xml"), missing = sandbox.filePath("missing.xml");
        modal.closed = [&] { return ActiveFile(*editor.MainFrame()) == good; };
        for (int i = 0; i < 40; ++i) // the listener's backlog holds them until its event loop runs
            QVERIFY(CInstanceGuard::HandOver(sandbox.filePath("burst"), QFile::encodeName(i < 39 ? missing : good)));
        QTRY_VERIFY(modal.closed());
        QCOMPARE(modal.deepest, 1);
        QVERIFY(!modal.errors.isEmpty() && modal.errors.size() <= 2 && modal.errors.first().contains(missing));
    }
};

QTEST_MAIN(StartupTest)
#include "startup_test.moc"
