// Hand-over between editor starts: records, the socket's folder, scope and owner, and floods
// that the listener must survive.
#include "editor/startup/singleinstance.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QLocalSocket>
#include <QSignalSpy>
#include <QStringList>
#include <QTemporaryDir>
#include <QTest>
#include <QtEndian>

#include <vector>
#include <fcntl.h>
#include <signal.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/prctl.h>
#include <sys/un.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

using ListenResult = CInstanceGuard::ListenResult;
constexpr uid_t kNobody = 65534;

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

QByteArray OpenRecord(const QByteArray& path)
{
    return Header(1, path.size() + 1) + path + '\0';
}

sockaddr_un Address(const QString& path)
{
    sockaddr_un address = {AF_UNIX, {}};
    qstrncpy(address.sun_path, QFile::encodeName(path).constData(), sizeof address.sun_path);
    return address;
}

// System calls only, as a forked child may make.
int ConnectTo(const sockaddr_un& address)
{
    const int fd = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    return ::connect(fd, reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0 ? fd : -1;
}

// Takes one step (system calls only) in a forked child process as another user; true when it
// succeeded.
template <typename Step>
bool AsAnotherUser(Step step)
{
    const pid_t pid = ::fork();
    if (pid == 0)
        ::_exit(::setuid(kNobody) == 0 && step() ? 0 : 1);
    int status = -1;
    return ::waitpid(pid, &status, 0) == pid && status == 0;
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
    // The listener ends every connection: at once when it can judge the record, after a while
    // of silence when the record is unfinished. It still serves the next editor start.
    void recordsAreDispatchedOrIgnored()
    {
        const QString path = QStringLiteral("/home/op/Pläne/window 1.xml");
        const std::pair<QByteArray, QStringList> records[] = {
            {OpenRecord(path.toUtf8()), {"open " + path, "raise"}},
            {OpenRecord({}), {"raise"}},
            {Header(7, 7) + QByteArray("/x.xml\0", 7), {"beep"}},
            {Header(1, 4) + "abcd", {}},                   // no terminating zero
            {Header(7, 5) + QByteArray("ab\0c\0", 5), {}}, // a zero inside the text
            {Header(1, 0), {}},                            // zero length
            {Header(1, 0xFFFFFFFFu) + "garbage", {}},      // huge length
            {QByteArray("\1\0\0\0\4", 5), {}},            // short header
            {Header(1, 10) + "abc", {}},                   // short text
        };
        for (const auto& [bytes, expected] : records) {
            CInstanceGuard guard(UniqueName());
            QCOMPARE(guard.Listen(), ListenResult::Listening);
            SignalLog log(guard);
            QLocalSocket raw;
            raw.connectToServer(guard.Name());
            QVERIFY(raw.waitForConnected());
            QSignalSpy closed(&raw, &QLocalSocket::disconnected);
            raw.write(bytes);
            QVERIFY2(raw.waitForBytesWritten() && closed.wait(20000), bytes.toHex().constData());
            QVERIFY(CInstanceGuard::HandOver(guard.Name(), "/home/op/next.xml"));
            QTRY_COMPARE(log.events, (expected + QStringList{"open /home/op/next.xml", "raise"}));
        }
    }

    // The socket lies in XDG_RUNTIME_DIR, or else in a folder of the user's that the guard
    // makes; one that another user owns or may write to is refused. The socket is the user's alone.
    void theSocketFolderIsTheUsersAlone()
    {
        const QByteArray runtime = qgetenv("XDG_RUNTIME_DIR");
        qunsetenv("XDG_RUNTIME_DIR");
        const QString fallback = QFileInfo(CInstanceGuard::ServerName()).path();
        qputenv("XDG_RUNTIME_DIR", runtime);
        QCOMPARE(fallback, QDir::tempPath() + QStringLiteral("/kelvo-hmi-editor-%1").arg(::getuid()));

        const QTemporaryDir sandbox;
        const struct {
            QString folder;
            mode_t mode; // 0: the folder is not made
            uid_t owner;
            QString refusal;
        } folders[] = {{"missing", 0, 0, {}},
                       {"group", 0770, 0, "it is writable by its group (mode 770)"},
                       {"tmp", 01777, 0, "it is writable by every user (mode 1777)"},
                       {"theirs", 0700, kNobody, "it is owned by another user (uid 65534)"}};
        for (const auto& [folder, mode, owner, refusal] : folders) {
            const QByteArray path = QFile::encodeName(sandbox.filePath(folder));
            if (owner != 0 && ::getuid() != 0)
                continue; // only root can give a folder away
            QVERIFY(mode == 0 ||
                    (::mkdir(path, mode) == 0 && ::chmod(path, mode) == 0 && ::chown(path, owner ?: -1, -1) == 0));
            CInstanceGuard guard(sandbox.filePath(folder + "/editor"));
            QCOMPARE(guard.Listen(), refusal.isEmpty() ? ListenResult::Listening : ListenResult::Failed);
            QVERIFY2(guard.FailureReason().endsWith(refusal), qPrintable(guard.FailureReason()));
        }
        const QFile::Permissions made = QFile::permissions(sandbox.filePath("missing"));
        QCOMPARE(made & 0x0FFF, QFile::ReadUser | QFile::WriteUser | QFile::ExeUser); // nothing for others
        CInstanceGuard guard(sandbox.filePath("missing/editor"));
        QCOMPARE(guard.Listen(), ListenResult::Listening);
        QCOMPARE(QFile::permissions(guard.Name()) & 0x0FFF, QFile::ReadUser | QFile::WriteUser); // the socket too
    }

    // Editors on different displays, a remote session's or none at all, do not meet.
    void eachDisplayHasAnEditorOfItsOwn()
    {
        const auto name = [](const char* platform, const char* display) {
            qputenv("DISPLAY", display);
            qputenv("WAYLAND_DISPLAY", display);
            return CInstanceGuard::ServerName(QStringLiteral("Tamlo_Main"), QString::fromLatin1(platform));
        };
        QCOMPARE(name("xcb", ":0.1"), name("xcb", ":0"));
        QCOMPARE(name("wayland-egl", "wayland-0"), name("wayland", "wayland-0"));
        const QSet<QString> names = {name("xcb", ":0"), name("xcb", ":1"), name("xcb", "host:10.0"),
                                     name("wayland", "wayland-0"), name("wayland", "/run/w"), name("offscreen", ":0")};
        QCOMPARE(names.size(), 6);
        QCOMPARE(QFileInfo(name("wayland", "/run/w")).path(), QString::fromLocal8Bit(qgetenv("XDG_RUNTIME_DIR")));
    }

    // Another user's program at the editor's name is handed no file, and the name is taken over;
    // what another user sends once it can reach the editor's socket is dropped unread.
    void onlyEditorsOfOneUserMeet()
    {
        if (::getuid() != 0)
            QSKIP("only root can run a program as another user");
        const QTemporaryDir folder;
        const QString name = folder.filePath(QStringLiteral("editor"));
        const sockaddr_un address = Address(name);
        const int bound = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
        QVERIFY(::bind(bound, reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0);
        QVERIFY(AsAnotherUser([&] { return ::listen(bound, 8) == 0; }));
        QVERIFY(!CInstanceGuard::HandOver(name, "/home/op/window.xml"));

        CInstanceGuard guard(name);
        QCOMPARE(guard.Listen(), ListenResult::Listening);
        SignalLog log(guard);
        QVERIFY(::chmod(QFile::encodeName(folder.path()), 0711) == 0 && ::chmod(QFile::encodeName(name), 0777) == 0);
        const QByteArray record = OpenRecord("/home/op/theirs.xml");
        QVERIFY(AsAnotherUser([&] { return ::write(ConnectTo(address), record.constData(), record.size()) > 0; }));
        QVERIFY(CInstanceGuard::HandOver(name, "/home/op/mine.xml"));
        QTRY_COMPARE(log.events, (QStringList{"open /home/op/mine.xml", "raise"}));
        ::close(bound);
    }

    // Thousands of records and of silent connections from another process, and then not one
    // file descriptor left: the listener keeps serving the next editor start.
    void theListenerOutlivesFloods()
    {
        CInstanceGuard guard(UniqueName());
        QCOMPARE(guard.Listen(), ListenResult::Listening);
        SignalLog log(guard);
        const sockaddr_un address = Address(guard.Name());
        const QByteArray missing = OpenRecord("/home/op/missing.xml"), last = OpenRecord("/home/op/flood.xml");
        rlimit saved;
        ::getrlimit(RLIMIT_NOFILE, &saved);
        const auto openFiles = [] { return QDir(QStringLiteral("/proc/self/fd")).count(); };
        const qsizetype openBefore = openFiles();
        const rlimit lowered = {rlim_t(openBefore + 200), saved.rlim_max};
        QVERIFY(::setrlimit(RLIMIT_NOFILE, &lowered) == 0);
        const pid_t flood = ::fork();
        if (flood == 0) { // stays with its silent connections until it is killed
            const rlimit many = {12000, 12000};
            ::prctl(PR_SET_PDEATHSIG, SIGKILL);
            bool connected = ::setrlimit(RLIMIT_NOFILE, &many) == 0;
            for (int i = 0; i < 5000; ++i) {
                connected &= ::send(ConnectTo(address), missing.constData(), missing.size(), MSG_NOSIGNAL) > 0;
                connected &= ConnectTo(address) >= 0; // and stays silent
            }
            if (connected)
                ::write(ConnectTo(address), last.constData(), last.size());
            ::pause();
        }
        QTRY_VERIFY_WITH_TIMEOUT(log.events.contains("open /home/op/flood.xml"), 60000);
        ::kill(flood, SIGKILL);
        ::waitpid(flood, nullptr, 0);
        QTRY_VERIFY(openFiles() <= openBefore); // the connections the listener held are gone

        const int knock = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
        std::vector<int> filling;
        for (int fd; (fd = ::open("/dev/null", O_RDONLY | O_CLOEXEC)) >= 0;)
            filling.push_back(fd);
        QVERIFY(::connect(knock, reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0);
        // The listener closes when it cannot accept, and takes its socket file along.
        QTRY_VERIFY(!QFileInfo::exists(guard.Name()));
        for (const int fd : filling)
            ::close(fd);
        ::setrlimit(RLIMIT_NOFILE, &saved);
        QTRY_VERIFY_WITH_TIMEOUT(CInstanceGuard::HandOver(guard.Name(), "/home/op/drought.xml"), 20000);
        QTRY_VERIFY(log.events.contains("open /home/op/drought.xml"));
    }
};

QTEST_GUILESS_MAIN(SingleInstanceTest)
#include "singleinstance_test.moc"
