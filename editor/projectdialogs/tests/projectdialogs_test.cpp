#include "dialogdriver.h"

#include "editor/projectdialogs/fieldchoicedialog.h"
#include "editor/projectdialogs/projectwindowdialog.h"
#include "editor/projectdialogs/variabledialog.h"
#include "editor/projectdialogs/widgetitemdialogs.h"

#include "project/projectpath.h"
#include "project/variabledatabase.h"
#include "tests/support/memoryoptiontree.h"
#include "tests/support/registryscope.h"
#include "widgets/tamlodoc.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QDir>
#include <QFile>
#include <QHeaderView>
#include <QLineEdit>
#include <QListWidget>
#include <QSpinBox>
#include <QTableWidget>
#include <QTemporaryDir>
#include <QTest>
#include <QTreeWidget>

#include <memory>

namespace {

QByteArray ReadFile(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void WriteFile(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(bytes);
}

// A `property` line as the window file has it; a length of 0 writes none.
QByteArray PropertyLine(const char* name, const char* type, const QByteArray& value, int length = 0)
{
    QByteArray line = QByteArray("<property name=\"") + name + "\" type=\"" + type + "\" ";
    if (length)
        line += "length=\"" + QByteArray::number(length) + "\" ";
    return line + "value=\"" + value + "\" />";
}

// Each row of a table, or of a tree's top level, as its cells joined by "|".
QStringList Rows(const QAbstractItemModel& model)
{
    QStringList rows;
    for (int row = 0; row < model.rowCount(); ++row) {
        QStringList cells;
        for (int column = 0; column < model.columnCount(); ++column)
            cells << model.index(row, column).data().toString();
        rows << cells.join('|');
    }
    return rows;
}

// The choices offered to a check list as "name" or "[x] name", and the entries it shows.
QStringList Entries(const std::vector<FieldChoice>& choices)
{
    QStringList entries;
    for (const FieldChoice& choice : choices)
        entries << (choice.checked ? "[x] " : "") + QString::fromStdString(choice.field);
    return entries;
}

QStringList Entries(const QListWidget& list)
{
    std::vector<FieldChoice> shown;
    for (int row = 0; row < list.count(); ++row)
        shown.push_back({list.item(row)->text().toStdString(), list.item(row)->checkState() == Qt::Checked});
    return Entries(shown);
}

// Makes an entry current by a click and toggles its check box with the space bar.
void ToggleEntry(QListWidget& list, int row)
{
    ClickCell(list, list.model()->index(row, 0));
    QTest::keyClick(&list, Qt::Key_Space);
}

// Picks a tree node, wherever it stands, and a row of its list (unless none is given) with the
// mouse, as a user of the picker does.
void ChooseVariable(QDialog& dialog, const QString& node, int row = -1)
{
    auto& tree = *dialog.findChild<QTreeWidget*>();
    const QList<QTreeWidgetItem*> found = tree.findItems(node, Qt::MatchExactly | Qt::MatchRecursive);
    QVERIFY(!found.isEmpty());
    ClickCell(tree, tree.indexFromItem(found.front()));
    auto& list = *dialog.findChild<QTableWidget*>();
    if (row >= 0)
        ClickCell(list, list.model()->index(row, 1));
}

// Shows the rows of edited widgets again when the document tells of the edit, as the property
// pane does.
struct RowRefresher : CDocumentObserver {
    void DocumentChanged(const CDocumentChange& change) override
    {
        for (const HmiWidgetChange& entry : change.widgets)
            entry.widget->UpdateTreeByWidgetProp();
    }
};

} // namespace

class ProjectDialogsTest : public QObject {
    Q_OBJECT

private:
    const CRegistryScope m_registry;
    QString ProjectFile(const QString& name) const { return m_project->filePath(name); }
    // Loads a window file of the project into m_document, and builds the property list of its
    // widget of that name: m_widget and its row of that label, m_row.
    void Open(const QString& file, const std::string& name, const std::string& label)
    {
        if (m_document->Load(QFile::encodeName(ProjectFile(file)).toStdString()))
            for (const HmiWidgetPtr& widget : m_document->Widgets())
                if (widget->GetWidgetName() == name)
                    m_widget = widget.get();
        if (m_widget)
            m_widget->CreateWidgetPropertyTree(*m_tree);
        m_row = m_tree->Find(label);
        if (!m_row)
            qFatal("no row %s of %s in %s", label.c_str(), name.c_str(), qPrintable(file));
    }

