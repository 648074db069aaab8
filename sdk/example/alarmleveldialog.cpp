#include "alarmleveldialog.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QSpinBox>

CAlarmLevelDialog::CAlarmLevelDialog(int alarmLevel, QWidget* parent) : QDialog(parent), m_level(new QSpinBox(this))
{
    setWindowTitle(QStringLiteral("Alarm Level"));
    m_level->setObjectName(QStringLiteral("alarmlevel"));
    m_level->setRange(0, 100);
    m_level->setSuffix(QStringLiteral(" %"));
    m_level->setValue(alarmLevel);

    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

    auto* layout = new QFormLayout(this);
    layout->addRow(QStringLiteral("The overflow event runs above:"), m_level);
    layout->addRow(buttons);
}

int CAlarmLevelDialog::AlarmLevel() const
{
    return m_level->value();
}
