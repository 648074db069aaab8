// Where recovery copies are kept, which of them are offered, and what a damaged one gives.
#include "editor/recovery/recoverystore.h"
#include "editor/recovery/tests/recoveryfixture.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QTest>

#include <sys/stat.h>
#include <unistd.h>

namespace {

mode_t Permissions(const QString& path)
{
    struct stat info;
    return ::stat(QFile::encodeName(path).constData(), &info) == 0 ? info.st_mode & 07777 : 0;
}

RecoveryRecord Record(const QString& path, const QString& name)
{
    return {path, name, QDateTime::currentDateTimeUtc()};
}

// Each copy as "window path | name | content".
QStringList Described(const QList<RecoveryCopy>& copies)
{
    QStringList described;
    for (const RecoveryCopy& copy : copies)
        described << copy.record.windowPath + " | " + copy.record.displayName + " | " + ReadBytes(copy.contentPath);
    return described;
}

} // namespace

class RecoveryStoreTest : public QObject {
    Q_OBJECT

private:
    std::unique_ptr<QTemporaryDir> sandbox;
    QString root;

private slots:
    void init()
    {
        sandbox = std::make_unique<QTemporaryDir>();
        root = sandbox->filePath(QStringLiteral("state/kelvo-hmi-editor/recovery"));
    }

    void theRootFollowsTheStateHome()
    {
        const QByteArray home = qgetenv("HOME");
        const QByteArray state = qgetenv("XDG_STATE_HOME");
        qputenv("HOME", "/home/someone");
        qputenv("XDG_STATE_HOME", "/var/state");
        QCOMPARE(RecoveryRoot(), QStringLiteral("/var/state/kelvo-hmi-editor/recovery"));
        qputenv("XDG_STATE_HOME", "relative/state");
        QCOMPARE(RecoveryRoot(), QStringLiteral("/home/someone/.local/state/kelvo-hmi-editor/recovery"));
        qunsetenv("XDG_STATE_HOME");
        QCOMPARE(RecoveryRoot(), QStringLiteral("/home/someone/.local/state/kelvo-hmi-editor/recovery"));
        qputenv("HOME", home);
        if (!state.isNull())
            qputenv("XDG_STATE_HOME", state);
    }

    void theRootIsMadePrivate()
    {
        QVERIFY(MakePrivateFolder(root));
        for (QString level = root; level != sandbox->path(); level = QFileInfo(level).path())
            QCOMPARE(Permissions(level), mode_t(0700));

        QVERIFY(::chmod(QFile::encodeName(root).constData(), 0755) == 0);
        QVERIFY(MakePrivateFolder(root));
        QCOMPARE(Permissions(root), mode_t(0700));

        const QString file = sandbox->filePath(QStringLiteral("file"));
        QVERIFY(WriteBytes(file, "x"));
        const FileResult notAFolder = MakePrivateFolder(file);
        QVERIFY2(notAFolder.error.find("not a folder") != std::string::npos, notAFolder.error.c_str());
        QVERIFY(!MakePrivateFolder(file + QStringLiteral("/below")));
    }

    void aRootOfAnotherUserIsNeitherWrittenNorRead()
    {
        if (::getuid() != 0)
            QSKIP("only root can give a folder to another user");
        QVERIFY(NewSession(root)->Write(1, Record({}, QStringLiteral("Tamlo1")), "<hmiwidget/>"));
        constexpr uid_t kNobody = 65534;
        QVERIFY(::chown(QFile::encodeName(root).constData(), kNobody, kNobody) == 0);

        FileResult result;
        QVERIFY(!CRecoverySession::Create(root, result));
        QVERIFY2(result.error.find("belongs to another user") != std::string::npos, result.error.c_str());
        QVERIFY(CAbandonedCopies(root).Copies().isEmpty());
    }

