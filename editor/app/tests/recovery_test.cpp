// Recovery copies of unsaved windows: kept while the editor runs, removed when the user closes
// cleanly, kept when the editor is ended or killed, and offered at the next start.
#include "editorfixture.h"

#include "editor/app/recoverykeeper.h"
#include "editor/app/tamloapp.h"
#include "editor/recovery/recoverystore.h"
#include "editor/projectdialogs/tests/dialogdriver.h"
#include "editor/recovery/tests/recoveryfixture.h"
#include "tests/support/windowfilelines.h"

#include <QDir>
#include <QFileInfo>
#include <QProcess>
#include <QSignalSpy>
#include <QTreeWidget>

#include <chrono>

using namespace std::chrono_literals;

namespace {

// Long enough that only the test decides when copies are brought up to date.
constexpr auto kNeverByItself = 1h;
constexpr int kProcessTimeoutMs = 30000;

// The content files of every session under the root.
QStringList CopiesUnder(const QString& root)
{
    QStringList copies;
    for (const QFileInfo& session : QDir(root).entryInfoList({QStringLiteral("session-*")}, QDir::Dirs))
        for (const QString& name : QDir(session.filePath()).entryList({QStringLiteral("*.xml")}, QDir::Files))
            copies << session.filePath() + QLatin1Char('/') + name;
    return copies;
}

// An editor started in this process on a window file, answering the offer of left windows.
struct StartedEditor {
    StartedEditor(RecoveryAnswer answer, const QString& window) : app(prompts, QStringLiteral("recovery-test"))
    {
        prompts.recoveryAnswer = answer;
        QSignalSpy finished(&app, &CTamloApp::startFinished); // the window and the offer follow the first paint
        QCOMPARE(app.Start({QStringLiteral("kelvo-hmi-editor"), window}), CTamloApp::StartResult::Started);
        QVERIFY(finished.wait());
    }
    QList<CChildFrame*> Children() const { return app.MainFrame()->Children(); }

    ScriptedPrompts prompts;
    CTamloApp app;
};

} // namespace

class RecoveryTest : public QObject {
    Q_OBJECT

private:
    QTemporaryDir sandbox;
    std::unique_ptr<QTemporaryDir> state; // each test's own XDG_STATE_HOME, which the editors inherit
    QString root;
    const QString driftingWindow = sandbox.filePath(QStringLiteral("drift.xml"));

    // Starts the real program in a home of its own on a window with one drifting widget away
    // from its resting place: the widget's library modifies the window as soon as it is drawn.
    // True once the editor has written its copy, record and all: the record follows the content.
    bool StartDriftingEditor(QProcess& editor)
    {
        const std::string window = "<hmiwidget><widget name=\"drifter1\" class=\"drifter\"><properties>\n" +
                                   BaseWidgetLines(10, 60, 20, 80) + "</properties></widget></hmiwidget>";
        if (!WriteBytes(driftingWindow, QByteArray::fromStdString(window)))
            return false;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.remove(QStringLiteral("XDG_CONFIG_HOME"));
        environment.insert(QStringLiteral("HOME"), sandbox.filePath(QStringLiteral("home")));
        environment.insert(QStringLiteral("XDG_RUNTIME_DIR"), sandbox.filePath(QStringLiteral("runtime")));
        environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
        environment.insert(QStringLiteral("LANGUAGE"), QStringLiteral("en")); // whatever the machine's locale
        editor.setProcessEnvironment(environment);
        editor.setWorkingDirectory(QStringLiteral(KELVO_DRIFTING_RUN_DIR));
        editor.setProcessChannelMode(QProcess::ForwardedChannels);
        editor.start(QStringLiteral(KELVO_EDITOR_PROGRAM), {driftingWindow});
        const auto copied = [this] {
            const QStringList copies = CopiesUnder(root);
            return !copies.isEmpty() && QFileInfo::exists(copies.first().chopped(4) + QStringLiteral(".record"));
        };
        return editor.waitForStarted(kProcessTimeoutMs) && QTest::qWaitFor(copied, kProcessTimeoutMs);
    }

private slots:
    void initTestCase()
    {
        for (const char* folder : {"home", "tmp", "runtime"})
            QVERIFY(QDir(sandbox.path()).mkpath(QString::fromLatin1(folder)));
        QFile::setPermissions(sandbox.filePath(QStringLiteral("runtime")),
                              QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner);
        qputenv("XDG_CONFIG_HOME", sandbox.filePath(QStringLiteral("config")).toLocal8Bit());
        qputenv("TMPDIR", sandbox.filePath(QStringLiteral("tmp")).toLocal8Bit());
    }

    void init()
    {
        state = std::make_unique<QTemporaryDir>(sandbox.filePath(QStringLiteral("state-XXXXXX")));
        qputenv("XDG_STATE_HOME", state->path().toLocal8Bit());
        root = RecoveryRoot();
    }

