#pragma once

#include <unistd.h>

// A file descriptor, closed when it goes out of scope.
class OpenFile {
public:
    explicit OpenFile(int fd) : m_fd(fd) {}
    ~OpenFile()
    {
        if (m_fd >= 0)
            ::close(m_fd);
    }
    OpenFile(const OpenFile&) = delete;
    OpenFile& operator=(const OpenFile&) = delete;

    int Fd() const { return m_fd; }
    explicit operator bool() const { return m_fd >= 0; }

private:
    int m_fd;
};
