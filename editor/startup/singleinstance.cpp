#include "singleinstance.h"

#include "logcategories.h"

#include "project/trust.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QScopeGuard>
#include <QtEndian>

#include <cerrno>
#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr qint64 kHeaderSize = 2 * sizeof(quint32);
// Far beyond any path; a larger length is garbage, and is not waited for.
constexpr quint32 kMaxTextLength = 64 * 1024;
// Connecting to a local socket fails at once when nobody listens; this only bounds a busy peer.
constexpr int kProbeTimeoutMs = 1000;
// A sender writes its record as soon as it is connected; a connection that stays silent this
// long is stuck or hostile, and only holds a file descriptor.
constexpr int kIdleTimeoutMs = 3000;
// Connections read at the same time. A new one beyond these drops the oldest, so that a flood
// of connections neither exhausts the file descriptors nor locks a real sender out for long.
constexpr qsizetype kMaxOpenConnections = 32;
// How often a listener that an error closed tries to listen again.
constexpr int kListenerCheckMs = 1000;

QByteArray EncodeRecord(quint32 identifier, const QByteArray& text)
{
    QByteArray record(kHeaderSize, Qt::Uninitialized);
    qToLittleEndian(identifier, record.data());
    qToLittleEndian(quint32(text.size() + 1), record.data() + sizeof(quint32));
    record.append(text);
    record.append('\0');
    return record;
}

bool AnEditorOfThisUserListens(const QString& serverName)
{
    const int probe = ConnectLocalSocket(serverName, kProbeTimeoutMs);
    const bool ours = probe >= 0 && SocketPeerIsThisUser(probe);
    if (probe >= 0)
        ::close(probe);
    return ours;
}

// Creates the folder for this user alone when it is missing. Empty when the folder may hold
// the socket; otherwise why not, in words for the user. A folder that others may write to
// would let them put their own socket in place of the editor's.
QString PrivateFolderProblem(const QString& folder)
{
    const QByteArray local = QFile::encodeName(folder);
    if (::mkdir(local.constData(), 0700) != 0 && errno != EEXIST)
        return QCoreApplication::translate("CInstanceGuard", "Cannot create %1: %2")
            .arg(folder, qt_error_string(errno));
    struct stat info;
    if (::lstat(local.constData(), &info) != 0)
        return QCoreApplication::translate("CInstanceGuard", "Cannot use %1: %2").arg(folder, qt_error_string(errno));
    const std::string problem = S_ISDIR(info.st_mode) ? TrustProblem(info) : "not a folder";
    return problem.empty() ? QString()
                           : QCoreApplication::translate("CInstanceGuard", "Cannot use %1: it is %2")
                                 .arg(folder, QString::fromStdString(problem));
}

// The display as a part of a file name. Every start in one session finds the same display in
// its environment; the screen number of an X display (":0.1") does not make another display.
QString DisplayScope(const QString& platform)
{
    QString scope = platform;
    if (platform == QLatin1String("xcb")) {
        static const QRegularExpression screenNumber(QStringLiteral("(:\\d+)\\.\\d+$"));
        scope += QLatin1Char('-') + qEnvironmentVariable("DISPLAY").replace(screenNumber, QStringLiteral("\\1"));
    } else if (platform.startsWith(QLatin1String("wayland"))) {
        scope = QStringLiteral("wayland-") + qEnvironmentVariable("WAYLAND_DISPLAY", QStringLiteral("wayland-0"));
    }
    // Percent-encoding keeps different displays apart and slashes out of the name.
    return QString::fromLatin1(scope.toUtf8().toPercentEncoding());
}

} // namespace

QString CInstanceGuard::ServerName(const QString& base, const QString& platform)
{
    const QString runtime = qEnvironmentVariable("XDG_RUNTIME_DIR");
    const QString folder = QDir::isAbsolutePath(runtime)
                               ? QDir::cleanPath(runtime)
                               : QDir::tempPath() + QStringLiteral("/kelvo-hmi-editor-%1").arg(::getuid());
    return folder + QLatin1Char('/') + base + QLatin1Char('-') + DisplayScope(platform);
}

CInstanceGuard::CInstanceGuard(const QString& serverName, QObject* parent)
    : QObject(parent), m_name(serverName)
{
    connect(&m_server, &CLocalListener::newConnection, this, &CInstanceGuard::AcceptConnection);
    m_listenerCheck.setInterval(kListenerCheckMs);
    connect(&m_listenerCheck, &QTimer::timeout, this, &CInstanceGuard::ListenAgainAfterError);
}