    // The `property` line of that name inside m_widget's element of the window file.
    QByteArray SavedProperty(const std::string& property)
    {
        const QByteArray bytes = QByteArray::fromStdString(m_document->Serialize());
        const QByteArray name = QByteArray::fromStdString(m_widget->GetWidgetName());
        const qsizetype widget = bytes.indexOf("<widget name=\"" + name + "\"");
        const qsizetype start = bytes.indexOf("<property name=\"" + QByteArray::fromStdString(property) + "\"", widget);
        if (widget < 0 || start < 0)
            return "missing";
        return bytes.mid(start, bytes.indexOf('\n', start) - start);
    }

    // Runs what a click on m_row's button runs, with the choosers of m_context; the steps, when
    // given, play the user's part in its dialog.
    bool Select(std::function<void(QDialog&)> steps = {})
    {
        if (steps)
            m_context.runDialog = DriveWith(std::move(steps));
        return SelectWidgetItem(nullptr, *m_widget, *m_row, m_context);
    }

    std::unique_ptr<QTemporaryDir> m_project;
    std::unique_ptr<QTemporaryDir> m_elsewhere;
    std::unique_ptr<CTamloDoc> m_document;
    std::unique_ptr<MemoryOptionTree> m_tree;
    CHmiWidget* m_widget = nullptr;
    MemoryOptionItem* m_row = nullptr;
    ProjectContext m_context;
    RowRefresher m_rows;

private slots:
    // The editor's own kinds, registered as at start-up.
    void initTestCase()
    {
        RegisterBuiltinRowDialogs();
    }

    void init()
    {
        // Every test gets a fresh copy of the demo project, since the dialogs change its files.
        m_project = std::make_unique<QTemporaryDir>();
        m_elsewhere = std::make_unique<QTemporaryDir>();
        const QDir demo(KELVO_DEMO_DIR);
        for (const QString& name : demo.entryList(QDir::Files))
            QVERIFY(QFile::copy(demo.filePath(name), m_project->filePath(name)));
        SetProjectPath(QFile::encodeName(m_project->path()).toStdString());
        m_document = std::make_unique<CTamloDoc>();
        m_document->AddObserver(&m_rows);
        m_tree = std::make_unique<MemoryOptionTree>();
        m_widget = nullptr;
        m_context = {};
    }

    void cleanup()
    {
        m_tree.reset();
        m_document.reset();
        SetProjectPath("");
    }

    // "HMI Database": OK wants a node and a row; each node shows the columns of its kind of
    // data, and OK gives the chosen row's reference.
    void variablePickerShowsBothColumnSetsAndGivesReferences()
    {
        WriteFile(m_elsewhere->filePath("rtdb.xml"),
                  "<rtdbs><rtdb name=\"plc\"><datagroup name=\"io\"><datagroup name=\"in\">"
                  "<data name=\"x1\" type=\"ulong\" init=\"0\" description=\"input 1\"/>"
                  "<datalias aliasname=\"start\" name=\"x1\"/></datagroup></datagroup></rtdb></rtdbs>");
        WriteFile(m_elsewhere->filePath("hmidb.xml"), "<hmidb><datagroup name=\"memory\"><data name=\"speed\" "
                                                      "type=\"ushort\" length=\"2\" init=\"5\"/></datagroup></hmidb>");
        CHmiVariableDatabase database;
        QCOMPARE(database.ReadRealtimeDatabase(QFile::encodeName(m_elsewhere->filePath("rtdb.xml")).toStdString()), 1);
        QCOMPARE(database.ReadHmiDatabase(QFile::encodeName(m_elsewhere->filePath("hmidb.xml")).toStdString()), 1);

        const struct {
            QString node;
            QStringList rows;
            QString reference;
        } picks[] = {
            {"in", {"plc|x1|unsigned long|input 1|4|0|", "plc|start|||||x1"}, "$plc.x1"},
            {"Custom data", {"speed|unsigned short|2|5"}, "$speed"},
        };
        for (const auto& pick : picks) {
            QCOMPARE(PickVariable(nullptr, database, DriveWith([&pick](QDialog& dialog) {
                ClickButton(dialog, "OK");
                ChooseVariable(dialog, pick.node);
                ClickButton(dialog, "OK");
                QVERIFY2(dialog.isVisible(), "OK without a node, or with a node alone, keeps the dialog open");
                ChooseVariable(dialog, pick.node, 0);
                QCOMPARE(Rows(*dialog.findChild<QTableWidget*>()->model()), pick.rows);
                ClickButton(dialog, "OK");
            })), std::optional<QString>(pick.reference));
        }
    }

