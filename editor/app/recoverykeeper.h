#pragma once

#include <QHash>
#include <QObject>
#include <QString>
#include <QTimer>

#include <chrono>
#include <cstdint>
#include <memory>

class CChildFrame;
class CMainFrame;
class CRecoverySession;

// Keeps a recovery copy of every modified window of the main frame in this editor's session. A
// few seconds after a change the copy is brought up to date; a window that is saved, or that the
// user closes, loses its copy; and the session goes when the user closes the editor. Anything
// else (a crash, a kill, a termination signal) leaves the copies for the next start.
class CRecoveryKeeper : public QObject {
    Q_OBJECT
public:
    static constexpr std::chrono::milliseconds kCopyDelay{3000};

    CRecoveryKeeper(CMainFrame& frame, std::unique_ptr<CRecoverySession> session,
                    std::chrono::milliseconds delay = kCopyDelay);
    ~CRecoveryKeeper() override;

    // Brings every copy up to date now. False when one could not be written (the status bar
    // says why).
    bool UpdateCopies();
    // Brings every copy up to date and stops watching: the editor is about to end without
    // asking the user, and the copies are for the next start.
    void KeepCopies();

private:
    // What was last written for a child; id 0 while it has no copy.
    struct ChildCopy {
        int id = 0;
        std::uint64_t revision = 0;
        QString windowPath;
        QString displayName;
        bool closed = false;
    };

    ChildCopy& Watch(CChildFrame& child);
    bool UpdateCopy(CChildFrame& child, ChildCopy& copy);
    void RemoveCopy(ChildCopy& copy);
    void ReportFailure(const QString& error);
    void EndSession();

    CMainFrame& m_frame;
    std::unique_ptr<CRecoverySession> m_session; // null once the session has ended
    QTimer m_timer;
    QHash<const CChildFrame*, ChildCopy> m_copies;
    int m_lastId = 0;
    QString m_reportedFailure;
};
