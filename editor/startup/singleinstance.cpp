#include "singleinstance.h"

#include <QFile>
#include <QLocalSocket>
#include <QtEndian>

#include <unistd.h>

namespace {

constexpr qint64 kHeaderSize = 2 * sizeof(quint32);
// Far beyond any path; a larger length is garbage, and is not waited for.
constexpr quint32 kMaxTextLength = 64 * 1024;
// Connecting to a local socket fails at once when nobody listens; this only bounds a busy peer.
constexpr int kProbeTimeoutMs = 1000;

QByteArray EncodeRecord(quint32 identifier, const QByteArray& text)
{
    QByteArray record(kHeaderSize, Qt::Uninitialized);
    qToLittleEndian(identifier, record.data());
    qToLittleEndian(quint32(text.size() + 1), record.data() + sizeof(quint32));
    record.append(text);
    record.append('\0');
    return record;
}

bool SomeoneListens(const QString& serverName)
{
    QLocalSocket probe;
    probe.connectToServer(serverName);
    return probe.waitForConnected(kProbeTimeoutMs);
}

} // namespace

QString CInstanceGuard::ServerName(const QString& base)
{
    return base + QLatin1Char('_') + QString::number(::getuid());
}

CInstanceGuard::CInstanceGuard(const QString& serverName, QObject* parent)
    : QObject(parent), m_name(serverName)
{
    m_server.setSocketOptions(QLocalServer::UserAccessOption);
    connect(&m_server, &QLocalServer::newConnection, this, &CInstanceGuard::AcceptConnections);
}

bool CInstanceGuard::Listen()
{
    if (m_server.isListening())
        return true;
    // Listening with user-only access puts the new socket file over any old one, a running
    // editor's included, so the name is only taken over when nobody answers on it.
    if (SomeoneListens(m_name))
        return false;
    QLocalServer::removeServer(m_name);
    return m_server.listen(m_name);
}

bool CInstanceGuard::HandOver(const QString& serverName, const QByteArray& path, int timeoutMs)
{
    return SendRecord(serverName, kOpenFileRecord, path, timeoutMs);
}

bool CInstanceGuard::SendRecord(const QString& serverName, quint32 identifier, const QByteArray& text,
                                int timeoutMs)
{
    QLocalSocket socket;
    socket.connectToServer(serverName);
    if (!socket.waitForConnected(timeoutMs))
        return false;
    const QByteArray record = EncodeRecord(identifier, text);
    if (socket.write(record) != record.size() || !socket.waitForBytesWritten(timeoutMs))
        return false;
    // The bytes are with the system now; the listener reads them after this side has gone.
    socket.disconnectFromServer();
    return true;
}

void CInstanceGuard::AcceptConnections()
{
    while (QLocalSocket* socket = m_server.nextPendingConnection()) {
        connect(socket, &QLocalSocket::disconnected, socket, &QObject::deleteLater);
        connect(socket, &QLocalSocket::readyRead, this, [this, socket] { ReadRecord(socket); });
        ReadRecord(socket);
    }
}

void CInstanceGuard::ReadRecord(QLocalSocket* socket)
{
    if (socket->bytesAvailable() < kHeaderSize)
        return;
    const QByteArray header = socket->peek(kHeaderSize);
    const auto identifier = qFromLittleEndian<quint32>(header.constData());
    const auto length = qFromLittleEndian<quint32>(header.constData() + sizeof(quint32));
    if (length == 0 || length > kMaxTextLength) {
        socket->abort();
        return;
    }
    if (socket->bytesAvailable() < kHeaderSize + qint64(length))
        return;
    socket->skip(kHeaderSize);
    const QByteArray text = socket->read(length);
    socket->disconnectFromServer();
    if (text.indexOf('\0') == qsizetype(length) - 1)
        Dispatch(identifier, text.chopped(1));
}

void CInstanceGuard::Dispatch(quint32 identifier, const QByteArray& text)
{
    if (identifier != kOpenFileRecord) {
        emit beepRequested();
        return;
    }
    // An empty path still brings the running editor to the front.
    if (!text.isEmpty())
        emit openFileRequested(QFile::decodeName(text));
    emit raiseRequested();
}
