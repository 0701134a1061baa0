#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "KnownMameOptions.h"
#include "OptionCatalogue.h"

namespace coinlight {

// Which of the options Coinlight writes a MAME build really takes. MAME ignores an option
// of mame.ini it does not know without a word, so a user who tunes one sees nothing happen.

/// Every option the profile sections of mame.ini name, in the order they are written, each
/// once: the catalogue's and the fixed ones ("profile", "hlsl_write" ...).
std::vector<std::string> WrittenOptionNames();

/// Those of WrittenOptionNames that `known` lacks, in the same order.
std::vector<std::string> UnknownOptionNames(const KnownMameOptions& known);

/// The settings controls none of whose mame.ini options `known` has, by control name
/// (`txtHLSL(17)`); a control that writes nothing into mame.ini ("Other Commands") is
/// never among them.
std::vector<std::string> UnsupportedControls(const KnownMameOptions& known);

/// The catalogue row that writes `option` into mame.ini, or nothing for an option that
/// no control holds.
const OptionRow* RowOfIniOption(std::string_view option);

/// What the MAME Options page says of a MAME: how many options it knows, and each option
/// Coinlight writes that it lacks, with the setting that holds it, one a line.
std::string MameOptionsReport(const KnownMameOptions& known);

} // namespace coinlight
