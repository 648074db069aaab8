#include "dialogdriver.h"

#include "editor/projectdialogs/fieldchoicedialog.h"
#include "editor/projectdialogs/projectwindowdialog.h"
#include "editor/projectdialogs/variabledialog.h"
#include "editor/projectdialogs/widgetitemdialogs.h"

#include "project/projectpath.h"
#include "project/variabledatabase.h"
#include "tests/support/memoryoptiontree.h"
#include "widgets/catalogue/builtinwidgets.h"
#include "widgets/core/tamlodoc.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QDir>
#include <QFile>
#include <QHeaderView>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
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

// The tree item with this text, wherever it stands.
QTreeWidgetItem* TreeItem(QTreeWidget& tree, const QString& text)
{
    const QList<QTreeWidgetItem*> found = tree.findItems(text, Qt::MatchExactly | Qt::MatchRecursive);
    return found.isEmpty() ? nullptr : found.front();
}

QStringList Headers(const QTableWidget& list)
{
    QStringList headers;
    for (int column = 0; column < list.columnCount(); ++column)
        headers << list.horizontalHeaderItem(column)->text();
    return headers;
}

QStringList Row(const QTableWidget& list, int row)
{
    QStringList cells;
    for (int column = 0; column < list.columnCount(); ++column)
        cells << list.item(row, column)->text();
    return cells;
}

// The entries of a check list as "name" or "[x] name".
QStringList Entries(const QListWidget& list)
{
    QStringList entries;
    for (int row = 0; row < list.count(); ++row)
        entries << (list.item(row)->checkState() == Qt::Checked ? "[x] " : "") + list.item(row)->text();
    return entries;
}

// Makes an entry current by a click and toggles its check box with the space bar.
void ToggleEntry(QListWidget& list, int row)
{
    ClickCell(list, list.model()->index(row, 0));
    QTest::keyClick(&list, Qt::Key_Space);
}

void SelectEntry(QListWidget& list, int row)
{
    ClickCell(list, list.model()->index(row, 0));
}

// Picks a tree node and a row of its list with the mouse, as a user of the picker does.
void ChooseVariable(QDialog& dialog, const QString& node, int row)
{
    auto& tree = *dialog.findChild<QTreeWidget*>();
    QTreeWidgetItem* item = TreeItem(tree, node);
    QVERIFY(item);
    ClickCell(tree, tree.indexFromItem(item));
    auto& list = *dialog.findChild<QTableWidget*>();
    ClickCell(list, list.model()->index(row, 1));
}

} // namespace

class ProjectDialogsTest : public QObject {
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();

    void variablePickerShowsBothColumnSetsAndGivesReferences();
    void variablePickerOkNeedsARow();
    void variableRowTakesThePickedReference();

    void projectDialogListsWindowsLastToFirst();
    void browsedProjectPathStaysAfterCancel();
    void projectDialogWithoutProjectOrSelection();

    void alarmFieldsOfferStandardFieldsBySubstring();
    void alarmFieldDialogMovesAndChecksFields();
    void historyFieldsOfferVariablesByPrefix();
    void historyFieldDialogAddsARecordedVariable();
    void historyFieldDialogOfAnUnknownDatabaseOffersNoVariables();

    void pictureFromElsewhereIsCopiedIntoTheProject();
    void pictureOfTheSameNameOverwritesTheProjectCopy();
    void pictureFailuresAreReported();

    void fontPickerSetsFontAndColour();

private:
    QString ProjectFile(const QString& name) const { return m_project->filePath(name); }
    // Loads a window file of the project into m_document and returns its widget of that name.
    CHmiWidget* OpenWidget(const QString& file, const std::string& name);
    // The row of a widget's property, after the widget built its property list.
    COptionTreeItem& RowOf(CHmiWidget& widget, const std::string& label);
    // Saves the document and returns the `property` line of that name inside the widget's element.
    QByteArray SavedProperty(const std::string& widgetName, const std::string& property);

    std::unique_ptr<QTemporaryDir> m_project;
    std::unique_ptr<QTemporaryDir> m_elsewhere;
    std::unique_ptr<CTamloDoc> m_document;
    std::unique_ptr<MemoryOptionTree> m_tree;
};

