#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

// The outcome of reading or writing a file: on failure, why, in words for the user; on success,
// what the user should know all the same (ReportReadNotice).
struct FileResult {
    bool ok = true;
    // A whole sentence that names the file once ("Cannot open PATH: why"), shown as it stands.
    std::string error;
    std::vector<std::string> notices;

    static FileResult Success() { return {}; }
    static FileResult Failure(std::string why) { return {false, std::move(why), {}}; }
    explicit operator bool() const { return ok; }
};

// The largest file ReadWholeFile takes in. A window of 10,000 widgets is about 17 MB, one of 100,000
// about 170 MB; a load holds about four times its file, so the limit keeps a hostile or mistaken path
// from filling the memory while a window of that size still opens.
inline constexpr std::uint64_t kMaxFileSize = std::uint64_t(256) << 20;
// kMaxFileSize for messages and documentation: "256 MiB".
std::string MaxFileSizeText();

// Reads a file piece by piece, so that a reader that parses as it goes never holds the whole
// file. Opening fails with the reason when the path is missing or unreadable, when it is not a
// regular file (a folder, a device, a FIFO: opening never waits for a writer), or when the file
// holds more than kMaxFileSize bytes; reading fails too once the file has grown beyond that.
class CFileReader {
public:
    explicit CFileReader(const std::string& path);
    ~CFileReader();
    CFileReader(const CFileReader&) = delete;
    CFileReader& operator=(const CFileReader&) = delete;

    // Success while the file is open and nothing has failed; otherwise why not.
    const FileResult& Result() const { return m_result; }
    // The size the file had when it was opened.
    std::uint64_t Size() const { return m_size; }
    // Reads up to size bytes: the number read, 0 at the end of the file, -1 on failure.
    long Read(char* buffer, std::size_t size);

private:
    std::string m_path;
    FileResult m_result;
    int m_fd = -1;
    std::uint64_t m_size = 0;
    std::uint64_t m_read = 0;
};

// Reads a whole file into memory, failing as CFileReader does.
FileResult ReadWholeFile(const std::string& path, std::string& bytes);

// Replaces a file's content without ever leaving it half written: the bytes go to a new file
// beside it, which is flushed to disk and then renamed over the old one. The old file keeps its
// permissions; when the path is a symbolic link, the file it points to is replaced and the link
// stays. Only a regular file or a path where nothing is yet may be written: a folder, a device,
// a FIFO, a symbolic link that leads nowhere and a read-only file (no write permission for the
// caller, or none for anybody, so that root is refused as well) are refused. On any failure the
// old file is left as it was and the new one is removed.
//
// The new file is hidden and named after the target, ".<name>.kelvo-save-XXXXXX"; it is locked
// (flock) while it is written. A save killed before it finished leaves such a file unlocked, and
// the next save of the same target removes it.
FileResult WriteFileAtomically(const std::string& path, std::string_view bytes);

// A file and the content it is to have.
struct FileContent {
    std::string path;
    std::string bytes;
};

// Replaces several files together, each as WriteFileAtomically does: all new files are written
// and flushed first, and only then renamed over the old ones, in order. So a file that cannot
// be written (read-only, a full disk) leaves every file as it was. `replaced` tells how many of
// the files, from the first, were replaced: all of them on success, and on the rare failure of
// a rename, those before it.
FileResult WriteFilesAtomically(std::span<const FileContent> files, std::size_t& replaced);
