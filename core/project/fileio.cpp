#include "fileio.h"

#include "openfile.h"

#include "base/logcategories.h"

#include <algorithm>
#include <cerrno>
#include <climits>
#include <memory>
#include <cstdlib>
#include <cstring>
#include <dirent.h>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

static_assert(kMaxFileSize % (1 << 20) == 0, "the limit is told in MiB");

constexpr mode_t kNewFileMode = 0644;

std::string Describe(const char* step, const std::string& path, std::string_view why)
{
    return std::string(step) + " " + path + ": " + std::string(why);
}

FileResult Fail(const char* step, const std::string& path, int error)
{
    return FileResult::Failure(Describe(step, path, std::strerror(error)));
}

FileResult FailTooLarge(const std::string& path)
{
    return FileResult::Failure(Describe("Cannot open", path, "it is larger than the limit of " + MaxFileSizeText()));
}

// Why a file may be neither read nor replaced, or nullptr for a regular file.
const char* WhyNotRegular(const struct stat& info)
{
    if (S_ISREG(info.st_mode))
        return nullptr;
    return S_ISDIR(info.st_mode) ? "it is a folder" : "it is not a regular file";
}

bool WriteAll(int fd, std::string_view bytes)
{
    while (!bytes.empty()) {
        const ssize_t written = ::write(fd, bytes.data(), bytes.size());
        if (written < 0) {
            if (errno == EINTR)
                continue;
            return false;
        }
        bytes.remove_prefix(std::size_t(written));
    }
    return true;
}

// Where a save may write: the path itself when nothing is there yet, else the regular file it
// leads to through symbolic links. Also gives the permissions the new file takes over.
FileResult FindSaveTarget(const std::string& path, std::string& target, mode_t& mode)
{
    struct stat info;
    if (::lstat(path.c_str(), &info) != 0) {
        if (errno != ENOENT)
            return Fail("Cannot write", path, errno);
        target = path;
        mode = kNewFileMode;
        return FileResult::Success();
    }
    if (S_ISLNK(info.st_mode) && ::stat(path.c_str(), &info) != 0) {
        if (errno == ENOENT)
            return FileResult::Failure(Describe("Cannot write", path, "it is a symbolic link to a missing file"));
        return Fail("Cannot write", path, errno);
    }
    if (const char* why = WhyNotRegular(info))
        return FileResult::Failure(Describe("Cannot write", path, why));
    // Root may write anything, so a file that nobody may write counts as read-only as well.
    if ((info.st_mode & (S_IWUSR | S_IWGRP | S_IWOTH)) == 0 ||
        ::faccessat(AT_FDCWD, path.c_str(), W_OK, AT_EACCESS) != 0)
        return FileResult::Failure(Describe("Cannot write", path, "the file is read-only"));
    char resolved[PATH_MAX];
    if (!::realpath(path.c_str(), resolved))
        return Fail("Cannot write", path, errno);
    target = resolved;
    mode = info.st_mode & 07777;
    return FileResult::Success();
}

// The hidden files that saves of one target write beside it: ".<name>.kelvo-save-XXXXXX".
class SaveTemporaries {
public:
    explicit SaveTemporaries(const std::string& target)
    {
        const std::size_t slash = target.rfind('/');
        m_folder = slash == std::string::npos ? std::string() : target.substr(0, slash + 1);
        m_prefix = "." + target.substr(slash + 1) + ".kelvo-save-";
    }

    // Removes the temporaries of saves that were killed before they finished: a temporary whose
    // lock is free has no writer any more.
    void RemoveStale() const
    {
        DIR* folder = ::opendir(m_folder.empty() ? "." : m_folder.c_str());
        if (!folder)
            return;
        const int folderFd = ::dirfd(folder);
        while (const dirent* entry = ::readdir(folder)) {
            const std::string_view name = entry->d_name;
            if (name.size() != m_prefix.size() + kRandomPart.size() || !name.starts_with(m_prefix))
                continue;
            const OpenFile file(::openat(folderFd, entry->d_name, O_RDONLY | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK));
            if (file && ::flock(file.Fd(), LOCK_EX | LOCK_NB) == 0 && IsNamed(folderFd, entry->d_name, file.Fd()))
                ::unlinkat(folderFd, entry->d_name, 0);
        }
        ::closedir(folder);
    }

    // Creates a new temporary and locks it for as long as it stays open; -1 with errno on
    // failure. On a file system without locks the temporary is written unlocked: no save there
    // can lock a stale one either, so none is removed.
    int CreateLocked(std::string& path) const
    {
        for (int attempt = 0; attempt < kAttempts; ++attempt) {
            path = m_folder + m_prefix + std::string(kRandomPart);
            const int fd = ::mkostemp(path.data(), O_CLOEXEC);
            if (fd < 0)
                return -1;
            const bool locked = ::flock(fd, LOCK_EX | LOCK_NB) == 0;
            if (locked ? IsNamed(AT_FDCWD, path.c_str(), fd) : errno != EWOULDBLOCK)
                return fd;
            // Until it was locked, another save could take the new file for a stale one: it is
            // gone or about to go, so make another.
            ::close(fd);
        }
        errno = EAGAIN;
        return -1;
    }

private:
    static constexpr std::string_view kRandomPart = "XXXXXX";
    static constexpr int kAttempts = 8;

