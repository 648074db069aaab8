#pragma once

#include "editorpreferences.h"

#include <QDialog>

class QCheckBox;
class QComboBox;
class QSpinBox;

// Tools > Preferences: shows the preferences and keeps them when the user presses OK.
class CPreferencesDialog : public QDialog {
    Q_OBJECT
public:
    CPreferencesDialog(CEditorPreferences& preferences, QWidget* parent = nullptr);

    // The values as the dialog shows them.
    CEditorPreferences::Values Values() const;

    void accept() override;

private:
    void Show(const CEditorPreferences::Values& values);

    CEditorPreferences& m_preferences;
    QComboBox* m_undoHistory;
    QCheckBox* m_showGrid;
    QSpinBox* m_gridSize;
    QCheckBox* m_snapToGrid;
    QCheckBox* m_snapToWidgets;
    QComboBox* m_language;
};