    void variableRowTakesThePickedReference()
    {
        Open("trends.xml", "records", "redrawvar");
        QVERIFY(Select([](QDialog& dialog) {
            ChooseVariable(dialog, "burner", 1);
            ClickButton(dialog, "OK");
        }));
        QCOMPARE(m_row->editText, std::string("$plc.mode"));
        QVERIFY(m_document->IsModified());
        QCOMPARE(SavedProperty("redrawvar"), PropertyLine("redrawvar", "string", "$plc.mode", 32));

        // Opened again, the picker shows the row's reference with every column of its list in view.
        QVERIFY(!Select([](QDialog& dialog) {
            QCOMPARE(dialog.findChild<QTreeWidget*>()->currentItem()->text(0), QString("burner"));
            auto& list = *dialog.findChild<QTableWidget*>();
            const QModelIndexList chosen = list.selectionModel()->selectedRows();
            QCOMPARE(chosen.size(), 1);
            QCOMPARE(chosen.front().row(), 1);
            const int alias = list.columnCount() - 1;
            QCOMPARE(list.horizontalHeaderItem(alias)->text(), QString("Alias"));
            QVERIFY(list.viewport()->rect().contains(list.visualRect(list.model()->index(1, alias))));
            ClickButton(dialog, "Cancel");
        }));
    }

    // "Project Window Information": the windows last to first; a browsed folder's windows, and
    // its path stays the project even when the dialog is cancelled.
    void projectDialogListsTheWindowsOfTheProjectOrABrowsedFolder()
    {
        m_context.runDialog = DriveWith([this](QDialog& dialog) {
            QCOMPARE(dialog.findChild<QLineEdit*>()->text(), m_project->path() + "/");
            auto& list = *dialog.findChild<QTreeWidget*>();
            const QStringList windows = {"trends|Trends and alarms|trends.xml", "pumps|Pump station|pumps.xml",
                                         "main|Boiler overview|main.xml"};
            QCOMPARE(Rows(*list.model()), windows);
            const QAbstractItemView& view = list; // where the width of the contents is public
            for (int column = 0; column < list.columnCount(); ++column)
                QVERIFY(list.header()->sectionSize(column) >= view.sizeHintForColumn(column));
            QCOMPARE(list.header()->length(), list.viewport()->width());
            ClickCell(list, list.model()->index(1, 0));
            ClickButton(dialog, "OK");
        });
        QCOMPARE(ChooseProjectWindow(nullptr, m_context), std::optional<std::string>(GetProjectPath() + "pumps.xml"));
        m_context.runDialog = DriveWith([](QDialog& dialog) { ClickButton(dialog, "OK"); });
        QVERIFY2(!ChooseProjectWindow(nullptr, m_context), "OK without a window gives none");

        WriteFile(m_elsewhere->filePath("hmiwindow.xml"),
                  "<hmiwindow><window name=\"A\" caption=\"a\" filename=\"a.xml\"/><window name=\"B\"/></hmiwindow>");
        QStringList browsedFrom;
        m_context.chooseDirectory = [&](QWidget*, const QString&, const QString& start) {
            browsedFrom << start;
            // The first browse is cancelled, the second picks the other folder.
            return browsedFrom.size() == 1 ? QString() : m_elsewhere->path();
        };
        m_context.runDialog = DriveWith([this](QDialog& dialog) {
            auto& list = *dialog.findChild<QTreeWidget*>();
            ClickButton(dialog, "Browse...");
            QCOMPARE(list.topLevelItemCount(), 3);
            ClickButton(dialog, "Browse...");
            QCOMPARE(dialog.findChild<QLineEdit*>()->text(), m_elsewhere->path() + "/");
            QCOMPARE(Rows(*list.model()), QStringList({"B||", "A|a|a.xml"}));
            ClickCell(list, list.model()->index(1, 0));
            ClickButton(dialog, "Cancel");
        });
        QCOMPARE(ChooseProjectWindow(nullptr, m_context), std::nullopt);
        QCOMPARE(browsedFrom, QStringList({QDir::currentPath(), QDir::currentPath()}));
        QCOMPARE(GetProjectPath(), QFile::encodeName(m_elsewhere->path()).toStdString() + "/");

        SetProjectPath("");
        m_context.runDialog = DriveWith([](QDialog& dialog) {
            QCOMPARE(dialog.findChild<QTreeWidget*>()->topLevelItemCount(), 0);
            QCOMPARE(dialog.findChild<QLineEdit*>()->text(), QString());
            ClickButton(dialog, "OK");
        });
        QVERIFY2(!ChooseProjectWindow(nullptr, m_context), "without a project there is no window to give");
    }

