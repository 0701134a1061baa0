#include "PreferenceChoices.h"

namespace coinlight {

namespace {

constexpr int kFirstYear = 1975;

constexpr std::array<std::string_view, 3> kSettingsLevelTexts = {
    "You can set options for Raster, Vector, and LCD titles.  You can also set custom options "
    "for individual titles.",
    "You can set options for Raster Color, Raster Monochrome, Vector Color, Vector Monochrome "
    "and LCD titles.  You can also set custom options for individual titles.",
    "You can set options for Raster Color Horizontal, Raster Color Vertical, Raster Monochrome "
    "Horizontal, Raster Monochrome Vertical, Vector Color Horizontal, Vector Color Vertical, "
    "Vector Monochrome Horizontal, Vector Monochrome Vertical and LCD titles.  You can also set "
    "custom options for individual titles.",
};

} // namespace

std::string_view SettingsLevelText(int level) {
    if (level < 0 || level >= static_cast<int>(kSettingsLevelTexts.size())) {
        return {};
    }
    return kSettingsLevelTexts[static_cast<std::size_t>(level)];
}

std::vector<std::string> HideYears(int currentYear) {
    std::vector<std::string> years;
    for (int year = kFirstYear; year < currentYear; ++year) {
        years.push_back(std::to_string(year));
    }
    return years;
}

} // namespace coinlight
