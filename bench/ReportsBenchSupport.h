#pragma once

#include <algorithm>
#include <ctime>
#include <functional>

namespace coinlight::bench {

/// The best of `rounds` runs of `work` in processor time of this thread, in milliseconds.
/// On a machine busy with other work the wall clock mostly measures the waiting; the
/// thread's own time (user and system) is what the work costs.
inline double BestCpuMilliseconds(int rounds, const std::function<void()>& work) {
    const auto now = [] {
        timespec time{};
        ::clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
        return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_nsec) / 1e6;
    };
    double best = 1e300;
    for (int round = 0; round < rounds; ++round) {
        const double start = now();
        work();
        best = std::min(best, now() - start);
    }
    return best;
}

} // namespace coinlight::bench
