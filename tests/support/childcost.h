#pragma once

#include <functional>

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

// What a piece of work costs when it runs in a child process of its own, so that its memory
// can be measured apart from everything the measuring program holds.
struct ChildCost {
    bool exited = false; // ended normally, not killed (for instance by its CPU limit)
    int status = -1;     // the work's result, when it exited
    double cpuSeconds = 0;
    long peakKiB = 0;    // the child's peak resident memory, the forked parent's pages included
};

// Runs work in a forked child under a CPU-time limit, so that a runaway child ends, and
// returns what it cost. The work's result becomes the child's exit status.
inline ChildCost RunInChild(const std::function<int()>& work, int cpuLimitSeconds)
{
    const pid_t child = fork();
    if (child == 0) {
        const rlimit cpu{rlim_t(cpuLimitSeconds), rlim_t(cpuLimitSeconds)};
        setrlimit(RLIMIT_CPU, &cpu);
        _exit(work());
    }
    ChildCost cost;
    int status = 0;
    rusage usage{};
    if (child < 0 || wait4(child, &status, 0, &usage) != child)
        return cost;
    cost.exited = WIFEXITED(status);
    cost.status = cost.exited ? WEXITSTATUS(status) : -1;
    const auto seconds = [](const timeval& t) { return double(t.tv_sec) + double(t.tv_usec) / 1e6; };
    cost.cpuSeconds = seconds(usage.ru_utime) + seconds(usage.ru_stime);
    cost.peakKiB = usage.ru_maxrss;
    return cost;
}
