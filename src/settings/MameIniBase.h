#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "StartBoxes.h"
#include "core/Preferences.h"
#include "core/UserMessage.h"

namespace coinlight {

/// The software list of the Other Machines view, as far as the snapshot name cares.
enum class SoftwareListState {
    Empty,        // no titles listed
    Selected,     // a title is selected
    NoneSelected, // titles listed, none selected: no snapshot name can be given
};

/// What the base text of mame.ini depends on besides the paths of options.ini.
struct MameIniBase {
    bool otherView = false;
    std::string machine; // the machine on show: names the .inp file of record and playback
    StartBoxes boxes;
    SoftwareListState software = SoftwareListState::Empty;
    std::string selectedParts; // the selected title's part names, "Flop1;Flop2"
};

/// <Ini>/mame.ini; empty when options.ini names no Ini folder.
std::filesystem::path MameIniFile(const Preferences& preferences);

/// The folders, state and playback options that every start gets.
std::vector<std::string> MameIniBaseLines(const Preferences& preferences, const MameIniBase& base);

/// Replaces mame.ini with its base text, dropping any profile a start had added. On failure,
/// the error box to show; the caller then sets FatalErrorFlag and stops.
std::optional<UserMessage> CreateMAMEIni(const Preferences& preferences, const MameIniBase& base);

} // namespace coinlight
