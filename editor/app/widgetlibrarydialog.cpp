#include "widgetlibrarydialog.h"

#include "pathtext.h"

#include "libraries/librarycrashguard.h"

#include <QDialogButtonBox>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

#include <algorithm>

namespace {

constexpr int kReasonColumn = 4;
const char* const kLoadedAtNextStart = QT_TRANSLATE_NOOP("CWidgetLibraryDialog", "it will be loaded at the next start");

} // namespace

CWidgetLibraryDialog::CWidgetLibraryDialog(WidgetLibraryLoadReport report, QWidget* parent)
    : QDialog(parent)
    , m_report(std::move(report))
    , m_list(new QTreeWidget)
{
    setWindowTitle(tr("Widget Libraries"));
    QStringList folders;
    for (const std::string& folder : m_report.folders)
        folders.append(ToQtPath(folder));
    const QString searched = folders.join(QStringLiteral(", "));
    auto* text = new QLabel(
        m_report.libraries.empty()
            ? tr("No widget library was found at start-up in %1.").arg(searched)
            : tr("What became of the widget libraries at start-up, looked for in this order in %1:")
                  .arg(searched));
    text->setWordWrap(true);

    m_list->setHeaderLabels({tr("File"), tr("Interface"), tr("Folder"),
                             tr("Outcome"), tr("Reason")});
    m_list->setRootIsDecorated(false);
    for (const WidgetLibraryLoad& library : m_report.libraries) {
        // A library let in again since the start is no longer skipped by the next one.
        const QString reason = library.outcome == LibraryOutcome::SkippedAfterCrash && !SkippedAtNextStart(library)
                                   ? tr(kLoadedAtNextStart)
                                   : QString::fromStdString(library.reason);
        const QString outcome = QString::fromLatin1(OutcomeText(library.outcome));
        // The version a library states; a dash for none, or for one that was never opened.
        const QString version =
            library.interfaceVersion ? QString::number(library.interfaceVersion) : QStringLiteral("–");
        auto* item = new QTreeWidgetItem({ToQtPath(library.file), version, ToQtPath(library.folder), outcome, reason});
        item->setToolTip(kReasonColumn, reason); // a long reason is cut off in its column
        m_list->addTopLevelItem(item);
    }
    m_list->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    connect(m_list, &QTreeWidget::itemSelectionChanged, this, &CWidgetLibraryDialog::UpdateLoadAgainButton);

    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close);
    m_loadAgain = buttons->addButton(tr("&Load Again at Next Start"), QDialogButtonBox::ActionRole);
    m_loadAgain->setToolTip(
        tr("Load the chosen library at the next start, although it crashed an earlier one"));
    connect(m_loadAgain, &QPushButton::clicked, this, &CWidgetLibraryDialog::LoadAgainAtNextStart);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(text);
    layout->addWidget(m_list);
    layout->addWidget(buttons);
    resize(960, 340);
    UpdateLoadAgainButton();
}

bool CWidgetLibraryDialog::SkippedAtNextStart(const WidgetLibraryLoad& library) const
{
    if (library.outcome != LibraryOutcome::SkippedAfterCrash)
        return false;
    const std::vector<std::string> crashed = CLibraryCrashGuard::CrashedLibraries(m_report.stateFolder);
    return std::find(crashed.begin(), crashed.end(), library.path) != crashed.end();
}

const WidgetLibraryLoad* CWidgetLibraryDialog::SkippedLibrary() const
{
    const QList<QTreeWidgetItem*> selected = m_list->selectedItems();
    if (selected.size() != 1)
        return nullptr;
    const WidgetLibraryLoad& library = m_report.libraries[m_list->indexOfTopLevelItem(selected.front())];
    return SkippedAtNextStart(library) ? &library : nullptr;
}

void CWidgetLibraryDialog::LoadAgainAtNextStart()
{
    const WidgetLibraryLoad* library = SkippedLibrary();
    if (!library)
        return;
    const FileResult result = CLibraryCrashGuard::LoadAgainAtNextStart(m_report.stateFolder, library->path);
    m_list->selectedItems().front()->setText(kReasonColumn,
                                             result ? kLoadedAtNextStart : QString::fromStdString(result.error));
    UpdateLoadAgainButton();
}

void CWidgetLibraryDialog::UpdateLoadAgainButton()
{
    m_loadAgain->setEnabled(SkippedLibrary() != nullptr);
}
