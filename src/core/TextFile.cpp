#include "TextFile.h"

#include "AtomicFileWriter.h"

#include <cstdio>

namespace coinlight {

std::optional<std::string> ReadFileBytes(const std::filesystem::path& file) {
    std::FILE* stream = std::fopen(file.c_str(), "rb");
    if (stream == nullptr) {
        return std::nullopt;
    }
    std::string bytes;
    char chunk[1 << 16];
    bool failed = false;
    for (;;) {
        const std::size_t got = std::fread(chunk, 1, sizeof chunk, stream);
        bytes.append(chunk, got);
        if (got < sizeof chunk) {
            failed = std::ferror(stream) != 0;
            break;
        }
    }
    std::fclose(stream);
    if (failed) {
        return std::nullopt;
    }
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

bool WriteFileBytes(const std::filesystem::path& file, std::string_view bytes,
                    std::string* error) {
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
