#include <gtest/gtest.h>

#include "ui/options/PreferenceChoices.h"
#include "ui/options/PreferencePresets.h"

namespace coinlight {
namespace {

TEST(Presets, DefaultsPutBackTheLookAndClearEverySwitch) {
    OtherPreferences other;
    other.hideArcadeClones = other.hideChd = other.listGridlines = other.deleteCfg = true;
    other.useLinks = false;
    other.theme = "Onyx";
    other.settingsLevel = 2;
    other.listFontColor = Colour{0x123456};
    other.year = "1984";
    other.cloneShots = true;
    other.gradientColor = Colour{0x80000002u};
    ResetOtherPreferences(other);
    EXPECT_FALSE(other.hideArcadeClones || other.hideChd || other.listGridlines || other.deleteCfg);
    EXPECT_TRUE(other.useLinks);
    EXPECT_EQ(other.theme, "Heritage");
    EXPECT_EQ(other.settingsLevel, 0);
    EXPECT_EQ(other.listFontColor, Colour{0xFFFFFF});
    EXPECT_EQ(other.year, "1984") << "not the reset's business";
    EXPECT_TRUE(other.cloneShots);
    EXPECT_EQ(other.gradientColor, Colour{0x80000002u});
}

TEST(Presets, MyDefaultsPickTheirRowsWithTheirExceptions) {
    EXPECT_TRUE(MyDefaultsSelectsBios("Hide PlayChoice-10 Machines: Playch10"));
    EXPECT_FALSE(MyDefaultsSelectsBios("Hide Sega ST-V Machines: Stvbios"));
    EXPECT_TRUE(MyDefaultsSelectsCategory("Hide Tabletop / Mahjong Systems"));
    EXPECT_FALSE(MyDefaultsSelectsCategory("Hide Tabletop / Shanghai Systems"));
    EXPECT_TRUE(MyDefaultsSelectsCategory("Hide Quiz / Music Systems"));
    EXPECT_FALSE(MyDefaultsSelectsCategory("Hide Quiz / Hangman Systems"));
    EXPECT_FALSE(MyDefaultsSelectsCategory("Hide Quiz / Japanese In English Systems"));
    EXPECT_TRUE(MyDefaultsSelectsCategory("Hide Electromechanical / Pinball Systems"));
    EXPECT_FALSE(MyDefaultsSelectsCategory("Hide Maze / Collect Systems"));

    OtherPreferences other;
    other.hideImperfect = true;
    other.listFontColor = Colour{0x00FF00};
    ApplyMyDefaults(other, false);
    EXPECT_TRUE(other.hideArcadeClones && other.hideYear && other.hideChd);
    EXPECT_FALSE(other.hideOtherClones || other.hideImperfect);
    EXPECT_EQ(other.year, "1990");
    EXPECT_EQ(other.settingsLevel, 1);
    EXPECT_EQ(other.theme, "Windows 11 Light");
    EXPECT_EQ(other.listFontColor, Colour{0x00FF00}) << "the preset leaves the text colour";
    ApplyMyDefaults(other, true);
    EXPECT_EQ(other.theme, "Heritage II");
}

TEST(Choices, YearsRunFrom1975ToLastYear) {
    const auto years = HideYears(2026);
    ASSERT_EQ(years.size(), 51u);
    EXPECT_EQ(years.front(), "1975");
    EXPECT_EQ(years.back(), "2025");
    EXPECT_TRUE(SettingsLevelText(1).starts_with("You can set options for Raster Color,"));
    EXPECT_TRUE(SettingsLevelText(3).empty());
}

} // namespace
} // namespace coinlight
