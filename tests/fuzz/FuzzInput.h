#pragma once

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>
#include <unistd.h>

namespace coinlight::fuzz {

/// The fuzzer's bytes as text.
inline std::string_view AsText(const std::uint8_t* data, std::size_t size) {
    return {reinterpret_cast<const char*>(data), size};
}

/// A folder of this process's own for readers that take files, emptied at each input and
/// removed when the process ends.
inline std::filesystem::path ScratchFolder() {
    struct Folder {
        std::filesystem::path path = std::filesystem::temp_directory_path() /
                                     ("coinlight-fuzz-" + std::to_string(::getpid()));
        Folder() { std::filesystem::create_directories(path); }
        ~Folder() {
            std::error_code ignored;
            std::filesystem::remove_all(path, ignored);
        }
    };
    static const Folder folder;
    std::error_code ignored;
    for (const auto& entry : std::filesystem::directory_iterator(folder.path, ignored)) {
        std::filesystem::remove_all(entry.path(), ignored);
    }
    return folder.path;
}

inline void WriteBytes(const std::filesystem::path& file, std::string_view bytes) {
    std::filesystem::create_directories(file.parent_path());
    std::ofstream out(file, std::ios::binary | std::ios::trunc);
    out.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
}

/// Splits one input into two texts at the first "\x1E" (record separator), so that one
/// target can vary two files at once; without it the second text is empty.
inline std::pair<std::string_view, std::string_view> SplitInput(std::string_view bytes) {
    const auto at = bytes.find('\x1E');
    if (at == std::string_view::npos) {
        return {bytes, {}};
    }
    return {bytes.substr(0, at), bytes.substr(at + 1)};
}

} // namespace coinlight::fuzz
