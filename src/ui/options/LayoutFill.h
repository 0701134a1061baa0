#pragma once

#include <filesystem>

#include "MameLocations.h"
#include "PathField.h"

namespace coinlight {

/// Which of the two folder layouts the fill follows.
enum class FolderLayout {
    BesideMame,   // every folder under MAME's own folder, the way a MAME download is unpacked
    Distribution, // a packaged MAME: shared data and the user's .mame folder
};

/// BesideMame when MAME's folder holds any of that layout's sub-folders.
FolderLayout ChooseLayout(const std::filesystem::path& mameFolder);

/// Fills every empty field from the chosen layout and leaves the others alone. A field
/// whose folder is optional is filled only when the folder exists; the required ones and
/// the output folders are filled either way. The extra folders (bios, device, cabinet) are
/// appended when they exist.
FolderLayout FillFromLayout(const std::filesystem::path& mameFolder, const MameLocations& locations,
                            PathTexts& texts);

/// A packaged MAME keeps ROMs in the user's own .mame folder, which MAME makes only for
/// what it writes. When a ROM or software field names that ROM folder and it is missing,
/// it is made, so that a first run can be accepted as filled. Fields are never touched.
void PrepareUserRomFolder(const MameLocations& locations, const PathTexts& texts);

} // namespace coinlight
