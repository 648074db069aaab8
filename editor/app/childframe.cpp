#include "childframe.h"

#include "canvaszoomer.h"
#include "editorprompts.h"
#include "layoutaidactions.h"
#include "pathtext.h"
#include "tamloview.h"

#include "editor/model/editorsession.h"
#include "editor/model/undohistory.h"
#include "editor/preferences/editorpreferences.h"

#include "widgets/tamlodoc.h"

#include <QCloseEvent>
#include <QCryptographicHash>
#include <QFileInfo>
#include <QLabel>
#include <QScrollArea>
#include <QVBoxLayout>

namespace {

// What a file holds now, as a digest; none when it cannot be read (it is gone, say). BLAKE2b
// hashes a window file of many thousand widgets in a fraction of SHA-256's time, and opening
// the window waits for it.
std::optional<QByteArray> DiskDigest(const QString& path)
{
    std::string bytes;
    if (path.isEmpty() || !ReadWholeFile(ToModelPath(path), bytes))
        return std::nullopt;
    return QCryptographicHash::hash(QByteArrayView(bytes.data(), qsizetype(bytes.size())),
                                    QCryptographicHash::Blake2b_256);
}

} // namespace

CChildFrame::CChildFrame(std::unique_ptr<CTamloDoc> document, CEditorPrompts& prompts, CEditorSession& session,
                         CEditorPreferences& preferences, QWidget* parent)
    : QMdiSubWindow(parent)
    , m_document(std::move(document))
    , m_prompts(prompts)
    , m_preferences(preferences)
    , m_view(new CTamloView(*m_document, session.Tools()))
    , m_diskNotice(new QLabel)
{
    // New windows are called Tamlo1, Tamlo2 and so on until they are saved.
    if (m_document->GetPathName().empty())
        m_untitledName = QStringLiteral("Tamlo%1").arg(session.NextUntitledNumber());
    auto* scroller = new QScrollArea;
    scroller->setWidget(m_view);
    scroller->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    scroller->setBackgroundRole(QPalette::Dark);
    m_zoomer = new CCanvasZoomer(*scroller, *m_view);
    m_diskNotice->setObjectName(QStringLiteral("diskChangeNotice"));
    m_diskNotice->setWordWrap(true);
    m_diskNotice->setMargin(6);
    m_diskNotice->setStyleSheet(QStringLiteral("background: #fff3c4; color: black"));
    m_diskNotice->hide();
    auto* body = new QWidget;
    auto* layout = new QVBoxLayout(body);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_diskNotice);
    layout->addWidget(scroller, 1);
    setWidget(body);
    m_diskDigest = DiskDigest(FilePath());
    setAttribute(Qt::WA_DeleteOnClose);
    m_view->Selection().Select(nullptr, false);
    m_view->SetLayoutAids(LayoutAidsOf(m_preferences.Get()));
    connect(&m_preferences, &CEditorPreferences::changed, this,
            [this] { m_view->SetLayoutAids(LayoutAidsOf(m_preferences.Get())); });
    RefreshTitle();
    m_document->AddObserver(this);
    FollowUndoPreference();
    connect(&m_preferences, &CEditorPreferences::changed, this, &CChildFrame::FollowUndoPreference);
    connect(m_view, &CTamloView::selectionChanged, this, [this] {
        if (m_history)
            m_history->SelectionChanged();
    });
}

// The history goes first, with the widgets it kept, while the canvas that shows their live
// controls is there; then the view goes before the document it shows.
CChildFrame::~CChildFrame()
{
    m_history.reset();
    m_document->RemoveObserver(this);
    delete widget();
}

void CChildFrame::FollowUndoPreference()
{
    const bool unlimited = m_preferences.Get().undoHistory == CEditorPreferences::UndoHistory::Unlimited;
    if (unlimited == (m_history != nullptr))
        return;
    m_history = unlimited ? std::make_unique<CUndoHistory>(*m_document, m_view->Selection()) : nullptr;
    emit historyChanged();
}

void CChildFrame::DocumentChanged(const CDocumentChange& change)
{
    if (change.Has(DocChange::Modified))
        RefreshTitle();
}

QString CChildFrame::FilePath() const
{
    return ToQtPath(m_document->GetPathName());
}

QString CChildFrame::DisplayName() const
{
    return m_untitledName.isEmpty() ? QFileInfo(FilePath()).fileName() : m_untitledName;
}

void CChildFrame::RefreshTitle()
{
    setWindowTitle(DisplayName() + QStringLiteral("[*]"));
    setWindowModified(m_document->IsModified());
}

bool CChildFrame::Save()
{
    return m_untitledName.isEmpty() ? SaveTo(FilePath()) : SaveAs();
}

bool CChildFrame::SaveAs()
{
    const QString suggested = m_untitledName.isEmpty() ? FilePath() : m_untitledName + QStringLiteral(".xml");
    const QString path = m_prompts.AskSaveFileName(this, suggested);
    return !path.isEmpty() && SaveTo(path);
}

bool CChildFrame::DiskCopyIsOurs() const
{
    return DiskDigest(FilePath()) == m_diskDigest;
}

void CChildFrame::CheckDiskCopy()
{
    const bool ours = DiskCopyIsOurs();
    if (!ours)
        m_diskNotice->setText(tr("%1 was changed on disk by another program. Saving this window "
                                             "would overwrite that change.").arg(DisplayName()));
    m_diskNotice->setVisible(!ours);
}

bool CChildFrame::SaveTo(const QString& path)
{
    // Taking the focus away from the property pane commits an edit the user is still typing.
    // The canvas takes it, so that its keys go on working after the save.
    m_view->setFocus(Qt::OtherFocusReason);
    // Asked at every save, not only after a notice: the notice may still be on its way.
    const bool ownFile = QFileInfo(path).absoluteFilePath() == QFileInfo(FilePath()).absoluteFilePath();
    if (ownFile && !DiskCopyIsOurs() && !m_prompts.AskOverwriteChangedFile(this, DisplayName()))
        return false;
    const FileResult result = m_document->Save(ToModelPath(path));
    if (!result) {
        m_prompts.ShowError(this, QString::fromStdString(result.error));
        return false;
    }
    m_untitledName.clear();
    m_diskDigest = DiskDigest(path);
    m_diskNotice->hide();
    RefreshTitle();
    emit documentSaved(path);
    return true;
}

bool CChildFrame::MaybeSave()
{
    if (!m_document->IsModified())
        return true;
    switch (m_prompts.AskSaveChanges(this, DisplayName())) {
    case CEditorPrompts::SaveAnswer::Save:
        return Save();
    case CEditorPrompts::SaveAnswer::Discard:
        return true;
    case CEditorPrompts::SaveAnswer::Cancel:
        break;
    }
    return false;
}

void CChildFrame::closeEvent(QCloseEvent* event)
{
    if (!MaybeSave())
        return event->ignore();
    QMdiSubWindow::closeEvent(event);
    emit closedByUser();
}
