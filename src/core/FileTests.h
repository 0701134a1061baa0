#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string_view>

namespace coinlight {

/// True for a file or a folder alike; any error counts as absent.
bool FileExists(const std::filesystem::path& path);

/// True when no file matches: `path` names one file, or a folder and a pattern with `*` and
/// `?` in its last part ("/roms/*.zip"). Folders never match. Names compare exactly.
bool FileMissing(const std::filesystem::path& path);

/// Size of a regular file in bytes; nothing when it is absent or not a file.
std::optional<std::uintmax_t> FileSize(const std::filesystem::path& path);

/// `*` and `?` against a name, exactly as to case.
bool MatchesWildcard(std::string_view pattern, std::string_view name);

} // namespace coinlight
