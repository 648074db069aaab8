#include "recoverykeeper.h"

#include "childframe.h"
#include "mainframe.h"

#include "editor/recovery/recoverystore.h"
#include "widgets/tamlodoc.h"

#include <QStatusBar>

CRecoveryKeeper::CRecoveryKeeper(CMainFrame& frame, std::unique_ptr<CRecoverySession> session,
                                 std::chrono::milliseconds delay)
    : m_frame(frame)
    , m_session(std::move(session))
{
    // Comparing revisions costs next to nothing, so the windows are simply looked at regularly.
    connect(&m_timer, &QTimer::timeout, this, &CRecoveryKeeper::UpdateCopies);
    m_timer.start(delay);
    connect(&m_frame, &CMainFrame::closedByUser, this, &CRecoveryKeeper::EndSession);
}

CRecoveryKeeper::~CRecoveryKeeper() = default;

bool CRecoveryKeeper::UpdateCopies()
{
    if (!m_session)
        return true;
    bool written = true;
    for (CChildFrame* child : m_frame.Children()) {
        ChildCopy& copy = Watch(*child);
        if (!copy.closed)
            written = UpdateCopy(*child, copy) && written;
    }
    if (written)
        m_reportedFailure.clear();
    return written;
}

void CRecoveryKeeper::KeepCopies()
{
    UpdateCopies();
    m_timer.stop();
    m_session.reset();
}

CRecoveryKeeper::ChildCopy& CRecoveryKeeper::Watch(CChildFrame& child)
{
    const auto found = m_copies.find(&child);
    if (found != m_copies.end())
        return *found;
    const CChildFrame* key = &child;
    connect(&child, &CChildFrame::closedByUser, this, [this, key] {
        ChildCopy& copy = m_copies[key];
        RemoveCopy(copy);
        copy.closed = true;
    });
    // A window that goes without the user closing it keeps its copy.
    connect(&child, &QObject::destroyed, this, [this, key] { m_copies.remove(key); });
    return m_copies[key];
}

bool CRecoveryKeeper::UpdateCopy(CChildFrame& child, ChildCopy& copy)
{
    const CTamloDoc& document = child.Document();
    if (!document.IsModified()) {
        RemoveCopy(copy);
        return true;
    }
    const QString path = child.FilePath();
    const QString name = child.DisplayName();
    const bool sameWindow = copy.id != 0 && copy.windowPath == path && copy.displayName == name;
    if (sameWindow && copy.revision == document.Revision())
        return true;
    // A window that changed its file or name gets a new copy, which replaces the old one once
    // it is written whole.
    const int id = sameWindow ? copy.id : ++m_lastId;
    const FileResult result =
        m_session->Write(id, {path, name, QDateTime::currentDateTimeUtc()}, document.Serialize());
    if (!result) {
        if (id != copy.id)
            m_session->Remove(id);
        ReportFailure(QString::fromStdString(result.error));
        return false;
    }
    if (id != copy.id)
        RemoveCopy(copy);
    copy = {id, document.Revision(), path, name, false};
    return true;
}

void CRecoveryKeeper::RemoveCopy(ChildCopy& copy)
{
    if (copy.id != 0 && m_session)
        m_session->Remove(copy.id);
    copy.id = 0;
}

void CRecoveryKeeper::ReportFailure(const QString& error)
{
    // Said once, not at every attempt.
    if (error == m_reportedFailure)
        return;
    m_reportedFailure = error;
    m_frame.statusBar()->showMessage(tr("Cannot keep a recovery copy: %1").arg(error));
}

void CRecoveryKeeper::EndSession()
{
    m_timer.stop();
    if (m_session)
        m_session->RemoveFolder();
    m_session.reset();
}
