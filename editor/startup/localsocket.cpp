#include "localsocket.h"

#include <QFile>
#include <QSocketNotifier>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

namespace {

// Connections that wait for the event loop to accept them; further ones wait in their connect().
constexpr int kBacklog = 50;
constexpr std::size_t kReadChunk = 4096;

// False when the path does not fit into a socket address.
bool ToAddress(const QString& path, sockaddr_un& address)
{
    const QByteArray local = QFile::encodeName(path);
    address = {};
    address.sun_family = AF_UNIX;
    if (local.isEmpty() || std::size_t(local.size()) >= sizeof address.sun_path) {
        errno = ENAMETOOLONG;
        return false;
    }
    std::memcpy(address.sun_path, local.constData(), std::size_t(local.size()));
    return true;
}

} // namespace

int ConnectLocalSocket(const QString& path, int timeoutMs)
{
    sockaddr_un address;
    if (!ToAddress(path, address))
        return -1;
    const int fd = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    if (fd < 0)
        return -1;
    // Bounds both the connection to a listener whose queue is full and each write.
    const timeval timeout = {timeoutMs / 1000, (timeoutMs % 1000) * 1000};
    if (::setsockopt(fd, SOL_SOCKET, SO_SNDTIMEO, &timeout, sizeof timeout) == 0 &&
        ::connect(fd, reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0)
        return fd;
    const int error = errno;
    ::close(fd);
    errno = error;
    return -1;
}

bool WriteAll(int fd, const QByteArray& bytes)
{
    for (qsizetype written = 0; written < bytes.size();) {
        const ssize_t count = ::send(fd, bytes.constData() + written, std::size_t(bytes.size() - written), MSG_NOSIGNAL);
        if (count < 0 && errno != EINTR)
            return false;
        written += std::max<ssize_t>(count, 0);
    }
    return true;
}

bool SocketPeerIsThisUser(int fd)
{
    ucred peer = {};
    socklen_t size = sizeof peer;
    return ::getsockopt(fd, SOL_SOCKET, SO_PEERCRED, &peer, &size) == 0 && peer.uid == ::getuid();
}

CLocalConnection::CLocalConnection(int fd, QObject* parent)
    : QObject(parent), m_fd(fd), m_notifier(new QSocketNotifier(qintptr(fd), QSocketNotifier::Read, this))
{
    connect(m_notifier, &QSocketNotifier::activated, this, &CLocalConnection::Receive);
}

CLocalConnection::~CLocalConnection()
{
    if (m_fd >= 0)
        ::close(m_fd);
}

QByteArray CLocalConnection::Read(qint64 count)
{
    QByteArray bytes = m_received.left(count);
    m_received.remove(0, bytes.size());
    return bytes;
}

void CLocalConnection::Abort()
{
    if (m_fd < 0)
        return;
    m_notifier->setEnabled(false);
    ::close(m_fd);
    m_fd = -1;
    m_received.clear();
    emit disconnected();
}

void CLocalConnection::Receive()
{
    char chunk[kReadChunk];
    const ssize_t count = ::recv(m_fd, chunk, sizeof chunk, 0);
    if (count > 0) {
        m_received.append(chunk, count);
        emit readyRead();
    } else if (count == 0 || (errno != EAGAIN && errno != EWOULDBLOCK && errno != EINTR)) {
        Abort(); // the peer has gone
    }
}

CLocalListener::~CLocalListener()
{
    Close();
}

bool CLocalListener::Listen(const QString& path)
{
    Close();
    sockaddr_un address;
    const int fd = ToAddress(path, address) ? ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0) : -1;
    if (fd < 0 || ::bind(fd, reinterpret_cast<const sockaddr*>(&address), sizeof address) != 0) {
        m_error = qt_error_string(errno);
        if (fd >= 0)
            ::close(fd);
        return false;
    }
    // Nobody can connect before listen(), and then only this user may.
    if (::chmod(address.sun_path, S_IRUSR | S_IWUSR) != 0 || ::listen(fd, kBacklog) != 0) {
        m_error = qt_error_string(errno);
        ::close(fd);
        ::unlink(address.sun_path);
        return false;
    }
    m_fd = fd;
    m_path = path;
    m_error.clear();
    m_notifier = new QSocketNotifier(qintptr(fd), QSocketNotifier::Read, this);
    connect(m_notifier, &QSocketNotifier::activated, this, &CLocalListener::Accept);
    return true;
}

void CLocalListener::Close()
{
    if (m_fd < 0)
        return;
    // Close() may run while the notifier tells of a connection.
    m_notifier->setEnabled(false);
    m_notifier->deleteLater();
    m_notifier = nullptr;
    ::close(m_fd);
    m_fd = -1;
    QFile::remove(m_path);
}

void CLocalListener::Accept()
{
    while (IsListening()) {
        const int fd = ::accept4(m_fd, nullptr, nullptr, SOCK_CLOEXEC | SOCK_NONBLOCK);
        if (fd >= 0) {
            emit newConnection(new CLocalConnection(fd, this));
        } else if (errno != EINTR && errno != ECONNABORTED) {
            if (errno != EAGAIN && errno != EWOULDBLOCK) {
                m_error = qt_error_string(errno);
                Close(); // a pending connection would wake the listener again at once
            }
            return;
        }
    }
}
