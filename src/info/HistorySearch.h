#pragma once

#include <filesystem>
#include <optional>
#include <string>

#include "InfoError.h"
#include "InfoSelection.h"

namespace coinlight {

/// Looks the selection up in history.xml and appends what it finds, or the not-found text,
/// to `panel`. The file is read once from the top for the machine and, in the Other view
/// with a title chosen, once more for the software. The matching is done on lines, not on
/// XML: a `<system name="...">` line finds the machine, the lines between a line ending in
/// `<text>` and the next ending in `</text>` are its text.
std::optional<InfoError> SearchHistory(const std::filesystem::path& file,
                                       const InfoSelection& selection, std::string& panel);

} // namespace coinlight
