#pragma once

#include <cstddef>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

#include "core/Preferences.h"
#include "core/UserMessage.h"

namespace coinlight {

/// A mame.ini of fewer lines carries no profile: only its base text.
inline constexpr std::size_t kProfiledMameIniLines = 100;

/// The *.ini files in the Ini folder. MAME reads them all, so any beside mame.ini can
/// override what Coinlight wrote.
std::size_t CountIniFiles(const std::filesystem::path& iniFolder);

/// The words about stray ini files, shared by the warning before a start and the preview.
std::string StrayIniText(std::size_t count);

/// The warning before a start when the Ini folder holds more than mame.ini.
std::optional<UserMessage> StrayIniWarning(const std::filesystem::path& iniFolder);

/// The page that shows the mame.ini a machine would get.
struct MameIniPreview {
    std::string caption; // "MAME.Ini"
    std::string text;    // the notes, then the file, lines ended by LF
};

/// Made while mame.ini still holds the profile the preview built; `commandString` is the
/// profile's "Other Commands". The caller then writes the base text back.
MameIniPreview PreviewMameIni(const Preferences& preferences, std::string_view commandString);

} // namespace coinlight
