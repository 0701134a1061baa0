#include "lists/SelectionDetails.h"

#include <gtest/gtest.h>

#include "RecordBuilder.h"
#include "support/TestFiles.h"

namespace coinlight {
namespace {

using test::Record;
using test::Views;

MachineRow Row(const std::array<std::string, kRecordFieldCount>& record, bool available = true) {
    return MachineRow(Views(record), "", available);
}

TEST(SelectionDetails, TheStripShowsTheRowsColumnsAsDesigned) {
    test::TempFolder folder;
    const auto row = Row(Record("ddragon", {{ColMachine, "Tom & Jerry"},
                                            {ColRefreshRates, "60.000000, 50.000000"},
                                            {ColOrientations, "Vertical, Horizontal"},
                                            {ColSetType, "Clone of dd"},
                                            {ColImages, "Vector"}}));
    const auto details =
        DetailsOf(row, DetailsSource::Available, false, {}, folder.Path(), "Old Label");
    EXPECT_EQ(details.panel[1], "Tom & Jerry");
    EXPECT_EQ(details.panel[2], "ddragon");
    EXPECT_EQ(details.panel[3], "60.000000");
    EXPECT_EQ(details.panel[4], "V");
    EXPECT_EQ(details.panel[5], "C");
    EXPECT_EQ(details.panel[6], "Vector Settings");
    EXPECT_EQ(details.start, StartCommands::Enable);
    EXPECT_EQ(DetailsOf(Row(Record("x", {{ColOrientations, "N/A"}})), DetailsSource::Available,
                        false, {}, folder.Path(), "")
                  .panel[4],
              "U");
}

TEST(SelectionDetails, SettingsLabelFollowsTheDisplayTypeOrKeepsTheOldOne) {
    EXPECT_EQ(SettingsLabel("Raster, Raster", ""), "Raster Settings");
    EXPECT_EQ(SettingsLabel("LCD", ""), "LCD Settings");
    EXPECT_EQ(SettingsLabel("Unknown", ""), "Raster* Settings");
    EXPECT_EQ(SettingsLabel("SVG", "LCD Settings"), "LCD Settings");
}

TEST(SelectionDetails, TheAllListTestsTheFileAndACustomProfileWins) {
    test::TempFolder folder;
    const auto roms = folder / "roms";
    const auto settings = folder / "settings";
    std::filesystem::create_directories(roms);
    const auto row = Row(Record("pacman"));
    auto details = DetailsOf(row, DetailsSource::All, false, {roms.string()}, settings, "");
    EXPECT_EQ(details.panel[6], "Unavailable");
    EXPECT_EQ(details.start, StartCommands::Disable);
    test::WriteFile(roms / "pacman.zip", "x");
    details = DetailsOf(row, DetailsSource::All, false, {roms.string()}, settings, "");
    EXPECT_EQ(details.panel[6], "Raster Settings");
    EXPECT_EQ(details.start, StartCommands::Enable);
    test::WriteFile(settings / "pacman.cfg", "[x]");
    details = DetailsOf(row, DetailsSource::All, false, {roms.string()}, settings, "");
    EXPECT_EQ(details.panel[6], "Custom Settings");
    const auto noFiles = Row(Record("pong", {{ColRomRequired, "No"}}));
    EXPECT_EQ(DetailsOf(noFiles, DetailsSource::All, false, {}, settings, "").panel[6],
              "Raster Settings");
}

TEST(SelectionDetails, OtherRowsReadTheirSettingsOrUnavailable) {
    test::TempFolder folder;
    EXPECT_EQ(
        DetailsOf(Row(Record("a500")), DetailsSource::Other, false, {}, folder.Path(), "").panel[6],
        "Other Settings");
    const auto red = DetailsOf(Row(Record("a500"), false), DetailsSource::OtherUnavailable, false,
                               {}, folder.Path(), "");
    EXPECT_EQ(red.panel[6], "Unavailable");
    EXPECT_EQ(red.start, StartCommands::Leave);
}

TEST(SelectionDetails, MergedSetsLookForTheParent) {
    EXPECT_EQ(RomBaseName("mspacman", "Clone of pacman", true), "pacman");
    EXPECT_EQ(RomBaseName("mspacman", "Clone of pacman", false), "mspacman");
    EXPECT_EQ(RomBaseName("pacman", "Parent", true), "pacman");
}

} // namespace
} // namespace coinlight
