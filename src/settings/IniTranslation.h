#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "OptionCatalogue.h"

namespace coinlight {

/// Appends the mame.ini lines that a profile value of `row` gives, by the row's rule. Most
/// rows give one line; Frame Skip gives two, Roll four and Flip two, or none for a word they
/// do not know. Returns why the value cannot be written (a speed that is no number).
std::optional<std::string> AppendOptionLines(const OptionRow& row, std::string_view value,
                                             std::vector<std::string>& lines);

/// A number divided by 100 with two decimals, rounded half away from zero: "150" gives
/// "1.50", "33.5" gives "0.34". Nothing for a text that is not a number.
std::optional<std::string> HundredthsText(std::string_view number);

} // namespace coinlight
