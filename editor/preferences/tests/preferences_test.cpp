#include "editor/preferences/editorpreferences.h"
#include "editor/preferences/preferencesdialog.h"

#include <QSettings>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

class PreferencesTest : public QObject {
    Q_OBJECT
private slots:
    // What the dialog keeps reaches the settings and a later session; an unchanged OK tells nobody.
    void DialogValuesOutlastTheSession()
    {
        QTemporaryDir folder;
        const QString file = folder.filePath(QStringLiteral("settings.ini"));
        CEditorPreferences::Values chosen;
        {
            QSettings settings(file, QSettings::IniFormat);
            CEditorPreferences preferences(settings);
            QCOMPARE(preferences.Get(), CEditorPreferences::Values());
            QSignalSpy changed(&preferences, &CEditorPreferences::changed);

            CPreferencesDialog unchanged(preferences);
            unchanged.accept();
            QCOMPARE(changed.count(), 0);

            chosen = {CEditorPreferences::UndoHistory::Unlimited, true, 25, true, true, QStringLiteral("zh_CN")};
            preferences.Set(chosen);
            QCOMPARE(changed.count(), 1);
        }
        QSettings settings(file, QSettings::IniFormat);
        CEditorPreferences later(settings);
        QCOMPARE(later.Get(), chosen);
        CPreferencesDialog dialog(later);
        QCOMPARE(dialog.Values(), chosen);
    }

    // A grid size edited by hand in the settings file is brought into the range the canvas draws.
    void GridSizeStaysInRange()
    {
        QTemporaryDir folder;
        QSettings settings(folder.filePath(QStringLiteral("settings.ini")), QSettings::IniFormat);
        settings.setValue(QStringLiteral("preferences/gridSize"), 0);
        settings.setValue(QStringLiteral("preferences/language"), QStringLiteral("xx"));
        CEditorPreferences preferences(settings);
        QCOMPARE(preferences.Get().gridSize, CEditorPreferences::kMinGridSize);
        CPreferencesDialog dialog(preferences);
        QVERIFY(dialog.Values().language.isEmpty());
        CEditorPreferences::Values huge = preferences.Get();
        huge.gridSize = 100000;
        preferences.Set(huge);
        QCOMPARE(preferences.Get().gridSize, CEditorPreferences::kMaxGridSize);
    }
};

QTEST_MAIN(PreferencesTest)
#include "preferences_test.moc"