    // Whether the name still leads to the open file, which is a regular one.
    static bool IsNamed(int folderFd, const char* name, int fd)
    {
        struct stat named, open;
        return ::fstatat(folderFd, name, &named, AT_SYMLINK_NOFOLLOW) == 0 && ::fstat(fd, &open) == 0 &&
               S_ISREG(open.st_mode) && named.st_dev == open.st_dev && named.st_ino == open.st_ino;
    }

    std::string m_folder; // with its trailing slash, or empty for the current folder
    std::string m_prefix;
};

// A file's new content, written in full and flushed beside it, that replaces the file when it
// is committed and is removed otherwise. The temporary stays open, and locked, until then, so
// that no other save takes it for a stale one; its bytes are on disk by then.
class StagedFile {
public:
    StagedFile() = default;
    StagedFile(const StagedFile&) = delete;
    StagedFile& operator=(const StagedFile&) = delete;
    ~StagedFile()
    {
        if (m_fd < 0)
            return;
        ::close(m_fd);
        if (!m_committed)
            ::unlink(m_temporary.c_str());
    }

    FileResult Stage(const std::string& path, std::string_view bytes)
    {
        mode_t mode = kNewFileMode;
        if (FileResult found = FindSaveTarget(path, m_target, mode); !found)
            return found;
        const SaveTemporaries temporaries(m_target);
        temporaries.RemoveStale();
        m_fd = temporaries.CreateLocked(m_temporary);
        if (m_fd < 0)
            return Fail("Cannot create a file beside", m_target, errno);
        if (::fchmod(m_fd, mode) != 0)
            return Fail("Cannot set the permissions of", m_target, errno);
        if (!WriteAll(m_fd, bytes))
            return Fail("Cannot write", m_target, errno);
        if (::fsync(m_fd) != 0)
            return Fail("Cannot flush", m_target, errno);
        m_size = bytes.size();
        return FileResult::Success();
    }

    FileResult Commit()
    {
        if (::rename(m_temporary.c_str(), m_target.c_str()) != 0)
            return Fail("Cannot replace", m_target, errno);
        m_committed = true;
        qCDebug(lcFile, "wrote %s (%zu bytes)", m_target.c_str(), m_size);
        return FileResult::Success();
    }

private:
    std::string m_target;
    std::string m_temporary;
    std::size_t m_size = 0;
    int m_fd = -1;
    bool m_committed = false;
};

} // namespace

std::string MaxFileSizeText()
{
    return std::to_string(kMaxFileSize >> 20) + " MiB";
}

CFileReader::CFileReader(const std::string& path) : m_path(path)
{
    // Non-blocking, so that a FIFO is refused at once instead of waiting for a writer.
    m_fd = ::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY);
    if (m_fd < 0) {
        m_result = Fail("Cannot open", path, errno);
        return;
    }
    struct stat info;
    if (::fstat(m_fd, &info) != 0)
        m_result = Fail("Cannot open", path, errno);
    else if (const char* why = WhyNotRegular(info))
        m_result = FileResult::Failure(Describe("Cannot open", path, why));
    else if (std::uint64_t(info.st_size) > kMaxFileSize)
        m_result = FailTooLarge(path);
    else
        m_size = std::uint64_t(info.st_size);
}

CFileReader::~CFileReader()
{
    if (m_fd >= 0)
        ::close(m_fd);
}

long CFileReader::Read(char* buffer, std::size_t size)
{
    if (!m_result)
        return -1;
    // A file that grew too large while it was read is told by the bytes read beyond the limit.
    // The request keeps its size: some files (the kernel's) refuse reads of other sizes.
    ssize_t got;
    do
        got = ::read(m_fd, buffer, size);
    while (got < 0 && errno == EINTR);
    if (got < 0) {
        m_result = Fail("Cannot read", m_path, errno);
        return -1;
    }
    m_read += std::uint64_t(got);
    if (m_read > kMaxFileSize) {
        m_result = FailTooLarge(m_path);
        return -1;
    }
    return long(got);
}

FileResult ReadWholeFile(const std::string& path, std::string& bytes)
{
    CFileReader file(path);
    bytes.clear();
    if (!file.Result())
        return file.Result();
    bytes.reserve(std::size_t(file.Size()));
    char buffer[1 << 16];
    long got;
    while ((got = file.Read(buffer, sizeof buffer)) > 0)
        bytes.append(buffer, std::size_t(got));
    if (got < 0)
        bytes = std::string();
    return file.Result();
}

FileResult WriteFileAtomically(const std::string& path, std::string_view bytes)
{
    StagedFile file;
    if (FileResult staged = file.Stage(path, bytes); !staged)
        return staged;
    return file.Commit();
}

FileResult WriteFilesAtomically(std::span<const FileContent> files, std::size_t& replaced)
{
    replaced = 0;
    std::vector<std::unique_ptr<StagedFile>> staged;
    for (const FileContent& file : files) {
        staged.push_back(std::make_unique<StagedFile>());
        if (FileResult result = staged.back()->Stage(file.path, file.bytes); !result)
            return result;
    }
    for (const std::unique_ptr<StagedFile>& file : staged) {
        if (FileResult result = file->Commit(); !result)
            return result;
        ++replaced;
    }
    return FileResult::Success();
}
