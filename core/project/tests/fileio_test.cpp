// Reading takes in regular files within the size limit only. Saving replaces a regular file
// whole or refuses with the reason and changes nothing, and leaves no temporary file behind,
// not even after a save that was killed.

#include "project/fileio.h"
#include "tests/support/tempdir.h"

#include <gtest/gtest.h>

#include <csignal>
#include <fcntl.h>
#include <filesystem>
#include <map>
#include <optional>
#include <sys/file.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/sysmacros.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

// A file of the given size that takes no room on disk.
std::string WriteSparse(const TempDir& dir, std::string_view name, std::uint64_t size)
{
    const std::string path = dir.Write(name, "");
    std::filesystem::resize_file(path, size);
    return path;
}

} // namespace

TEST(ReadWholeFile, OpensRegularFilesWithinTheSizeLimitOnly)
{
    TempDir dir;
    std::string bytes;
    ASSERT_TRUE(ReadWholeFile(WriteSparse(dir, "limit", kMaxFileSize), bytes));
    EXPECT_EQ(bytes.size(), kMaxFileSize);

    ASSERT_EQ(::mkfifo(dir.Path("fifo").c_str(), 0644), 0);
    const struct {
        std::string path;
        const char* reason;
    } cases[] = {
        {dir.Path("fifo"), "it is not a regular file"}, // would wait for a writer
        {"/dev/zero", "it is not a regular file"},      // would never end
        {dir.Path(""), "it is a folder"},
        {WriteSparse(dir, "over", kMaxFileSize + 1), "it is larger than the limit of 256 MiB"},
    };
    for (const auto& [path, reason] : cases) {
        const FileResult read = ReadWholeFile(path, bytes);
        EXPECT_FALSE(read) << path;
        EXPECT_NE(read.error.find(path + ": " + reason), std::string::npos) << read.error;
    }
}

TEST(ReadWholeFile, StopsAtTheLimitWhenAFileHoldsMoreThanItsSizeTells)
{
    // The page map of this process is a regular file of size 0 that reads on for gigabytes,
    // as a file does that grows while it is read.
    if (::access("/proc/self/pagemap", R_OK) != 0)
        GTEST_SKIP() << "no page map to read";
    std::string bytes;
    const FileResult read = ReadWholeFile("/proc/self/pagemap", bytes);
    EXPECT_FALSE(read);
    EXPECT_NE(read.error.find("larger than the limit of 256 MiB"), std::string::npos) << read.error;
    EXPECT_TRUE(bytes.empty());
}

namespace {

// A folder entry as far as a save could change it: its kind and permissions, and where it
// leads or what it holds.
std::string Snapshot(const TempDir& dir, const std::string& name)
{
    struct stat info;
    if (::lstat(dir.Path(name).c_str(), &info) != 0)
        return "missing";
    std::string text = std::to_string(info.st_mode);
    if (S_ISLNK(info.st_mode))
        text += " -> " + std::filesystem::read_symlink(dir.Path(name)).string();
    else if (S_ISREG(info.st_mode))
        text += " holding " + dir.Read(name);
    return text;
}

std::map<std::string, std::string> SnapshotAll(const TempDir& dir)
{
    std::map<std::string, std::string> entries;
    for (const std::string& name : dir.Entries())
        entries[name] = Snapshot(dir, name);
    return entries;
}

struct BadTarget {
    const char* what;
    const char* reason;
    bool asUser;                                        // saved by an unprivileged user
    bool (*make)(const TempDir& dir, const char* path); // makes "window.xml", at path
};

bool MakeReadOnly(const TempDir& dir, const char* path)
{
    dir.Write("window.xml", "old bytes");
    return ::chmod(path, 0444) == 0;
}

const BadTarget kBadTargets[] = {
    {"a folder", "it is a folder", false, [](const TempDir&, const char* path) { return ::mkdir(path, 0755) == 0; }},
    {"a FIFO", "it is not a regular file", false,
     [](const TempDir&, const char* path) { return ::mkfifo(path, 0644) == 0; }},
    {"a device", "it is not a regular file", false,
     [](const TempDir&, const char* path) { return ::mknod(path, S_IFCHR | 0666, makedev(1, 3)) == 0; }},
    {"a symbolic link to a FIFO", "it is not a regular file", false,
     [](const TempDir& dir, const char* path) {
         return ::mkfifo(dir.Path("fifo").c_str(), 0644) == 0 && ::symlink("fifo", path) == 0;
     }},
    {"a symbolic link to nothing", "it is a symbolic link to a missing file", false,
     [](const TempDir&, const char* path) { return ::symlink("gone.xml", path) == 0; }},
    {"a symbolic link loop", "Too many levels of symbolic links", false,
     [](const TempDir& dir, const char* path) {
         return ::symlink("window.xml", dir.Path("loop.xml").c_str()) == 0 && ::symlink("loop.xml", path) == 0;
     }},
    {"a file nobody may write", "the file is read-only", false, MakeReadOnly},
    {"a file nobody may write, saved by a user", "the file is read-only", true, MakeReadOnly},
    {"a symbolic link to a file nobody may write", "the file is read-only", false,
     [](const TempDir& dir, const char* path) {
         return MakeReadOnly(dir, path) && ::rename(path, dir.Path("real.xml").c_str()) == 0 &&
                ::symlink("real.xml", path) == 0;
     }},
    {"another user's file, saved by a user", "the file is read-only", true,
     [](const TempDir& dir, const char* path) {
         // Root's file, which only a test run as root can hand to another user.
         dir.Write("window.xml", "old bytes");
         return ::geteuid() == 0 && ::chmod(path, 0644) == 0;
     }},
};

} // namespace

