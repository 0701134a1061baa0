#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "core/Preferences.h"

namespace coinlight {

/// The kinds of extras the About box counts, by its option buttons.
enum class ExtrasKind { Artwork, Samples, Icons, Cheats, Miscellaneous };

/// Where one kind lies, which files count, and what the user is told when the folder is not
/// there.
struct ExtrasSource {
    std::filesystem::path folder;
    std::vector<std::string> patterns; // "*.zip", "cheat.7z" ...
    std::string error;
};

ExtrasSource SourceOfExtras(ExtrasKind kind, const Preferences& preferences,
                            const std::vector<std::string>& artworkFolders,
                            const std::filesystem::path& supportFolder);

/// The files of the folder that match a pattern (without regard to case), sorted; nothing
/// when the folder cannot be listed.
std::optional<std::vector<std::string>> ListExtras(const ExtrasSource& source);

/// Whether a file name matches a pattern of `*` and plain characters, without regard to case.
bool MatchesPattern(std::string_view name, std::string_view pattern);

} // namespace coinlight
