#pragma once

#include <chrono>
#include <cstdio>
#include <ctime>
#include <filesystem>
#include <functional>
#include <string>
#include <string_view>

#include "core/LineReader.h"

namespace coinlight::bench {

/// The floor of the software benchmarks: a file read once, line by line, with the reader
/// every file of Coinlight's is read with.
inline std::size_t ReadLines(const std::filesystem::path& file) {
    LineReader reader(file);
    std::string_view line;
    std::size_t lines = 0;
    while (reader.Next(line)) {
        ++lines;
    }
    return lines;
}

/// Wall time and processor time (user and system, of this thread) of one piece of work,
/// in milliseconds. On a machine shared with other work the processor time is the steadier
/// figure: a wall time also counts the moments the work waited for a processor.
struct Timing {
    double wall = 1e300;
    double processor = 1e300;

    void KeepBest(const Timing& other) {
        wall = std::min(wall, other.wall);
        processor = std::min(processor, other.processor);
    }
};

inline double ThreadMilliseconds() {
    timespec now{};
    ::clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
    return static_cast<double>(now.tv_sec) * 1e3 + static_cast<double>(now.tv_nsec) / 1e6;
}

inline Timing Time(const std::function<void()>& work) {
    const double processorStart = ThreadMilliseconds();
    const auto start = std::chrono::steady_clock::now();
    work();
    const auto end = std::chrono::steady_clock::now();
    return {std::chrono::duration<double, std::milli>(end - start).count(),
            ThreadMilliseconds() - processorStart};
}

inline void PrintTiming(const char* what, const Timing& timing) {
    std::printf("  %-48s %10.2f ms wall %10.2f ms processor\n", what, timing.wall,
                timing.processor);
}

inline void PrintRatio(const char* what, const Timing& work, const Timing& floor, double limit) {
    std::printf("  %s: %.2f wall, %.2f processor (limit %g)\n", what, work.wall / floor.wall,
                work.processor / floor.processor, limit);
}

inline double Megabytes(const std::filesystem::path& file) {
    return static_cast<double>(std::filesystem::file_size(file)) / 1e6;
}

} // namespace coinlight::bench
