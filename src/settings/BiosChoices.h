#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/ProfileDocument.h"
#include "core/UserMessage.h"

namespace coinlight {

/// What the BIOS drop-down offers on a screen.
struct BiosChoices {
    std::vector<std::string> items; // "Default" first, then the machine's own entries
    /// The length of a bios.ini value longer than a read can hold (it was cut).
    std::optional<std::size_t> overflowLength;
};

/// A class profile has no machine, so it has no BIOS choice: "Default" alone.
BiosChoices ClassBiosChoices();

/// The entries of a machine in section BIOS of output/bios.ini (";;"-separated, each
/// "description> name"), after "Default". A machine without an entry offers "Default" alone.
BiosChoices MachineBiosChoices(const std::filesystem::path& biosIni, std::string_view machine);
/// The same from bios.ini already read, for many machines in a row.
BiosChoices MachineBiosChoices(const ProfileDocument& biosIni, std::string_view machine);

/// Asks the user to report a bios.ini value too long to read.
UserMessage BiosOverflowMessage(std::size_t length);

/// A profile whose file name holds "vector", "raster", "lcd" or "other" counts as a class
/// profile; any other is a machine's own. A machine named like a class is taken for one.
bool IsClassProfileFileName(std::string_view fileName);

} // namespace coinlight