void ProjectDialogsTest::initTestCase()
{
    CHmiWidget::RemoveAllRunTimeClass();
    RegisterBuiltinWidgetClasses();
}

void ProjectDialogsTest::init()
{
    // Every test gets a fresh copy of the demo project, since the dialogs change its files.
    m_project = std::make_unique<QTemporaryDir>();
    m_elsewhere = std::make_unique<QTemporaryDir>();
    const QDir demo(KELVO_DEMO_DIR);
    for (const QString& name : demo.entryList(QDir::Files))
        QVERIFY(QFile::copy(demo.filePath(name), m_project->filePath(name)));
    SetProjectPath(QFile::encodeName(m_project->path()).toStdString());
    m_document = std::make_unique<CTamloDoc>();
    m_tree = std::make_unique<MemoryOptionTree>();
}

void ProjectDialogsTest::cleanup()
{
    m_tree.reset();
    m_document.reset();
    SetProjectPath("");
}

CHmiWidget* ProjectDialogsTest::OpenWidget(const QString& file, const std::string& name)
{
    if (!m_document->Load(QFile::encodeName(ProjectFile(file)).toStdString()))
        return nullptr;
    for (const HmiWidgetPtr& widget : m_document->Widgets())
        if (widget->GetWidgetName() == name)
            return widget.get();
    return nullptr;
}

COptionTreeItem& ProjectDialogsTest::RowOf(CHmiWidget& widget, const std::string& label)
{
    if (m_tree->items.empty())
        widget.CreateWidgetPropertyTree(*m_tree);
    MemoryOptionItem* item = m_tree->Find(label);
    if (!item)
        qFatal("no row %s", label.c_str());
    return *item;
}

QByteArray ProjectDialogsTest::SavedProperty(const std::string& widgetName, const std::string& property)
{
    const std::string path = m_document->GetPathName();
    if (!m_document->Save(path))
        return "not saved";
    const QByteArray bytes = ReadFile(QFile::decodeName(QByteArray::fromStdString(path)));
    const qsizetype widget = bytes.indexOf("<widget name=\"" + QByteArray::fromStdString(widgetName) + "\"");
    const qsizetype start = bytes.indexOf("<property name=\"" + QByteArray::fromStdString(property) + "\"", widget);
    if (widget < 0 || start < 0)
        return "missing";
    return bytes.mid(start, bytes.indexOf('\n', start) - start);
}

// ---------------------------------------------------------------------------------------------
// "HMI Database"

