#include "core/OptionsIni.h"

#include <gtest/gtest.h>

#include "support/TestFiles.h"

namespace coinlight {
namespace {

using test::ReadFile;
using test::TempFolder;
using test::WriteFile;

const char* const kFullOptions = "[Miscellaneous]\r\n"
                                 "Coinlight Version=26.02.0\r\n"
                                 "News=2026-01-02\r\n"
                                 "Auto Run=True\r\n"
                                 "Lists.txt Size=1234\r\n"
                                 "Catver.ini Size=0\r\n"
                                 "\r\n"
                                 "[MAME]\r\n"
                                 "Executable=mame\r\n"
                                 "Mame.exe Size=356894752\r\n"
                                 "\r\n"
                                 "[Preferences BIOS]\r\n"
                                 "Neo-Geo MV-6F: neogeo=True\r\n"
                                 "Total=1\r\n"
                                 "\r\n"
                                 "[Preferences Category]\r\n"
                                 "Casino=True\r\n"
                                 "Quiz / Korean=True\r\n"
                                 "Total=2\r\n"
                                 "\r\n"
                                 "[Preferences Other]\r\n"
                                 "Hide Arcade Clones=True\r\n"
                                 "Year=1985\r\n"
                                 "Settings Level=2\r\n"
                                 "Theme=Midnight\r\n"
                                 "List Back Color=-2147483643\r\n"
                                 "List Font Color=65280\r\n"
                                 "Use Links=False\r\n"
                                 "\r\n"
                                 "[Core Search Path Options]\r\n"
                                 "MAME=/usr/games\r\n"
                                 "Arcade ROMs=/home/me/roms;/mnt/more roms\r\n"
                                 "Crosshair=/home/me/crosshair\r\n"
                                 "\r\n"
                                 "[Core Output Directory Options]\r\n"
                                 "Cfg=/home/me/.mame/cfg\r\n"
                                 "\r\n"
                                 "[View]\r\n"
                                 "List View=Other Machines\r\n"
                                 "Filters=True\r\n"
                                 "Window State=2\r\n"
                                 "Available Key=k.pacman\r\n"
                                 "Available Sort Key=3\r\n"
                                 "Available Sort Order=1\r\n";

OptionsReadResult ReadText(const TempFolder& folder, const std::string& text,
                           Preferences& preferences) {
    const auto file = folder / "options.ini";
    WriteFile(file, text);
    return ReadOptionsIni(file, preferences);
}

std::string WithLine(std::string text, const std::string& find, const std::string& replace) {
    text.replace(text.find(find), find.size(), replace);
    return text;
}

TEST(OptionsIni, ReadsEverySectionIntoThePreferences) {
    TempFolder folder;
    Preferences preferences;
    ASSERT_EQ(ReadText(folder, kFullOptions, preferences).status, OptionsReadStatus::Ok);
    EXPECT_EQ(preferences.miscellaneous.coinlightVersion, "26.02.0");
    EXPECT_EQ(DayText(preferences.miscellaneous.news), "2026-01-02");
    EXPECT_TRUE(preferences.miscellaneous.autoRun);
    EXPECT_EQ(preferences.miscellaneous.listsTxtSize, 1234);
    EXPECT_EQ(preferences.mame.executable, "mame");
    EXPECT_EQ(preferences.mame.mameExeSize, 356894752);
    ASSERT_EQ(preferences.biosFilter.size(), 1u);
    EXPECT_EQ(preferences.biosFilter[0].name, "Neo-Geo MV-6F: neogeo");
    ASSERT_EQ(preferences.categoryFilter.size(), 2u);
    EXPECT_EQ(preferences.categoryFilter[1].name, "Quiz / Korean");
    EXPECT_TRUE(preferences.other.hideArcadeClones);
    EXPECT_FALSE(preferences.other.hideVs);
    EXPECT_EQ(preferences.other.year, "1985");
    EXPECT_EQ(preferences.other.settingsLevel, 2);
    EXPECT_EQ(preferences.other.theme, "Midnight");
    EXPECT_EQ(preferences.other.listBackColor, Colour{0x80000005u});
    EXPECT_EQ(preferences.other.listFontColor, Colour{0x00FF00u});
    EXPECT_FALSE(preferences.other.useLinks);
    EXPECT_EQ(preferences.searchPaths.arcadeRoms, "/home/me/roms;/mnt/more roms");
    EXPECT_EQ(preferences.searchPaths.crosshair, "/home/me/crosshair");
    EXPECT_EQ(preferences.outputPaths.cfg, "/home/me/.mame/cfg");
    EXPECT_EQ(preferences.view.listView, "Other Machines");
    EXPECT_TRUE(preferences.view.filters);
    EXPECT_EQ(preferences.view.windowState, 2);
    EXPECT_EQ(preferences.view.available.key, "k.pacman");
    EXPECT_EQ(preferences.view.available.sortKey, 3);
    EXPECT_EQ(preferences.view.available.sortOrder, 1);
    EXPECT_TRUE(CheckFilters(preferences));
}

TEST(OptionsIni, AbsentKeysKeepTheirDefaults) {
    TempFolder folder;
    Preferences preferences;
    ASSERT_EQ(
        ReadText(folder, "[Miscellaneous]\r\nCoinlight Version=26.01.0\r\n", preferences).status,
        OptionsReadStatus::Ok);
    EXPECT_EQ(preferences.other.theme, "Heritage");
    EXPECT_TRUE(preferences.other.useLinks);
    EXPECT_EQ(preferences.other.gradientColor, Colour{0x80000010u});
    EXPECT_EQ(preferences.view.listView, "All Arcade Machines");
    EXPECT_EQ(preferences.mame.mameExeSize, 0);
    EXPECT_EQ(preferences.miscellaneous.news, YearsBefore(Today(), 5));
    EXPECT_TRUE(preferences.biosFilter.empty());
    EXPECT_FALSE(CheckFilters(preferences));
}

TEST(OptionsIni, VersionCheckRefusesFilesOlderThan2601) {
    TempFolder folder;
    Preferences preferences;
    const std::string old = WithLine(kFullOptions, "26.02.0", "26.00.9");
    EXPECT_EQ(ReadText(folder, old, preferences).status, OptionsReadStatus::VersionTooOld);
    const std::string accepted = WithLine(kFullOptions, "26.02.0", "26.01.0");
    EXPECT_EQ(ReadText(folder, accepted, preferences).status, OptionsReadStatus::Ok);
    const std::string none = WithLine(kFullOptions, "Coinlight Version=26.02.0\r\n", "");
    EXPECT_EQ(ReadText(folder, none, preferences).status, OptionsReadStatus::VersionTooOld);
    const std::string word = WithLine(kFullOptions, "26.02.0", "latest");
    EXPECT_EQ(ReadText(folder, word, preferences).status, OptionsReadStatus::Problem);
}

TEST(OptionsIni, AValueThatDoesNotConvertIsAProblem) {
    TempFolder folder;
    for (const auto& [find, replace] : std::vector<std::pair<std::string, std::string>>{
             {"Auto Run=True", "Auto Run=perhaps"},
             {"Settings Level=2", "Settings Level=two"},
             {"News=2026-01-02", "News=someday"},
             {"List Font Color=65280", "List Font Color=green"},
             {"Window State=2", "Window State=99999"},
         }) {
        Preferences preferences;
        const auto result = ReadText(folder, WithLine(kFullOptions, find, replace), preferences);
        EXPECT_EQ(result.status, OptionsReadStatus::Problem) << replace;
        EXPECT_FALSE(result.detail.empty());
    }
}

TEST(OptionsIni, TotalIsTrustedOverTheLinesThatFollowTheHeader) {
    TempFolder folder;
    Preferences preferences;
    // One entry but a Total of 2: the Total line itself is taken as the second entry.
    const std::string shortList = WithLine(kFullOptions, "Total=1", "Total=2");
    ASSERT_EQ(ReadText(folder, shortList, preferences).status, OptionsReadStatus::Ok);
    ASSERT_EQ(preferences.biosFilter.size(), 2u);
    EXPECT_EQ(preferences.biosFilter[1].name, "Total");
    EXPECT_TRUE(preferences.biosFilter[1].ticked);
}

TEST(OptionsIni, BrokenFilterListsAreProblems) {
    TempFolder folder;
    const std::vector<std::pair<std::string, std::string>> breaks = {
        {"Neo-Geo MV-6F: neogeo=True", "Neo-Geo MV-6F: neogeo"}, // an entry without '='
        {"Neo-Geo MV-6F: neogeo=True", "Neo=Geo: neogeo=True"},  // '=' inside the name
        {"Total=1", "Total=-1"},
        {"Total=1", "Total=lots"},
        {"[Preferences BIOS]\r\n", "[preferences bios]\r\n"}, // the header line must match
    };
    for (const auto& [find, replace] : breaks) {
        Preferences preferences;
        EXPECT_EQ(ReadText(folder, WithLine(kFullOptions, find, replace), preferences).status,
                  OptionsReadStatus::Problem)
            << replace;
    }
    Preferences preferences;
    const std::string tooMany = WithLine(kFullOptions, "Total=2", "Total=200");
    EXPECT_EQ(ReadText(folder, tooMany, preferences).status, OptionsReadStatus::Problem)
        << "a list that runs past the end of the file";
}

TEST(OptionsIni, TruncatedAndBinaryFilesNeverCrash) {
    TempFolder folder;
    const std::string full = kFullOptions;
    const std::size_t versionEnd = full.find("News=");
    for (std::size_t cut = 0; cut < full.size(); cut += 7) {
        Preferences preferences;
        const auto result = ReadText(folder, full.substr(0, cut), preferences);
        if (cut < versionEnd - 2) {
            EXPECT_NE(result.status, OptionsReadStatus::Ok) << "cut at " << cut;
        }
    }
    std::string garbage;
    for (int i = 0; i < 3000; ++i) {
        garbage.push_back(static_cast<char>((i * 97 + 13) & 0xFF));
    }
    Preferences preferences;
    EXPECT_NE(ReadText(folder, garbage, preferences).status, OptionsReadStatus::Ok);
}

TEST(OptionsIni, FilterListsRoundTripWithTotalLast) {
    TempFolder folder;
    const auto file = folder / "options.ini";
    WriteFile(file, kFullOptions);
    const std::vector<FilterEntry> entries = {{"Mahjong", true}, {"Shooter / Flying", true}};
    ASSERT_TRUE(WriteFilterList(file, "Preferences Category", entries));
    std::vector<FilterEntry> back;
    ASSERT_EQ(ReadFilterList(file, "Preferences Category", back).status, OptionsReadStatus::Ok);
    EXPECT_EQ(back, entries);
    const std::string text = ReadFile(file);
    EXPECT_NE(text.find("[Preferences Category]\r\nMahjong=True\r\nShooter / Flying=True\r\n"
                        "Total=2\r\n\r\n[Preferences Other]"),
              std::string::npos);
    ASSERT_TRUE(WriteFilterList(file, "Preferences Category", {}));
    ASSERT_EQ(ReadFilterList(file, "Preferences Category", back).status, OptionsReadStatus::Ok);
    EXPECT_TRUE(back.empty());
}

TEST(OptionsIni, SaveViewStateWritesItsKeysInOrder) {
    TempFolder folder;
    const auto file = folder / "options.ini";
    WriteFile(file, "[Miscellaneous]\r\nCoinlight Version=26.02.0\r\n");
    Preferences preferences;
    preferences.miscellaneous.autoRun = true;
    preferences.view.listView = "Available Arcade Machines";
    preferences.view.filters = true; // not the view state's to write
    preferences.view.windowState = 2;
    preferences.view.all = {"k.pacman", 1, 0};
    preferences.view.other = {"", 0, 1};
    ASSERT_TRUE(SaveViewState(file, preferences));
    EXPECT_EQ(ReadFile(file), "[Miscellaneous]\r\n"
                              "Coinlight Version=26.02.0\r\n"
                              "Auto Run=True\r\n"
                              "\r\n"
                              "[View]\r\n"
                              "List View=Available Arcade Machines\r\n"
                              "Snapshots=False\r\n"
                              "Favorite Arcade=False\r\n"
                              "Favorite Other=False\r\n"
                              "Window State=2\r\n"
                              "All Key=k.pacman\r\n"
                              "All Sort Key=1\r\n"
                              "All Sort Order=0\r\n"
                              "Available Key=\r\n"
                              "Available Sort Key=0\r\n"
                              "Available Sort Order=0\r\n"
                              "Unavailable Key=\r\n"
                              "Unavailable Sort Key=0\r\n"
                              "Unavailable Sort Order=0\r\n"
                              "Other Machine Key=\r\n"
                              "Other Machine Sort Key=0\r\n"
                              "Other Machine Sort Order=1\r\n");
    Preferences back;
    ASSERT_EQ(ReadOptionsIni(file, back).status, OptionsReadStatus::Ok);
    EXPECT_EQ(back.view.all.key, "k.pacman");
    EXPECT_EQ(back.view.other.sortOrder, 1);
}

TEST(OptionsIni, DiscardDeletesTheFileAndForgetsWhatWasRead) {
    TempFolder folder;
    const auto file = folder / "options.ini";
    Preferences preferences;
    ASSERT_EQ(ReadText(folder, kFullOptions, preferences).status, OptionsReadStatus::Ok);
    DiscardOptions(file, preferences);
    EXPECT_FALSE(std::filesystem::exists(file));
    EXPECT_TRUE(preferences.searchPaths.arcadeRoms.empty());
    EXPECT_TRUE(preferences.biosFilter.empty());
    EXPECT_EQ(preferences.other.theme, "Heritage");
}

} // namespace
} // namespace coinlight
