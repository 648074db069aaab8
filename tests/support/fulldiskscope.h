#pragma once

#include <csignal>
#include <sys/resource.h>

// Makes every write beyond a few bytes fail as on a full disk, for its lifetime; processes
// started meanwhile inherit the limit.
class FullDiskScope {
public:
    FullDiskScope()
    {
        ::getrlimit(RLIMIT_FSIZE, &m_saved);
        m_oldHandler = std::signal(SIGXFSZ, SIG_IGN);
        rlimit small = m_saved;
        small.rlim_cur = 16;
        ::setrlimit(RLIMIT_FSIZE, &small);
    }
    ~FullDiskScope()
    {
        ::setrlimit(RLIMIT_FSIZE, &m_saved);
        std::signal(SIGXFSZ, m_oldHandler);
    }
    FullDiskScope(const FullDiskScope&) = delete;
    FullDiskScope& operator=(const FullDiskScope&) = delete;

private:
    rlimit m_saved{};
    void (*m_oldHandler)(int) = nullptr;
};