void ProjectDialogsTest::variablePickerShowsBothColumnSetsAndGivesReferences()
{
    WriteFile(m_elsewhere->filePath("rtdb.xml"),
              "<rtdbs><rtdb name=\"plc\"><datagroup name=\"io\"><datagroup name=\"in\">"
              "<data name=\"x1\" type=\"ulong\" init=\"0\" description=\"input 1\"/>"
              "<datalias aliasname=\"start\" name=\"x1\"/></datagroup></datagroup></rtdb></rtdbs>");
    WriteFile(m_elsewhere->filePath("hmidb.xml"),
              "<hmidb><datagroup name=\"io\"><data name=\"level\" dbname=\"plc\" dataname=\"lv\"/></datagroup>"
              "<datagroup name=\"memory\"><data name=\"speed\" type=\"ushort\" length=\"2\" init=\"5\"/>"
              "</datagroup></hmidb>");
    CHmiVariableDatabase database;
    QCOMPARE(database.ReadRealtimeDatabase(QFile::encodeName(m_elsewhere->filePath("rtdb.xml")).toStdString()), 1);
    QCOMPARE(database.ReadHmiDatabase(QFile::encodeName(m_elsewhere->filePath("hmidb.xml")).toStdString()), 1);

    const std::optional<QString> nested = PickVariable(nullptr, database, DriveWith([](QDialog& dialog) {
        QCOMPARE(dialog.windowTitle(), QString("HMI Database"));
        ChooseVariable(dialog, "in", 0);
        const auto& list = *dialog.findChild<QTableWidget*>();
        QCOMPARE(Headers(list), QStringList({"Database name", "Data name", "Type", "Description", "Length",
                                             "Initial value", "Alias"}));
        QCOMPARE(list.horizontalHeader()->sectionSize(0), 100);
        QCOMPARE(Row(list, 0), QStringList({"plc", "x1", "unsigned long", "input 1", "4", "0", ""}));
        QCOMPARE(Row(list, 1), QStringList({"plc", "start", "", "", "", "", "x1"}));
        ClickButton(dialog, "OK");
    }));
    QCOMPARE(nested, std::optional<QString>("$plc.x1"));

    const std::optional<QString> mirrored = PickVariable(nullptr, database, DriveWith([](QDialog& dialog) {
        ChooseVariable(dialog, "Realtime related data", 0);
        const auto& list = *dialog.findChild<QTableWidget*>();
        QCOMPARE(Headers(list), QStringList({"HMI data name", "Database name", "Data name"}));
        QCOMPARE(Row(list, 0), QStringList({"level", "plc", "lv"}));
        ClickButton(dialog, "OK");
    }));
    QCOMPARE(mirrored, std::optional<QString>("$level"));

    const std::optional<QString> custom = PickVariable(nullptr, database, DriveWith([](QDialog& dialog) {
        ChooseVariable(dialog, "Custom data", 0);
        const auto& list = *dialog.findChild<QTableWidget*>();
        QCOMPARE(Headers(list), QStringList({"Data name", "Type", "Length", "Initial value"}));
        QCOMPARE(Row(list, 0), QStringList({"speed", "unsigned short", "2", "5"}));
        ClickButton(dialog, "OK");
    }));
    QCOMPARE(custom, std::optional<QString>("$speed"));
}

void ProjectDialogsTest::variablePickerOkNeedsARow()
{
    CHmiVariableDatabase database;
    database.LoadProject(GetProjectPath());
    const std::optional<QString> picked = PickVariable(nullptr, database, DriveWith([](QDialog& dialog) {
        ClickButton(dialog, "OK");
        QVERIFY2(dialog.isVisible(), "OK without a node and a row keeps the dialog open");
        auto& tree = *dialog.findChild<QTreeWidget*>();
        ClickCell(tree, tree.indexFromItem(TreeItem(tree, "boiler")));
        ClickButton(dialog, "OK");
        QVERIFY2(dialog.isVisible(), "a node alone is not enough");
        ClickButton(dialog, "Cancel");
    }));
    QCOMPARE(picked, std::nullopt);
}

void ProjectDialogsTest::variableRowTakesThePickedReference()
{
    CHmiWidget* list = OpenWidget("trends.xml", "records");
    QVERIFY(list);
    COptionTreeItem& row = RowOf(*list, "redrawvar");
    ProjectContext context;
    context.runDialog = DriveWith([](QDialog& dialog) {
        ChooseVariable(dialog, "burner", 1);
        ClickButton(dialog, "OK");
    });
    QVERIFY(SelectWidgetItem(nullptr, *list, row, context));
    QCOMPARE(row.GetEditText(), std::string("$plc.mode"));
    QVERIFY(m_document->IsModified());
    QCOMPARE(SavedProperty("records", "redrawvar"),
             PropertyLine("redrawvar", "string", "$plc.mode", 32));

    context.runDialog = DriveWith([](QDialog& dialog) { ClickButton(dialog, "Cancel"); });
    QVERIFY(!SelectWidgetItem(nullptr, *list, row, context));
    QCOMPARE(row.GetEditText(), std::string("$plc.mode"));
}

// ---------------------------------------------------------------------------------------------
// "Project Window Information"

