#pragma once

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <functional>
#include <string>

namespace coinlight::bench {

/// The best of `rounds` timings of `work`, in milliseconds: the least disturbed run.
inline double BestMilliseconds(int rounds, const std::function<void()>& work) {
    double best = 1e300;
    for (int round = 0; round < rounds; ++round) {
        const auto start = std::chrono::steady_clock::now();
        work();
        const auto end = std::chrono::steady_clock::now();
        best = std::min(best, std::chrono::duration<double, std::milli>(end - start).count());
    }
    return best;
}

inline void PrintFigure(const char* what, double milliseconds) {
    std::printf("  %-48s %10.2f ms\n", what, milliseconds);
}

} // namespace coinlight::bench
