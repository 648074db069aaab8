#include "dyntextdialog.h"

#include "dynamics/dynamictypes.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QSpinBox>
#include <QVBoxLayout>

namespace {

// More digits than any panel display shows.
constexpr int kMaxDigits = 64;

QSpinBox* DigitsBox(const char* objectName, int value, QWidget* parent)
{
    auto* box = new QSpinBox(parent);
    box->setObjectName(objectName);
    box->setRange(0, kMaxDigits);
    box->setValue(value);
    return box;
}

} // namespace

CDynTextDialog::CDynTextDialog(CHmiDynText& binding, QWidget* parent)
    : QDialog(parent),
      m_binding(binding),
      m_intWidth(DigitsBox("intWidth", binding.intWidth, this)),
      m_decWidth(DigitsBox("decWidth", binding.decWidth, this))
{
    setWindowTitle(tr("Dynamic Text Property Setting"));
    m_decWidth->setEnabled(binding.HasDecimalWidth());
    auto* form = new QFormLayout;
    form->addRow(tr("Integer width:"), m_intWidth);
    form->addRow(tr("Decimal width:"), m_decWidth);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(form);
    layout->addWidget(buttons);
}

void CDynTextDialog::accept()
{
    m_binding.intWidth = m_intWidth->value();
    if (m_binding.HasDecimalWidth())
        m_binding.decWidth = m_decWidth->value();
    QDialog::accept();
}
