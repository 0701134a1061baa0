#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "OptionValues.h"
#include "core/DataLayout.h"
#include "core/UserMessage.h"

namespace coinlight {

inline constexpr std::string_view kCustomSettingsCaption = "Custom Settings";

/// What a settings screen is about: the page's caption (the screen's name or "Custom
/// Settings"), the class profile in force, and the machine selected when it opened.
struct SettingsScreenFacts {
    std::string caption;
    std::string profileName;
    std::string selectedMachine;
    std::string displayType; // "Raster", "Vector", "LCD", "N/A" or "Other"

    bool Custom() const { return caption == kCustomSettingsCaption; }
};

struct SettingsOkOutcome {
    std::filesystem::path currentProfile; // the file the save used (CurrentProfilePath)
    std::optional<std::string> panelText; // the new words of the settings status panel
    std::vector<UserMessage> messages;    // failures to show
};

/// OK on a settings screen. A class profile equal to MAME's defaults is not kept; a
/// machine's own profile is saved and then dropped again when it says nothing its class
/// profile (or, without one, the defaults) does not. `values` are the screen's; they come
/// back cleaned as saved.
SettingsOkOutcome SettingsOk(const DataLayout& data, const SettingsScreenFacts& facts,
                             OptionValues& values);

/// The file Restore reloads: the class profile on a machine's own screen when both files
/// exist; nothing when the screen goes back to the defaults instead.
std::optional<std::filesystem::path> RestoreSource(const DataLayout& data,
                                                   const SettingsScreenFacts& facts);

/// The class profile of a screen: "other" for other machines, which share one, else the
/// class profile in force.
std::string ClassProfileName(const SettingsScreenFacts& facts);

} // namespace coinlight