    // "Setting Alarm Field" and "History Data Variable": an alarm window's standard field is
    // offered unless the shown text contains it exactly ("Time" is inside "Timer", "Type" not
    // inside "type"); a history's variable or DateTime unless an entry begins with it, any case.
    void fieldChoicesLeaveOutWhatIsShown()
    {
        QStringList standard = Entries(AlarmFieldChoices(""));
        QCOMPARE(standard.removeAll("Time"), 1);
        QCOMPARE(Entries(AlarmFieldChoices("Timer,alarm type,")),
                 QStringList({"[x] Timer", "[x] alarm type"}) + standard);

        QCOMPARE(Entries(HistoryFieldChoices("Temperature_avg,x,", {"temp", "pressure", "x"})),
                 QStringList({"[x] Temperature_avg", "[x] x", "pressure", "DateTime"}));
        QCOMPARE(Entries(HistoryFieldChoices("datetime2", {})), QStringList({"[x] datetime2"}));
        QCOMPARE(Entries(HistoryFieldChoices("", {"pressure_max", "pressure"})),
                 QStringList({"pressure_max", "DateTime"}));
    }

    void alarmFieldDialogMovesAndChecksFields()
    {
        Open("trends.xml", "alarms", "Display fields");
        QVERIFY(!Select([](QDialog& dialog) { ClickButton(dialog, "Cancel"); }));
        QVERIFY(!m_document->IsModified());

        QVERIFY(Select([](QDialog& dialog) {
            // Information, the last and unchecked, is checked and moved up one place: a move past
            // either end changes nothing, and the moved entry stays current. Time is unchecked.
            auto& list = *dialog.findChild<QListWidget*>();
            ToggleEntry(list, list.count() - 1);
            for (const char* move : {"Move down", "Move up", "Move up", "Move down"})
                ClickButton(dialog, move);
            ClickCell(list, list.model()->index(0, 0));
            ClickButton(dialog, "Move up");
            ToggleEntry(list, 0);
            ClickButton(dialog, "OK");
        }));
        const std::string fields =
            "Event Type,Variable Name,Alarm info,Alarm value,Restore value,Limit value,Information,Alarm group,";
        QCOMPARE(m_row->staticText, fields);
        QCOMPARE(SavedProperty("dispfields"),
                 PropertyLine("dispfields", "string", fields.c_str(), int(fields.size()) + 1));
    }

    // The history list offers its fields, the recorded variables of its history not yet shown
    // and DateTime.
    void historyFieldDialogOffersTheRecordedVariables()
    {
        Open("trends.xml", "records", "dispfields");
        m_widget->SetWidgetProperty("dispfields", "string", "pressure", "32");
        QVERIFY(Select([](QDialog& dialog) {
            auto& list = *dialog.findChild<QListWidget*>();
            QCOMPARE(Entries(list), QStringList({"[x] pressure", "temperature", "DateTime"}));
            ToggleEntry(list, 2);
            ClickButton(dialog, "OK");
        }));
        QCOMPARE(SavedProperty("dispfields"), PropertyLine("dispfields", "string", "pressure,DateTime,", 32));
    }