    void aModifiedWindowGetsACopyThatFollowsItsChanges()
    {
        EditorUnderTest editor;
        CRecoveryKeeper keeper(editor.frame, NewSession(root), 10ms);
        CChildFrame& child = editor.NewWindow();
        QVERIFY(keeper.UpdateCopies());
        QVERIFY2(CopiesUnder(root).isEmpty(), "an unmodified window needs no copy");

        AddRect(child.Document(), {10, 10, 50, 50});
        QTRY_COMPARE(CopiesUnder(root).size(), 1);
        const QString copy = CopiesUnder(root).first();
        AddRect(child.Document(), {60, 60, 90, 90});
        QTRY_COMPARE(ReadBytes(copy), QByteArray::fromStdString(child.Document().Serialize()));

        editor.prompts.saveFileName = editor.folder.filePath(QStringLiteral("saved.xml"));
        QVERIFY(child.SaveAs());
        QTRY_VERIFY(CopiesUnder(root).isEmpty());

        // Saved under a new name and changed at once: one copy, of the new file.
        AddRect(child.Document(), {5, 5, 9, 9});
        QVERIFY(keeper.UpdateCopies());
        editor.prompts.saveFileName = editor.folder.filePath(QStringLiteral("renamed.xml"));
        QVERIFY(child.SaveAs());
        AddRect(child.Document(), {6, 6, 9, 9});
        QVERIFY(keeper.UpdateCopies());
        QCOMPARE(CopiesUnder(root).size(), 1);
        QVERIFY(ReadBytes(CopiesUnder(root).first().chopped(4) + QStringLiteral(".record")).contains("/renamed.xml\n"));
    }

    void windowsTheUserClosesLoseTheirCopies()
    {
        EditorUnderTest editor;
        CRecoveryKeeper keeper(editor.frame, NewSession(root), kNeverByItself);
        CChildFrame& discarded = editor.NewWindow();
        CChildFrame& kept = editor.NewWindow();
        AddRect(discarded.Document(), {10, 10, 50, 50});
        AddRect(kept.Document(), {10, 10, 50, 50});
        QVERIFY(keeper.UpdateCopies());
        QCOMPARE(CopiesUnder(root).size(), 2);

        editor.prompts.saveAnswer = CEditorPrompts::SaveAnswer::Cancel;
        QVERIFY(!kept.close());
        editor.prompts.saveAnswer = CEditorPrompts::SaveAnswer::Discard;
        QVERIFY(discarded.close());
        QCOMPARE(CopiesUnder(root).size(), 1);
        QVERIFY(keeper.UpdateCopies());
        QCOMPARE(CopiesUnder(root).size(), 1);

        QVERIFY(editor.frame.close());
        QVERIFY2(QDir(root).isEmpty(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden),
                 "a clean quit leaves nothing behind");
    }

    void copiesAreKeptWhenTheEditorEndsWithoutQuestions()
    {
        QString copy;
        {
            EditorUnderTest editor;
            CRecoveryKeeper keeper(editor.frame, NewSession(root), kNeverByItself);
            CChildFrame& child = editor.NewWindow();
            QVERIFY(keeper.UpdateCopies());
            AddRect(child.Document(), {10, 10, 50, 50});
            keeper.KeepCopies();
            QCOMPARE(CopiesUnder(root).size(), 1);
            copy = CopiesUnder(root).first();
            QCOMPARE(ReadBytes(copy), QByteArray::fromStdString(child.Document().Serialize()));
            AddRect(child.Document(), {60, 60, 90, 90});
        }
        QCOMPARE(CopiesUnder(root), QStringList{copy});
    }

    void leftWindowsWaitUntilTheUserDecides()
    {
        QVERIFY(NewSession(root)->Write(1, {{}, "Tamlo1", QDateTime::currentDateTimeUtc()}, "<hmiwidget/>"));
        const QString demo = CTamloApp::DemoProjectFolder() + QStringLiteral("/main.xml");
        for (const RecoveryAnswer answer : {RecoveryAnswer::Later, RecoveryAnswer::Later, RecoveryAnswer::Discard}) {
            StartedEditor editor(answer, demo);
            QCOMPARE(editor.prompts.offeredCopies.size(), 1);
            QCOMPARE(editor.prompts.offeredCopies[0].value(0).record.displayName, QStringLiteral("Tamlo1"));
            QCOMPARE(editor.Children().size(), 1);
        }
        QVERIFY(CopiesUnder(root).isEmpty());
        StartedEditor again(RecoveryAnswer::Restore, demo);
        QVERIFY2(again.prompts.offeredCopies.isEmpty(), "discarded copies are gone");
    }

