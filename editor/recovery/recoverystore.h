#pragma once

#include "project/fileio.h"

#include <QDateTime>
#include <QList>
#include <QString>

#include <memory>
#include <optional>
#include <string_view>
#include <vector>

// Recovery copies keep the unsaved changes of the editor's windows safe from a crash or a kill.
// Every running editor writes its copies into a session folder of its own under the recovery
// root, and holds a lock on that folder for as long as it runs:
//
//   <root>/session-XXXXXX/session.lock   locked by the running editor
//                         <id>.record    what the copy is of (see RecoveryRecord)
//                         <id>.xml       the window file's text
//
// The lock goes with the process, so a session folder whose lock is free was left behind by an
// editor that is gone, and its copies can be offered at the next start.

// What a recovery copy is of.
struct RecoveryRecord {
    QString windowPath;  // the window file; empty for a window that was never saved
    QString displayName; // the window's name in the editor
    QDateTime copiedAt;
};

struct RecoveryCopy {
    RecoveryRecord record;
    QString contentPath; // the window file's text as it was when the copy was made
};

// Where the editor keeps what it needs from one run to the next: $XDG_STATE_HOME/kelvo-hmi-editor,
// by default ~/.local/state/kelvo-hmi-editor.
QString EditorStateFolder();

// EditorStateFolder()/recovery.
QString RecoveryRoot();

// Creates the folder, and any missing folder above it, for this user alone (0700), and makes
// sure that the folder is this user's and open to nobody else. Fails with the reason when it
// cannot be created or belongs to another user.
FileResult MakePrivateFolder(const QString& path);

// An exclusive lock on a session folder, held while the object lives.
class CSessionLock {
public:
    // Nothing when another process holds the lock or the lock file cannot be opened.
    static std::optional<CSessionLock> TryLock(const QString& folder);

    CSessionLock(CSessionLock&& other) noexcept;
    CSessionLock& operator=(CSessionLock&& other) noexcept;
    ~CSessionLock();

private:
    explicit CSessionLock(int fd) : m_fd(fd) {}
    int m_fd;
};

// The recovery copies of this editor: a new session folder, locked while the object lives.
// The folder stays when the object goes, so that the copies are there at the next start, unless
// the editor ended cleanly and removed it.
class CRecoverySession {
public:
    // Creates and locks a new session folder under the root; null, with the reason in result,
    // when the root cannot be used.
    static std::unique_ptr<CRecoverySession> Create(const QString& root, FileResult& result);

    // Writes the copy of one window, replacing the one written before under the same id. The
    // content and the record are two files: give a window a new id when its file or name
    // changes, so that no crash between the two writes pairs content with another name.
    FileResult Write(int windowId, const RecoveryRecord& record, std::string_view content);
    void Remove(int windowId);
    // Removes the folder with every copy in it: nothing of this editor needs recovering.
    void RemoveFolder();
    const QString& Folder() const { return m_folder; }

private:
    CRecoverySession(QString folder, CSessionLock lock) : m_folder(std::move(folder)), m_lock(std::move(lock)) {}

    QString m_folder;
    CSessionLock m_lock;
};

// The copies that editors which are gone left under the root. Their session folders are locked
// while the object lives, so that an editor starting at the same time does not offer them too.
// A folder that holds no copy any more is removed when the object goes.
class CAbandonedCopies {
public:
    // Reads nothing from a root that another user owns.
    explicit CAbandonedCopies(const QString& root);
    ~CAbandonedCopies();
    CAbandonedCopies(const CAbandonedCopies&) = delete;
    CAbandonedCopies& operator=(const CAbandonedCopies&) = delete;

    // The oldest copy first.
    const QList<RecoveryCopy>& Copies() const { return m_copies; }
    // Removes a copy for good, once it is restored or the user discarded it.
    void Remove(const RecoveryCopy& copy);

private:
    struct Session {
        QString folder;
        CSessionLock lock;
    };
    std::vector<Session> m_sessions;
    QList<RecoveryCopy> m_copies;
};
