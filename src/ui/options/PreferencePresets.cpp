#include "PreferencePresets.h"

#include <algorithm>
#include <array>
#include <string>

#include "core/TextCase.h"

namespace coinlight {

namespace {

constexpr std::array<std::string_view, 3> kMyBiosRows = {
    "Hide Max-A-Flex Machines: Maxaflex",
    "Hide Neo-Geo MV-6F Machines: Neogeo",
    "Hide PlayChoice-10 Machines: Playch10",
};

// A category row is chosen when, in lower case, it holds one of these words...
constexpr std::array<std::string_view, 20> kMyCategoryWords = {
    "telephone",    "gambling",     "hide quiz",         "hide tabletop",     "hide utilities",
    "hide medal",   "hide pinball", "digital simulator", "redemption",        "graphic workstation",
    "printer /",    "calculator /", "hide slot",         "touchscreen",       "hide casino",
    "simulation /", "player /",     "tablet /",          "electromechanical", "medical",
};
// ...and none of these.
constexpr std::array<std::string_view, 3> kMyCategoryExceptions = {"tabletop / shanghai",
                                                                   "in english", "quiz / hangman"};

struct SwitchSetting {
    bool OtherPreferences::*field;
    bool on;
};
constexpr std::array<SwitchSetting, 11> kMySwitches = {{
    {&OtherPreferences::hideArcadeClones, true},
    {&OtherPreferences::hideOtherClones, false},
    {&OtherPreferences::hidePreliminary, true},
    {&OtherPreferences::hideVs, true},
    {&OtherPreferences::hideYear, true},
    {&OtherPreferences::hideBootleg, true},
    {&OtherPreferences::hideChd, true},
    {&OtherPreferences::hideImperfect, false},
    {&OtherPreferences::listGridlines, false},
    {&OtherPreferences::mergedRomSets, false},
    {&OtherPreferences::deleteCfg, false},
}};
constexpr const char* kMyYear = "1990";
constexpr int kMySettingsLevel = 1;
constexpr const char* kMyTheme = "Windows 11 Light";
constexpr const char* kMyDevelopmentTheme = "Heritage II";

template <std::size_t N>
bool HoldsAny(const std::string& text, const std::array<std::string_view, N>& words) {
    return std::any_of(words.begin(), words.end(),
                       [&](std::string_view word) { return text.find(word) != text.npos; });
}

} // namespace

void ResetOtherPreferences(OtherPreferences& other) {
    OtherPreferences reset;
    reset.year = other.year;
    reset.cloneShots = other.cloneShots;
    reset.gradientColor = other.gradientColor; // chosen elsewhere, not a preference of this page
    other = reset;
}

bool MyDefaultsSelectsBios(std::string_view row) {
    return std::find(kMyBiosRows.begin(), kMyBiosRows.end(), row) != kMyBiosRows.end();
}

bool MyDefaultsSelectsCategory(std::string_view row) {
    const std::string lower = ToLowerAscii(row);
    return HoldsAny(lower, kMyCategoryWords) && !HoldsAny(lower, kMyCategoryExceptions);
}

void ApplyMyDefaults(OtherPreferences& other, bool ideMode) {
    const OtherPreferences defaults;
    for (const SwitchSetting& setting : kMySwitches) {
        other.*setting.field = setting.on;
    }
    other.year = kMyYear;
    other.settingsLevel = kMySettingsLevel;
    other.listBackColor = defaults.listBackColor;
    other.listFontSize = defaults.listFontSize;
    other.guiFont = defaults.guiFont;
    other.useLinks = true;
    other.theme = ideMode ? kMyDevelopmentTheme : kMyTheme;
}

} // namespace coinlight
