#pragma once

#include <QByteArray>
#include <QObject>
#include <QString>

class QSocketNotifier;

// Stream connections over a Unix domain socket file: the hand-over between editor starts needs
// no more than this, and loading a network library would delay every start.

// Connects to the socket file, waiting at most timeoutMs for a listener whose queue is full;
// -1, with errno telling why, when nobody listens there. The caller closes the blocking socket.
int ConnectLocalSocket(const QString& path, int timeoutMs);
// Writes all the bytes to a blocking socket; false when the peer is gone or stops reading.
bool WriteAll(int fd, const QByteArray& bytes);
// True when the process at the other end of the connected socket runs as this user.
bool SocketPeerIsThisUser(int fd);

// One accepted connection, read from the event loop as bytes arrive.
class CLocalConnection : public QObject {
    Q_OBJECT
public:
    // Takes over a connected, non-blocking socket.
    explicit CLocalConnection(int fd, QObject* parent = nullptr);
    ~CLocalConnection() override;

    bool PeerIsThisUser() const { return m_fd >= 0 && SocketPeerIsThisUser(m_fd); }
    qint64 BytesAvailable() const { return m_received.size(); }
    QByteArray Peek(qint64 count) const { return m_received.left(count); }
    QByteArray Read(qint64 count);
    // Closes the connection, dropping what was not read.
    void Abort();

signals:
    void readyRead();
    // Once, when the peer closed the connection or it was aborted.
    void disconnected();

private:
    void Receive();

    int m_fd;
    QSocketNotifier* m_notifier;
    QByteArray m_received;
};

// Listens on a socket file that only this user may connect to.
class CLocalListener : public QObject {
    Q_OBJECT
public:
    using QObject::QObject;
    ~CLocalListener() override;

    // False, with ErrorString() telling why, when the path cannot be listened on; a file
    // that is there already is not replaced.
    bool Listen(const QString& path);
    bool IsListening() const { return m_fd >= 0; }
    const QString& ErrorString() const { return m_error; }
    // Stops listening and removes the socket file. The listener closes itself so when it
    // cannot accept a connection, as when the process has run out of file descriptors.
    void Close();

signals:
    // The connection is the listener's child until someone takes it.
    void newConnection(CLocalConnection* connection);

private:
    void Accept();

    int m_fd = -1;
    QString m_path;
    QString m_error;
    QSocketNotifier* m_notifier = nullptr;
};
