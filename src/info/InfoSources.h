#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "InfoError.h"

namespace coinlight {

/// How a source is searched, by its name in lower case.
enum class InfoSourceKind {
    Cheats,        // cheat.7z in the MAME folder
    History,       // history.xml
    DollarRecords, // command.dat, gameinit.dat, mameinfo.dat, messinfo.dat
    HeaderOnly,    // any other .xml or .dat: its name is all the panel shows
};
InfoSourceKind SourceKindOf(std::string_view listedName);

/// The sources the panel offers: cheat.7z first when the MAME folder has it, then the
/// files of the support folder whose names end in ".xml" or ".dat" exactly as to case, in
/// name order.
struct InfoSourceListing {
    std::vector<std::string> names;
    std::optional<InfoError> error;
};
InfoSourceListing ListInfoSources(const std::filesystem::path& mameFolder,
                                  const std::filesystem::path& supportFolder);

/// Where a listed source is read from.
std::filesystem::path SourceFile(std::string_view listedName,
                                 const std::filesystem::path& mameFolder,
                                 const std::filesystem::path& supportFolder);

/// The panel's text when it opens, ending in the hint that suits the list.
std::string InfoIntroText(bool anySource);

} // namespace coinlight
