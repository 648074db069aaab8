#pragma once

#include <string>
#include <string_view>
#include <vector>

// A folder of its own for one test, removed with everything in it afterwards.
class TempDir {
public:
    TempDir();
    ~TempDir();
    TempDir(const TempDir&) = delete;
    TempDir& operator=(const TempDir&) = delete;

    // The path of a file in the folder; the folder itself (with a trailing slash) for "".
    std::string Path(std::string_view name) const;
    // Writes a file and returns its path.
    std::string Write(std::string_view name, std::string_view bytes) const;
    std::string Read(std::string_view name) const;
    // The names in the folder, sorted.
    std::vector<std::string> Entries() const;

private:
    std::string m_path;
};

// Drops the effective user to "nobody" for its lifetime, so that file permissions apply to a
// test run as root as they do to a user.
class UnprivilegedScope {
public:
    UnprivilegedScope();
    ~UnprivilegedScope();
    UnprivilegedScope(const UnprivilegedScope&) = delete;
    UnprivilegedScope& operator=(const UnprivilegedScope&) = delete;

private:
    bool m_dropped = false;
};
