#pragma once

#include <filesystem>
#include <string>

#include "core/Preferences.h"

namespace coinlight {

/// Writes every key the Options dialog owns, in its order: the BIOS and category filters
/// (each with its Total last), the other preferences, the executable, MAME's folder and the
/// search paths, the output folders and the filter flag of the view. Then the file is spaced.
/// Keys written by other routines are left as they stand.
bool WriteOptionsIni(const std::filesystem::path& file, const Preferences& preferences,
                     std::string* error = nullptr);

} // namespace coinlight
