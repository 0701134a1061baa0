#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

#include "core/DataLayout.h"
#include "core/Preferences.h"

namespace coinlight {

/// Where the emulator's standard output and standard error go during a start.
std::filesystem::path StandardOutputFile(const DataLayout& data);
std::filesystem::path StandardErrorFile(const DataLayout& data);

/// Each pair of blanks becomes one, in a single pass from the left: three blanks leave two.
std::string FoldDoubleBlanks(std::string_view text);

/// The shell line that starts `machine`: the emulator, "-inipath" and the Ini folder, the
/// machine, `tail` (the software arguments and the profile's "Other Commands"), and the two
/// streams redirected into the temp folder. Paths stand quoted and keep their case; all
/// else is lower-cased, and double blanks outside the paths are folded once. Nothing when
/// `machine` is no short name.
std::optional<std::string> ComposeLaunchCommandLine(const Preferences& preferences,
                                                    const DataLayout& data,
                                                    std::string_view machine,
                                                    std::string_view tail);

} // namespace coinlight
