#pragma once

#include <filesystem>
#include <optional>
#include <string>

#include "core/AppFolders.h"

namespace coinlight {

/// Where a packaged MAME keeps its files on this system. Tests point these at folders of
/// their own.
struct MameLocations {
    /// The read-only data the distribution installs (hash, samples, artwork ...).
    std::filesystem::path distributionData = "/usr/share/games/mame";
    /// The user's home folder; MAME keeps ROMs and what it writes under `.mame` there.
    std::filesystem::path home;
    /// The executable search path, ':'-separated.
    std::string searchPath;

    std::filesystem::path UserFolder() const { return home.empty() ? home : home / ".mame"; }
};

/// The system's locations: HOME and PATH from the environment.
MameLocations SystemMameLocations(const EnvironmentLookup& environment = ProcessEnvironment());

/// The first executable file named "mame" in a folder of the search path.
std::optional<std::filesystem::path> FindMameOnPath(const std::string& searchPath);

} // namespace coinlight
