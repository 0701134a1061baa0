#include "ui/options/OptionsWriter.h"

#include <gtest/gtest.h>

#include "core/OptionsIni.h"
#include "core/TextFile.h"
#include "support/TestFiles.h"
#include "ui/options/OptionsOutcome.h"

namespace coinlight {
namespace {

using test::ReadFile;
using test::TempFolder;
using test::WriteFile;

using Lines = std::vector<std::string>;

/// The keys of one section in file order.
Lines KeysOf(const Lines& lines, const std::string& section) {
    Lines keys;
    bool inside = false;
    for (const std::string& line : lines) {
        if (line.starts_with('[')) {
            inside = line == "[" + section + "]";
        } else if (inside && !line.empty()) {
            keys.push_back(line.substr(0, line.find('=')));
        }
    }
    return keys;
}

Preferences Chosen() {
    Preferences preferences;
    preferences.biosFilter = {{"Neo-Geo Machines: Neogeo", true}};
    preferences.categoryFilter = {{"Maze / Collect", true}, {"Quiz / Music", true}};
    preferences.other.hideVs = true;
    preferences.other.year = "1990";
    preferences.mame.executable = "mame";
    preferences.searchPaths.mame = "/opt/My MAME";
    preferences.searchPaths.arcadeRoms = "/opt/My MAME/roms;/srv/ROMs";
    preferences.searchPaths.crosshair = "/never/written";
    preferences.outputPaths.diff = "/opt/My MAME/diff";
    preferences.view.filters = true;
    preferences.view.listView = "Other Machines"; // the view's own, not the dialog's
    return preferences;
}

TEST(OptionsWriter, AFreshFileHoldsTheDialogsSectionsAndOnlyItsKeys) {
    TempFolder folder;
    const auto file = folder / "options.ini";
    ASSERT_TRUE(WriteOptionsIni(file, Chosen()));
    const Lines lines = *ReadTextLines(file);
    Lines headers;
    for (const std::string& line : lines) {
        if (line.starts_with('[')) {
            headers.push_back(line);
        }
    }
    EXPECT_EQ(headers, (Lines{"[Preferences BIOS]", "[Preferences Category]", "[Preferences Other]",
                              "[MAME]", "[Core Search Path Options]",
                              "[Core Output Directory Options]", "[View]"}));
    EXPECT_EQ(KeysOf(lines, "Preferences Category"),
              (Lines{"Maze / Collect", "Quiz / Music", "Total"}));
    EXPECT_EQ(KeysOf(lines, "Core Search Path Options"),
              (Lines{"MAME", "Arcade ROMs", "Other ROMs", "Hash", "Software", "Samples", "Artwork",
                     "Controller", "Ini", "Cheat", "Plugins", "Language"}));
    EXPECT_EQ(KeysOf(lines, "View"), (Lines{"Filters"}));
    // Every switch and choice of the preferences page, and every output folder, is saved.
    EXPECT_EQ(KeysOf(lines, "Preferences Other").size(), 20u);
    EXPECT_EQ(KeysOf(lines, "Core Output Directory Options").size(), 6u);
    EXPECT_NE(ReadFile(file).find("\r\n\r\n[MAME]\r\n"), std::string::npos) << "spaced, CR LF";
}

TEST(OptionsWriter, WhatOthersWroteStaysAndTheReaderGetsBackWhatWasWritten) {
    TempFolder folder;
    const auto file = folder / "options.ini";
    WriteFile(file, "[Miscellaneous]\r\nCoinlight Version=26.02.0\r\n\r\n"
                    "[Preferences Category]\r\nOld One=True\r\nOld Two=True\r\nTotal=2\r\n\r\n"
                    "[MAME]\r\nMame.exe Size=1234\r\n\r\n"
                    "[Core Search Path Options]\r\nCrosshair=/my/crosshairs\r\n");
    ASSERT_TRUE(WriteOptionsIni(file, Chosen()));
    Preferences read;
    ASSERT_EQ(ReadOptionsIni(file, read).status, OptionsReadStatus::Ok);
    const Preferences chosen = Chosen();
    EXPECT_EQ(read.biosFilter, chosen.biosFilter);
    EXPECT_EQ(read.categoryFilter, chosen.categoryFilter) << "the old entries are gone";
    EXPECT_EQ(read.searchPaths.arcadeRoms, chosen.searchPaths.arcadeRoms);
    EXPECT_EQ(read.searchPaths.mame, "/opt/My MAME");
    EXPECT_EQ(read.searchPaths.crosshair, "/my/crosshairs");
    EXPECT_EQ(read.mame.mameExeSize, 1234);
    EXPECT_EQ(read.other.year, "1990");
    EXPECT_TRUE(read.other.hideVs);
    EXPECT_TRUE(read.view.filters);
    EXPECT_EQ(read.view.listView, "All Arcade Machines") << "not the dialog's to write";
}

TEST(OptionsOutcome, TellsWhichKindOfChangeWasMade) {
    const Preferences before = Chosen();
    EXPECT_EQ(CompareOptions(before, before).filtersChanged, false);
    Preferences after = before;
    after.other.cloneShots = true;
    const OptionsOutcome unrelated = CompareOptions(before, after);
    EXPECT_TRUE(unrelated.accepted);
    EXPECT_FALSE(unrelated.filtersChanged || unrelated.pathsChanged || unrelated.lookChanged);

    after.other.mergedRomSets = true;
    after.searchPaths.software = "/srv/software";
    after.other.theme = "Onyx";
    const OptionsOutcome changed = CompareOptions(before, after);
    EXPECT_TRUE(changed.filtersChanged) << "merged sets change what is available";
    EXPECT_TRUE(changed.softwarePathChanged);
    EXPECT_TRUE(changed.pathsChanged);
    EXPECT_TRUE(changed.lookChanged);

    Preferences executable = before;
    executable.mame.executable = "mame0251";
    EXPECT_TRUE(CompareOptions(before, executable).pathsChanged);
    EXPECT_FALSE(CompareOptions(before, executable).softwarePathChanged);
}

} // namespace
} // namespace coinlight
