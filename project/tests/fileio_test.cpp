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
#include <poll.h>
#include <sys/file.h>
#include <sys/inotify.h>
#include <sys/syscall.h>
#include <sys/prctl.h>
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
        {WriteSparse(dir, "over", kMaxFileSize + 1), "it is larger than the limit of 64 MiB"},
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
    EXPECT_NE(read.error.find("larger than the limit of 64 MiB"), std::string::npos) << read.error;
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
    EXPECT_EQ(dir.Entries(),
              (std::vector<std::string>{".other.xml.kelvo-save-Other1", ".window.xml.kelvo-save-Live01", "window.xml"}));
}

namespace {

constexpr std::string_view kTemporaryPrefix = ".window.xml.kelvo-save-";

// A process that saves the same large file over and over, killed when it goes out of scope.
struct SavingChild {
    SavingChild(const std::string& path, const std::string& bytes) : pid(::fork())
    {
        if (pid == 0) {
            ::prctl(PR_SET_PDEATHSIG, SIGKILL);
            for (;;)
                WriteFileAtomically(path, bytes);
        }
        exited = int(::syscall(SYS_pidfd_open, pid, 0));
    }
    ~SavingChild()
    {
        Kill();
        ::close(exited);
    }
    SavingChild(const SavingChild&) = delete;
    SavingChild& operator=(const SavingChild&) = delete;

    void Kill()
    {
        if (pid > 0 && ::kill(pid, SIGKILL) == 0)
            ::waitpid(std::exchange(pid, 0), nullptr, 0);
    }
    void Stop() { ::kill(pid, SIGSTOP); ::waitpid(pid, nullptr, WUNTRACED); }

    pid_t pid;
    int exited; // readable once the child has ended
};

// The name of the latest save temporary created in the watched folder, waiting for one; empty
// when the child ended first.
std::string NextTemporary(int watch, const SavingChild& child)
{
    std::string latest;
    while (latest.empty()) {
        pollfd ready[] = {{watch, POLLIN, 0}, {child.exited, POLLIN, 0}};
        if (::poll(ready, 2, -1) <= 0 || ready[1].revents != 0)
            return {};
        alignas(inotify_event) char buffer[4096];
        const ssize_t got = ::read(watch, buffer, sizeof buffer);
        for (ssize_t at = 0; at < got;) {
            const auto* event = reinterpret_cast<const inotify_event*>(buffer + at);
            if (event->len > 0 && std::string_view(event->name).starts_with(kTemporaryPrefix))
                latest = event->name;
            at += ssize_t(sizeof(inotify_event) + event->len);
        }
    }
    return latest;
}

} // namespace

TEST(WriteFileAtomically, ASaveKilledMidWriteLeavesATemporaryThatTheNextSaveRemoves)
{
    TempDir dir;
    const std::string path = dir.Write("window.xml", "old bytes");
    const std::string large(8 << 20, 'x');
    const int watch = ::inotify_init1(IN_CLOEXEC);
    ASSERT_GE(::inotify_add_watch(watch, dir.Path("").c_str(), IN_CREATE), 0);
    for (int round = 0; round < 3; ++round) {
        SCOPED_TRACE(round);
        SavingChild child(path, large);
        // Stopped while the temporary it has just created is still there, the child is in the
        // middle of a save; once it is past the rename, let it run on to its next save.
        for (;;) {
            const std::string created = NextTemporary(watch, child);
            ASSERT_FALSE(created.empty()) << "the saving child ended";
            child.Stop();
            if (std::filesystem::exists(dir.Path(created)))
                break;
            ::kill(child.pid, SIGCONT);
        }
        child.Kill();
        const std::vector<std::string> entries = dir.Entries();
        ASSERT_EQ(entries.size(), 2u) << "the killed save's temporary, and none of an earlier round";
        EXPECT_TRUE(entries[0].starts_with(kTemporaryPrefix)) << entries[0];
        const std::string saved = dir.Read("window.xml");
        EXPECT_TRUE(saved == "old bytes" || saved == large) << "the file is whole";
    }
    ::close(watch);

    ASSERT_TRUE(WriteFileAtomically(path, "new bytes"));
    EXPECT_EQ(dir.Entries(), std::vector<std::string>{"window.xml"});
    EXPECT_EQ(dir.Read("window.xml"), "new bytes");
}
