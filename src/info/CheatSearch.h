#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

#include "CheatArchive.h"
#include "InfoError.h"
#include "InfoSelection.h"

namespace coinlight {

/// Looks the selection up in the cheat archive and appends one line per cheat, its
/// description with a comment that stands on the same line, or the not-found text. A
/// machine's cheats are the entry `<machine>.xml` at the archive's root; a software
/// title's are `<machine>/<title>.xml`, filed under the machine, not the software list.
/// The entry passes through `tempFolder` and is deleted again.
std::optional<InfoError> SearchCheats(const std::filesystem::path& archive,
                                      const std::filesystem::path& tempFolder,
                                      const InfoSelection& selection, std::string& panel,
                                      const ArchiveLimits& limits = {});

/// The panel line of a line of a cheat file that holds `<cheat desc=`.
std::string CheatLine(std::string_view line);

} // namespace coinlight
