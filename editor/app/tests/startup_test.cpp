// Start-up as the program runs it: widget libraries, the project argument, the demo project,
// and a second editor process that hands its file over to the first.
#include "editorfixture.h"

#include "editor/app/tamloapp.h"
#include "editor/app/toolbox.h"
#include "editor/startup/widgetlibraryloader.h"
#include "project/projectpath.h"

#include <QFileInfo>
#include <QListWidget>
#include <QProcess>

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

private slots:
    void initTestCase()
    {
        QVERIFY(!kDemo.isEmpty());
        qputenv("XDG_CONFIG_HOME", sandbox.filePath(QStringLiteral("config")).toLocal8Bit());
        qputenv("XDG_STATE_HOME", sandbox.filePath(QStringLiteral("state")).toLocal8Bit());
        qputenv("TMPDIR", sandbox.path().toLocal8Bit());
    }

    void cleanup() { SetProjectPath({}); }

    // Library classes come last, under their class key; the window is no tool.
    void aLibraryClassIsOfferedAndPlaced()
    {
        LoadWidgetLibraries(KELVO_TEST_MODULES_DIR);
        EditorUnderTest editor;
        CToolbox& toolbox = editor.frame.Toolbox();
        QListWidgetItem* gauge = toolbox.item(toolbox.count() - 1);
        QCOMPARE(gauge->text(), QStringLiteral("gauge"));
        QVERIFY(toolbox.findItems(QStringLiteral("dial"), Qt::MatchExactly).isEmpty());
        QVERIFY(toolbox.findItems(QStringLiteral("window"), Qt::MatchExactly).isEmpty());
        Click(toolbox.viewport(), toolbox.visualItemRect(gauge).center());
        CChildFrame& child = editor.NewWindow();
        Drag(&child.View(), QPoint(40, 40), QPoint(140, 100));
        const CHmiWidget& placed = *child.Document().Widgets().back();
        QCOMPARE(std::string(placed.GetRuntimeClass()->m_lpszClassName), std::string("CGaugeWidget"));
        QCOMPARE(placed.GetWidgetRect(), (HmiRect{40, 40, 140, 100}));
    }

    // "*project*window" names the project and a window of it; without a file the demo opens.
    void theStarArgumentOrTheDemoNamesTheProject()
    {
        const std::pair<QStringList, QString> starts[] = {
            {Arguments(QLatin1Char('*') + kDemo + QStringLiteral("*pumps.xml")), QStringLiteral("/pumps.xml")},
            {{QStringLiteral("kelvo-hmi-editor")}, QStringLiteral("/main.xml")}};
        for (const auto& [arguments, window] : starts) {
            CTamloApp editor(prompts, sandbox.filePath(QStringLiteral("project-test")));
            QCOMPARE(editor.Start(arguments), CTamloApp::StartResult::Started);
            QCOMPARE(GetProjectPath(), QFile::encodeName(kDemo + QLatin1Char('/')).toStdString());
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

        const auto startSecond = [](const QString& folder, const QString& argument) {
            QProcess second;
            QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
            environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
            second.setProcessEnvironment(environment);
            second.setWorkingDirectory(folder);
            second.start(QStringLiteral(KELVO_EDITOR_PROGRAM), {argument});
            QTRY_VERIFY_WITH_TIMEOUT(second.state() == QProcess::NotRunning, 20000);
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

};

QTEST_MAIN(StartupTest)
#include "startup_test.moc"
