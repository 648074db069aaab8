#include "editorpreferences.h"

#include <QSettings>

#include <algorithm>

namespace {

const QString kUndoHistory = QStringLiteral("preferences/undoHistory");
const QString kShowGrid = QStringLiteral("preferences/showGrid");
const QString kGridSize = QStringLiteral("preferences/gridSize");
const QString kSnapToGrid = QStringLiteral("preferences/snapToGrid");
const QString kSnapToWidgets = QStringLiteral("preferences/snapToWidgets");
const QString kLanguage = QStringLiteral("preferences/language");

const QString kUnlimited = QStringLiteral("unlimited");

int ClampGridSize(int size)
{
    return std::clamp(size, CEditorPreferences::kMinGridSize, CEditorPreferences::kMaxGridSize);
}

} // namespace

CEditorPreferences::CEditorPreferences(QSettings& settings, QObject* parent) : QObject(parent), m_settings(settings)
{
    const Values defaults;
    m_values.undoHistory = m_settings.value(kUndoHistory).toString() == kUnlimited ? UndoHistory::Unlimited
                                                                                    : UndoHistory::OneStep;
    m_values.showGrid = m_settings.value(kShowGrid, defaults.showGrid).toBool();
    m_values.gridSize = ClampGridSize(m_settings.value(kGridSize, defaults.gridSize).toInt());
    m_values.snapToGrid = m_settings.value(kSnapToGrid, defaults.snapToGrid).toBool();
    m_values.snapToWidgets = m_settings.value(kSnapToWidgets, defaults.snapToWidgets).toBool();
    m_values.language = m_settings.value(kLanguage).toString();
}

void CEditorPreferences::Set(const Values& values)
{
    Values kept = values;
    kept.gridSize = ClampGridSize(kept.gridSize);
    if (kept == m_values)
        return;
    m_values = kept;
    Write();
    emit changed();
}

void CEditorPreferences::Write() const
{
    m_settings.setValue(kUndoHistory,
                        m_values.undoHistory == UndoHistory::Unlimited ? kUnlimited : QStringLiteral("one step"));
    m_settings.setValue(kShowGrid, m_values.showGrid);
    m_settings.setValue(kGridSize, m_values.gridSize);
    m_settings.setValue(kSnapToGrid, m_values.snapToGrid);
    m_settings.setValue(kSnapToWidgets, m_values.snapToWidgets);
    m_settings.setValue(kLanguage, m_values.language);
}
