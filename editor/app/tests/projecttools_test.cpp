// The project-wide tools of the main frame: the Problems list that leads to the faulty row and
// follows the edits of open windows, and the rename of a variable across files and open windows.
#include "editorfixture.h"

#include "editor/problems/problemspane.h"
#include "editor/problems/renamevariabledialog.h"
#include "editor/problems/searchresults.h"
#include "editor/propertypane/propertypane.h"
#include "project/projectpath.h"
#include "tests/support/registryscope.h"
#include "workspace/variablerename.h"

#include <QAction>
#include <QCheckBox>
#include <QDialogButtonBox>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTreeWidget>

namespace {

// The rows whose columns start with these texts.
QList<QTreeWidgetItem*> Rows(const QTreeWidget& tree, const QStringList& columns)
{
    QList<QTreeWidgetItem*> rows;
    for (int i = 0; i < tree.topLevelItemCount(); ++i) {
        QTreeWidgetItem* row = tree.topLevelItem(i);
        bool same = true;
        for (int column = 0; column < columns.size(); ++column)
            same = same && (columns[column].isNull() || row->text(column) == columns[column]);
        if (same)
            rows << row;
    }
    return rows;
}

void DoubleClick(QTreeWidget& tree, QTreeWidgetItem* row)
{
    tree.scrollToItem(row);
    // The view takes a double-click only on the row that the first click pressed.
    const QPoint at = tree.visualItemRect(row).center();
    QTest::mouseClick(tree.viewport(), Qt::LeftButton, {}, at);
    QTest::mouseDClick(tree.viewport(), Qt::LeftButton, {}, at);
}

} // namespace

class ProjectToolsTest : public QObject {
    Q_OBJECT

private:
    const CRegistryScope m_registry;
    std::unique_ptr<EditorUnderTest> editor;
    QString project;

    // Copies a project of the source tree into the editor's folder and makes it the project.
    void UseProjectCopy(const char* source)
    {
        project = editor->folder.filePath(QStringLiteral("project"));
        QVERIFY(QDir().mkpath(project));
        for (const QFileInfo& file : QDir(QString::fromUtf8(source)).entryInfoList(QDir::Files))
            QVERIFY(QFile::copy(file.filePath(), project + QLatin1Char('/') + file.fileName()));
        SetProjectPath(project.toStdString() + "/");
    }
    QString ProjectFile(const char* name) const { return project + QLatin1Char('/') + QLatin1String(name); }

private slots:
    void init() { editor = std::make_unique<EditorUnderTest>(); }
    void cleanup() { editor.reset(); }

    void problemsLeadToTheirRowAndFollowTheEditsOfAnOpenWindow()
    {
        UseProjectCopy(KELVO_DEFECT_PROJECT_DIR);
        editor->frame.findChild<QAction*>(QStringLiteral("actionCheckProject"))->trigger();
        auto* problems = editor->frame.findChild<CProblemsPane*>();
        QTreeWidget& list = *problems->Tree();
        const QStringList speed = {QStringLiteral("error"), QStringLiteral("main.xml"), QStringLiteral("speed"),
                                   QStringLiteral("varname")};
        const QStringList go = {QString(), QStringLiteral("main.xml"), QStringLiteral("go"),
                                QStringLiteral("event click"), QStringLiteral("unknown-function")};
        QCOMPARE(Rows(list, speed).size(), 1);
        QCOMPARE(Rows(list, go).size(), 1);
        const int total = list.topLevelItemCount();
        QVERIFY(Rows(list, {QString(), QStringLiteral("broken.xml")}).size() == 1);

        // A problem of a file as a whole leads nowhere; one of a row opens the window there.
        DoubleClick(list, Rows(list, {QString(), QStringLiteral("broken.xml")}).first());
        QVERIFY(editor->frame.Children().isEmpty());
        CPropertyPane& pane = editor->frame.PropertyPane();
        for (const auto& [row, caption] : {std::pair{Rows(list, go).first(), "Button Down"},
                                           std::pair{Rows(list, speed).first(), "varname"}}) {
            DoubleClick(list, row);
            QCOMPARE(editor->frame.Children().size(), 1);
            QVERIFY(pane.CurrentWidget());
            QCOMPARE(pane.CurrentWidget()->GetWidgetName(), row->text(2).toStdString());
            QCOMPARE(pane.Tree()->currentItem()->text(CPropertyPane::CaptionColumn), QString::fromLatin1(caption));
        }

        // Mending the variable in memory takes its problem away shortly; the window's others
        // stay once each, and so do those of the files that are not open.
        CHmiWidget& input = *pane.CurrentWidget();
        input.SetWidgetProperty("varname", "string", "$plc.level", {});
        input.m_pDocument->WidgetChanged(input, DocChange::Properties);
        QTRY_COMPARE(list.topLevelItemCount(), total - 1);
        QCOMPARE(Rows(list, speed).size(), 0);
        QCOMPARE(Rows(list, go).size(), 1);
        QCOMPARE(Rows(list, {QString(), QStringLiteral("broken.xml")}).size(), 1);
    }