    // Picture file
    void pictureFileIsTakenIntoTheProject()
    {
        Open("main.xml", "logo", "filename");
        QStringList reports;
        m_context.reportError = [&](QWidget*, const QString& message) { reports << message; };
        const QByteArray picture = ReadFile(ProjectFile("logo.png"));
        WriteFile(m_elsewhere->filePath("badge.png"), picture);
        // The chooser starts in the window's folder.
        m_context.choosePicture = [&](QWidget*, const QString& start) {
            return start == m_project->path() + "/" ? m_elsewhere->filePath("badge.png") : QString();
        };
        QVERIFY(Select());
        QCOMPARE(ReadFile(ProjectFile("badge.png")), picture);
        QCOMPARE(SavedProperty("filename"), PropertyLine("filename", "string", "badge.png", 32));

        // A file that already lies in the project is taken as it is, and a second time changes nothing.
        m_context.choosePicture = [&](QWidget*, const QString&) { return ProjectFile("logo.png"); };
        QVERIFY(Select());
        QCOMPARE(ReadFile(ProjectFile("logo.png")), picture);
        QCOMPARE(m_row->editText, std::string("logo.png"));
        QVERIFY(!Select());

        // One of the same name from elsewhere replaces the project's copy; the widget keeps its name.
        WriteFile(m_elsewhere->filePath("logo.png"), "a newer logo");
        m_context.choosePicture = [&](QWidget*, const QString&) { return m_elsewhere->filePath("logo.png"); };
        QVERIFY(!Select());
        QCOMPARE(ReadFile(ProjectFile("logo.png")), QByteArray("a newer logo"));

        m_context.choosePicture = [](QWidget*, const QString&) { return QString(); };
        QVERIFY(!Select());
        QVERIFY(reports.isEmpty());

        // A file that cannot be read is reported, and the widget keeps its picture.
        m_context.choosePicture = [&](QWidget*, const QString&) { return m_elsewhere->filePath("missing.png"); };
        QVERIFY(!Select());
        QCOMPARE(reports.size(), 1);
        QVERIFY(reports.front().contains("missing.png"));
        QCOMPARE(SavedProperty("filename"), PropertyLine("filename", "string", "logo.png", 32));

        // A window never saved has no folder to take a picture into.
        m_document->SetPathName({});
        QVERIFY(!Select());
        QCOMPARE(reports.last(), QString("The window has no folder for its pictures yet: save it first."));
    }

    // Font of the bitmap text
    void fontPickerSetsFontAndColour()
    {
        Open("main.xml", "title", "Font");
        // The colour chooser starts from the title's navy text; red is picked.
        m_context.chooseColor = [](QWidget*, const QColor& initial) {
            return initial == QColor(0, 0, 128) ? QColor(255, 0, 0) : QColor();
        };
        QVERIFY(Select([](QDialog& dialog) {
            auto& face = *dialog.findChild<QComboBox*>();
            face.lineEdit()->selectAll();
            QTest::keyClicks(face.lineEdit(), "DejaVu Serif");
            auto& height = *dialog.findChild<QSpinBox*>()->findChild<QLineEdit*>();
            height.selectAll();
            QTest::keyClicks(&height, "24");
            // The demo's title is bold: a click on Bold makes it normal.
            for (QCheckBox* flag : dialog.findChildren<QCheckBox*>())
                if (flag->text() == "Bold" || flag->text() == "Underline")
                    QTest::keyClick(flag, Qt::Key_Space);
            ClickButton(dialog, "Color...");
            ClickButton(dialog, "OK");
        }));
        QCOMPARE(m_row->staticText, std::string("DejaVu Serif, -24, 400"));
        QCOMPARE(SavedProperty("fontunderline"), PropertyLine("fontunderline", "uchar", "1"));
        QCOMPARE(SavedProperty("color"), PropertyLine("color", "ulong", "255"));

        QVERIFY(!Select([](QDialog& dialog) { ClickButton(dialog, "Cancel"); }));
    }
};

QTEST_MAIN(ProjectDialogsTest)
#include "projectdialogs_test.moc"
