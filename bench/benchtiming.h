#pragma once

#include <algorithm>
#include <ctime>
#include <functional>
#include <vector>

// The process's CPU time, so that figures do not depend on what else the machine runs.
inline double CpuMilliseconds()
{
    timespec now{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &now);
    return double(now.tv_sec) * 1e3 + double(now.tv_nsec) / 1e6;
}

// The median CPU time of a few runs of work, in milliseconds; prepare runs before each, untimed,
// and its result is destroyed after each, untimed.
template <class Prepared>
double MedianMilliseconds(int runs, const std::function<Prepared()>& prepare,
                          const std::function<void(Prepared&)>& work)
{
    std::vector<double> times;
    for (int i = 0; i < runs; ++i) {
        Prepared prepared = prepare();
        const double start = CpuMilliseconds();
        work(prepared);
        times.push_back(CpuMilliseconds() - start);
    }
    std::sort(times.begin(), times.end());
    return times[times.size() / 2];
}

inline double MedianMilliseconds(int runs, const std::function<void()>& work)
{
    return MedianMilliseconds<int>(runs, [] { return 0; }, [&](int&) { work(); });
}
