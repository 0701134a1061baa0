#include "AppContext.h"

#include <chrono>
#include <ctime>

namespace coinlight {

double SecondsSinceMidnight() {
    const auto now = std::chrono::system_clock::now();
    const std::time_t seconds = std::chrono::system_clock::to_time_t(now);
    std::tm local{};
    ::localtime_r(&seconds, &local);
    const auto fraction =
        std::chrono::duration<double>(now - std::chrono::system_clock::from_time_t(seconds));
    return local.tm_hour * 3600.0 + local.tm_min * 60.0 + local.tm_sec + fraction.count();
}

} // namespace coinlight
