#include "colorlevelseditor.h"

#include "colorbutton.h"
#include "dynamics/dynamictypes.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>

CColorLevelsEditor::CColorLevelsEditor(const CHmiDynColorAnalog& binding, ColorChooser chooser, QWidget* parent)
    : QWidget(parent),
      m_chooseColor(std::move(chooser)),
      m_table(new QTableWidget(0, 2, this)),
      m_addButton(new QPushButton(tr("Add level"), this)),
      m_removeButton(new QPushButton(tr("Remove level"), this))
{
    m_table->setHorizontalHeaderLabels({tr("Limit value"), tr("Color")});
    m_table->horizontalHeader()->setSectionResizeMode(LimitColumn, QHeaderView::Stretch);
    m_table->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_table->setSelectionMode(QAbstractItemView::SingleSelection);
    m_addButton->setObjectName("addLevel");
    m_removeButton->setObjectName("removeLevel");

    auto* buttons = new QHBoxLayout;
    buttons->addWidget(m_addButton);
    buttons->addWidget(m_removeButton);
    buttons->addStretch();
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_table);
    layout->addLayout(buttons);

    for (int i = 0; i < binding.LevelCount(); ++i)
        AppendRow(FromModelText(binding.limits[i]), binding.colors[i]);
    UpdateButtons();
    connect(m_addButton, &QPushButton::clicked, this, &CColorLevelsEditor::AddLevel);
    connect(m_removeButton, &QPushButton::clicked, this, &CColorLevelsEditor::RemoveLevel);
}

int CColorLevelsEditor::LevelCount() const
{
    return m_table->rowCount();
}

void CColorLevelsEditor::AppendRow(const QString& limit, HmiColor color)
{
    const int row = m_table->rowCount();
    m_table->insertRow(row);
    m_table->setItem(row, LimitColumn, new QTableWidgetItem(limit));
    m_table->setCellWidget(row, ColorColumn, new CColorButton(color, m_chooseColor, m_table));
}

void CColorLevelsEditor::AddLevel()
{
    if (LevelCount() >= CHmiDynColorAnalog::kMaxLevels)
        return;
    AppendRow(QString(), 0);
    m_table->setCurrentCell(LevelCount() - 1, LimitColumn);
    UpdateButtons();
}

void CColorLevelsEditor::RemoveLevel()
{
    if (LevelCount() == 0)
        return;
    const int current = m_table->currentRow();
    m_table->removeRow(current >= 0 ? current : LevelCount() - 1);
    UpdateButtons();
}

void CColorLevelsEditor::UpdateButtons()
{
    m_addButton->setEnabled(LevelCount() < CHmiDynColorAnalog::kMaxLevels);
    m_removeButton->setEnabled(LevelCount() > 0);
}

std::optional<int> CColorLevelsEditor::FirstEmptyLimit() const
{
    for (int row = 0; row < LevelCount(); ++row) {
        if (m_table->item(row, LimitColumn)->text().trimmed().isEmpty())
            return row;
    }
    return std::nullopt;
}

void CColorLevelsEditor::WriteTo(CHmiDynColorAnalog& binding) const
{
    binding.count = LevelCount();
    for (int i = 0; i < CHmiDynColorAnalog::kMaxLevels; ++i) {
        const bool used = i < LevelCount();
        binding.limits[i] = used ? ToModelText(m_table->item(i, LimitColumn)->text()) : std::string();
        binding.colors[i] = used ? static_cast<CColorButton*>(m_table->cellWidget(i, ColorColumn))->Color() : 0;
    }
}
