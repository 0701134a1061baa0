#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "core/Preferences.h"

namespace coinlight {

/// One mode of a screen, as the resolution list offers it.
struct DisplayMode {
    int width = 0;
    int height = 0;
    int refreshRate = 0;
};

/// What the system lends to the lists that are not fixed.
struct ComboSources {
    std::vector<std::string> artworkFolders; // the effects are the pictures found there
    std::filesystem::path controllerFolder;  // controller configurations (*.cfg)
    std::filesystem::path languageFolder;    // one folder per language
    std::vector<std::string> fonts;          // the fonts the system has
    unsigned processors = 0;                 // hardware threads
    int monitors = 0;
    std::vector<DisplayMode> displayModes;
};

/// The sources that come from the preferences and the processor count; the fonts and the
/// screens are the window system's to add.
ComboSources PreferenceComboSources(const SearchPathPreferences& paths);

/// The items of a drop-down of the settings screens, by its control name ("cboSpeed",
/// "cboInputDev(3)"). Empty for a name that is no drop-down of the option catalogue.
std::vector<std::string> ComboItems(std::string_view control, const ComboSources& sources);

/// `from`, then `from + step` and so on while the sum stays within `limit`, each written
/// with `decimals` decimals. The sum is kept in single precision as the lists always have
/// been: its rounding decides whether the limit itself is reached.
std::vector<std::string> SingleSteps(float from, float limit, float step, int decimals);

} // namespace coinlight
