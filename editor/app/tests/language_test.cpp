#include "editorfixture.h"

#include "editor/app/editorlanguage.h"
#include "editor/app/widgetlibrarydialog.h"
#include "editor/canvascontrols/controlkinds.h"
#include "editor/projectdialogs/widgetitemdialogs.h"
#include "editor/propertypane/propertypane.h"
#include "editor/propertypane/propertypaneitem.h"
#include "editor/translations/coretexts.h"
#include "catalogue/hmiwidgetline.h"
#include "project/variabledatabase.h"

#include <QComboBox>
#include <QLineEdit>
#include <QLocale>
#include <QMenuBar>
#include <QTemporaryDir>
#include <QTreeWidgetItem>

namespace {

const QString kTranslations = QStringLiteral(KELVO_TRANSLATIONS_DIR);

// What the editor shows in each language the test runs in.
struct LanguageTexts {
    QString fileMenu;
    QString undo;
    QString libraryDialogTitle;
    // A line's group row, a caption with its help text, a combo's choices and an event row.
    QStringList pane;
    QString realtimeHeading;
};

LanguageTexts ExpectedTexts(const QString& language)
{
    if (language == QLatin1String("zh_CN"))
        return {QStringLiteral("文件(&F)"), QStringLiteral("撤销(&U)\tCtrl+Z"), QStringLiteral("控件库"),
                {QStringLiteral("直线"), QStringLiteral("左"), QStringLiteral("左边位置"), QStringLiteral("实线 点线 虚线"),
                 QStringLiteral("按下")},
                QStringLiteral("实时数据库")};
    return {QStringLiteral("&File"), QStringLiteral("Undo(&U)\tCtrl+Z"), QStringLiteral("Widget Libraries"),
            {QStringLiteral("Line"), QStringLiteral("Left"), QStringLiteral("Left position"),
             QStringLiteral("Solid Dotted Dash"), QStringLiteral("Button Down")},
            QStringLiteral("Realtime database")};
}

} // namespace

// The editor in the language of the locale it runs under: ctest runs this program once under
// LANG=zh_CN.UTF-8 and once under LANG=C, and KELVO_EXPECTED_LANGUAGE names what each must show.
class LanguageTest : public QObject {
    Q_OBJECT

    // What the property pane shows of a line; edits its left and its style in the pane, as the
    // user would: a typed number and a combo entry.
    static QStringList ShowAndEditLine(CPropertyPane& pane, CTamloDoc& document)
    {
        HmiWidgetPtr line(new CHmiWidgetLine);
        line->SetWidgetName("line"); // not one from the process-wide counter
        CHmiWidget* shown = line.get();
        document.AddWidget(std::move(line), true);
        pane.ShowWidget(shown);
        const CPropertyPaneItem* left = pane.FindItem("Left");
        const CPropertyPaneItem* style = pane.FindItem("style", "Line");
        const CPropertyPaneItem* click = pane.FindItem("Button Down");
        auto* edit = left ? qobject_cast<QLineEdit*>(left->Editor()) : nullptr;
        auto* combo = style ? qobject_cast<QComboBox*>(style->Editor()) : nullptr;
        if (!edit || !combo || !click)
            return {};
        QStringList choices;
        for (int i = 0; i < combo->count(); ++i)
            choices << combo->itemText(i);
        const QStringList texts{style->Row()->parent()->text(CPropertyPane::CaptionColumn),
                                left->Row()->text(CPropertyPane::CaptionColumn),
                                left->Row()->toolTip(CPropertyPane::CaptionColumn), choices.join(QLatin1Char(' ')),
                                click->Row()->text(CPropertyPane::CaptionColumn)};
        edit->setText(QStringLiteral("30"));
        emit edit->editingFinished();
        combo->setCurrentIndex(2);
        emit combo->activated(2);
        return texts;
    }

    // Saves the demo window and a new one with a line edited in the property pane through the
    // main frame, as the user would; `pane` hears what the pane showed of the line.
    static QByteArray SaveWindows(const QString& folder, QStringList& pane)
    {
        EditorUnderTest editor;
        QByteArray bytes;
        const QStringList windows{QStringLiteral(KELVO_DEMO_DIR "/main.xml"), QString()};
        for (int i = 0; i < windows.size(); ++i) {
            CChildFrame* child =
                windows[i].isEmpty() ? editor.frame.NewDocument() : editor.frame.OpenDocument(windows[i]);
            if (!child)
                return {};
            if (windows[i].isEmpty())
                pane = ShowAndEditLine(editor.frame.PropertyPane(), child->Document());
            editor.prompts.saveFileName = folder + QStringLiteral("/saved%1.xml").arg(i);
            if (!child->SaveAs())
                return {};
            bytes += ReadBytes(editor.prompts.saveFileName);
        }
        return bytes;
    }

private slots:
    void initTestCase()
    {
        RegisterBuiltinCanvasControls();
        RegisterBuiltinRowDialogs();
    }