    void copiesAreWrittenReplacedAndRemoved()
    {
        auto session = NewSession(root);
        QVERIFY(session);
        QCOMPARE(Permissions(session->Folder()), mode_t(0700));

        QVERIFY(session->Write(1, Record(QStringLiteral("/p/main.xml"), QStringLiteral("main.xml")), "first"));
        QVERIFY(session->Write(1, Record(QStringLiteral("/p/main.xml"), QStringLiteral("main.xml")), "second"));
        QVERIFY(session->Write(2, Record({}, QStringLiteral("Tamlo1")), "new"));
        QCOMPARE(ReadBytes(session->Folder() + QStringLiteral("/1.xml")), QByteArray("second"));
        session->Remove(1);
        QCOMPARE(QDir(session->Folder()).entryList(QDir::Files),
                 (QStringList{QStringLiteral("2.record"), QStringLiteral("2.xml"), QStringLiteral("session.lock")}));

        // A clean quit's removal is checked with the editor; after it, nothing writes the folder again.
        session->RemoveFolder();
        QVERIFY2(!session->Write(3, Record({}, QStringLiteral("Tamlo2")), "late"), "nothing recreates the folder");
    }

    // Records keep any name exactly.
    void onlyTheCopiesOfEditorsThatAreGoneAreOffered()
    {
        const QString path = QStringLiteral("/p/odd name=%41\nline two/\u00e9\u6e29\u5ea6.xml");
        const QString name = QStringLiteral("odd name=%41\n\u6e29\u5ea6");
        auto running = NewSession(root);
        auto killed = NewSession(root);
        QVERIFY(running && killed);
        QVERIFY(running->Write(1, Record(QStringLiteral("/p/running.xml"), QStringLiteral("running.xml")), "r"));
        const QDateTime copiedAt = QDateTime(QDate(2026, 3, 4), QTime(5, 6, 7, 890), Qt::UTC);
        QVERIFY(killed->Write(4, {QStringLiteral("/p/main.xml"), QStringLiteral("main.xml"), copiedAt}, "m"));
        QVERIFY(killed->Write(5, Record(path, name), "t"));
        killed.reset(); // the lock goes with the process; the folder stays

        {
            CAbandonedCopies offered(root);
            QCOMPARE(Described(offered.Copies()),
                     QStringList({"/p/main.xml | main.xml | m", path + " | " + name + " | t"}));
            QCOMPARE(offered.Copies()[0].record.copiedAt, copiedAt);
            QVERIFY2(CAbandonedCopies(root).Copies().isEmpty(), "another editor starting meanwhile");
        }
        {
            CAbandonedCopies again(root);
            QVERIFY2(again.Copies().size() == 2, "copies that were neither restored nor discarded stay");
            for (const RecoveryCopy& copy : again.Copies())
                again.Remove(copy);
        }
        // A folder left without copies goes.
        QCOMPARE(QDir(root).entryList(QDir::Dirs | QDir::NoDotAndDotDot | QDir::Hidden),
                 QStringList{QFileInfo(running->Folder()).fileName()});
    }

    void damagedCopiesOfferWhatTheyStillHold()
    {
        const QString folder = NewSession(root)->Folder();
        const std::pair<const char*, QByteArray> files[] = {
            {"/1.xml", "content without a record"}, {"/2.xml", "content with a damaged record"},
            {"/2.record", "path\ncopied=yesterday\n\xff\xfe=%%%\n"}, {"/3.record", "path=/p/gone.xml\n"},
            {"/1.xml.Ab12Cd", "a write that never finished"}, {"/notes.xml", "not a copy"}};
        for (const auto& [name, bytes] : files)
            QVERIFY(WriteBytes(folder + name, bytes));
        const QDateTime written = QFileInfo(folder + QStringLiteral("/1.xml")).lastModified();

        // Without a readable record, a copy is named after its id and dated by its file.
        CAbandonedCopies offered(root);
        const QStringList named = {" | Window 1 | content without a record",
                                   " | Window 2 | content with a damaged record"};
        QCOMPARE(Described(offered.Copies()), named);
        QCOMPARE(offered.Copies()[0].record.copiedAt, written);
        QVERIFY(offered.Copies()[1].record.copiedAt.isValid());
    }
};

QTEST_GUILESS_MAIN(RecoveryStoreTest)
#include "recoverystore_test.moc"
