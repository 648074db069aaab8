#include "dyncolordialog.h"

#include "colorbutton.h"
#include "colorlevelseditor.h"
#include "dynamics/dynamictypes.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QMessageBox>
#include <QTableWidget>
#include <QVBoxLayout>

CDynColorDialog::CDynColorDialog(QWidget* parent) : QDialog(parent), m_form(new QFormLayout)
{
    setWindowTitle(tr("Dynamic Color Property Setting"));
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(m_form);
    layout->addWidget(buttons);
}

CDynColorDialog::CDynColorDialog(CHmiDynColorDigit& binding, ColorChooser chooser, QWidget* parent)
    : CDynColorDialog(parent)
{
    CColorButton* open = AddColorRow(tr("Open color (expression true):"), "openColor", binding.openColor, chooser);
    CColorButton* close = AddColorRow(tr("Close color:"), "closeColor", binding.closeColor, chooser);
    m_apply = [&binding, open, close] {
        binding.openColor = open->Color();
        binding.closeColor = close->Color();
        return true;
    };
}

CDynColorDialog::CDynColorDialog(CHmiDynColorAnalog& binding, ColorChooser chooser, QWidget* parent)
    : CDynColorDialog(parent)
{
    CColorButton* defaultColor =
        AddColorRow(tr("Default color (below the first limit):"), "defaultColor", binding.defaultColor, chooser);
    m_levels = new CColorLevelsEditor(binding, chooser, this);
    m_form->addRow(tr("Levels, limits in ascending order:"), m_levels);
    m_apply = [this, &binding, defaultColor] {
        if (const std::optional<int> empty = m_levels->FirstEmptyLimit()) {
            QMessageBox::warning(this, windowTitle(), tr("The limit value of level %1 is empty.").arg(*empty + 1));
            m_levels->Table()->setCurrentCell(*empty, CColorLevelsEditor::LimitColumn);
            return false;
        }
        binding.defaultColor = defaultColor->Color();
        m_levels->WriteTo(binding);
        return true;
    };
}

CColorButton* CDynColorDialog::AddColorRow(const QString& label, const char* objectName, HmiColor color,
                                           const ColorChooser& chooser)
{
    auto* button = new CColorButton(color, chooser, this);
    button->setObjectName(objectName);
    m_form->addRow(label, button);
    return button;
}

void CDynColorDialog::accept()
{
    if (m_apply())
        QDialog::accept();
}
