#include "recoverystore.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <utility>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

const QString kSessionPrefix = QStringLiteral("session-");
// A session folder is built under a hidden name and renamed once it is locked, so that an
// editor starting at the same moment never takes a new session for an abandoned one.
const QString kBuildingPrefix = QStringLiteral(".building-");
const QString kLockFileName = QStringLiteral("session.lock");
const QString kContentSuffix = QStringLiteral(".xml");
const QString kRecordSuffix = QStringLiteral(".record");
// A record holds three short lines; anything longer is not one of ours.
constexpr qint64 kMaxRecordSize = 64 * 1024;

std::string Local(const QString& path)
{
    return QFile::encodeName(path).toStdString();
}

FileResult Failure(const std::string& step, const std::string& path, int error)
{
    return FileResult::Failure(step + " " + path + ": " + std::strerror(error));
}

QString ContentPath(const QString& folder, int windowId)
{
    return folder + QLatin1Char('/') + QString::number(windowId) + kContentSuffix;
}

QString RecordPath(const QString& folder, int windowId)
{
    return folder + QLatin1Char('/') + QString::number(windowId) + kRecordSuffix;
}

// One "key=value" line per field; values are percent-encoded, so that any file name, line
// breaks included, stays on its line.
QByteArray EncodeRecord(const RecoveryRecord& record)
{
    return "path=" + QFile::encodeName(record.windowPath).toPercentEncoding("/") + "\nname=" +
           record.displayName.toUtf8().toPercentEncoding(" ") + "\ncopied=" +
           record.copiedAt.toUTC().toString(Qt::ISODateWithMs).toLatin1() + '\n';
}

// A record that is missing or damaged still lets its copy be offered: as a window that was never
// saved, copied when its content was written.
RecoveryRecord DecodeRecord(const QByteArray& text, const QFileInfo& content)
{
    RecoveryRecord record{{},
                          QCoreApplication::translate("RecoveryStore", "Window %1").arg(content.completeBaseName()),
                          content.lastModified()};
    for (const QByteArray& line : text.split('\n')) {
        const qsizetype equals = line.indexOf('=');
        if (equals < 0)
            continue;
        const QByteArray key = line.left(equals);
        const QByteArray value = QByteArray::fromPercentEncoding(line.mid(equals + 1));
        if (key == "path") {
            record.windowPath = QFile::decodeName(value);
        } else if (key == "name" && !value.isEmpty()) {
            record.displayName = QString::fromUtf8(value);
        } else if (key == "copied") {
            const QDateTime copied = QDateTime::fromString(QString::fromLatin1(value), Qt::ISODateWithMs);
            if (copied.isValid())
                record.copiedAt = copied;
        }
    }
    return record;
}

QList<RecoveryCopy> ReadCopies(const QString& folder)
{
    QList<RecoveryCopy> copies;
    for (const QFileInfo& content : QDir(folder).entryInfoList({QLatin1Char('*') + kContentSuffix}, QDir::Files)) {
        bool isWindowId = false;
        const int windowId = content.completeBaseName().toInt(&isWindowId);
        if (!isWindowId)
            continue;
        QFile record(RecordPath(folder, windowId));
        const QByteArray text = record.open(QIODevice::ReadOnly) ? record.read(kMaxRecordSize) : QByteArray();
        copies.append({DecodeRecord(text, content), content.filePath()});
    }
    return copies;
}

bool HoldsCopies(const QString& folder)
{
    return !QDir(folder).entryList({QLatin1Char('*') + kContentSuffix}, QDir::Files).isEmpty();
}

} // namespace

QString EditorStateFolder()
{
    // Only an absolute XDG_STATE_HOME counts; a relative one is ignored, as XDG asks.
    QString state = qEnvironmentVariable("XDG_STATE_HOME");
    if (!QDir::isAbsolutePath(state))
        state = QDir::homePath() + QStringLiteral("/.local/state");
    return QDir::cleanPath(state + QStringLiteral("/kelvo-hmi-editor"));
}

QString RecoveryRoot()
{
    return EditorStateFolder() + QStringLiteral("/recovery");
}

