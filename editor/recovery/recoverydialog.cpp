#include "recoverydialog.h"

#include <QDialogButtonBox>
#include <QDir>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

CRecoveryDialog::CRecoveryDialog(const QList<RecoveryCopy>& copies, QWidget* parent) : QDialog(parent)
{
    setWindowTitle(tr("Restore Unsaved Windows"));
    auto* text = new QLabel(tr("The editor ended without saving these windows. Restore them?\n"
                                           "Restored windows open as modified; saving writes their window files."));

    auto* list = new QTreeWidget;
    list->setObjectName(QStringLiteral("recoveryList"));
    list->setHeaderLabels({tr("Window"), tr("Window file"), tr("Copied at")});
    list->setRootIsDecorated(false);
    list->setSelectionMode(QAbstractItemView::NoSelection);
    for (const RecoveryCopy& copy : copies) {
        const RecoveryRecord& record = copy.record;
        const QString file = record.windowPath.isEmpty() ? tr("(never saved)")
                                                         : QDir::toNativeSeparators(record.windowPath);
        list->addTopLevelItem(new QTreeWidgetItem(
            {record.displayName, file, record.copiedAt.toLocalTime().toString(QStringLiteral("yyyy-MM-dd HH:mm:ss"))}));
    }
    list->header()->setSectionResizeMode(QHeaderView::ResizeToContents);

    auto* buttons = new QDialogButtonBox;
    m_restore = buttons->addButton(tr("&Restore"), QDialogButtonBox::AcceptRole);
    m_discard = buttons->addButton(tr("&Discard"), QDialogButtonBox::DestructiveRole);
    buttons->addButton(tr("Decide &Later"), QDialogButtonBox::RejectRole);
    m_restore->setDefault(true);
    connect(buttons, &QDialogButtonBox::clicked, this, &CRecoveryDialog::Choose);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(text);
    layout->addWidget(list);
    layout->addWidget(buttons);
    resize(720, 320);
}

void CRecoveryDialog::Choose(QAbstractButton* button)
{
    if (button == m_restore)
        m_answer = RecoveryAnswer::Restore;
    else if (button == m_discard)
        m_answer = RecoveryAnswer::Discard;
    else
        m_answer = RecoveryAnswer::Later;
    done(m_answer == RecoveryAnswer::Later ? Rejected : Accepted);
}
