#include "renamevariabledialog.h"

#include "dynamics/expressiontext.h"
#include "editor/projectdialogs/modeltext.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace {

constexpr int kTextColumnWidth = 260;

// The first line where a text and its rename differ, so that a long script shows what changes.
std::pair<QString, QString> DifferingLine(const std::string& before, const std::string& after)
{
    std::string_view restBefore = before, restAfter = after;
    for (;;) {
        const std::string_view lineBefore = restBefore.substr(0, restBefore.find('\n'));
        const std::string_view lineAfter = restAfter.substr(0, restAfter.find('\n'));
        if (lineBefore != lineAfter || lineBefore.size() >= restBefore.size())
            return {FromModel(std::string(lineBefore)).trimmed(), FromModel(std::string(lineAfter)).trimmed()};
        restBefore.remove_prefix(lineBefore.size() + 1);
        restAfter.remove_prefix(lineAfter.size() + 1);
    }
}

} // namespace

CRenameVariableDialog::CRenameVariableDialog(std::string folder, std::vector<OpenWindow> open, const QString& from,
                                             QWidget* parent)
    : QDialog(parent)
    , m_folder(std::move(folder))
    , m_open(std::move(open))
    , m_from(new QLineEdit(from))
    , m_to(new QLineEdit)
    , m_declarations(new QCheckBox(tr("Also rename in rtdb.xml / hmidb.xml")))
    , m_changes(new QTreeWidget)
    , m_status(new QLabel)
    , m_buttons(new QDialogButtonBox(QDialogButtonBox::Apply | QDialogButtonBox::Close))
{
    setWindowTitle(tr("Rename Variable"));
    m_from->setObjectName(QStringLiteral("oldReference"));
    m_to->setObjectName(QStringLiteral("newReference"));
    m_to->setPlaceholderText(tr("$plc.level or $setpoint"));
    m_declarations->setObjectName(QStringLiteral("renameDeclarations"));
    m_changes->setObjectName(QStringLiteral("renameChanges"));
    m_changes->setHeaderLabels({tr("File"), tr("Widget"), tr("Where"),
                                tr("Before"), tr("After")});
    m_changes->setRootIsDecorated(false);
    m_status->setObjectName(QStringLiteral("renameStatus"));
    m_status->setWordWrap(true);
    auto* preview = new QPushButton(tr("&Preview"));
    preview->setObjectName(QStringLiteral("renamePreview"));
    m_applyButton = m_buttons->button(QDialogButtonBox::Apply);
    m_applyButton->setEnabled(false);

    auto* form = new QFormLayout;
    form->addRow(tr("&Old reference:"), m_from);
    form->addRow(tr("&New reference:"), m_to);
    form->addRow(QString(), m_declarations);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(form);
    layout->addWidget(preview, 0, Qt::AlignLeft);
    layout->addWidget(m_changes, 1);
    layout->addWidget(m_status);
    layout->addWidget(m_buttons);
    resize(760, 420);

    connect(preview, &QPushButton::clicked, this, &CRenameVariableDialog::Preview);
    connect(m_applyButton, &QPushButton::clicked, this, &CRenameVariableDialog::Apply);
    connect(m_buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(m_from, &QLineEdit::textEdited, this, &CRenameVariableDialog::ForgetPreview);
    connect(m_to, &QLineEdit::textEdited, this, &CRenameVariableDialog::ForgetPreview);
    connect(m_declarations, &QCheckBox::toggled, this, &CRenameVariableDialog::ForgetPreview);
}

void CRenameVariableDialog::ForgetPreview()
{
    m_run = {};
    m_changes->clear();
    m_status->clear();
    m_applyButton->setEnabled(false);
}

void CRenameVariableDialog::Preview()
{
    ForgetPreview();
    const std::string from = ToModel(m_from->text().trimmed()), to = ToModel(m_to->text().trimmed());
    if (!IsVariableReference(from) || !IsVariableReference(to))
        return m_status->setText(tr("Both must be variable references such as $plc.level or $setpoint."));
    if (from == to)
        return m_status->setText(tr("The new reference is the old one."));
    if (const FileResult planned = m_run.Plan(m_folder, from, to, m_declarations->isChecked(), m_open); !planned)
        return m_status->setText(tr("Nothing can be renamed: %1").arg(QString::fromStdString(planned.error)));
    for (const ReferenceChange& change : m_run.Changes()) {
        const auto [before, after] = DifferingLine(change.before, change.after);
        auto* row = new QTreeWidgetItem(m_changes, {FromModel(change.use.file), FromModel(change.use.widget),
                                                    QString::fromStdString(change.use.place.Text()), before, after});
        row->setToolTip(3, FromModel(change.before));
        row->setToolTip(4, FromModel(change.after));
    }
    for (int column = 0; column < 3; ++column)
        m_changes->resizeColumnToContents(column);
    m_changes->header()->resizeSection(3, kTextColumnWidth); // long expressions share the rest
    const std::size_t files = m_run.FilesToWrite().size();
    m_status->setText(m_run.Changes().empty() && files == 0
                          ? tr("No window uses %1.").arg(m_from->text().trimmed())
                          : tr("%1 changes; %2 files to write, open windows change in memory.")
                                .arg(m_run.Changes().size())
                                .arg(files));
    m_applyButton->setEnabled(!m_run.Changes().empty() || files > 0);
}

void CRenameVariableDialog::Apply()
{
    if (const FileResult applied = m_run.Apply(m_written); !applied) {
        m_applyButton->setEnabled(false);
        return m_status->setText(tr("Nothing was renamed: %1").arg(QString::fromStdString(applied.error)));
    }
    accept();
}
