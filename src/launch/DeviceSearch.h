#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace coinlight {

/// The media switch a software title is started with, without its "-": "cdrm" for a title
/// with a disk, otherwise the first of the machine's devices (brief names as the catalogue
/// lists them) that holds the title's first part name, lower-cased, either whole or
/// without its last character. The device text itself is not lowered for the search, only
/// for the result. Nothing when no device holds it.
///
/// The cut is what lets part "flop1" find device "flop2" on a machine with one drive, and
/// part "cart" find "cart1"; a one-letter part cuts to nothing, which every device holds.
std::optional<std::string> FindDeviceSwitch(const std::vector<std::string>& devices,
                                            std::string_view firstPart, bool diskTitle);

} // namespace coinlight
