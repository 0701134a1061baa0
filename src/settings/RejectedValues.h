#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace coinlight {

/// A value of mame.ini that MAME refused and replaced by its default, as its error output
/// tells it: `Illegal float value for speed: "abc"; reverting to 1.0`, or
/// `Out-of-range integer value for numscreens: "9" (...); reverting to 1`.
struct RejectedValue {
    std::string option;       // as MAME names it
    std::string_view key;     // the profile key of the control that holds it ("Speed")
    std::string_view control; // that control ("cboSpeed"); empty when no control does
};

/// The rejection one line of MAME's error output tells, or nothing.
std::optional<RejectedValue> RejectedValueOf(std::string_view line);

/// MAME's error output with the settings control that holds the option named at the end of
/// each line that rejects a value: `... reverting to 1.0  <- Speed (cboSpeed)`. Every byte
/// MAME wrote stays where it was.
std::string NameRejectingControls(std::string_view errorOutput);

} // namespace coinlight
