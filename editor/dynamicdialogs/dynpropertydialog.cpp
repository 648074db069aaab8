#include "dynpropertydialog.h"

#include "codeedit.h"
#include "dyncolordialog.h"
#include "dyntextdialog.h"
#include "dynamics/dynamictypes.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QStackedWidget>
#include <QVBoxLayout>

#include <algorithm>
#include <array>

namespace {

constexpr std::array<const char*, 6> kTypeNames = {
    CHmiDynColorDigit::kTypeName, CHmiDynColorAnalog::kTypeName, CHmiDynTextInt::kTypeName,
    CHmiDynTextFloat::kTypeName,  CHmiDynTextDouble::kTypeName,  CHmiDynScript::kTypeName,
};

enum EditorPage { ExpressionPage, ScriptPage };

int TypeIndex(std::string_view typeName)
{
    const auto found = std::find(kTypeNames.begin(), kTypeNames.end(), typeName);
    return found == kTypeNames.end() ? -1 : int(found - kTypeNames.begin());
}

// A property that is not bound yet starts with the type that fits its row best.
const char* DefaultTypeFor(const CHmiWidgetProp& prop)
{
    return prop.m_nItemType == PROP_COLOR ? CHmiDynColorDigit::kTypeName : CHmiDynTextInt::kTypeName;
}

} // namespace

CDynPropertyDialog::CDynPropertyDialog(const CHmiWidgetProp& prop, DynamicDialogServices services,
                                       QWidget* parent)
    : QDialog(parent),
      m_services(std::move(services)),
      m_wasBound(!prop.m_strExpression.empty() || prop.GetDynamicType()),
      m_typeBox(new QComboBox(this)),
      m_editors(new QStackedWidget(this)),
      m_expressionEdit(new QLineEdit(this)),
      m_scriptEdit(new CCodeEdit(this)),
      m_variableButton(new QPushButton(tr("Variable..."), this)),
      m_settingsButton(new QPushButton(tr("Settings..."), this)),
      m_preview(new QLabel(this))
{
    setWindowTitle(tr("Dynamic Property"));
    const CHmiDynamicType* bound = prop.GetDynamicType();
    int typeIndex = TypeIndex(DefaultTypeFor(prop));
    for (const char* typeName : kTypeNames) {
        m_typeBox->addItem(typeName);
        m_bindings.push_back(CreateDynamicType(typeName));
    }
    if (bound && TypeIndex(bound->GetTypeName()) >= 0) {
        typeIndex = TypeIndex(bound->GetTypeName());
        m_bindings[typeIndex] = bound->Clone();
    }
    m_typeBox->setCurrentIndex(typeIndex);
    if (IsScript())
        m_scriptEdit->SetCode(FromModelText(bound->expression));
    else
        m_expressionEdit->setText(FromModelText(bound ? bound->expression : prop.m_strExpression));

    m_typeBox->setObjectName("type");
    m_expressionEdit->setObjectName("expression");
    m_scriptEdit->setObjectName("script");
    m_variableButton->setObjectName("variable");
    m_settingsButton->setObjectName("settings");
    m_preview->setObjectName("preview");
    m_preview->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_preview->setWordWrap(true);
    m_variableButton->setVisible(bool(m_services.pickVariable));
    m_editors->insertWidget(ExpressionPage, m_expressionEdit);
    m_editors->insertWidget(ScriptPage, m_scriptEdit);

    auto* editorButtons = new QHBoxLayout;
    editorButtons->addWidget(m_variableButton);
    editorButtons->addWidget(m_settingsButton);
    editorButtons->addStretch();
    auto* form = new QFormLayout;
    form->addRow(tr("Property:"), new QLabel(FromModelText(prop.m_strLabel), this));
    form->addRow(tr("Type:"), m_typeBox);
    form->addRow(tr("Expression:"), m_editors);
    form->addRow(QString(), editorButtons);
    form->addRow(tr("Runtime expression:"), m_preview);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(form);
    layout->addWidget(buttons);

    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(m_typeBox, &QComboBox::currentIndexChanged, this, &CDynPropertyDialog::ShowType);
    connect(m_expressionEdit, &QLineEdit::textChanged, this, &CDynPropertyDialog::UpdatePreview);
    connect(m_variableButton, &QPushButton::clicked, this, &CDynPropertyDialog::InsertVariable);
    connect(m_settingsButton, &QPushButton::clicked, this, &CDynPropertyDialog::EditSettings);
    ShowType();
}

CDynPropertyDialog::~CDynPropertyDialog() = default;

CHmiDynamicType& CDynPropertyDialog::CurrentBinding()
{
    return *m_bindings[m_typeBox->currentIndex()];
}

bool CDynPropertyDialog::IsScript() const
{
    return m_typeBox->currentText() == CHmiDynScript::kTypeName;
}

QString CDynPropertyDialog::CurrentExpressionText() const
{
    return IsScript() ? m_scriptEdit->Code() : m_expressionEdit->text();
}

void CDynPropertyDialog::SyncExpression()
{
    CurrentBinding().expression = ToModelText(CurrentExpressionText());
}

QString CDynPropertyDialog::ComposedExpression()
{
    SyncExpression();
    return FromModelText(CurrentBinding().ComposeExpression());
}

void CDynPropertyDialog::ShowType()
{
    m_editors->setCurrentIndex(IsScript() ? ScriptPage : ExpressionPage);
    m_settingsButton->setEnabled(!IsScript());
    UpdatePreview();
}

void CDynPropertyDialog::UpdatePreview()
{
    m_preview->setText(ComposedExpression());
}

void CDynPropertyDialog::InsertVariable()
{
    const std::optional<QString> variable = m_services.pickVariable(this);
    if (!variable)
        return;
    if (IsScript()) {
        m_scriptEdit->insertPlainText(*variable);
        m_scriptEdit->setFocus();
    } else {
        m_expressionEdit->insert(*variable);
        m_expressionEdit->setFocus();
    }
}

void CDynPropertyDialog::EditSettings()
{
    CHmiDynamicType& binding = CurrentBinding();
    if (auto* digit = dynamic_cast<CHmiDynColorDigit*>(&binding))
        CDynColorDialog(*digit, m_services.chooseColor, this).exec();
    else if (auto* analog = dynamic_cast<CHmiDynColorAnalog*>(&binding))
        CDynColorDialog(*analog, m_services.chooseColor, this).exec();
    else if (auto* text = dynamic_cast<CHmiDynText*>(&binding))
        CDynTextDialog(*text, this).exec();
    UpdatePreview();
}

void CDynPropertyDialog::accept()
{
    SyncExpression();
    if (!CurrentExpressionText().trimmed().isEmpty()) {
        m_outcome = Outcome::Bound;
    } else if (m_wasBound) {
        const auto answer =
            QMessageBox::question(this, windowTitle(), tr("Express is empty,are you sure to delete it?"));
        if (answer != QMessageBox::Yes)
            return;
        m_outcome = Outcome::Deleted;
    } else {
        m_outcome = Outcome::Unchanged;
    }
    QDialog::accept();
}

std::unique_ptr<CHmiDynamicType> CDynPropertyDialog::TakeBinding()
{
    if (m_outcome != Outcome::Bound)
        return nullptr;
    return std::move(m_bindings[m_typeBox->currentIndex()]);
}