void ProjectDialogsTest::projectDialogListsWindowsLastToFirst()
{
    ProjectContext context;
    context.runDialog = DriveWith([this](QDialog& dialog) {
        QCOMPARE(dialog.windowTitle(), QString("Project Window Information"));
        QCOMPARE(dialog.findChild<QLineEdit*>()->text(), m_project->path() + "/");
        auto& list = *dialog.findChild<QTreeWidget*>();
        QCOMPARE(list.headerItem()->text(0), QString("window name"));
        QCOMPARE(list.headerItem()->text(1), QString("window caption"));
        QCOMPARE(list.headerItem()->text(2), QString("file name"));
        QCOMPARE(list.topLevelItemCount(), 3);
        QCOMPARE(list.topLevelItem(0)->text(0), QString("trends"));
        QCOMPARE(list.topLevelItem(1)->text(1), QString("Pump station"));
        QCOMPARE(list.topLevelItem(2)->text(2), QString("main.xml"));
        ClickCell(list, list.model()->index(1, 0));
        ClickButton(dialog, "OK");
    });
    QCOMPARE(ChooseProjectWindow(nullptr, context), std::optional<std::string>(GetProjectPath() + "pumps.xml"));
}

void ProjectDialogsTest::browsedProjectPathStaysAfterCancel()
{
    WriteFile(m_elsewhere->filePath("hmiwindow.xml"),
              "<hmiwindow><window name=\"A\" caption=\"a\" filename=\"a.xml\"/><window name=\"B\"/></hmiwindow>");
    ProjectContext context;
    QStringList browserCalls;
    context.chooseDirectory = [&](QWidget*, const QString& title, const QString& start) {
        browserCalls << title << start;
        // The first browse is cancelled, the second picks the other folder.
        return browserCalls.size() == 2 ? QString() : m_elsewhere->path();
    };
    context.runDialog = DriveWith([this](QDialog& dialog) {
        auto& list = *dialog.findChild<QTreeWidget*>();
        ClickButton(dialog, "Browse...");
        QCOMPARE(list.topLevelItemCount(), 3);
        ClickButton(dialog, "Browse...");
        QCOMPARE(dialog.findChild<QLineEdit*>()->text(), m_elsewhere->path() + "/");
        QCOMPARE(list.topLevelItemCount(), 2);
        QCOMPARE(list.topLevelItem(0)->text(0), QString("B"));
        QCOMPARE(list.topLevelItem(0)->text(2), QString());
        ClickCell(list, list.model()->index(1, 0));
        ClickButton(dialog, "Cancel");
    });
    QCOMPARE(ChooseProjectWindow(nullptr, context), std::nullopt);
    const QString title = "Please select project path!";
    QCOMPARE(browserCalls, QStringList({title, QDir::currentPath(), title, QDir::currentPath()}));
    QCOMPARE(GetProjectPath(), QFile::encodeName(m_elsewhere->path()).toStdString() + "/");
}

void ProjectDialogsTest::projectDialogWithoutProjectOrSelection()
{
    ProjectContext context;
    context.runDialog = DriveWith([](QDialog& dialog) { ClickButton(dialog, "OK"); });
    QCOMPARE(ChooseProjectWindow(nullptr, context), std::nullopt);

    SetProjectPath("");
    context.runDialog = DriveWith([](QDialog& dialog) {
        QCOMPARE(dialog.findChild<QTreeWidget*>()->topLevelItemCount(), 0);
        QCOMPARE(dialog.findChild<QLineEdit*>()->text(), QString());
        ClickButton(dialog, "OK");
    });
    QCOMPARE(ChooseProjectWindow(nullptr, context), std::nullopt);
}

// ---------------------------------------------------------------------------------------------
// "Setting Alarm Field" and "History Data Variable"

void ProjectDialogsTest::alarmFieldsOfferStandardFieldsBySubstring()
{
    const std::vector<FieldChoice> defaults =
        AlarmFieldChoices("Time,Event Type,Variable Name,Alarm info,Alarm value,Restore value,Limit value,Alarm group");
    QCOMPARE(defaults.size(), std::size_t(9));
    QVERIFY(defaults[7] == (FieldChoice{"Alarm group", true}));
    QVERIFY2(defaults[8] == (FieldChoice{"Information", false}), "only Information is not found in the text");

    const std::vector<FieldChoice> fromEmpty = AlarmFieldChoices("");
    QCOMPARE(fromEmpty.size(), std::size_t(8));
    QVERIFY(fromEmpty.front() == (FieldChoice{"Time", false}));

    // "Time" is found inside "Timer", "Type" not in "type": the test is an exact substring search.
    const std::vector<FieldChoice> partial = AlarmFieldChoices("Timer,alarm type,");
    QCOMPARE(partial.size(), std::size_t(9));
    QVERIFY(partial[0] == (FieldChoice{"Timer", true}));
    QVERIFY(partial[2] == (FieldChoice{"Type", false}));
}

