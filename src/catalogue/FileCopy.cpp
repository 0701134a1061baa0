#include "FileCopy.h"

#include <cstdio>
#include <cstdlib>

#include "core/AtomicFileWriter.h"

namespace coinlight {

std::optional<std::string> CopyFileReplacing(const std::filesystem::path& from,
                                             const std::filesystem::path& to) {
    std::string pattern = TemporaryPatternFor(to);
    const int descriptor = ::mkstemp(pattern.data());
    if (descriptor < 0) {
        return "Cannot create a file beside " + to.string();
    }
    std::fclose(::fdopen(descriptor, "w"));
    const std::filesystem::path temporary = pattern;
    std::error_code error;
    // copy_file lets the kernel move the bytes (or share them on a copy-on-write system).
    std::filesystem::copy_file(from, temporary, std::filesystem::copy_options::overwrite_existing,
                               error);
    if (!error) {
        std::filesystem::rename(temporary, to, error);
    }
    if (error) {
        std::error_code ignored;
        std::filesystem::remove(temporary, ignored);
        return "Cannot copy " + from.string() + " to " + to.string() + ": " + error.message();
    }
    return std::nullopt;
}

} // namespace coinlight