CInstanceGuard::ListenResult CInstanceGuard::Listen()
{
    if (m_server.IsListening())
        return ListenResult::Listening;
    m_failureReason = PrivateFolderProblem(QFileInfo(m_name).path());
    if (!m_failureReason.isEmpty()) {
        qCDebug(lcHandover, "%s", qUtf8Printable(m_failureReason));
        return ListenResult::Failed;
    }
    // Listening puts the new socket file over any old one, a running editor's included, so the
    // name is only taken over when no editor of this user answers on it.
    if (AnEditorOfThisUserListens(m_name)) {
        qCDebug(lcHandover, "an editor of this user listens on %s", qUtf8Printable(m_name));
        return ListenResult::AnotherListens;
    }
    QFile::remove(m_name);
    if (!m_server.Listen(m_name)) {
        m_failureReason = tr("Cannot listen on %1: %2").arg(m_name, m_server.ErrorString());
        qCDebug(lcHandover, "%s", qUtf8Printable(m_failureReason));
        return ListenResult::Failed;
    }
    qCDebug(lcHandover, "listening on %s", qUtf8Printable(m_name));
    m_listenerCheck.start();
    return ListenResult::Listening;
}

// The listener closes for good, and removes its socket file, when accepting a connection fails,
// as it does once the process has run out of file descriptors; it tells nobody.
void CInstanceGuard::ListenAgainAfterError()
{
    if (!m_server.IsListening() && Listen() == ListenResult::AnotherListens)
        m_listenerCheck.stop(); // a later start took the name over meanwhile
}

bool CInstanceGuard::HandOver(const QString& serverName, const QByteArray& path, int timeoutMs)
{
    return SendRecord(serverName, kOpenFileRecord, path, timeoutMs);
}

bool CInstanceGuard::SendRecord(const QString& serverName, quint32 identifier, const QByteArray& text,
                                int timeoutMs)
{
    const int socket = ConnectLocalSocket(serverName, timeoutMs);
    if (socket < 0) {
        qCDebug(lcHandover, "no editor answers on %s: %s", qUtf8Printable(serverName),
                qUtf8Printable(qt_error_string(errno)));
        return false;
    }
    // The bytes stay with the system once written; the listener reads them after this side has gone.
    const auto closing = qScopeGuard([socket] { ::close(socket); });
    if (!SocketPeerIsThisUser(socket)) {
        qCDebug(lcHandover, "the program on %s runs as another user: nothing sent", qUtf8Printable(serverName));
        return false;
    }
    const QByteArray record = EncodeRecord(identifier, text);
    if (!WriteAll(socket, record)) {
        qCDebug(lcHandover, "cannot send to %s: %s", qUtf8Printable(serverName), qUtf8Printable(qt_error_string(errno)));
        return false;
    }
    qCDebug(lcHandover, "sent record %u with '%s' to %s", identifier, text.constData(), qUtf8Printable(serverName));
    return true;
}

void CInstanceGuard::AcceptConnection(CLocalConnection* socket)
{
    if (!socket->PeerIsThisUser()) {
        qCDebug(lcHandover, "refused a connection from a program of another user");
        delete socket;
        return;
    }
    if (m_connections.size() == kMaxOpenConnections) {
        qCDebug(lcHandover, "%lld connections open: the oldest is dropped", qlonglong(kMaxOpenConnections));
        m_connections.takeFirst()->Abort();
    }
    m_connections.append(socket);
    connect(socket, &QObject::destroyed, this, [this, socket] { m_connections.removeOne(socket); });
    connect(socket, &CLocalConnection::disconnected, socket, &QObject::deleteLater);
    connect(socket, &CLocalConnection::readyRead, this, [this, socket] { ReadRecord(socket); });
    QTimer::singleShot(kIdleTimeoutMs, socket, &CLocalConnection::Abort);
}

void CInstanceGuard::ReadRecord(CLocalConnection* socket)
{
    if (socket->BytesAvailable() < kHeaderSize)
        return;
    const QByteArray header = socket->Peek(kHeaderSize);
    const auto identifier = qFromLittleEndian<quint32>(header.constData());
    const auto length = qFromLittleEndian<quint32>(header.constData() + sizeof(quint32));
    if (length == 0 || length > kMaxTextLength) {
        qCDebug(lcHandover, "dropped a record that gives its length as %u", length);
        socket->Abort();
        return;
    }
    if (socket->BytesAvailable() < kHeaderSize + qint64(length))
        return;
    socket->Read(kHeaderSize);
    const QByteArray text = socket->Read(length);
    socket->Abort();
    if (text.indexOf('\0') == qsizetype(length) - 1)
        Dispatch(identifier, text.chopped(1));
    else
        qCDebug(lcHandover, "ignored a record whose text is not %u bytes ending in a zero", length);
}

void CInstanceGuard::Dispatch(quint32 identifier, const QByteArray& text)
{
    qCDebug(lcHandover, "received record %u with '%s'", identifier, text.constData());
    if (identifier != kOpenFileRecord) {
        emit beepRequested();
        return;
    }
    // An empty path still brings the running editor to the front.
    if (!text.isEmpty())
        emit openFileRequested(QFile::decodeName(text));
    emit raiseRequested();
}
