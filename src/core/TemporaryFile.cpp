#include "TemporaryFile.h"

#include <cerrno>
#include <cstring>
#include <fstream>
#include <sys/stat.h>
#include <unistd.h>

#include "AtomicFileWriter.h"

namespace coinlight {

namespace {

/// The process's umask, read without changing it (umask() itself sets as it reads, which
/// would race other threads that create files).
mode_t CurrentUmask() {
    std::ifstream status("/proc/self/status");
    std::string word;
    while (status >> word) {
        if (word == "Umask:") {
            std::string octal;
            status >> octal;
            return static_cast<mode_t>(std::stoul(octal, nullptr, 8));
        }
    }
    return 022;
}

mode_t ModeFor(const std::filesystem::path& destination) {
    struct stat info {};
    if (::stat(destination.c_str(), &info) == 0 && S_ISREG(info.st_mode)) {
        return info.st_mode & 07777;
    }
    return static_cast<mode_t>(0666 & ~CurrentUmask());
}

} // namespace

std::optional<std::filesystem::path> MakeTemporaryBeside(const std::filesystem::path& destination,
                                                         std::string* error) {
    std::string pattern = TemporaryPatternFor(destination);
    const int descriptor = ::mkstemp(pattern.data());
    if (descriptor < 0) {
        if (error != nullptr) {
            *error = "Cannot create a file in " + destination.parent_path().string() + ": " +
                     std::strerror(errno);
        }
        return std::nullopt;
    }
    // mkstemp gives 0600; what the shell would have made is what MAME's list must get.
    ::fchmod(descriptor, ModeFor(destination));
    ::close(descriptor);
    return std::filesystem::path(pattern);
}

} // namespace coinlight
