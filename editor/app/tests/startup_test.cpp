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
