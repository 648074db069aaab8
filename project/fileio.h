#pragma once

#include <string>
#include <string_view>
#include <vector>

// The outcome of reading or writing a file: on failure, why, in words for the user; on success,
// what the user should know all the same (ReportReadNotice).
struct FileResult {
    bool ok = true;
    std::string error;
    std::vector<std::string> notices;

    static FileResult Success() { return {}; }
    static FileResult Failure(std::string why) { return {false, std::move(why), {}}; }
    explicit operator bool() const { return ok; }
};

// Reads a whole file into memory. Fails with the reason when the path is missing, unreadable
// or a folder.
FileResult ReadWholeFile(const std::string& path, std::string& bytes);

// Replaces a file's content without ever leaving it half written: the bytes go to a new file
// beside it, which is flushed to disk and then renamed over the old one. The old file keeps its
// permissions; when the path is a symbolic link, the file it points to is replaced. On any
// failure the old file is left as it was and the new one is removed.
FileResult WriteFileAtomically(const std::string& path, std::string_view bytes);
