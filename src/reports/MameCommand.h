#pragma once

#include <filesystem>
#include <string>
#include <string_view>

#include "core/CommandLine.h"
#include "core/Preferences.h"

namespace coinlight {

/// What every report run of MAME starts with: the emulator and the folder of the mame.ini
/// it is told to read.
struct MameCommand {
    std::filesystem::path folder;
    std::string executable;
    std::filesystem::path ini;

    static MameCommand From(const Preferences& preferences);

    /// `<mame> -inipath "<ini>"`, ready for what the report asks.
    CommandLine Start() const;
};

/// MAME's word for "every machine", kept from the shell's own wildcard expansion.
inline constexpr std::string_view kAllMachines = "'*'";

} // namespace coinlight
