#include "editorfixture.h"

#include "editor/app/editorlanguage.h"
#include "editor/app/widgetlibrarydialog.h"
#include "editor/canvascontrols/controlkinds.h"
#include "editor/projectdialogs/widgetitemdialogs.h"

#include <QLocale>
#include <QMenuBar>
#include <QTemporaryDir>

namespace {

const QString kTranslations = QStringLiteral(KELVO_TRANSLATIONS_DIR);

// What the editor shows in each language the test runs in.
struct LanguageTexts {
    QString fileMenu;
    QString undo;
    QString libraryDialogTitle;
};

LanguageTexts ExpectedTexts(const QString& language)
{
    if (language == QLatin1String("zh_CN"))
        return {QStringLiteral("文件(&F)"), QStringLiteral("撤销(&U)\tCtrl+Z"), QStringLiteral("控件库")};
    return {QStringLiteral("&File"), QStringLiteral("Undo(&U)\tCtrl+Z"), QStringLiteral("Widget Libraries")};
}

} // namespace

// The editor in the language of the locale it runs under: ctest runs this program once under
// LANG=zh_CN.UTF-8 and once under LANG=C, and KELVO_EXPECTED_LANGUAGE names what each must show.
class LanguageTest : public QObject {
    Q_OBJECT

    // Saves the demo window and a new one through the main frame, as the user would.
    static QByteArray SaveWindows(const QString& folder)
    {
        EditorUnderTest editor;
        QByteArray bytes;
        const QStringList windows{QStringLiteral(KELVO_DEMO_DIR "/main.xml"), QString()};
        for (int i = 0; i < windows.size(); ++i) {
            CChildFrame* child =
                windows[i].isEmpty() ? editor.frame.NewDocument() : editor.frame.OpenDocument(windows[i]);
            if (!child)
                return {};
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

    // Menus and dialogs speak the locale's language; the files saved are the same bytes as
    // without any translation.
    void speaksTheLocalesLanguageAndSavesTheSameBytes()
    {
        QTemporaryDir folder;
        const QByteArray untranslated = SaveWindows(folder.path());
        QVERIFY(!untranslated.isEmpty());

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
        QCOMPARE(SaveWindows(folder.path()), untranslated);
    }
};

QTEST_MAIN(LanguageTest)
#include "language_test.moc"
