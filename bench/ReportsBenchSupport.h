#pragma once

#include <algorithm>
#include <ctime>
#include <functional>
#include <utility>

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

/// The best processor times of two pieces of work run in turn, so that both meet the same
/// moments of a busy machine; first of `first`, then of `second`.
inline std::pair<double, double> BestCpuMillisecondsInTurn(int rounds,
                                                           const std::function<void()>& first,
                                                           const std::function<void()>& second) {
    double bestFirst = 1e300;
    double bestSecond = 1e300;
    for (int round = 0; round < rounds; ++round) {
        bestFirst = std::min(bestFirst, BestCpuMilliseconds(1, first));
        bestSecond = std::min(bestSecond, BestCpuMilliseconds(1, second));
    }
    return {bestFirst, bestSecond};
}

} // namespace coinlight::bench
