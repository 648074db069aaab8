#pragma once

#include "localsocket.h"

#include <QByteArray>
#include <QGuiApplication>
#include <QList>
#include <QObject>
#include <QString>
#include <QTimer>

// Keeps a user to one running editor per display. The first editor listens on a local socket;
// a second start on the same display hands its file over to it and ends instead of opening a
// window of its own.
//
// The socket lies in a folder of the user's own that nobody else may write to, and both sides
// make sure that the other end runs as the same user: a program of another user is never
// handed a file, nor can it hand one over.
//
// A connection carries one record, all numbers little-endian:
//   uint32 identifier  1 opens the file given as text; any other value only rings the bell
//   uint32 length      the text's byte count plus one
//   bytes  text        the text (a path in the local 8-bit encoding) and a terminating zero
// A record that ends early or whose zero is not its last byte is ignored. The listener closes
// the connection once it has read a record, drops one that stays silent, and drops the oldest
// when too many are open.
class CInstanceGuard : public QObject {
    Q_OBJECT
public:
    static constexpr quint32 kOpenFileRecord = 1;

    enum class ListenResult {
        Listening,      // this process is the running editor
        AnotherListens, // an editor of this user on this display runs already
        Failed,         // nobody can hand files to this editor; FailureReason says why
    };

    // The socket of this user's editor on the display that platform (the Qt platform plugin in
    // use) shows windows on: $XDG_RUNTIME_DIR/<base>-<display> when XDG_RUNTIME_DIR is set, and
    // otherwise <temporary folder>/kelvo-hmi-editor-<user id>/<base>-<display>. Tests pass a
    // base of their own so that runs side by side do not meet.
    static QString ServerName(const QString& base = QStringLiteral("Tamlo_Main"),
                              const QString& platform = QGuiApplication::platformName());

    explicit CInstanceGuard(const QString& serverName = ServerName(), QObject* parent = nullptr);

    // Makes this process the running editor. The socket's folder is created for this user
    // alone (0700) when it is missing, and refused when it is not the user's or others may
    // write to it. A socket file that no editor of this user answers on is left over from one
    // that crashed, or is not ours, and is replaced. A listener that closes on an error (the
    // process ran out of file descriptors) is opened again as soon as it can be.
    ListenResult Listen();
    const QString& Name() const { return m_name; }
    const QString& FailureReason() const { return m_failureReason; }

    // Sends the path to the running editor. False when no editor of this user listens, so that
    // the caller starts normally.
    static bool HandOver(const QString& serverName, const QByteArray& path, int timeoutMs = 5000);
    // Sends one record with any identifier; text must hold no zero byte.
    static bool SendRecord(const QString& serverName, quint32 identifier, const QByteArray& text,
                           int timeoutMs = 5000);

signals:
    void openFileRequested(const QString& path);
    // Comes after openFileRequested, and alone for an empty path.
    void raiseRequested();
    void beepRequested();

private:
    void AcceptConnection(CLocalConnection* socket);
    void ReadRecord(CLocalConnection* socket);
    void Dispatch(quint32 identifier, const QByteArray& text);
    void ListenAgainAfterError();

    QString m_name;
    QString m_failureReason;
    QList<CLocalConnection*> m_connections; // open, oldest first; children of m_server, which goes first
    CLocalListener m_server;
    QTimer m_listenerCheck;
};
