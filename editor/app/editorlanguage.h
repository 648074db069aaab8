#pragma once

#include <QString>
#include <QStringList>
#include <QTranslator>

// The language the editor speaks, chosen once at start before any window is built, and the
// translators that speak it, installed on the application for as long as this object lives.
// Only what the user reads changes: window files, defaults, class and property keys are the
// same in every language.
class CEditorLanguage {
public:
    static constexpr const char* kEnglish = "en";

    // The user's preference when it is English or has a translation in the folder, else the
    // first of the system's UI languages (most wanted first, as QLocale::uiLanguages gives
    // them) that is English or has one, else English. Returns a locale name such as "zh_CN",
    // or "en".
    static QString Choose(const QString& preference, const QStringList& uiLanguages, const QString& folder);

    // Chooses as above and installs the editor's translations from the folder (its own texts
    // and the core's texts it shows), with Qt's own (the standard buttons and dialogs) where
    // Qt's translations are installed.
    CEditorLanguage(const QString& preference, const QStringList& uiLanguages, const QString& folder);
    ~CEditorLanguage();
    CEditorLanguage(const CEditorLanguage&) = delete;
    CEditorLanguage& operator=(const CEditorLanguage&) = delete;

    const QString& Name() const { return m_name; }

private:
    QString m_name;
    QTranslator m_editor;
    QTranslator m_widgets;
    QTranslator m_qt;
};
