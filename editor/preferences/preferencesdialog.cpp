#include "preferencesdialog.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QLabel>
#include <QSpinBox>
#include <QVBoxLayout>

CPreferencesDialog::CPreferencesDialog(CEditorPreferences& preferences, QWidget* parent)
    : QDialog(parent),
      m_preferences(preferences),
      m_undoHistory(new QComboBox),
      m_showGrid(new QCheckBox(tr("Show the grid"))),
      m_gridSize(new QSpinBox),
      m_snapToGrid(new QCheckBox(tr("Snap to the grid"))),
      m_snapToWidgets(new QCheckBox(tr("Snap to other widgets and the window"))),
      m_language(new QComboBox)
{
    setWindowTitle(tr("Preferences"));

    m_undoHistory->addItem(tr("one step"), QVariant::fromValue(int(CEditorPreferences::UndoHistory::OneStep)));
    m_undoHistory->addItem(tr("unlimited"), QVariant::fromValue(int(CEditorPreferences::UndoHistory::Unlimited)));
    m_gridSize->setRange(CEditorPreferences::kMinGridSize, CEditorPreferences::kMaxGridSize);
    m_gridSize->setSuffix(tr(" px"));
    // A language's own name, so that a user who cannot read the current one still finds theirs.
    m_language->addItem(tr("As the system"), QString());
    m_language->addItem(QStringLiteral("English"), QStringLiteral("en"));
    m_language->addItem(QStringLiteral("简体中文"), QStringLiteral("zh_CN"));

    auto* editing = new QGroupBox(tr("Editing"));
    auto* editingForm = new QFormLayout(editing);
    editingForm->addRow(tr("Undo history:"), m_undoHistory);

    auto* canvas = new QGroupBox(tr("Canvas"));
    auto* canvasForm = new QFormLayout(canvas);
    canvasForm->addRow(m_showGrid);
    canvasForm->addRow(tr("Grid size:"), m_gridSize);
    canvasForm->addRow(m_snapToGrid);
    canvasForm->addRow(m_snapToWidgets);
    canvasForm->addRow(new QLabel(tr("Hold Alt while dragging to place a widget freely.")));

    auto* language = new QGroupBox(tr("Language"));
    auto* languageForm = new QFormLayout(language);
    languageForm->addRow(tr("Language of the editor:"), m_language);
    languageForm->addRow(new QLabel(tr("A new language shows at the next start.")));

    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(editing);
    layout->addWidget(canvas);
    layout->addWidget(language);
    layout->addWidget(buttons);

    Show(m_preferences.Get());
}

void CPreferencesDialog::Show(const CEditorPreferences::Values& values)
{
    m_undoHistory->setCurrentIndex(m_undoHistory->findData(int(values.undoHistory)));
    m_showGrid->setChecked(values.showGrid);
    m_gridSize->setValue(values.gridSize);
    m_snapToGrid->setChecked(values.snapToGrid);
    m_snapToWidgets->setChecked(values.snapToWidgets);
    // A language this editor does not offer (set by hand in the settings) shows as the system's.
    m_language->setCurrentIndex(std::max(0, m_language->findData(values.language)));
}

CEditorPreferences::Values CPreferencesDialog::Values() const
{
    CEditorPreferences::Values values;
    values.undoHistory = CEditorPreferences::UndoHistory(m_undoHistory->currentData().toInt());
    values.showGrid = m_showGrid->isChecked();
    values.gridSize = m_gridSize->value();
    values.snapToGrid = m_snapToGrid->isChecked();
    values.snapToWidgets = m_snapToWidgets->isChecked();
    values.language = m_language->currentData().toString();
    return values;
}

void CPreferencesDialog::accept()
{
    m_preferences.Set(Values());
    QDialog::accept();
}