TEST(WriteFileAtomically, RefusesWhatIsNotARegularFileOrIsReadOnlyAndChangesNothing)
{
    for (const BadTarget& target : kBadTargets) {
        SCOPED_TRACE(target.what);
        TempDir dir;
        // The folder would take the new file: the target alone has to refuse it.
        ::chmod(dir.Path("").c_str(), 0777);
        const std::string path = dir.Path("window.xml");
        if (!target.make(dir, path.c_str())) {
            std::printf("[ SKIPPED  ] %s cannot be made here\n", target.what);
            continue;
        }
        const auto before = SnapshotAll(dir);
        FileResult result;
        {
            std::optional<UnprivilegedScope> asUser;
            if (target.asUser)
                asUser.emplace();
            result = WriteFileAtomically(path, "new bytes");
        }
        EXPECT_FALSE(result);
        EXPECT_NE(result.error.find(path + ": " + target.reason), std::string::npos) << result.error;
        EXPECT_EQ(SnapshotAll(dir), before);
    }
}

TEST(WriteFileAtomically, WritesThroughASymbolicLinkAndKeepsPermissions)
{
    TempDir dir;
    const std::string real = dir.Write("real.xml", "old bytes");
    ::chmod(real.c_str(), 0600);
    ASSERT_EQ(::symlink("real.xml", dir.Path("link.xml").c_str()), 0);
    ASSERT_TRUE(WriteFileAtomically(dir.Path("link.xml"), "new bytes"));
    ASSERT_TRUE(WriteFileAtomically(dir.Path("new.xml"), "a new file"));

    EXPECT_EQ(Snapshot(dir, "link.xml"), std::to_string(S_IFLNK | 0777) + " -> real.xml") << "the link stays";
    EXPECT_EQ(Snapshot(dir, "real.xml"), std::to_string(S_IFREG | 0600) + " holding new bytes");
    EXPECT_EQ(Snapshot(dir, "new.xml"), std::to_string(S_IFREG | 0644) + " holding a new file");
    EXPECT_EQ(dir.Entries(), (std::vector<std::string>{"link.xml", "new.xml", "real.xml"}));
}

TEST(WriteFileAtomically, RemovesTemporariesLeftByKilledSavesButNotThoseBeingWritten)
{
    TempDir dir;
    const std::string path = dir.Write("window.xml", "old bytes");
    dir.Write(".window.xml.kelvo-save-Stale1", "left by a killed save");
    dir.Write(".other.xml.kelvo-save-Other1", "left by a save of another file");
    const std::string live = dir.Write(".window.xml.kelvo-save-Live01", "being written");
    const int writer = ::open(live.c_str(), O_RDONLY | O_CLOEXEC);
    ASSERT_EQ(::flock(writer, LOCK_EX), 0) << "held as a save holds its temporary";

    EXPECT_TRUE(WriteFileAtomically(path, "new bytes"));
    ::close(writer);
    EXPECT_EQ(dir.Read("window.xml"), "new bytes");
    EXPECT_EQ(dir.Entries(), (std::vector<std::string>{".other.xml.kelvo-save-Other1", ".window.xml.kelvo-save-Live01",
                                                       "window.xml"}));
}

namespace {

// Saves in a child process that its file size limit kills in the middle of writing the
// temporary, as a save ends that is killed or crashes; true when the child ended that way.
bool SaveKilledMidWrite(const std::string& path, const std::string& bytes)
{
    const pid_t child = ::fork();
    if (child == 0) {
        const rlimit noCore{0, 0};
        const rlimit halfTheBytes{rlim_t(bytes.size() / 2), rlim_t(bytes.size() / 2)};
        ::setrlimit(RLIMIT_CORE, &noCore);
        ::setrlimit(RLIMIT_FSIZE, &halfTheBytes);
        std::signal(SIGXFSZ, SIG_DFL);
        WriteFileAtomically(path, bytes);
        ::_exit(0);
    }
    int status = 0;
    return ::waitpid(child, &status, 0) == child && WIFSIGNALED(status) && WTERMSIG(status) == SIGXFSZ;
}

} // namespace

TEST(WriteFileAtomically, ASaveKilledMidWriteLeavesATemporaryThatTheNextSaveRemoves)
{
    TempDir dir;
    const std::string path = dir.Write("window.xml", "old bytes");
    for (int round = 0; round < 3; ++round) {
        SCOPED_TRACE(round);
        ASSERT_TRUE(SaveKilledMidWrite(path, std::string(1 << 16, 'x')));
        const std::vector<std::string> entries = dir.Entries();
        ASSERT_EQ(entries.size(), 2u) << "the killed save's temporary, and none of an earlier round";
        EXPECT_TRUE(entries[0].starts_with(".window.xml.kelvo-save-")) << entries[0];
        EXPECT_EQ(dir.Read("window.xml"), "old bytes");
    }

    ASSERT_TRUE(WriteFileAtomically(path, "new bytes"));
    EXPECT_EQ(dir.Entries(), std::vector<std::string>{"window.xml"});
    EXPECT_EQ(dir.Read("window.xml"), "new bytes");
}
