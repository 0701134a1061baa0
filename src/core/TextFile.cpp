#include "TextFile.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "AtomicFileWriter.h"

namespace coinlight {

std::optional<std::string> ReadFileBytes(const std::filesystem::path& file) {
    const int descriptor = ::open(file.c_str(), O_RDONLY | O_CLOEXEC);
    if (descriptor < 0) {
        return std::nullopt;
    }
    struct stat info {};
    std::string bytes;
    if (::fstat(descriptor, &info) == 0 && S_ISREG(info.st_mode) && info.st_size > 0) {
        // One allocation of the right size: growing chunk by chunk doubles the cost.
        bytes.resize(static_cast<std::size_t>(info.st_size));
    }
    std::size_t filled = 0;
    bool failed = false;
    for (;;) {
        if (filled == bytes.size()) {
            bytes.resize(bytes.size() + (1 << 16)); // the file grew, or is not a plain file
        }
        const ssize_t got = ::read(descriptor, bytes.data() + filled, bytes.size() - filled);
        if (got < 0 && errno == EINTR) {
            continue;
        }
        if (got <= 0) {
            failed = got < 0;
            break;
        }
        filled += static_cast<std::size_t>(got);
    }
    ::close(descriptor);
    if (failed) {
        return std::nullopt;
    }
    bytes.resize(filled);
    return bytes;
}

std::vector<std::string> SplitLines(std::string_view text) {
    std::vector<std::string> lines;
    std::size_t start = 0;
    while (start < text.size()) {
        std::size_t end = text.find('\n', start);
        const std::size_t next = end == std::string_view::npos ? text.size() : end + 1;
        if (end == std::string_view::npos) {
            end = text.size();
        }
        std::size_t length = end - start;
        if (length > 0 && text[start + length - 1] == '\r') {
            --length;
        }
        lines.emplace_back(text.substr(start, length));
        start = next;
    }
    return lines;
}

std::optional<std::vector<std::string>> ReadTextLines(const std::filesystem::path& file) {
    auto bytes = ReadFileBytes(file);
    if (!bytes) {
        return std::nullopt;
    }
    return SplitLines(*bytes);
}

bool WriteFileBytes(const std::filesystem::path& file, std::string_view bytes, std::string* error) {
    AtomicFileWriter writer(file);
    writer.Write(bytes);
    const bool ok = writer.Commit();
    if (!ok && error != nullptr) {
        *error = writer.Error();
    }
    return ok;
}

bool WriteTextLines(const std::filesystem::path& file, const std::vector<std::string>& lines,
                    std::string* error) {
    AtomicFileWriter writer(file);
    for (const auto& line : lines) {
        writer.WriteLine(line);
    }
    const bool ok = writer.Commit();
    if (!ok && error != nullptr) {
        *error = writer.Error();
    }
    return ok;
}

} // namespace coinlight
