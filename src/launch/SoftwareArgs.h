#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace coinlight {

/// The selected row of the software list, as a start reads it.
struct SoftwareTitle {
    std::string parts;       // part names, capitalised, joined by ";"
    std::string name;        // the title's short name
    std::string requirement; // "N/A" when it needs nothing
    std::string disk;        // disk names, "N/A" when it has none
};

/// What follows the machine's name for a title: `<requirement> -<switch> <name>`, or
/// `-<switch> <name>`, or, with no switch known, the name after one blank, which leaves
/// MAME to find the title among the machine's lists by itself. A title that needs the
/// "scharger" cartridge is always loaded from cassette.
std::string ComposeSoftwareArgs(std::string_view requirement, std::string_view deviceSwitch,
                                std::string_view software);

/// Why a title's names may not reach a command line, or nothing when they may: the short
/// name and a switch must be `[a-z0-9_]+`, a requirement `[a-z0-9_:]+` (MAME names slot
/// cards such as "x1_flop:tapbas"). Texts of "N/A" or empty stand for none.
std::optional<std::string> RefuseSoftwareNames(const SoftwareTitle& title,
                                               std::string_view deviceSwitch);

} // namespace coinlight
