#include "fileio.h"

#include <cerrno>
#include <climits>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

std::string Describe(const char* step, const std::string& path, int error)
{
    return std::string(step) + " " + path + ": " + std::strerror(error);
}

// The file a save really replaces: the target of a symbolic link, else the path itself.
std::string ResolveTarget(const std::string& path)
{
    char resolved[PATH_MAX];
    if (realpath(path.c_str(), resolved))
        return resolved;
    return path;
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

} // namespace

FileResult ReadWholeFile(const std::string& path, std::string& bytes)
{
    const int fd = ::open(path.c_str(), O_RDONLY | O_CLOEXEC);
    if (fd < 0)
        return FileResult::Failure(Describe("Cannot open", path, errno));
    struct stat info;
    if (::fstat(fd, &info) == 0 && S_ISDIR(info.st_mode)) {
        ::close(fd);
        return FileResult::Failure("Cannot open " + path + ": it is a folder");
    }
    bytes.clear();
    if (info.st_size > 0)
        bytes.reserve(std::size_t(info.st_size));
    char buffer[1 << 16];
    for (;;) {
        const ssize_t got = ::read(fd, buffer, sizeof buffer);
        if (got < 0 && errno == EINTR)
            continue;
        if (got < 0) {
            const int error = errno;
            ::close(fd);
            return FileResult::Failure(Describe("Cannot read", path, error));
        }
        if (got == 0)
            break;
        bytes.append(buffer, std::size_t(got));
    }
    ::close(fd);
    return FileResult::Success();
}

FileResult WriteFileAtomically(const std::string& path, std::string_view bytes)
{
    const std::string target = ResolveTarget(path);
    std::string temporary = target + ".XXXXXX";
    const int fd = mkstemp(temporary.data());
    if (fd < 0)
        return FileResult::Failure(Describe("Cannot create a file beside", target, errno));

    struct stat existing;
    const mode_t mode = ::stat(target.c_str(), &existing) == 0 ? (existing.st_mode & 07777) : 0644;
    const char* failedStep = nullptr;
    int error = 0;
    if (::fchmod(fd, mode) != 0)
        failedStep = "Cannot set the permissions of";
    else if (!WriteAll(fd, bytes))
        failedStep = "Cannot write";
    else if (::fsync(fd) != 0)
        failedStep = "Cannot flush";
    if (failedStep)
        error = errno;
    if (::close(fd) != 0 && !failedStep) {
        failedStep = "Cannot close";
        error = errno;
    }
    if (failedStep) {
        ::unlink(temporary.c_str());
        return FileResult::Failure(Describe(failedStep, target, error));
    }
    if (::rename(temporary.c_str(), target.c_str()) != 0) {
        const int renameError = errno;
        ::unlink(temporary.c_str());
        return FileResult::Failure(Describe("Cannot replace", target, renameError));
    }
    return FileResult::Success();
}
