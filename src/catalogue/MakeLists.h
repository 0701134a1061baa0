#pragma once

#include <cstddef>
#include <filesystem>
#include <string>
#include <variant>

#include "RunTimeError.h"

namespace coinlight {

/// The `lists.txt` made from a `machine.xml` for the release that ships with it.
struct MadeLists {
    std::string text; // the whole file, CR LF line ends
    std::size_t arcade = 0;
    std::size_t other = 0;
};

/// Sorts every machine of `machine.xml` into the two lists by one rule: devices are left
/// out; a machine with a software list or without coin inputs is Other (computers,
/// consoles, handhelds, and the BIOS sets and test rigs that take no coins); every other
/// machine is Arcade. The file starts with a header naming MAME's build and the rule.
std::variant<MadeLists, RunTimeError> MakeLists(const std::filesystem::path& machineXml);

} // namespace coinlight
