#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

#include "InfoError.h"
#include "InfoSelection.h"

namespace coinlight {

/// Looks the machine up in a file of dollar records (command.dat, gameinit.dat,
/// mameinfo.dat, messinfo.dat) and appends the text of its first `$cmd` or `$mame` block,
/// or the not-found text, to `panel`. A record starts at a line that begins with `$info`.
std::optional<InfoError> SearchDollarRecords(const std::filesystem::path& file,
                                             const InfoSelection& selection, std::string& panel);

/// True when an `$info` line names the machine: the whole rest of the line, or one of its
/// comma-separated pieces exactly as it stands (" b" is not "b").
bool InfoLineNames(std::string_view line, std::string_view machine);

/// Undoes what reading UTF-8 as an 8-bit code page did to the box-drawing line, the em
/// dash and the copyright sign. It works on decoded characters, so text that was read
/// correctly is never touched.
void RepairDoubleDecoded(std::string& text);

} // namespace coinlight
