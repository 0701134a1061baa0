#include "FileTests.h"

#include <string_view>

namespace coinlight {

bool FileExists(const std::filesystem::path& path) {
    std::error_code error;
    return !path.empty() && std::filesystem::exists(path, error);
}

bool MatchesWildcard(std::string_view pattern, std::string_view name) {
    std::size_t p = 0;
    std::size_t n = 0;
    std::size_t starAt = std::string_view::npos;
    std::size_t resumeName = 0;
    while (n < name.size()) {
        if (p < pattern.size() && (pattern[p] == '?' || pattern[p] == name[n])) {
            ++p;
            ++n;
        } else if (p < pattern.size() && pattern[p] == '*') {
            starAt = p++;
            resumeName = n;
        } else if (starAt != std::string_view::npos) {
            p = starAt + 1;
            n = ++resumeName;
        } else {
            return false;
        }
    }
    while (p < pattern.size() && pattern[p] == '*') {
        ++p;
    }
    return p == pattern.size();
}

bool FileMissing(const std::filesystem::path& path) {
    std::error_code error;
    const std::string pattern = path.filename().string();
    if (pattern.find_first_of("*?") == std::string::npos) {
        return !std::filesystem::is_regular_file(path, error);
    }
    std::filesystem::directory_iterator entries(path.parent_path(), error);
    if (error) {
        return true;
    }
    for (const auto& entry : entries) {
        if (entry.is_regular_file(error) &&
            MatchesWildcard(pattern, entry.path().filename().string())) {
            return false;
        }
    }
    return true;
}

std::optional<std::uintmax_t> FileSize(const std::filesystem::path& path) {
    std::error_code error;
    if (!std::filesystem::is_regular_file(path, error)) {
        return std::nullopt;
    }
    const auto size = std::filesystem::file_size(path, error);
    if (error) {
        return std::nullopt;
    }
    return size;
}

} // namespace coinlight