    void choosesThePreferenceThenTheSystemsLanguages_data()
    {
        QTest::addColumn<QString>("preference");
        QTest::addColumn<QStringList>("uiLanguages");
        QTest::addColumn<QString>("folder");
        QTest::addColumn<QString>("chosen");
        const QStringList chinese{QStringLiteral("zh-Hans-CN"), QStringLiteral("zh-CN")};
        QTest::newRow("system Chinese") << QString() << chinese << kTranslations << "zh_CN";
        QTest::newRow("LANGUAGE=en before Chinese")
            << QString() << QStringList{QStringLiteral("en"), QStringLiteral("zh-CN")} << kTranslations << "en";
        QTest::newRow("LANG=C") << QString() << QStringList{QStringLiteral("C")} << kTranslations << "en";
        QTest::newRow("untranslated French, then Chinese")
            << QString() << QStringList{QStringLiteral("fr-FR"), QStringLiteral("zh")} << kTranslations << "zh_CN";
        QTest::newRow("Traditional Chinese has no translation")
            << QString() << QStringList{QStringLiteral("zh-TW")} << kTranslations << "en";
        QTest::newRow("preference en over a Chinese system") << "en" << chinese << kTranslations << "en";
        QTest::newRow("preference zh_CN over an English system")
            << "zh_CN" << QStringList{QStringLiteral("en-US")} << kTranslations << "zh_CN";
        QTest::newRow("untranslated preference is the system's") << "de" << chinese << kTranslations << "zh_CN";
        QTest::newRow("no translation installed") << "zh_CN" << chinese << "/nonexistent" << "en";
    }

    void choosesThePreferenceThenTheSystemsLanguages()
    {
        QFETCH(QString, preference);
        QFETCH(QStringList, uiLanguages);
        QFETCH(QString, folder);
        QFETCH(QString, chosen);
        QCOMPARE(CEditorLanguage::Choose(preference, uiLanguages, folder), chosen);
    }

    // Menus, dialogs and the property pane speak the locale's language; the files saved, with
    // the same edits in the pane, are the same bytes as without any translation.
    void speaksTheLocalesLanguageAndSavesTheSameBytes()
    {
        QTemporaryDir folder;
        QStringList untranslatedPane;
        const QByteArray untranslated = SaveWindows(folder.path(), untranslatedPane);
        QVERIFY(!untranslated.isEmpty());
        QCOMPARE(untranslatedPane, ExpectedTexts(QStringLiteral("en")).pane);
        QVERIFY(untranslated.contains("name=\"left\" type=\"short\" value=\"30\""));
        QVERIFY(untranslated.contains("name=\"style\" type=\"ulong\" value=\"3\"")); // the third choice

        const QString expectedLanguage = qEnvironmentVariable("KELVO_EXPECTED_LANGUAGE");
        const CEditorLanguage language(QString(), QLocale::system().uiLanguages(), kTranslations);
        QCOMPARE(language.Name(), expectedLanguage);
        const LanguageTexts expected = ExpectedTexts(expectedLanguage);
        {
            EditorUnderTest editor;
            QCOMPARE(editor.frame.menuBar()->actions().first()->text(), expected.fileMenu);
            QMenu* edit = editor.frame.menuBar()->actions().at(1)->menu();
            QCOMPARE(edit->actions().first()->text(), expected.undo);
            QCOMPARE(CWidgetLibraryDialog({}, &editor.frame).windowTitle(), expected.libraryDialogTitle);
        }
        // The core's own headings are translated, a database of the project's files is shown
        // by its name even where that is a heading's, and a text without a translation shows as
        // it is, read from GB2312.
        CHmiVariableDatabase variables;
        const VariableNode database{VariableNode::Kind::Database, "Realtime database", &variables.RealtimeRoot(), {}, {}};
        QCOMPARE(VariableNodeText(variables.RealtimeRoot()), expected.realtimeHeading);
        QCOMPARE(VariableNodeText(database), QStringLiteral("Realtime database"));
        QCOMPARE(TranslateCoreText(CoreTextContext::kProperty, "\xCE\xC2\xB6\xC8"), QStringLiteral("温度"));
        QStringList pane;
        QCOMPARE(SaveWindows(folder.path(), pane), untranslated);
        QCOMPARE(pane, expected.pane);
    }
};

QTEST_MAIN(LanguageTest)
#include "language_test.moc"
