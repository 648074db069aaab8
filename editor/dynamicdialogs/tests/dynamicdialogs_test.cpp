#include "editor/dynamicdialogs/codeedit.h"
#include "editor/dynamicdialogs/colorlevelseditor.h"
#include "editor/dynamicdialogs/dyncolordialog.h"
#include "editor/dynamicdialogs/dynpropertydialog.h"
#include "editor/dynamicdialogs/dynpropertyedit.h"
#include "editor/dynamicdialogs/dyntextdialog.h"
#include "editor/dynamicdialogs/eventedit.h"
#include "editor/dynamicdialogs/eventeditdialog.h"
#include "project/scriptfunctions.h"
#include "dynamics/dynamictypes.h"
#include "tests/support/memoryoptiontree.h"
#include "tests/support/tempdir.h"
#include "tests/support/registryscope.h"
#include "widgets/tamlodoc.h"

#include <QApplication>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QDir>
#include <QFontInfo>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMessageBox>
#include <QPushButton>
#include <QSpinBox>
#include <QTableWidget>
#include <QTest>
#include <QTimer>

#include <functional>
#include <memory>

namespace {

// Runs an action on the next modal dialog once its event loop runs. A dialog of another kind
// is closed, so that a failing test cannot hang on it.
template <class Dialog>
void WhenModal(std::function<void(Dialog&)> action)
{
    QTimer::singleShot(0, [action] {
        QWidget* modal = QApplication::activeModalWidget();
        auto* dialog = qobject_cast<Dialog*>(modal);
        if (!dialog) {
            if (modal)
                modal->close();
            QFAIL("the expected dialog did not open");
        }
        action(*dialog);
        // A failed check leaves the dialog open; closing it lets the test go on to report.
        if (QTest::currentTestFailed() && dialog->isVisible())
            dialog->done(QDialog::Rejected);
    });
}

void PressOk(QDialog& dialog)
{
    QTest::mouseClick(dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok), Qt::LeftButton);
}

void Click(QWidget& dialog, const char* objectName)
{
    auto* button = dialog.findChild<QAbstractButton*>(objectName);
    QVERIFY2(button, objectName);
    QTest::mouseClick(button, Qt::LeftButton);
}

void TypeInto(QWidget* field, const QString& text)
{
    QVERIFY(field);
    QTest::keyClick(field, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(field, Qt::Key_Delete);
    QTest::keyClicks(field, text);
}

void ChooseType(QDialog& dialog, const char* typeName)
{
    auto* box = dialog.findChild<QComboBox*>("type");
    box->setCurrentIndex(box->findText(typeName));
}

} // namespace

class DynamicDialogsTest : public QObject {
    Q_OBJECT

private:
    const CRegistryScope m_registry;
    // Adds a widget of the class to the unmodified document and builds its property list:
    // m_widget and its row of that caption, m_row.
    void Add(const char* classKey, const std::string& caption, const std::string& root = {})
    {
        m_tree.items.clear();
        HmiWidgetPtr widget = CHmiWidget::GetWidgetClass(classKey)->CreateObject();
        widget->SetWidgetRect({10, 10, 60, 40});
        m_widget = widget.get();
        m_document->AddWidget(std::move(widget), true);
        m_document->SetModifiedFlag(false);
        m_widget->CreateWidgetPropertyTree(m_tree);
        m_row = m_tree.Find(caption, root);
        if (!m_row)
            qFatal("no row %s", caption.c_str());
    }

    // Edits the binding of m_row, the steps playing the user's part in the dialog.
    bool EditBinding(std::function<void(CDynPropertyDialog&)> steps)
    {
        WhenModal<CDynPropertyDialog>(std::move(steps));
        return EditDynamicProperty(nullptr, *m_widget, *m_row, Services());
    }
    bool EditBinding(COptionTreeItem& row) { return EditDynamicProperty(nullptr, *m_widget, row, Services()); }

    // The text between `<tag>` and `</tag>` of m_widget's element in the window file. How each
    // kind of binding is written is pinned by the window file tests; the tests here compare the
    // file's text where the line ends of what the user typed have to be kept.
    std::string SavedSection(const std::string& tag)
    {
        const std::string file = m_document->Serialize();
        const std::string open = "\t\t<" + tag + ">\r\n";
        const std::size_t start = file.find(open, file.find("\t<widget name=\"" + m_widget->GetWidgetName() + "\""));
        const std::size_t end = file.find("\t\t</" + tag + ">\r\n", start);
        if (start == std::string::npos || end == std::string::npos)
            return "(no " + tag + " section)";
        return file.substr(start + open.size(), end - start - open.size());
    }

