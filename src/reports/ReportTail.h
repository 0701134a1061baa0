#pragma once

#include <cstdint>
#include <filesystem>
#include <string>

namespace coinlight {

/// Follows a report while MAME writes it: each call gives the whole lines added since the
/// last one, so that the page can grow with the file. A line still being written waits for
/// its end, which also keeps a character from being cut in two.
class ReportTail {
public:
    explicit ReportTail(std::filesystem::path file) : m_file(std::move(file)) {}

    std::string NewLines();

private:
    std::filesystem::path m_file;
    std::uintmax_t m_consumed = 0;
};

} // namespace coinlight
