#pragma once

#include <filesystem>
#include <optional>
#include <string>

namespace coinlight {

/// An empty file beside `destination`, named as the atomic writer names its temporary files
/// (so that a killed run's leftover is cleared at the next start), with the rights the
/// destination has, or those a new file would get. Another program (MAME, through the
/// shell) fills it, and the caller renames it into place. Nothing and `error` when it
/// cannot be made.
std::optional<std::filesystem::path> MakeTemporaryBeside(const std::filesystem::path& destination,
                                                         std::string* error = nullptr);

} // namespace coinlight
