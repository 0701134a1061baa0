#pragma once

#include <string>
#include <vector>

#include "ValueText.h"

namespace coinlight {

/// One line of a filter list: a BIOS ("Description: shortname") or a category.
struct FilterEntry {
    std::string name;
    bool ticked = false;
    bool operator==(const FilterEntry&) const = default;
};

struct MiscellaneousPreferences {
    std::string coinlightVersion = "0";
    Day news = YearsBefore(Today(), 5);
    bool autoRun = false;
    long long listsTxtSize = 0;
    long long catverIniSize = 0;
};

struct MamePreferences {
    std::string executable;
    long long mameExeSize = 0;
};

struct OtherPreferences {
    bool hideArcadeClones = false;
    bool hideOtherClones = false;
    bool hidePreliminary = false;
    bool hideVs = false;
    bool hideYear = false;
    bool hideBootleg = false;
    bool hideChd = false;
    bool hideImperfect = false;
    std::string year;
    int settingsLevel = 0;
    std::string theme = "Heritage";
    Colour listBackColor{0x80000005u};
    Colour listFontColor{0xFFFFFFu};
    std::string listFontSize = "10";
    bool listGridlines = false;
    std::string guiFont = "Verdana";
    bool useLinks = true;
    Colour gradientColor{0x80000010u};
    bool cloneShots = false;
    bool mergedRomSets = false;
    bool deleteCfg = false;
};

struct SearchPathPreferences {
    std::string mame;
    std::string arcadeRoms; // may hold several folders separated by ';'
    std::string otherRoms;  // many
    std::string hash;
    std::string software; // many
    std::string samples;
    std::string artwork; // many
    std::string controller;
    std::string ini;
    std::string cheat;
    std::string crosshair;
    std::string plugins;
    std::string language;
};

struct OutputPathPreferences {
    std::string cfg;
    std::string nvram;
    std::string input;
    std::string state;
    std::string snapshot;
    std::string diff;
};

/// Selection and sort of one list, as saved at exit.
struct ListState {
    std::string key; // "k." and the short name of the selected row
    int sortKey = 0;
    int sortOrder = 0; // 0 ascending, 1 descending
};

struct ViewPreferences {
    std::string listView = "All Arcade Machines";
    bool filters = false;
    bool snapshots = false;
    bool favoriteArcade = false;
    bool favoriteOther = false;
    int windowState = 0;
    ListState all;
    ListState available;
    ListState unavailable;
    ListState other;
};

/// Everything options.ini holds, read at start and handed around by reference.
struct Preferences {
    MiscellaneousPreferences miscellaneous;
    MamePreferences mame;
    std::vector<FilterEntry> biosFilter;
    std::vector<FilterEntry> categoryFilter;
    OtherPreferences other;
    SearchPathPreferences searchPaths;
    OutputPathPreferences outputPaths;
    ViewPreferences view;
};

/// True when any filter hides machines: a ticked BIOS or category, or any Hide switch.
bool CheckFilters(const Preferences& preferences);

} // namespace coinlight