void ProjectDialogsTest::alarmFieldDialogMovesAndChecksFields()
{
    CHmiWidget* alarms = OpenWidget("trends.xml", "alarms");
    QVERIFY(alarms);
    COptionTreeItem& row = RowOf(*alarms, "Display fields");
    const QByteArray before = SavedProperty("alarms", "dispfields");
    m_document->SetModifiedFlag(false);
    ProjectContext context;
    context.runDialog = DriveWith([](QDialog& dialog) { ClickButton(dialog, "Cancel"); });
    QVERIFY(!SelectWidgetItem(nullptr, *alarms, row, context));
    QVERIFY(!m_document->IsModified());
    QCOMPARE(SavedProperty("alarms", "dispfields"), before);

    context.runDialog = DriveWith([](QDialog& dialog) {
        QCOMPARE(dialog.windowTitle(), QString("Setting Alarm Field"));
        auto& list = *dialog.findChild<QListWidget*>();
        const int last = list.count() - 1;
        QCOMPARE(list.item(last)->text(), QString("Information"));
        ToggleEntry(list, last);
        ClickButton(dialog, "Move down");
        QCOMPARE(list.item(last)->text(), QString("Information"));
        ClickButton(dialog, "Move up");
        ClickButton(dialog, "Move up");
        ClickButton(dialog, "Move down");
        QCOMPARE(list.currentRow(), last - 1);
        SelectEntry(list, 0);
        ClickButton(dialog, "Move up");
        QCOMPARE(list.currentRow(), 0);
        ToggleEntry(list, 0);
        QCOMPARE(Entries(list).mid(last - 2),
                 QStringList({"[x] Limit value", "[x] Information", "[x] Alarm group"}));
        ClickButton(dialog, "OK");
    });
    QVERIFY(SelectWidgetItem(nullptr, *alarms, row, context));
    const std::string fields =
        "Event Type,Variable Name,Alarm info,Alarm value,Restore value,Limit value,Information,Alarm group,";
    QCOMPARE(static_cast<MemoryOptionItem&>(row).staticText.c_str(), fields.c_str());
    QVERIFY(m_document->IsModified());
    QCOMPARE(SavedProperty("alarms", "dispfields"),
             PropertyLine("dispfields", "string", fields.c_str(), int(fields.size()) + 1));
    QCOMPARE(SavedProperty("alarms", "fieldswidth"),
             PropertyLine("fieldswidth", "string", "80,80,80,80,80,80,80,80,", 32));

    // Unchecking everything leaves no field and no column.
    context.runDialog = DriveWith([](QDialog& dialog) {
        auto& list = *dialog.findChild<QListWidget*>();
        for (int entry = 0; entry < list.count(); ++entry)
            if (list.item(entry)->checkState() == Qt::Checked)
                ToggleEntry(list, entry);
        ClickButton(dialog, "OK");
    });
    QVERIFY(SelectWidgetItem(nullptr, *alarms, row, context));
    QCOMPARE(SavedProperty("alarms", "fieldswidth"),
             PropertyLine("fieldswidth", "string", "", 32));
}

void ProjectDialogsTest::historyFieldsOfferVariablesByPrefix()
{
    const std::vector<FieldChoice> choices = HistoryFieldChoices("Temperature_avg,x,", {"temp", "pressure", "x"});
    QCOMPARE(choices.size(), std::size_t(4));
    QVERIFY(choices[0] == (FieldChoice{"Temperature_avg", true}));
    QVERIFY(choices[1] == (FieldChoice{"x", true}));
    QVERIFY2(choices[2] == (FieldChoice{"pressure", false}), "temp begins a listed field, letter case aside");
    QVERIFY(choices[3] == (FieldChoice{"DateTime", false}));

    const std::vector<FieldChoice> dated = HistoryFieldChoices("datetime2", {});
    QCOMPARE(dated.size(), std::size_t(1));
    QVERIFY2(HistoryFieldChoices("", {"pressure_max", "pressure"}).size() == 2,
             "a variable whose name begins one offered before is not offered");
}

