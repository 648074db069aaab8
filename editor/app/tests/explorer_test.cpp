// The project explorer in the main frame: windows open from it, it follows the project folder,
// and what other programs change on disk is noticed.
#include "editorfixture.h"

#include "editor/explorer/projectexplorer.h"
#include "project/projectpath.h"
#include "tests/support/registryscope.h"

#include <QAction>
#include <QDir>
#include <QLabel>
#include <QSignalSpy>

namespace {

const QByteArray kWindow = "<?xml version=\"1.0\" encoding=\"GB2312\"?>\n<hmiwidget>\n</hmiwidget>\n";

QTreeWidgetItem* FindItem(const QTreeWidget& tree, const QString& text)
{
    const QList<QTreeWidgetItem*> found = tree.findItems(text, Qt::MatchExactly | Qt::MatchRecursive);
    return found.isEmpty() ? nullptr : found.first();
}

void DoubleClick(QTreeWidget& tree, const QString& text)
{
    QTreeWidgetItem* item = FindItem(tree, text);
    QVERIFY2(item, qPrintable(text));
    tree.scrollToItem(item);
    // What the mouse delivers: a click, then the double-click event (which QTest sends alone).
    const QPoint at = tree.visualItemRect(item).center();
    QTest::mouseClick(tree.viewport(), Qt::LeftButton, {}, at);
    QTest::mouseDClick(tree.viewport(), Qt::LeftButton, {}, at);
}

bool NoticeShown(const CChildFrame& child)
{
    return child.findChild<QLabel*>(QStringLiteral("diskChangeNotice"))->isVisibleTo(&child);
}

} // namespace

class ExplorerTest : public QObject {
    Q_OBJECT

private:
    const CRegistryScope m_registry;
    std::unique_ptr<EditorUnderTest> editor;
    QTemporaryDir project;

    QString ProjectFile(const QString& name) const { return project.filePath(name); }
    CProjectExplorer& Explorer() const { return editor->frame.Explorer(); }

private slots:
    void init()
    {
        editor = std::make_unique<EditorUnderTest>();
        QVERIFY(WriteBytes(ProjectFile("hmiwindow.xml"),
                           "<hmiwindow><window name=\"a\" caption=\"Alpha\" filename=\"a.xml\"/>"
                           "<window name=\"b\" filename=\"b.xml\"/></hmiwindow>"));
        QVERIFY(WriteBytes(ProjectFile("a.xml"), kWindow) && WriteBytes(ProjectFile("b.xml"), kWindow));
        SetProjectPath(QFile::encodeName(project.path()).toStdString());
        editor->frame.FollowProjectPath();
    }

    void cleanup()
    {
        editor.reset();
        SetProjectPath({});
    }

    void doubleClickOpensAWindowOrBringsItToTheFront()
    {
        DoubleClick(Explorer(), "a (Alpha)");
        DoubleClick(Explorer(), "b");
        QCOMPARE(editor->frame.Children().size(), 2);
        QCOMPARE(editor->frame.ActiveChild()->DisplayName(), "b.xml");
        DoubleClick(Explorer(), "a (Alpha)");
        QCOMPARE(editor->frame.Children().size(), 2);
        QCOMPARE(editor->frame.ActiveChild()->DisplayName(), "a.xml");
    }

    void followsOpenProjectAndChangesOnDisk()
    {
        QTemporaryDir other;
        QVERIFY(WriteBytes(other.filePath("c.xml"), kWindow) && WriteBytes(other.filePath("rtdb.xml"),
            "<rtdbs><rtdb name=\"plc\"><data name=\"level\" type=\"long\" init=\"0\"/></rtdb></rtdbs>"));
        editor->prompts.projectDialogs.chooseDirectory = [&other](QWidget*, const QString&, const QString&) {
            return other.path();
        };
        editor->frame.findChild<QAction*>("actionOpenProject")->trigger();
        QCOMPARE(GetProjectPath(), QFile::encodeName(other.path()).toStdString() + "/");
        QCOMPARE(Explorer().headerItem()->text(0), QDir(other.path()).dirName());
        QVERIFY(!FindItem(Explorer(), "a (Alpha)"));
        DoubleClick(Explorer(), "c.xml"); // a window the list lacks opens all the same
        QCOMPARE(editor->frame.ActiveChild()->DisplayName(), "c.xml");

        // A variable's references are asked for as the picker writes the variable.
        QSignalSpy asked(&Explorer(), &CProjectExplorer::findReferencesRequested);
        Explorer().setCurrentItem(FindItem(Explorer(), "level"));
        Explorer().findChild<QAction*>("findReferencesAction")->trigger();
        QCOMPARE(asked.value(0).value(0).toString(), "$plc.level");

        // Another program lists the window, and the explorer reads the list again by itself.
        QVERIFY(WriteBytes(other.filePath("hmiwindow.xml"),
                           "<hmiwindow><window name=\"c\" caption=\"Gamma\" filename=\"c.xml\"/></hmiwindow>"));
        QTRY_VERIFY(FindItem(Explorer(), "c (Gamma)"));
    }

    void aChangeByAnotherProgramIsNoticedAndTheSaveAsks()
    {
        CChildFrame& a = *editor->frame.OpenDocument(ProjectFile("a.xml"));
        CChildFrame& b = *editor->frame.OpenDocument(ProjectFile("b.xml"));
        AddRect(a.Document(), {10, 10, 50, 50});
        QVERIFY(a.Save());
        const QByteArray theirs = kWindow + "<!-- theirs -->\n";
        QVERIFY(WriteBytes(ProjectFile("b.xml"), theirs));
        QTRY_VERIFY(NoticeShown(b));
        // The watcher reports in order, so the editor's own save of a has been seen by now; a
        // is still watched, although that save put a new file in place of the old one.
        QVERIFY(!NoticeShown(a));
        QVERIFY(WriteBytes(ProjectFile("a.xml"), theirs));
        QTRY_VERIFY(NoticeShown(a));

        QVERIFY(!b.Save());
        QCOMPARE(ReadBytes(ProjectFile("b.xml")), theirs);
        editor->prompts.overwriteAnswer = true;
        QVERIFY(b.Save());
        QVERIFY(ReadBytes(ProjectFile("b.xml")) != theirs);
        QVERIFY(!NoticeShown(b));
        QCOMPARE(editor->prompts.overwriteQuestions, QStringList({"b.xml", "b.xml"}));
    }
};

QTEST_MAIN(ExplorerTest)
#include "explorer_test.moc"
