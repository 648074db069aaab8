#include "problemspane.h"

#include "projectwork.h"

#include "editor/projectdialogs/modeltext.h"
#include "editor/translations/coretexts.h"
#include "project/projectpath.h"
#include "widgets/tamlodoc.h"

#include <QApplication>
#include <QCoreApplication>
#include <QFile>
#include <QStyle>
#include <QTimer>
#include <QTreeWidget>

#include <algorithm>
#include <filesystem>

namespace {

// Edits come in bursts (typing, dragging): the window is checked once they pause.
constexpr int kRecheckDelayMs = 300;
// The rule's id is for scripts; its summary, in the user's language, is the tip.
constexpr int kRuleColumn = 4;

// "1 error", "3 errors": the texts for one and for more are given apart, as each language words them.
QString CountText(std::size_t count, const char* one, const char* more)
{
    return QCoreApplication::translate("CProblemsPane", count == 1 ? one : more).arg(count);
}

} // namespace

// Checks a window again after its document changed, once the changes pause.
class CWindowRecheck : public QObject, public CDocumentObserver {
public:
    CWindowRecheck(CTamloDoc& document, CProblemsPane& pane) : QObject(&pane), m_document(&document)
    {
        m_timer.setSingleShot(true);
        m_timer.setInterval(kRecheckDelayMs);
        connect(&m_timer, &QTimer::timeout, this, [this, &pane] {
            if (pane.HasChecked()) {
                pane.ReplaceWindowFindings(*m_document);
                pane.ShowFindings();
            }
        });
        document.AddObserver(this);
    }
    ~CWindowRecheck() override
    {
        if (m_document)
            m_document->RemoveObserver(this);
    }

    void DocumentChanged(const CDocumentChange& change) override
    {
        if (change.what != DocChange::Modified) // saving changes no content
            m_timer.start();
    }
    void DocumentDestroyed() override
    {
        auto& pane = static_cast<CProblemsPane&>(*parent());
        std::erase(pane.m_watched, m_document);
        m_document = nullptr;
        m_timer.stop();
        deleteLater();
    }

private:
    CTamloDoc* m_document;
    QTimer m_timer;
};

CProblemsPane::CProblemsPane(QWidget* parent)
    : CPlaceList({tr("Severity"), tr("File"), tr("Widget"),
                  tr("Where"), tr("Rule"), tr("Message")},
                 parent)
{
    ClearPlaces(tr("Tools > Check Project lists what the panel would not find or not show."));
}

void CProblemsPane::CheckProject(const std::string& folder)
{
    QApplication::setOverrideCursor(Qt::WaitCursor);
    m_findings = ::CheckProject(folder);
    m_folder = GetProjectPath();
    m_index.emplace(m_folder);
    for (const CTamloDoc* document : m_watched)
        ReplaceWindowFindings(*document);
    ShowFindings();
    QApplication::restoreOverrideCursor();
}

void CProblemsPane::WatchWindow(CTamloDoc& document)
{
    m_watched.push_back(&document);
    new CWindowRecheck(document, *this);
}

void CProblemsPane::ReplaceWindowFindings(const CTamloDoc& document)
{
    if (document.GetPathName().empty())
        return;
    const std::string file = ProjectFileName(m_folder, document.GetPathName());
    if (file.starts_with("..")) // a window from elsewhere
        return;
    namespace fs = std::filesystem;
    const fs::path path = fs::path(document.GetPathName()).lexically_normal();
    std::erase_if(m_findings, [&](const Finding& finding) {
        return IsWindowContentFinding(finding) &&
               (fs::path(m_folder) / Gb2312ToUtf8OrKeep(finding.file)).lexically_normal() == path;
    });
    std::vector<Finding> found = CheckWindow(document, file, *m_index);
    std::move(found.begin(), found.end(), std::back_inserter(m_findings));
}

void CProblemsPane::ShowFindings()
{
    // A window checked again keeps its place among the others.
    std::stable_sort(m_findings.begin(), m_findings.end(),
                     [](const Finding& a, const Finding& b) { return a.file < b.file; });
    const auto errors = std::size_t(std::count_if(m_findings.begin(), m_findings.end(), [](const Finding& finding) {
        return finding.rule->severity == Severity::Error;
    }));
    ClearPlaces(m_findings.empty() ? tr("No problems found.")
                                   : CountText(errors, QT_TR_NOOP("%1 error"), QT_TR_NOOP("%1 errors")) + tr(", ") +
                                         CountText(m_findings.size() - errors, QT_TR_NOOP("%1 warning"),
                                                   QT_TR_NOOP("%1 warnings")));
    const QIcon errorIcon = style()->standardIcon(QStyle::SP_MessageBoxCritical);
    const QIcon warningIcon = style()->standardIcon(QStyle::SP_MessageBoxWarning);
    for (const Finding& finding : m_findings) {
        const bool error = finding.rule->severity == Severity::Error;
        PlaceLink link{{}, finding.widget, finding.place};
        if (IsWindowContentFinding(finding))
            link.path = QFile::decodeName(QByteArray::fromStdString(m_folder + Gb2312ToUtf8OrKeep(finding.file)));
        QTreeWidgetItem* row = AddPlace({error ? tr("error") : tr("warning"),
                                         FromModel(finding.file), FromModel(finding.widget),
                                         QString::fromStdString(finding.place.Text()),
                                         QLatin1String(finding.rule->id), FromModel(finding.message)},
                                        std::move(link));
        row->setIcon(0, error ? errorIcon : warningIcon);
        row->setToolTip(kRuleColumn, TranslateCoreText(CoreTextContext::kCheckRule, finding.rule->summary));
    }
}