void ProjectDialogsTest::historyFieldDialogAddsARecordedVariable()
{
    CHmiWidget* records = OpenWidget("trends.xml", "records");
    QVERIFY(records);
    records->SetWidgetProperty("dispfields", "string", "pressure", "32");
    COptionTreeItem& row = RowOf(*records, "dispfields");
    ProjectContext context;
    context.runDialog = DriveWith([](QDialog& dialog) {
        QCOMPARE(dialog.windowTitle(), QString("History Data Variable"));
        auto& list = *dialog.findChild<QListWidget*>();
        QCOMPARE(Entries(list), QStringList({"[x] pressure", "temperature", "DateTime"}));
        ToggleEntry(list, 2);
        ClickButton(dialog, "Move up");
        ClickButton(dialog, "Move up");
        ClickButton(dialog, "OK");
    });
    QVERIFY(SelectWidgetItem(nullptr, *records, row, context));
    QCOMPARE(SavedProperty("records", "dispfields"),
             PropertyLine("dispfields", "string", "DateTime,pressure,", 32));
    QCOMPARE(SavedProperty("records", "fieldswidth"),
             PropertyLine("fieldswidth", "string", "80,80,", 32));
}

void ProjectDialogsTest::historyFieldDialogOfAnUnknownDatabaseOffersNoVariables()
{
    CHmiWidget* records = OpenWidget("trends.xml", "records");
    QVERIFY(records);
    records->SetWidgetProperty("historyname", "string", "retired_history", "32");
    records->SetWidgetProperty("dispfields", "string", "pressure", "32");
    COptionTreeItem& row = RowOf(*records, "dispfields");
    ProjectContext context;
    context.runDialog = DriveWith([](QDialog& dialog) {
        QCOMPARE(Entries(*dialog.findChild<QListWidget*>()), QStringList({"[x] pressure", "DateTime"}));
        ClickButton(dialog, "OK");
    });
    QVERIFY(SelectWidgetItem(nullptr, *records, row, context));
    QCOMPARE(SavedProperty("records", "historyname"), PropertyLine("historyname", "string", "retired_history", 32));
}

// ---------------------------------------------------------------------------------------------
// Picture file

void ProjectDialogsTest::pictureFromElsewhereIsCopiedIntoTheProject()
{
    CHmiWidget* logo = OpenWidget("main.xml", "logo");
    QVERIFY(logo);
    COptionTreeItem& row = RowOf(*logo, "filename");
    const QByteArray picture = ReadFile(ProjectFile("logo.png"));
    WriteFile(m_elsewhere->filePath("badge.png"), picture);
    ProjectContext context;
    QString startFolder;
    context.choosePicture = [&](QWidget*, const QString& start) {
        startFolder = start;
        return m_elsewhere->filePath("badge.png");
    };
    QVERIFY(SelectWidgetItem(nullptr, *logo, row, context));
    QCOMPARE(startFolder, m_project->path() + "/");
    QCOMPARE(ReadFile(ProjectFile("badge.png")), picture);
    QCOMPARE(row.GetEditText(), std::string("badge.png"));
    QCOMPARE(SavedProperty("logo", "filename"),
             PropertyLine("filename", "string", "badge.png", 32));

    // A file that already lies in the project is taken as it is.
    context.choosePicture = [&](QWidget*, const QString&) { return ProjectFile("logo.png"); };
    QVERIFY(SelectWidgetItem(nullptr, *logo, row, context));
    QCOMPARE(ReadFile(ProjectFile("logo.png")), picture);
    QCOMPARE(row.GetEditText(), std::string("logo.png"));
    QVERIFY2(!SelectWidgetItem(nullptr, *logo, row, context), "the same file again changes nothing");

    context.choosePicture = [](QWidget*, const QString&) { return QString(); };
    QVERIFY(!SelectWidgetItem(nullptr, *logo, row, context));
}