    DynamicDialogServices Services()
    {
        return {[this](QWidget*) { return m_variable; },
                [this](const QColor&, QWidget*) { return m_colors.isEmpty() ? QColor() : m_colors.takeFirst(); }};
    }

    std::unique_ptr<CTamloDoc> m_document;
    MemoryOptionTree m_tree;
    CHmiWidget* m_widget = nullptr;
    MemoryOptionItem* m_row = nullptr;
    TempDir m_folder;
    QList<QColor> m_colors;             // what the colour chooser answers, in turn
    std::optional<QString> m_variable; // what the variable picker answers

private slots:

    void init()
    {
        m_document = std::make_unique<CTamloDoc>();
        m_document->OnNewDocument();
        m_colors.clear();
        m_variable.reset();
    }

    void cleanup() { m_document.reset(); }

    void colorAnalogWithThreeLevels()
    {
        Add("rectangle", "fillcolor");
        m_variable = "$plc.temperature";
        // Default colour red, then the levels green, blue and yellow (0x00BBGGRR in the file).
        m_colors = {Qt::red, Qt::green, Qt::blue, Qt::yellow};
        const QString composed = "(($plc.temperature)>=(10))?((($plc.temperature)>=(20))?((($plc.temperature)>=(30))?"
                                 "0xffff:0xff0000):0xff00):0xff";
        QVERIFY(EditBinding([&composed](CDynPropertyDialog& dialog) {
            ChooseType(dialog, "color_analog");
            Click(dialog, "variable");
            WhenModal<CDynColorDialog>([](CDynColorDialog& colors) {
                Click(colors, "defaultColor");
                QTableWidget* table = colors.LevelsEditor()->Table();
                for (int level = 0; level < 3; ++level)
                    Click(colors, "addLevel");
                table->item(0, CColorLevelsEditor::LimitColumn)->setText("10");
                table->item(2, CColorLevelsEditor::LimitColumn)->setText("30");
                for (int level = 0; level < 3; ++level)
                    QTest::mouseClick(table->cellWidget(level, CColorLevelsEditor::ColorColumn), Qt::LeftButton);
                // A level without a limit is refused with a warning, and the dialog stays open.
                WhenModal<QMessageBox>([](QMessageBox& box) {
                    QVERIFY(box.text().contains("level 2"));
                    box.button(QMessageBox::Ok)->click();
                });
                PressOk(colors);
                QVERIFY(colors.isVisible());
                table->item(1, CColorLevelsEditor::LimitColumn)->setText("20");
                PressOk(colors);
            });
            Click(dialog, "settings");
            QCOMPARE(dialog.findChild<QLabel*>("preview")->text(), composed);
            PressOk(dialog);
        }));

        QCOMPARE(m_row->extraColumnColor, kHmiColorBound);
        QVERIFY(m_document->IsModified());
        // How the levels are written with the expression is pinned by the window file tests.
        QCOMPARE(m_widget->FindProperty("fillcolor")->m_strExpression, composed.toStdString());
        const std::string saved = SavedSection("dynamics");

        // Opened again, the dialog starts from the binding as it is and leaves it alone on Cancel.
        QVERIFY(!EditBinding([](CDynPropertyDialog& dialog) {
            QCOMPARE(dialog.findChild<QComboBox*>("type")->currentText(), QString("color_analog"));
            QCOMPARE(dialog.findChild<QLineEdit*>("expression")->text(), QString("$plc.temperature"));
            dialog.reject();
        }));
        QCOMPARE(SavedSection("dynamics"), saved);
    }

