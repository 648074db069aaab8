#include "editor/startup/singleinstance.h"

#include <QCoreApplication>
#include <QFile>
#include <QLocalSocket>
#include <QSignalSpy>
#include <QStringList>
#include <QTemporaryDir>
#include <QTest>
#include <QtEndian>

#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

namespace {

// A name of this run's own, so that test programs running side by side do not meet.
QString UniqueName()
{
    static int counter = 0;
    const qint64 pid = QCoreApplication::applicationPid();
    return CInstanceGuard::ServerName(QStringLiteral("kelvo-instance-test-%1-%2").arg(pid).arg(++counter));
}

QByteArray Header(quint32 identifier, quint32 length)
{
    QByteArray header(8, Qt::Uninitialized);
    qToLittleEndian(identifier, header.data());
    qToLittleEndian(length, header.data() + 4);
    return header;
}

// Leaves a socket file at path that nobody listens on, as an editor that crashed does.
bool MakeStaleSocket(const QByteArray& path)
{
    sockaddr_un address = {};
    address.sun_family = AF_UNIX;
    if (std::size_t(path.size()) >= sizeof address.sun_path)
        return false;
    std::copy(path.begin(), path.end(), address.sun_path);
    const int fd = ::socket(AF_UNIX, SOCK_STREAM, 0);
    const bool bound = fd >= 0 && ::bind(fd, reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0;
    if (fd >= 0)
        ::close(fd);
    return bound;
}

// Records the guard's signals in the order they come.
struct SignalLog {
    explicit SignalLog(CInstanceGuard& guard)
    {
        QObject::connect(&guard, &CInstanceGuard::openFileRequested,
                         [this](const QString& path) { events << QStringLiteral("open ") + path; });
        QObject::connect(&guard, &CInstanceGuard::raiseRequested, [this] { events << QStringLiteral("raise"); });
        QObject::connect(&guard, &CInstanceGuard::beepRequested, [this] { events << QStringLiteral("beep"); });
    }
    QStringList events;
};

} // namespace

class SingleInstanceTest : public QObject {
    Q_OBJECT
private slots:
    void recordsAreDispatched()
    {
        const QString path = QStringLiteral("/home/op/Pläne/window 1.xml");
        const struct {
            quint32 identifier;
            QByteArray text;
            QStringList expected;
        } records[] = {{1, path.toUtf8(), {"open " + path, "raise"}}, {1, {}, {"raise"}}, {7, "/x.xml", {"beep"}}};
        for (const auto& record : records) {
            CInstanceGuard guard(UniqueName());
            QVERIFY(guard.Listen());
            SignalLog log(guard);
            QVERIFY(CInstanceGuard::SendRecord(guard.Name(), record.identifier, record.text));
            QTRY_COMPARE(log.events, record.expected);
        }
    }

    // A record the listener can judge ends the connection from its side; an unfinished one ends
    // when the sender goes. Either way the listener still serves the next editor start.
    void malformedRecordsAreIgnored()
    {
        const std::pair<QByteArray, bool> records[] = {
            {Header(1, 4) + "abcd", true},                    // no terminating zero
            {Header(7, 5) + QByteArray("ab\0c\0", 5), true},  // a zero inside the text
            {Header(1, 0), true},                             // zero length
            {Header(1, 0xFFFFFFFFu) + "garbage", true},       // huge length
            {QByteArray("\1\0\0\0\4", 5), false},            // short header
            {Header(1, 10) + "abc", false},                   // short text
        };
        for (const auto& [bytes, listenerCloses] : records) {
            CInstanceGuard guard(UniqueName());
            QVERIFY(guard.Listen());
            SignalLog log(guard);
            {
                QLocalSocket raw;
                raw.connectToServer(guard.Name());
                QVERIFY(raw.waitForConnected());
                QSignalSpy closed(&raw, &QLocalSocket::disconnected);
                raw.write(bytes);
                QVERIFY(raw.waitForBytesWritten());
                QVERIFY2(!listenerCloses || closed.wait(), bytes.toHex().constData());
            }
            QVERIFY(CInstanceGuard::HandOver(guard.Name(), "/home/op/next.xml"));
            QTRY_COMPARE(log.events, (QStringList{QStringLiteral("open /home/op/next.xml"), QStringLiteral("raise")}));
        }
    }

    // A hand-over needs a listening editor: not one that crashed and left its socket file, nor one
    // that ended. A new editor listens over a stale socket file; a second one beside it does not.
    void aHandOverNeedsARunningEditor()
    {
        const QTemporaryDir dir;
        const QString name = dir.filePath(QStringLiteral("editor"));
        QVERIFY(!CInstanceGuard::HandOver(name, "/home/op/window.xml"));
        QVERIFY(MakeStaleSocket(QFile::encodeName(name)));
        QVERIFY(!CInstanceGuard::HandOver(name, "/home/op/window.xml"));
        {
            CInstanceGuard running(name);
            QVERIFY(running.Listen());
            CInstanceGuard second(name);
            QVERIFY(!second.Listen());
            QSignalSpy opened(&running, &CInstanceGuard::openFileRequested);
            QVERIFY(CInstanceGuard::HandOver(name, "/home/op/window.xml"));
            QVERIFY(opened.wait());
        }
        QVERIFY(!CInstanceGuard::HandOver(name, "/home/op/window.xml"));
    }
};

QTEST_GUILESS_MAIN(SingleInstanceTest)
#include "singleinstance_test.moc"
