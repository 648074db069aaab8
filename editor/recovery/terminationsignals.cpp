#include "terminationsignals.h"

#include <QSocketNotifier>

#include <cerrno>
#include <cstring>
#include <sys/socket.h>
#include <unistd.h>

namespace {

// The write end of the pair, for the handler.
volatile sig_atomic_t g_signalSocket = -1;

void WriteSignalNumber(int number)
{
    // Only async-signal-safe calls here; errno belongs to the code that was interrupted.
    const int savedErrno = errno;
    const unsigned char byte = static_cast<unsigned char>(number);
    [[maybe_unused]] const ssize_t written = ::write(g_signalSocket, &byte, 1);
    errno = savedErrno;
}

void Install(int number, struct sigaction& previous)
{
    struct sigaction action = {};
    action.sa_handler = WriteSignalNumber;
    sigemptyset(&action.sa_mask);
    action.sa_flags = SA_RESTART | SA_RESETHAND;
    ::sigaction(number, &action, &previous);
}

} // namespace

CTerminationSignals::CTerminationSignals(QObject* parent) : QObject(parent)
{
    if (::socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0, m_sockets) != 0) {
        qWarning("Cannot catch termination signals: %s", std::strerror(errno));
        return;
    }
    g_signalSocket = m_sockets[0];
    m_notifier = new QSocketNotifier(m_sockets[1], QSocketNotifier::Read, this);
    connect(m_notifier, &QSocketNotifier::activated, this, &CTerminationSignals::ReadSignals);
    Install(SIGTERM, m_previousTerm);
    Install(SIGHUP, m_previousHangUp);
}

CTerminationSignals::~CTerminationSignals()
{
    if (!m_notifier)
        return;
    ::sigaction(SIGTERM, &m_previousTerm, nullptr);
    ::sigaction(SIGHUP, &m_previousHangUp, nullptr);
    g_signalSocket = -1;
    delete m_notifier; // before the socket it watches closes
    ::close(m_sockets[0]);
    ::close(m_sockets[1]);
}

void CTerminationSignals::ReadSignals()
{
    unsigned char number = 0;
    while (::read(m_sockets[1], &number, 1) == 1)
        emit terminationRequested(number);
}