    void textFloatAndScriptBindings()
    {
        Add("text", "text");
        QVERIFY(EditBinding([](CDynPropertyDialog& dialog) {
            ChooseType(dialog, "text_float");
            TypeInto(dialog.findChild<QLineEdit*>("expression"), "t1");
            WhenModal<CDynTextDialog>([](CDynTextDialog& digits) {
                TypeInto(digits.findChild<QSpinBox*>("intWidth"), "5");
                TypeInto(digits.findChild<QSpinBox*>("decWidth"), "3");
                PressOk(digits);
            });
            Click(dialog, "settings");
            PressOk(dialog);
        }));
        QCOMPARE(m_widget->FindProperty("text")->m_strExpression, std::string("(float2str3((t1),5,3))"));

        // A property that cannot be bound opens nothing.
        QVERIFY(!EditBinding(*m_tree.Find("textlength")));

        // A whole-number text has no decimal width to set.
        CHmiDynTextInt whole;
        CDynTextDialog wholeDialog(whole);
        QVERIFY(!wholeDialog.findChild<QSpinBox*>("decWidth")->isEnabled());

        // A script has no settings; its code keeps the line ends typed.
        Add("rectangle", "edgecolor");
        m_variable = "$level";
        QVERIFY(EditBinding([](CDynPropertyDialog& dialog) {
            ChooseType(dialog, "script");
            QVERIFY(!dialog.findChild<QPushButton*>("settings")->isEnabled());
            auto* code = dialog.findChild<CCodeEdit*>("script");
            QVERIFY(code->isVisible());
            QTest::keyClicks(code, "if (");
            Click(dialog, "variable");
            QTest::keyClicks(code, " > 3)");
            QTest::keyClick(code, Qt::Key_Return);
            QTest::keyClicks(code, "  alarm();");
            PressOk(dialog);
        }));
        QCOMPARE(SavedSection("dynamics"),
                 std::string("\t\t\t<dynamic propname=\"edgecolor\" expression=\"script\" type=\"script\" >\r\n"
                             "\t\t\t\t<code>\r\n\t\t\t\t\t<![CDATA[if ($level > 3)\r\n  alarm();]]>\r\n"
                             "\t\t\t\t</code>\r\n\t\t\t</dynamic>\r\n"));
    }

    void deletingABinding()
    {
        Add("rectangle", "fillcolor");
        m_colors = {Qt::green, Qt::blue};
        QVERIFY(EditBinding([](CDynPropertyDialog& dialog) {
            TypeInto(dialog.findChild<QLineEdit*>("expression"), "$plc.burner.flame");
            WhenModal<CDynColorDialog>([](CDynColorDialog& colors) {
                QVERIFY(!colors.LevelsEditor());
                Click(colors, "openColor");
                Click(colors, "closeColor");
                PressOk(colors);
            });
            Click(dialog, "settings");
            PressOk(dialog);
        }));
        QCOMPARE(m_widget->FindProperty("fillcolor")->m_strExpression,
                 std::string("($plc.burner.flame)?0xff00:0xff0000"));

        // An emptied expression asks first; No keeps the dialog and the binding, Yes deletes it.
        QVERIFY(EditBinding([](CDynPropertyDialog& dialog) {
            TypeInto(dialog.findChild<QLineEdit*>("expression"), "");
            WhenModal<QMessageBox>([](QMessageBox& box) {
                QCOMPARE(box.text(), QString("Express is empty,are you sure to delete it?"));
                box.button(QMessageBox::No)->click();
            });
            PressOk(dialog);
            QVERIFY(dialog.isVisible());
            WhenModal<QMessageBox>([](QMessageBox& box) { box.button(QMessageBox::Yes)->click(); });
            PressOk(dialog);
        }));
        QCOMPARE(m_row->extraColumnColor, kHmiColor3DFace);
        QCOMPARE(SavedSection("dynamics"), std::string());

        // With nothing bound, an empty expression has nothing to delete: no question, no change.
        QVERIFY(!EditBinding([](CDynPropertyDialog& dialog) { PressOk(dialog); }));

        // A row of no property (here a group's root) opens nothing.
        QVERIFY(!EditBinding(*m_tree.Find("Basic properties")));
    }

