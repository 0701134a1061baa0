#pragma once

#include <array>
#include <cstddef>
#include <string>

#include "core/Preferences.h"

namespace coinlight {

/// The folder fields of the paths page, in the order they are checked and saved.
enum class PathField {
    ArcadeRoms,
    OtherRoms,
    Hash,
    Software,
    Samples,
    Artwork,
    Controller,
    Ini,
    Cheat,
    Plugins,
    Language,
    Cfg,
    Nvram,
    Input,
    State,
    Snapshot,
    Diff,
};
inline constexpr std::size_t kPathFieldCount = 17;

inline constexpr std::size_t IndexOf(PathField field) {
    return static_cast<std::size_t>(field);
}

/// How a field is checked when the user presses OK.
enum class PathRule {
    Required, // an existing folder must be named
    Optional, // may stay empty; a folder named must exist
    Output,   // MAME makes the folder itself: taken as it stands
    Fixed,    // always Coinlight's own temp folder, not the user's to choose
};

struct PathFieldInfo {
    PathField field = PathField::ArcadeRoms;
    std::string name;         // its key in options.ini, and the word the messages use
    const char* textBox = ""; // control names on the form
    const char* button = nullptr;
    PathRule rule = PathRule::Required;
    bool multi = false;        // several folders separated by ';'
    bool mayBeMissing = false; // a missing folder is accepted (cheats are optional)
    // Where the value lives in the preferences: one of the two is set.
    std::string SearchPathPreferences::*searchPath = nullptr;
    std::string OutputPathPreferences::*outputPath = nullptr;
};

/// All fields in PathField order.
const std::array<PathFieldInfo, kPathFieldCount>& PathFields();
const PathFieldInfo& InfoOf(PathField field);

/// The text of every folder field, as the page holds it.
struct PathTexts {
    std::array<std::string, kPathFieldCount> texts;

    std::string& operator[](PathField field) { return texts[IndexOf(field)]; }
    const std::string& operator[](PathField field) const { return texts[IndexOf(field)]; }
};

PathTexts TextsFrom(const Preferences& preferences);
/// Puts each field's text into its place in the preferences.
void StoreTexts(const PathTexts& texts, Preferences& preferences);

} // namespace coinlight
