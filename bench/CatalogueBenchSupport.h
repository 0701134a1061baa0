#pragma once

#include <cstdio>
#include <cstdlib>
#include <string>

namespace coinlight::bench {

/// Runs a counting command (`grep -c ...`) and returns the number it prints. The output
/// goes through a pipe: GNU grep stops at the first match when it writes to /dev/null.
inline long Count(const std::string& command) {
    FILE* pipe = ::popen(command.c_str(), "r");
    if (pipe == nullptr) {
        return -1;
    }
    char text[64] = {};
    const bool read = std::fgets(text, sizeof text, pipe) != nullptr;
    ::pclose(pipe);
    return read ? std::strtol(text, nullptr, 10) : -1;
}

} // namespace coinlight::bench
