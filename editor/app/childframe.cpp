#include "childframe.h"

#include "editorprompts.h"
#include "pathtext.h"
#include "tamloview.h"

#include "editor/model/editorsession.h"

#include "widgets/tamlodoc.h"

#include <QCloseEvent>
#include <QFileInfo>
#include <QScrollArea>

CChildFrame::CChildFrame(std::unique_ptr<CTamloDoc> document, CEditorPrompts& prompts, CEditorSession& session,
                         QWidget* parent)
    : QMdiSubWindow(parent)
    , m_document(std::move(document))
    , m_prompts(prompts)
    , m_view(new CTamloView(*m_document, session.Tools()))
{
    // New windows are called Tamlo1, Tamlo2 and so on until they are saved.
    if (m_document->GetPathName().empty())
        m_untitledName = QStringLiteral("Tamlo%1").arg(session.NextUntitledNumber());
    auto* scroller = new QScrollArea;
    scroller->setWidget(m_view);
    scroller->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    scroller->setBackgroundRole(QPalette::Dark);
    setWidget(scroller);
    setAttribute(Qt::WA_DeleteOnClose);
    m_view->Selection().Select(nullptr, false);
    RefreshTitle();
    m_document->AddObserver(this);
}

// The view goes before the document it shows.
CChildFrame::~CChildFrame()
{
    m_document->RemoveObserver(this);
    delete widget();
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

bool CChildFrame::SaveTo(const QString& path)
{
    // Taking the focus away from the property pane commits an edit the user is still typing.
    // The canvas takes it, so that its keys go on working after the save.
    m_view->setFocus(Qt::OtherFocusReason);
    const FileResult result = m_document->Save(ToModelPath(path));
    if (!result) {
        m_prompts.ShowError(this, QString::fromStdString(result.error));
        return false;
    }
    m_untitledName.clear();
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