FileResult MakePrivateFolder(const QString& path)
{
    const std::string local = Local(QDir::cleanPath(path));
    for (std::size_t slash = local.find('/', 1);; slash = local.find('/', slash + 1)) {
        const std::string level = local.substr(0, slash);
        if (::mkdir(level.c_str(), 0700) != 0 && errno != EEXIST)
            return Failure("Cannot create", level, errno);
        if (slash == std::string::npos)
            break;
    }
    struct stat info;
    if (::stat(local.c_str(), &info) != 0)
        return Failure("Cannot use", local, errno);
    if (!S_ISDIR(info.st_mode))
        return FileResult::Failure("Cannot use " + local + ": it is not a folder");
    if (info.st_uid != ::getuid())
        return FileResult::Failure("Cannot use " + local + ": it belongs to another user");
    if ((info.st_mode & 077) != 0 && ::chmod(local.c_str(), 0700) != 0)
        return Failure("Cannot make private", local, errno);
    return FileResult::Success();
}

std::optional<CSessionLock> CSessionLock::TryLock(const QString& folder)
{
    const std::string path = Local(folder + QLatin1Char('/') + kLockFileName);
    const int fd = ::open(path.c_str(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, 0600);
    if (fd < 0)
        return std::nullopt;
    if (::flock(fd, LOCK_EX | LOCK_NB) != 0) {
        ::close(fd);
        return std::nullopt;
    }
    return CSessionLock(fd);
}

CSessionLock::CSessionLock(CSessionLock&& other) noexcept : m_fd(std::exchange(other.m_fd, -1)) {}

CSessionLock& CSessionLock::operator=(CSessionLock&& other) noexcept
{
    std::swap(m_fd, other.m_fd);
    return *this;
}

CSessionLock::~CSessionLock()
{
    if (m_fd >= 0)
        ::close(m_fd);
}

std::unique_ptr<CRecoverySession> CRecoverySession::Create(const QString& root, FileResult& result)
{
    result = MakePrivateFolder(root);
    if (!result)
        return nullptr;
    std::string building = Local(root + QLatin1Char('/') + kBuildingPrefix) + "XXXXXX";
    if (!::mkdtemp(building.data())) {
        result = Failure("Cannot create a folder in", Local(root), errno);
        return nullptr;
    }
    const QString buildingFolder = QFile::decodeName(building.c_str());
    const QString folder = root + QLatin1Char('/') + kSessionPrefix + buildingFolder.right(6);
    std::optional<CSessionLock> lock = CSessionLock::TryLock(buildingFolder);
    if (!lock)
        result = FileResult::Failure("Cannot lock " + building);
    else if (::rename(building.c_str(), Local(folder).c_str()) != 0)
        result = Failure("Cannot rename", building, errno);
    if (!result) {
        QDir(buildingFolder).removeRecursively();
        return nullptr;
    }
    return std::unique_ptr<CRecoverySession>(new CRecoverySession(folder, std::move(*lock)));
}

FileResult CRecoverySession::Write(int windowId, const RecoveryRecord& record, std::string_view content)
{
    // The content goes first: should the editor die in between, it is still offered.
    FileResult result = WriteFileAtomically(Local(ContentPath(m_folder, windowId)), content);
    if (result)
        result = WriteFileAtomically(Local(RecordPath(m_folder, windowId)), EncodeRecord(record).toStdString());
    return result;
}

void CRecoverySession::Remove(int windowId)
{
    QFile::remove(ContentPath(m_folder, windowId));
    QFile::remove(RecordPath(m_folder, windowId));
}

void CRecoverySession::RemoveFolder()
{
    QDir(m_folder).removeRecursively();
}

CAbandonedCopies::CAbandonedCopies(const QString& root)
{
    if (!MakePrivateFolder(root))
        return;
    const QFileInfoList folders =
        QDir(root).entryInfoList({kSessionPrefix + QLatin1Char('*')}, QDir::Dirs | QDir::NoSymLinks);
    for (const QFileInfo& folder : folders) {
        if (folder.ownerId() != ::getuid())
            continue;
        // A lock that is held belongs to a running editor.
        std::optional<CSessionLock> lock = CSessionLock::TryLock(folder.filePath());
        if (!lock)
            continue;
        m_copies += ReadCopies(folder.filePath());
        m_sessions.push_back({folder.filePath(), std::move(*lock)});
    }
    std::stable_sort(m_copies.begin(), m_copies.end(), [](const RecoveryCopy& a, const RecoveryCopy& b) {
        return a.record.copiedAt < b.record.copiedAt;
    });
}

CAbandonedCopies::~CAbandonedCopies()
{
    for (const Session& session : m_sessions)
        if (!HoldsCopies(session.folder))
            QDir(session.folder).removeRecursively();
}

void CAbandonedCopies::Remove(const RecoveryCopy& copy)
{
    const QFileInfo content(copy.contentPath);
    QFile::remove(content.filePath());
    QFile::remove(RecordPath(content.path(), content.completeBaseName().toInt()));
}