    void renameChangesTheFilesAndTheOpenWindowsAllOrNothing()
    {
        UseProjectCopy(KELVO_DEMO_DIR);
        CChildFrame* main = editor->frame.OpenDocument(ProjectFile("main.xml"));
        QVERIFY(main);
        const QByteArray mainBytes = ReadBytes(ProjectFile("main.xml"));
        const QByteArray pumpsBytes = ReadBytes(ProjectFile("pumps.xml"));
        const std::vector<OpenWindow> open = {{main->Document().GetPathName(), &main->Document()}};

        auto* results = editor->frame.findChild<CSearchResults*>();
        editor->frame.FindReferences(QStringLiteral("$plc.level"));
        QCOMPARE(results->Summary(), QStringLiteral("5 uses of $plc.level in 2 windows"));

        CRenameVariableDialog dialog(GetProjectPath(), open, QStringLiteral("$plc.level"));
        auto* to = dialog.findChild<QLineEdit*>(QStringLiteral("newReference"));
        auto* preview = dialog.findChild<QPushButton*>(QStringLiteral("renamePreview"));
        QTreeWidget& changes = *dialog.findChild<QTreeWidget*>(QStringLiteral("renameChanges"));
        QPushButton* apply = dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Apply);
        const auto status = [&] { return dialog.findChild<QLabel*>(QStringLiteral("renameStatus"))->text(); };

        // A name the project declares already is refused before anything is shown.
        dialog.findChild<QCheckBox*>(QStringLiteral("renameDeclarations"))->setChecked(true);
        QTest::keyClicks(to, QStringLiteral("$plc.pressure"));
        preview->click();
        QVERIFY2(status().startsWith(QStringLiteral("Nothing can be renamed")), qPrintable(status()));
        QVERIFY(!apply->isEnabled());
        QCOMPARE(changes.topLevelItemCount(), 0);

        to->clear();
        QTest::keyClicks(to, QStringLiteral("$plc.height"));
        preview->click();
        QVERIFY(apply->isEnabled());
        QCOMPARE(Rows(changes, {QStringLiteral("main.xml"), QString(), QStringLiteral("binding fillcolor")}).size(), 1);
        QCOMPARE(Rows(changes, {QStringLiteral("trends.xml"), QString(), QStringLiteral("dataname2"),
                                QStringLiteral("$plc.level"), QStringLiteral("$plc.height")})
                     .size(),
                 1);
        QVERIFY(!main->Document().IsModified()); // a preview changes nothing

        // A file that cannot be written stops the whole rename: no file, no open window changes.
        QVERIFY(QFile::remove(ProjectFile("trends.xml")));
        QVERIFY(QDir().mkdir(ProjectFile("trends.xml")));
        apply->click();
        QVERIFY2(status().startsWith(QStringLiteral("Nothing was renamed")), qPrintable(status()));
        QCOMPARE(dialog.result(), int(QDialog::Rejected));
        QVERIFY(!main->Document().IsModified());
        QVERIFY(ReadBytes(ProjectFile("rtdb.xml")).contains("name=\"level\""));

        QVERIFY(QDir().rmdir(ProjectFile("trends.xml")));
        QVERIFY(QFile::copy(QStringLiteral(KELVO_DEMO_DIR "/trends.xml"), ProjectFile("trends.xml")));
        preview->click();
        apply->click();
        QCOMPARE(dialog.result(), int(QDialog::Accepted));
        QVERIFY(main->Document().IsModified());
        QVERIFY(main->isWindowModified());
        QCOMPARE(ReadBytes(ProjectFile("main.xml")), mainBytes); // the open window saves it
        QCOMPARE(ReadBytes(ProjectFile("pumps.xml")), pumpsBytes);
        QVERIFY(ReadBytes(ProjectFile("trends.xml")).contains("value=\"$plc.height\""));
        QVERIFY(ReadBytes(ProjectFile("rtdb.xml")).contains("name=\"height\""));
        editor->frame.FindReferences(QStringLiteral("$plc.height"));
        QCOMPARE(results->Summary(), QStringLiteral("5 uses of $plc.height in 2 windows"));
    }
};

QTEST_MAIN(ProjectToolsTest)
#include "projecttools_test.moc"
