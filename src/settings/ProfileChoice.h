#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

#include "core/DataLayout.h"

namespace coinlight {

/// What decides the class profile of an arcade machine.
struct ProfileClassFacts {
    std::string_view displayType; // "Raster", "Vector", "LCD" or "N/A"
    int settingsLevel = 0;        // 0 Basic, 1 Standard, 2 Advanced
    bool monochrome = false;
    std::string_view orientation; // "H", "V" or "U"
};

/// The class profile name of an arcade machine ("raster", "vector-c", "raster-mv", "lcd").
/// A display type or level it does not know keeps `current`. At the finest level a machine
/// of unknown orientation gets a "-u" name that no screen makes: it then starts without a
/// class profile unless someone wrote that file by hand.
std::string ChooseProfileName(const ProfileClassFacts& facts, std::string_view current);

/// settings/<name>.cfg.
std::filesystem::path ProfilePath(const DataLayout& data, std::string_view name);

/// The profile an arcade start applies: the machine's own if it exists, else its class
/// profile if that exists, else none, and MAME's defaults apply.
std::optional<std::filesystem::path>
ArcadeStartProfile(const DataLayout& data, std::string_view machine, std::string_view profileName);

/// The profile a start in the Other Machines view applies: the machine's own, else
/// other.cfg; with neither, the profile in use so far.
std::filesystem::path OtherStartProfile(const DataLayout& data, std::string_view machine,
                                        const std::filesystem::path& currentProfile);

} // namespace coinlight
