#pragma once

#include <filesystem>
#include <optional>
#include <string>

namespace coinlight {

/// Copies `from` over `to` through a temporary file beside `to`, so that `to` is either
/// the old file or the whole copy. On failure, the reason.
std::optional<std::string> CopyFileReplacing(const std::filesystem::path& from,
                                             const std::filesystem::path& to);

} // namespace coinlight
