#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "PathField.h"

namespace coinlight {

struct OkPathsInput {
    std::string mamePath; // the executable's full path as typed
    PathTexts texts;
    const Preferences* previous = nullptr; // what the dialog was opened with
    std::filesystem::path iniFolder;       // Coinlight's temp folder, where mame.ini lives
    bool inOtherView = false;
};

/// The paths step of OK: every field checked in the order of the save, stopping at the
/// first failure. The messages are shown in order with the title "Options"; the texts are
/// what the page shows afterwards.
struct OkPathsResult {
    bool ok = false;
    std::vector<std::string> messages;
    std::string mamePath;
    PathTexts texts;
    std::optional<PathField> focusField; // none: the MAME path is at fault
    // Meaningful when ok:
    std::string executable; // the file name alone
    std::string mameFolder;
    PathTexts values; // the cleaned values to save, the Ini folder included
};

OkPathsResult CheckPathsForOk(const OkPathsInput& input);

/// Puts the checked values into the preferences: the executable, MAME's folder and every
/// folder field. Keys the dialog does not own keep what they held.
void TakeOverPaths(const OkPathsResult& result, Preferences& preferences);

} // namespace coinlight