    void eventCodeKeepsItsLineEndsUntilEdited()
    {
        // One pass each: a CR CR LF in the file becomes CR CR CR LF and then CR CR LF again.
        QCOMPARE(ToEditorLineEnds("a\r\nb\nc\rd\r\r\ne"), std::string("a\r\nb\r\nc\rd\r\r\ne"));

        Add("rectangle", "Button Down", "Event");
        m_widget->SetWidgetEventCode("click", "a();\r\nb();\nc();\rd();");
        const std::vector<ScriptFunction> functions = {{"beep", "", "Sounds the buzzer"},
                                                       {"setvalue", "setvalue(var, value)", "Writes a variable"}};
        const auto edit = [&](std::function<void(CEventEditDialog&)> steps) {
            WhenModal<CEventEditDialog>(std::move(steps));
            return EditWidgetEvent(nullptr, *m_widget, *m_row, functions);
        };

        // OK on untouched code keeps it as shown: every line end CR LF, a lone CR as it was.
        QVERIFY(edit([](CEventEditDialog& dialog) {
            QVERIFY(QFontInfo(dialog.CodeEdit()->font()).fixedPitch());
            PressOk(dialog);
        }));
        QCOMPARE(m_widget->GetEvents()[0].code, std::string("a();\r\nb();\r\nc();\rd();"));
        QCOMPARE(m_row->staticText, m_widget->GetEvents()[0].code);
        QVERIFY(m_document->IsModified());

        // Inserting a function edits the code, which then comes back with CR LF after every line.
        QVERIFY(edit([](CEventEditDialog& dialog) {
            QTest::keyClick(dialog.CodeEdit(), Qt::Key_End, Qt::ControlModifier);
            QTest::keyClick(dialog.CodeEdit(), Qt::Key_Return);
            dialog.FunctionList()->setCurrentRow(1);
            Click(dialog, "insertFunction");
            QTest::keyClick(dialog.CodeEdit(), Qt::Key_Return);
            dialog.FunctionList()->setCurrentRow(0);
            Click(dialog, "insertFunction");
            PressOk(dialog);
        }));
        const std::string code = "a();\r\nb();\r\nc();\r\nd();\r\nsetvalue(var, value)\r\nbeep()";
        QCOMPARE(SavedSection("events"),
                 "\t\t\t<event name=\"click\">\n\t\t\t\t<![CDATA[" + code + "]]>\n\t\t\t</event>\r\n");

        // Cancel changes nothing.
        QVERIFY(!edit([](CEventEditDialog& dialog) {
            QTest::keyClicks(dialog.CodeEdit(), "lost();");
            dialog.reject();
        }));
        QCOMPARE(m_widget->GetEvents()[0].code, code);

        // Code cleared in the dialog leaves the event out of the file.
        QVERIFY(edit([](CEventEditDialog& dialog) {
            TypeInto(dialog.CodeEdit(), "");
            PressOk(dialog);
        }));
        QCOMPARE(SavedSection("events"), std::string());
        // A row that is no event row opens nothing.
        QVERIFY(!EditWidgetEvent(nullptr, *m_widget, *m_tree.Find("Left"), functions));
    }

    void scriptFunctionsFile()
    {
        const std::string project = m_folder.Path("project");
        const std::string program = m_folder.Path("program");
        QVERIFY(QDir().mkpath(QString::fromStdString(project)) && QDir().mkpath(QString::fromStdString(program)));
        QVERIFY(FindScriptFunctionsFile({project, program}).empty());
        QVERIFY(LoadScriptFunctions(m_folder.Path("program/hmifuncs.xml")).empty());

        // Elements without a name, or of another kind, are skipped.
        m_folder.Write("program/hmifuncs.xml",
                       "<?xml version=\"1.0\" encoding=\"GB2312\"?>\n<functions>\n"
                       "  <function name=\"setvalue\" signature=\"setvalue(var, value)\""
                       " help=\"Writes &quot;var&quot;\"/>\n  <function signature=\"nameless()\"/>\n"
                       "  <comment name=\"notafunction\"/>\n"
                       "  <function name=\"beep\"/>\n</functions>\n");
        const std::string found = FindScriptFunctionsFile({"", project, program});
        QCOMPARE(found, m_folder.Path("program/hmifuncs.xml"));
        QStringList loaded;
        for (const ScriptFunction& function : LoadScriptFunctions(found))
            loaded << QString::fromStdString(function.name + " | " + function.InsertionText() + " | " + function.help);
        QCOMPARE(loaded, QStringList({"setvalue | setvalue(var, value) | Writes \"var\"", "beep | beep() | "}));

        // The project's own list comes first; a broken or foreign file gives no functions.
        m_folder.Write("project/hmifuncs.xml", "<functions><function name=\"x\"></functions>");
        QCOMPARE(FindScriptFunctionsFile({project, program}), m_folder.Path("project/hmifuncs.xml"));
        QVERIFY(LoadScriptFunctions(m_folder.Path("project/hmifuncs.xml")).empty());
        m_folder.Write("project/hmifuncs.xml", "<windows><function name=\"x\"/></windows>");
        QVERIFY(LoadScriptFunctions(m_folder.Path("project/hmifuncs.xml")).empty());
    }
};

QTEST_MAIN(DynamicDialogsTest)
#include "dynamicdialogs_test.moc"
