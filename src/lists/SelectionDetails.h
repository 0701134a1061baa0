#pragma once

#include <array>
#include <filesystem>
#include <string>
#include <vector>

#include "MachineRow.h"

namespace coinlight {

/// Which list a selected row comes from, and so how much the details believe about it.
enum class DetailsSource { All, Available, Unavailable, Other, OtherUnavailable };

/// What the details do to cmdStart, its link and the four start check boxes.
enum class StartCommands { Leave, Enable, Disable };

/// What the details strip shows for a row: lblPanel(1) to lblPanel(6), and what becomes of
/// the start commands.
struct SelectionDetails {
    std::array<std::string, 7> panel; // index 0, the machine count, is the view's business
    StartCommands start = StartCommands::Leave;
};

/// "Raster Settings", "Vector Settings", "LCD Settings" or "Raster* Settings" from the first
/// letters of the Image(s) column; anything else keeps `current`.
std::string SettingsLabel(std::string_view images, std::string_view current);

/// The details of one row. `currentSettingsLabel` is what lblPanel(6) shows now;
/// `arcadeRomFolders` serve the file test of the All list, made at the moment of selection.
SelectionDetails DetailsOf(const MachineRow& row, DetailsSource source, bool mergedRomSets,
                           const std::vector<std::string>& arcadeRomFolders,
                           const std::filesystem::path& settingsFolder,
                           std::string_view currentSettingsLabel);

/// The name a machine's ROM file goes by: its own, or its parent's with merged sets.
std::string RomBaseName(std::string_view shortName, std::string_view setType, bool mergedRomSets);

/// `<folder>/<base>.7z` then `.zip` in each folder, tested on the disk now.
bool RomFileExists(std::string_view baseName, const std::vector<std::string>& folders);

} // namespace coinlight