void ProjectDialogsTest::pictureOfTheSameNameOverwritesTheProjectCopy()
{
    CHmiWidget* logo = OpenWidget("main.xml", "logo");
    QVERIFY(logo);
    WriteFile(m_elsewhere->filePath("logo.png"), "a newer logo");
    ProjectContext context;
    context.choosePicture = [&](QWidget*, const QString&) { return m_elsewhere->filePath("logo.png"); };
    context.reportError = [](QWidget*, const QString& message) { QFAIL(qPrintable(message)); };
    COptionTreeItem& row = RowOf(*logo, "filename");
    QVERIFY2(!SelectWidgetItem(nullptr, *logo, row, context), "the widget keeps the same file name");
    QCOMPARE(ReadFile(ProjectFile("logo.png")), QByteArray("a newer logo"));
}

void ProjectDialogsTest::pictureFailuresAreReported()
{
    CHmiWidget* logo = OpenWidget("main.xml", "logo");
    QVERIFY(logo);
    COptionTreeItem& row = RowOf(*logo, "filename");
    QStringList reports;
    ProjectContext context;
    context.reportError = [&](QWidget*, const QString& message) { reports << message; };
    context.choosePicture = [&](QWidget*, const QString&) { return m_elsewhere->filePath("missing.png"); };
    QVERIFY(!SelectWidgetItem(nullptr, *logo, row, context));
    QCOMPARE(reports.size(), 1);
    QVERIFY(reports.front().contains("missing.png"));
    QCOMPARE(SavedProperty("logo", "filename"),
             PropertyLine("filename", "string", "logo.png", 32));

    // A window never saved has no folder to take a picture into.
    CTamloDoc unsaved;
    unsaved.OnNewDocument();
    HmiWidgetPtr picture = CHmiWidget::GetWidgetClass("picture")->CreateObject();
    CHmiWidget& added = *picture;
    QVERIFY(unsaved.AddWidget(std::move(picture), true, false));
    MemoryOptionTree tree;
    added.CreateWidgetPropertyTree(tree);
    WriteFile(m_elsewhere->filePath("badge.png"), "picture");
    context.choosePicture = [&](QWidget*, const QString&) { return m_elsewhere->filePath("badge.png"); };
    QVERIFY(!SelectWidgetItem(nullptr, added, *tree.Find("filename"), context));
    QCOMPARE(reports.size(), 2);
}

// ---------------------------------------------------------------------------------------------
// Font of the bitmap text

void ProjectDialogsTest::fontPickerSetsFontAndColour()
{
    CHmiWidget* title = OpenWidget("main.xml", "title");
    QVERIFY(title);
    COptionTreeItem& row = RowOf(*title, "Font");
    ProjectContext context;
    QColor offered;
    context.chooseColor = [&](QWidget*, const QColor& initial) {
        offered = initial;
        return QColor(255, 0, 0);
    };
    context.runDialog = DriveWith([](QDialog& dialog) {
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
    });
    QVERIFY(SelectWidgetItem(nullptr, *title, row, context));
    QVERIFY(offered.isValid());
    QCOMPARE(static_cast<MemoryOptionItem&>(row).staticText.c_str(), "DejaVu Serif, -24, 400");
    QCOMPARE(SavedProperty("title", "fontname"),
             PropertyLine("fontname", "string", "DejaVu Serif", 32));
    QCOMPARE(SavedProperty("title", "fontheight"), PropertyLine("fontheight", "long", "-24"));
    QCOMPARE(SavedProperty("title", "fontweight"), PropertyLine("fontweight", "long", "400"));
    QCOMPARE(SavedProperty("title", "fontunderline"),
             PropertyLine("fontunderline", "uchar", "1"));
    QCOMPARE(SavedProperty("title", "color"), PropertyLine("color", "ulong", "255"));

    context.runDialog = DriveWith([](QDialog& dialog) { ClickButton(dialog, "Cancel"); });
    QVERIFY(!SelectWidgetItem(nullptr, *title, row, context));
}

QTEST_MAIN(ProjectDialogsTest)
#include "projectdialogs_test.moc"
