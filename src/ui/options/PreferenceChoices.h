#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

namespace coinlight {

/// The themes the user can choose, in the order they are offered.
inline constexpr std::array<std::string_view, 15> kThemeNames = {
    "Heritage", "Heritage II", "Amethyst", "Black",           "Bronze",
    "Emerald",  "Gold",        "Onyx",     "Pearl",           "Ruby",
    "Sapphire", "Silver",      "White",    "Windows 11 Dark", "Windows 11 Light",
};

inline constexpr std::array<std::string_view, 3> kSettingsLevelCaptions = {"Basic", "Standard",
                                                                           "Advanced"};

/// What each settings level offers, by its index.
std::string_view SettingsLevelText(int level);

/// The years a user may hide machines after: 1975 up to last year, rising.
std::vector<std::string> HideYears(int currentYear);

inline constexpr const char* kDepreciatedComboValue =
    "There was an error trying to set a depreciated value in a ComboBox.  Coinlight will resume "
    "without setting that ComboBox.";

} // namespace coinlight
