#include "lists/Favorites.h"

#include <gtest/gtest.h>

#include "RecordBuilder.h"
#include "support/TestFiles.h"

namespace coinlight {
namespace {

using test::ReadFile;
using test::Record;
using test::RecordLine;
using test::TempFolder;
using test::WriteFile;

TEST(Favorites, LinesSplitAtQuotedCommasAndOldLinesHoldTheNameAlone) {
    const auto fields = SplitFavoriteLine(RecordLine(Record("pacman", {{ColMachine, "A, B"}})));
    ASSERT_EQ(fields.size(), 22u) << "a comma inside a field stays";
    EXPECT_EQ(fields[0], "A, B");
    EXPECT_EQ(FavoriteShortName(fields), "pacman");
    EXPECT_EQ(FavoriteShortName(SplitFavoriteLine("\"galaga\"")), "galaga");
}

TEST(Favorites, PurgeRefreshesKeptRecordsAndReportsTheGoneOnes) {
    TempFolder folder;
    const auto favourites = folder / "arcadefavs.txt";
    const auto info = folder / "arcadeinfo.txt";
    const auto changes = folder / "arcadefavschanges.txt";
    WriteFile(favourites, RecordLine(Record("pacman", {{ColYear, "1970"}})) + "\"GALAGA\"\r\n" +
                              RecordLine(Record("gone")));
    WriteFile(info, RecordLine(Record("galaga")) + RecordLine(Record("pacman")));
    WriteFile(changes, "older\r\n");
    const PurgeOutcome outcome = PurgeFavorites(favourites, info, changes, "Arcade");
    EXPECT_TRUE(outcome.removedAny);
    EXPECT_FALSE(outcome.nowEmpty);
    EXPECT_EQ(ReadFile(favourites), RecordLine(Record("pacman")) + RecordLine(Record("galaga")))
        << "kept favourites take the new record, an old name-only line included";
    EXPECT_EQ(ReadFile(changes), "older\r\ngone\r\n") << "the changes report only grows";
    ASSERT_EQ(outcome.messages.size(), 1u);
    EXPECT_EQ(outcome.messages[0].title, "Verify Favorites");
    EXPECT_NE(outcome.messages[0].text.find("selecting Favorite Arcade Machine Changes"),
              std::string::npos);
}

TEST(Favorites, APurgeThatLeavesNothingDeletesTheFile) {
    TempFolder folder;
    const auto favourites = folder / "otherfavs.txt";
    WriteFile(favourites, RecordLine(Record("gone")));
    WriteFile(folder / "otherinfo.txt", RecordLine(Record("a500")));
    const PurgeOutcome outcome =
        PurgeFavorites(favourites, folder / "otherinfo.txt", folder / "changes.txt", "Other");
    EXPECT_TRUE(outcome.nowEmpty);
    EXPECT_FALSE(std::filesystem::exists(favourites));
    ASSERT_EQ(outcome.messages.size(), 2u);
    EXPECT_EQ(outcome.messages[1].text, "Your favorite Other Machine list is now empty.  Coinlight "
                                        "will now load the full Other Machine list.");
    EXPECT_TRUE(PurgeFavorites(folder / "none.txt", folder / "otherinfo.txt",
                               folder / "changes.txt", "Other")
                    .messages.empty());
}

TEST(Favorites, AddingTwiceSaysSoAndRemovingTheLastEmptiesTheList) {
    TempFolder folder;
    const auto favourites = folder / "arcadefavs.txt";
    const MachineRow row(test::Views(Record("pacman")), "2P", true);
    EXPECT_TRUE(AddFavorite(favourites, row).empty());
    const std::string once = ReadFile(favourites);
    EXPECT_EQ(once, RecordLine(Record("pacman")));
    const auto again = AddFavorite(favourites, row);
    ASSERT_EQ(again.size(), 1u);
    EXPECT_EQ(again[0].text, "Machine already on list.");
    EXPECT_EQ(ReadFile(favourites), once);
    const RemoveOutcome removed = RemoveFavorite(favourites, "pacman");
    EXPECT_TRUE(removed.nowEmpty);
    EXPECT_FALSE(std::filesystem::exists(favourites));
}

} // namespace
} // namespace coinlight