    void restoredWindowsOpenModifiedAndSaveToTheirFiles()
    {
        const QString window = sandbox.filePath(QStringLiteral("restored.xml"));
        QVERIFY(WriteBytes(window, "<hmiwidget/>"));
        CTamloDoc changed;
        changed.OnNewDocument();
        AddRect(changed, {1, 2, 3, 4});
        const std::string content = changed.Serialize();
        QString leftFolder;
        {
            auto left = NewSession(root);
            leftFolder = left->Folder();
            const QDateTime now = QDateTime::currentDateTimeUtc();
            QVERIFY(left->Write(1, {window, QStringLiteral("restored.xml"), now.addSecs(-2)}, content));
            QVERIFY(left->Write(2, {{}, QStringLiteral("Tamlo7"), now.addSecs(-1)}, content));
            QVERIFY(left->Write(3, {sandbox.filePath("broken.xml"), "broken.xml", now}, "<hmiwidget"));
        }

        StartedEditor editor(RecoveryAnswer::Restore, window);
        QCOMPARE(editor.prompts.offeredCopies.size(), 1);
        QCOMPARE(editor.prompts.offeredCopies[0].size(), 3);
        QCOMPARE(editor.prompts.errors.size(), 1);
        QVERIFY2(editor.prompts.errors[0].contains(QStringLiteral("broken.xml")), qPrintable(editor.prompts.errors[0]));

        // The restored window takes the place of the unmodified one read from the same file.
        QTRY_COMPARE(editor.Children().size(), 2);
        CChildFrame* restored = editor.Children()[0];
        CChildFrame* untitled = editor.Children()[1];
        QCOMPARE(restored->FilePath(), window);
        QVERIFY(restored->isWindowModified());
        QCOMPARE(restored->Document().Serialize(), content);
        QCOMPARE(untitled->FilePath(), QString());
        QVERIFY(untitled->Document().IsModified());

        const QStringList copies = CopiesUnder(root);
        QCOMPARE(copies.size(), 3);
        QCOMPARE(copies.filter(leftFolder), QStringList{leftFolder + QStringLiteral("/3.xml")});

        QVERIFY(restored->Save());
        QCOMPARE(ReadBytes(window), QByteArray::fromStdString(content));
    }

    void theOfferListsEachWindowAndTakesTheAnswer()
    {
        const QDateTime copiedAt(QDate(2026, 5, 6), QTime(7, 8, 9));
        const QList<RecoveryCopy> copies = {{{QStringLiteral("/p/main.xml"), QStringLiteral("main.xml"), copiedAt}, {}},
                                            {{{}, QStringLiteral("Tamlo2"), copiedAt}, {}}};
        const CRecoveryDialog shown(copies);
        const auto* list = shown.findChild<QTreeWidget*>(QStringLiteral("recoveryList"));
        QStringList cells;
        for (int row = 0; row < list->topLevelItemCount(); ++row)
            for (int column = 0; column < list->columnCount(); ++column)
                cells << list->topLevelItem(row)->text(column);
        QCOMPARE(cells, QStringList({"main.xml", "/p/main.xml", "2026-05-06 07:08:09", "Tamlo2", "(never saved)",
                                     "2026-05-06 07:08:09"}));

        // No button is Escape.
        using enum RecoveryAnswer;
        const std::pair<QString, RecoveryAnswer> choices[] = {
            {"&Restore", Restore}, {"&Discard", Discard}, {"Decide &Later", Later}, {QString(), Later}};
        for (const auto& [button, answer] : choices) {
            CRecoveryDialog dialog(copies);
            dialog.show();
            if (button.isEmpty())
                QTest::keyClick(&dialog, Qt::Key_Escape);
            else
                ClickButton(dialog, button);
            QVERIFY(!dialog.isVisible());
            QCOMPARE(dialog.Answer(), answer);
        }
    }

    void aKilledEditorsWindowIsRestored()
    {
        QProcess editor;
        QVERIFY(StartDriftingEditor(editor));
        const QByteArray copied = ReadBytes(CopiesUnder(root).first());
        editor.kill();
        QVERIFY(editor.waitForFinished(kProcessTimeoutMs));

        StartedEditor restarted(RecoveryAnswer::Restore, driftingWindow);
        QCOMPARE(restarted.prompts.offeredCopies.size(), 1);
        QCOMPARE(restarted.prompts.offeredCopies[0].value(0).record.windowPath, driftingWindow);
        QTRY_COMPARE(restarted.Children().size(), 1);
        const CChildFrame* restored = restarted.Children()[0];
        QCOMPARE(restored->FilePath(), driftingWindow);
        QCOMPARE(QByteArray::fromStdString(restored->Document().Serialize()), copied);
        QCOMPARE(restored->Document().Widgets().back()->GetWidgetRect().left, 100); // where it drifted
    }

    void aTerminatedEditorKeepsItsCopies()
    {
        QProcess editor;
        QVERIFY(StartDriftingEditor(editor));
        editor.terminate();
        QVERIFY(editor.waitForFinished(kProcessTimeoutMs));
        QCOMPARE(editor.exitStatus(), QProcess::NormalExit);
        QCOMPARE(editor.exitCode(), 0);

        CAbandonedCopies offered(root);
        QCOMPARE(offered.Copies().size(), 1);
        QCOMPARE(offered.Copies()[0].record.windowPath, driftingWindow);
    }
};

QTEST_MAIN(RecoveryTest)
#include "recovery_test.moc"
