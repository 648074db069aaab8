#include "editorlanguage.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QLibraryInfo>
#include <QLocale>

namespace {

const QString kEditorTranslation = QStringLiteral("kelvo-hmi-editor_");
const QString kWidgetsTranslation = QStringLiteral("kelvo-hmi-widgets_");

QString TranslationFile(const QString& folder, const QString& name, const QString& prefix = kEditorTranslation)
{
    return folder + QLatin1Char('/') + prefix + name + QStringLiteral(".qm");
}

// The translation for a UI language such as "zh-Hans-CN": the one of its country ("zh_CN"),
// else the one of its language alone ("zh"); empty when there is none.
QString TranslationName(const QString& uiLanguage, const QString& folder)
{
    const QLocale locale(uiLanguage);
    const QString country = locale.name();
    const QString language = country.section(QLatin1Char('_'), 0, 0);
    for (const QString& name : {country, language})
        if (QFileInfo::exists(TranslationFile(folder, name)))
            return name;
    return {};
}

} // namespace

QString CEditorLanguage::Choose(const QString& preference, const QStringList& uiLanguages, const QString& folder)
{
    const QString english = QLatin1String(kEnglish);
    if (preference == english)
        return english;
    if (const QString name = preference.isEmpty() ? QString() : TranslationName(preference, folder); !name.isEmpty())
        return name;
    for (const QString& uiLanguage : uiLanguages) {
        if (QLocale(uiLanguage).language() == QLocale::English)
            return english;
        if (const QString name = TranslationName(uiLanguage, folder); !name.isEmpty())
            return name;
    }
    return english;
}

CEditorLanguage::CEditorLanguage(const QString& preference, const QStringList& uiLanguages, const QString& folder)
    : m_name(Choose(preference, uiLanguages, folder))
{
    if (m_name == QLatin1String(kEnglish))
        return;
    if (m_editor.load(TranslationFile(folder, m_name)))
        QCoreApplication::installTranslator(&m_editor);
    if (m_widgets.load(TranslationFile(folder, m_name, kWidgetsTranslation)))
        QCoreApplication::installTranslator(&m_widgets);
    // Missing unless Qt's translations are installed; the standard buttons then stay English.
    if (m_qt.load(QStringLiteral("qtbase_") + m_name, QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QCoreApplication::installTranslator(&m_qt);
}

CEditorLanguage::~CEditorLanguage()
{
    QCoreApplication::removeTranslator(&m_qt);
    QCoreApplication::removeTranslator(&m_widgets);
    QCoreApplication::removeTranslator(&m_editor);
}
