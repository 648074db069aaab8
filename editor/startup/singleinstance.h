#pragma once

#include <QByteArray>
#include <QLocalServer>
#include <QObject>
#include <QString>

class QLocalSocket;

// Keeps a user to one running editor. The first editor listens on a local server; a second
// start hands its file over to it and ends instead of opening a window of its own.
//
// A connection carries one record, all numbers little-endian:
//   uint32 identifier  1 opens the file given as text; any other value only rings the bell
//   uint32 length      the text's byte count plus one
//   bytes  text        the text (a path in the local 8-bit encoding) and a terminating zero
// A record that ends early or whose zero is not its last byte is ignored. The listener closes
// the connection once it has read a record.
class CInstanceGuard : public QObject {
    Q_OBJECT
public:
    static constexpr quint32 kOpenFileRecord = 1;

    // The server name for this user: the base name followed by the user id. Tests pass a base
    // of their own so that runs side by side do not meet.
    static QString ServerName(const QString& base = QStringLiteral("Tamlo_Main"));

    explicit CInstanceGuard(const QString& serverName = ServerName(), QObject* parent = nullptr);

    // Makes this process the running editor. False when another editor already listens under the
    // name, or the server cannot be created. A socket file that nobody answers on is left over
    // from an editor that crashed, and is replaced.
    bool Listen();
    const QString& Name() const { return m_name; }

    // Sends the path to the running editor. False when none listens, so that the caller starts
    // normally.
    static bool HandOver(const QString& serverName, const QByteArray& path, int timeoutMs = 5000);
    // Sends one record with any identifier; text must hold no zero byte.
    static bool SendRecord(const QString& serverName, quint32 identifier, const QByteArray& text,
                           int timeoutMs = 5000);

signals:
    void openFileRequested(const QString& path);
    // Comes after openFileRequested, once the file is open, so that the window shows it.
    void raiseRequested();
    void beepRequested();

private:
    void AcceptConnections();
    void ReadRecord(QLocalSocket* socket);
    void Dispatch(quint32 identifier, const QByteArray& text);

    QString m_name;
    QLocalServer m_server;
};
