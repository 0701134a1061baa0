#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace coinlight {

/// The whole file as bytes; nothing when it cannot be opened or read.
std::optional<std::string> ReadFileBytes(const std::filesystem::path& file);

/// Splits text at LF, dropping a CR before each LF. A final LF does not start another
/// line, so "a\r\nb\r\n" and "a\nb" both give two lines.
std::vector<std::string> SplitLines(std::string_view text);

/// The file's lines as SplitLines gives them; nothing when it cannot be read.
std::optional<std::vector<std::string>> ReadTextLines(const std::filesystem::path& file);

/// Replaces the file atomically with the given bytes as they are.
bool WriteFileBytes(const std::filesystem::path& file, std::string_view bytes,
                    std::string* error = nullptr);

/// Replaces the file atomically with the lines, each ended by CR LF.
bool WriteTextLines(const std::filesystem::path& file, const std::vector<std::string>& lines,
                    std::string* error = nullptr);

} // namespace coinlight
