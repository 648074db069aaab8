#include "eventeditdialog.h"

#include "codeedit.h"
#include "dialogservices.h"

#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

constexpr int kCodeStretch = 3;
constexpr int kFunctionsStretch = 1;

} // namespace

CEventEditDialog::CEventEditDialog(const QString& code, std::vector<ScriptFunction> functions, QWidget* parent)
    : QDialog(parent),
      m_functions(std::move(functions)),
      m_codeEdit(new CCodeEdit(this)),
      m_functionList(new QListWidget(this)),
      m_help(new QLabel(this)),
      m_insertButton(new QPushButton(tr("Insert"), this))
{
    setWindowTitle(tr("Event Edit"));
    m_codeEdit->SetCode(code);
    m_insertButton->setObjectName("insertFunction");
    m_help->setWordWrap(true);
    for (const ScriptFunction& function : m_functions)
        m_functionList->addItem(FromModelText(function.name));
    m_insertButton->setEnabled(false);

    auto* functionsColumn = new QVBoxLayout;
    functionsColumn->addWidget(new QLabel(tr("Functions:"), this));
    functionsColumn->addWidget(m_functionList);
    functionsColumn->addWidget(m_help);
    functionsColumn->addWidget(m_insertButton);
    auto* columns = new QHBoxLayout;
    columns->addWidget(m_codeEdit, kCodeStretch);
    columns->addLayout(functionsColumn, kFunctionsStretch);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(columns);
    layout->addWidget(buttons);

    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(m_functionList, &QListWidget::currentRowChanged, this, &CEventEditDialog::ShowHelp);
    connect(m_functionList, &QListWidget::itemDoubleClicked, this, &CEventEditDialog::InsertFunction);
    connect(m_insertButton, &QPushButton::clicked, this, &CEventEditDialog::InsertFunction);
    m_codeEdit->setFocus();
}

QString CEventEditDialog::Code() const
{
    return m_codeEdit->Code();
}

void CEventEditDialog::ShowHelp()
{
    const int row = m_functionList->currentRow();
    const bool chosen = row >= 0 && row < int(m_functions.size());
    m_insertButton->setEnabled(chosen);
    if (!chosen) {
        m_help->clear();
        return;
    }
    const ScriptFunction& function = m_functions[row];
    m_help->setText(FromModelText(function.InsertionText()) + "\n" + FromModelText(function.help));
}

void CEventEditDialog::InsertFunction()
{
    const int row = m_functionList->currentRow();
    if (row < 0 || row >= int(m_functions.size()))
        return;
    m_codeEdit->insertPlainText(FromModelText(m_functions[row].InsertionText()));
    m_codeEdit->setFocus();
}
