#include "ui/options/FilterRows.h"

#include <gtest/gtest.h>

#include "support/TestFiles.h"
#include "ui/options/CategoryRowsCache.h"

namespace coinlight {
namespace {

using test::FixturesFolder;
using test::TempFolder;
using test::WriteFile;

using Rows = std::vector<std::string>;

TEST(CategoryRows, EachCategoryOnceSortedWithoutBiosDevicesOrUnknowns) {
    const auto read = ReadCategoryRows(FixturesFolder() / "options" / "catver.ini");
    ASSERT_TRUE(read);
    EXPECT_FALSE(read->badLineNumber);
    EXPECT_EQ(read->rows, (Rows{
                              "Hide Calculator / Pocket Systems",
                              "Hide Maze / Collect Systems",
                              "Hide Quiz / Hangman Systems",
                              "Hide Quiz / Music * Mature * Systems",
                              "Hide Shooter / Flying Vertical Systems",
                              "Hide Slot Machine / Video Slot Systems",
                              "Hide Sports / Track & Field Systems",
                              "Hide Tabletop / Mahjong Systems",
                              "Hide Tabletop / Shanghai Systems",
                          }));
}

TEST(CategoryRows, ARowIsLeftOutWhenAnotherBeginsWithItsText) {
    TempFolder folder;
    WriteFile(folder / "catver.ini", "[Category]\n"
                                     "a=Puzzle Systems Extra\n"
                                     "b=Puzzle\n" // "Hide Puzzle Systems" begins the first
                                     "c=puzzle systems extra\n" // the same without regard to case
                                     "d=Puzzle / Drop\n"
                                     "[VerAdded]\n"
                                     "e=Never Read\n");
    const auto read = ReadCategoryRows(folder / "catver.ini");
    ASSERT_TRUE(read);
    EXPECT_EQ(read->rows,
              (Rows{"Hide Puzzle / Drop Systems", "Hide Puzzle Systems Extra Systems"}));
}

TEST(CategoryRows, ALineWithoutEqualsStopsTheReadingAndIsNotKept) {
    TempFolder folder;
    WriteFile(folder / "catver.ini", "[Category]\r\na=Maze\r\nbroken line\r\nb=Shooter\r\n");
    CategoryRowsCache cache;
    const auto read = cache.Rows(folder / "catver.ini");
    ASSERT_TRUE(read);
    EXPECT_EQ(read->badLineNumber, 3u);
    EXPECT_EQ(read->badLine, "broken line");
    EXPECT_EQ(read->rows, (Rows{"Hide Maze Systems"}));

    WriteFile(folder / "catver.ini", "[Category]\r\nb=Shooter\r\n");
    EXPECT_EQ(cache.Rows(folder / "catver.ini")->rows, (Rows{"Hide Shooter Systems"}))
        << "a broken read is not remembered";
    std::filesystem::remove(folder / "catver.ini");
    EXPECT_EQ(cache.Rows(folder / "catver.ini")->rows, (Rows{"Hide Shooter Systems"}))
        << "a whole read is remembered for the run";
    EXPECT_FALSE(ReadCategoryRows(folder / "catver.ini")) << "no file, no list";
}

TEST(BiosRows, LinesAsTheyStandWithoutBlanksOrRepeats) {
    TempFolder folder;
    EXPECT_FALSE(ReadBiosRows(folder / "biosfilter.txt"));
    WriteFile(folder / "biosfilter.txt",
              "Hide Neo-Geo Machines: Neogeo\r\n\r\nHide Sega Machines: Stv\r\n"
              "hide neo-geo machines: neogeo\r\n");
    EXPECT_EQ(ReadBiosRows(folder / "biosfilter.txt"),
              (Rows{"Hide Neo-Geo Machines: Neogeo", "Hide Sega Machines: Stv"}));
}

TEST(FilterNames, RowsAndSavedNamesTurnIntoEachOther) {
    EXPECT_EQ(BiosName("Hide Max-A-Flex Machines: Maxaflex"), "Max-A-Flex Machines: Maxaflex");
    EXPECT_EQ(BiosName("Hide Old Style BIOS Systems"), "Old Style");
    EXPECT_EQ(CategoryName("Hide Computer / Systems Systems"), "Computer / Systems");
    EXPECT_EQ(CategoryRow("Computer / Systems"), "Hide Computer / Systems Systems");

    const Rows rows = {"Hide A Systems", "Hide B Systems", "Hide C Systems"};
    const std::vector<FilterEntry> saved = {{"C", true}, {"Gone", true}, {"a", true}};
    const std::vector<bool> selected = SelectedRows(rows, saved, CategoryRow);
    EXPECT_EQ(selected, (std::vector<bool>{false, false, true})) << "exact matches only";
    EXPECT_EQ(EntriesOf(rows, selected, CategoryName), (std::vector<FilterEntry>{{"C", true}}));
}

} // namespace
} // namespace coinlight
