#include "lists/Favorites.h"

#include <gtest/gtest.h>
#include <random>

#include "RecordBuilder.h"
#include "core/TextCase.h"
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

TEST(Favorites, GarbageLinesAreDroppedByEveryRewriteAndTheRecordsKept) {
    TempFolder folder;
    const auto favourites = folder / "otherfavs.txt";
    const std::string garbage =
        std::string("\x01\xff\x7f;rm -rf\r\n\"\",\"\r\n") + "\"Cut\",\"1987\",\"Go\r\n";
    WriteFile(favourites, RecordLine(Record("a500")) + garbage + RecordLine(Record("nes")));
    EXPECT_TRUE(FavoritesNeedPurge(favourites));
    const MachineRow row(test::Views(Record("a500")), "", true);
    ASSERT_EQ(AddFavorite(favourites, row).size(), 1u) << "found past the noise";
    const MachineRow snes(test::Views(Record("snes")), "", true);
    EXPECT_TRUE(AddFavorite(favourites, snes).empty());
    EXPECT_EQ(ReadFile(favourites),
              RecordLine(Record("a500")) + RecordLine(Record("nes")) + RecordLine(Record("snes")));
    EXPECT_FALSE(FavoritesNeedPurge(favourites));

    WriteFile(favourites, garbage + RecordLine(Record("nes")));
    const auto info = folder / "otherinfo.txt";
    WriteFile(info, RecordLine(Record("nes")));
    const PurgeOutcome outcome = PurgeFavorites(favourites, info, folder / "changes.txt", "Other");
    EXPECT_FALSE(outcome.removedAny) << "noise names no machine, so none was removed";
    EXPECT_FALSE(std::filesystem::exists(folder / "changes.txt"));
    EXPECT_EQ(ReadFile(favourites), RecordLine(Record("nes")));

    WriteFile(favourites, garbage + RecordLine(Record("nes")));
    EXPECT_FALSE(RemoveFavorite(favourites, "a500").nowEmpty);
    EXPECT_EQ(ReadFile(favourites), RecordLine(Record("nes")));
}

TEST(Favorites, ARecordIsWrittenWithoutQuotesInsideItsFields) {
    const MachineRow row(test::Views(Record("pacman", {{ColMachine, "Pac \"Man\""}})), "", true);
    const std::string line = RecordLineOf(row);
    EXPECT_EQ(SplitFavoriteLine(line).size(), 22u);
    EXPECT_EQ(SplitFavoriteLine(line)[0], "Pac Man");
}

TEST(Favorites, TheRightClickMenuFollowsTheViewAndItsFavouritesMode) {
    EXPECT_EQ(FavoritesFileOfView("All Arcade Machines"), "arcadefavs.txt");
    EXPECT_EQ(FavoritesFileOfView("Available Arcade Machines"), "arcadefavs.txt");
    EXPECT_EQ(FavoritesFileOfView("Other Machines"), "otherfavs.txt");
    EXPECT_EQ(FavoritesFileOfView("Unavailable Arcade Machines"), std::nullopt);
    const auto menu = [](std::string_view view, bool arcade, bool other) {
        const FavoritesMenuState state = FavoritesMenuOf(view, arcade, other);
        return std::string(state.add ? "add" : "") + (state.remove ? "remove" : "");
    };
    EXPECT_EQ(menu("All Arcade Machines", false, true), "add");
    EXPECT_EQ(menu("All Arcade Machines", true, false), "remove");
    EXPECT_EQ(menu("Other Machines", true, false), "add");
    EXPECT_EQ(menu("Other Machines", false, true), "remove");
    EXPECT_EQ(menu("Unavailable Arcade Machines", true, true), "");
}

TEST(Favorites, TheChangesReportListsTheRemovedOrSaysItIsMissing) {
    TempFolder folder;
    FavoriteChangesReport report = FavoriteChanges(folder.Path(), "otherfavschanges.txt");
    EXPECT_EQ(report.caption, "Favorite Other Machine Changes");
    ASSERT_TRUE(report.missing);
    EXPECT_EQ(report.missing->title, "Favorite Other Machine Changes");
    EXPECT_EQ(report.missing->text, "This report does not exist.");

    WriteFile(folder / "arcadefavschanges.txt", "gone\r\nlost\r\n");
    report = FavoriteChanges(folder.Path(), "arcadefavschanges.txt");
    EXPECT_FALSE(report.missing);
    EXPECT_EQ(report.caption, "Favorite Arcade Machine Changes");
    EXPECT_TRUE(report.text.starts_with("These machines have been removed from your favorites "
                                        "list because something about them has changed with "
                                        "this version of MAME or MAME no longer supports them."));
    EXPECT_NE(report.text.find("delete the Favorite Arcade Machine Changes report.\n\n\n"
                               "gone\nlost\n"),
              std::string::npos);
}

/// The purge as first written: the catalogue read again for every favourite.
std::string PurgeByRereading(const std::vector<std::string>& favourites,
                             const std::vector<std::string>& catalogue,
                             std::vector<std::string>& removed) {
    std::string out;
    for (const auto& favourite : favourites) {
        const std::string name = ToLowerAscii(FavoriteShortName(SplitFavoriteLine(favourite)));
        bool found = false;
        for (const auto& line : catalogue) {
            if (ToLowerAscii(FavoriteShortName(SplitFavoriteLine(line))) == name) {
                out += line + "\r\n";
                found = true;
                break;
            }
        }
        if (!found) {
            removed.push_back(FavoriteShortName(SplitFavoriteLine(favourite)));
        }
    }
    return out;
}

TEST(Favorites, OnePassOverTheCatalogueGivesWhatRereadingItGave) {
    std::mt19937 random(11);
    std::vector<std::string> catalogue;
    for (int i = 0; i < 400; ++i) {
        // Some names twice, with different records: the first one wins.
        const std::string name = "m" + std::to_string(random() % 300);
        catalogue.push_back(RecordLine(Record(name, {{ColYear, std::to_string(i)}})));
        catalogue.back().resize(catalogue.back().size() - 2);
    }
    std::vector<std::string> favourites;
    for (int i = 0; i < 150; ++i) {
        const std::string name = "m" + std::to_string(random() % 400);
        // Every fifth as an old release wrote it: the name alone, in capitals.
        std::string line = i % 5 == 0 ? "\"" + ToUpperAscii(name) + "\"" : RecordLine(Record(name));
        if (line.ends_with("\r\n")) {
            line.resize(line.size() - 2);
        }
        favourites.push_back(std::move(line));
    }
    TempFolder folder;
    std::string favouritesText;
    for (const auto& line : favourites) {
        favouritesText += line + "\r\n";
    }
    std::string catalogueText;
    for (const auto& line : catalogue) {
        catalogueText += line + "\r\n";
    }
    WriteFile(folder / "favs.txt", favouritesText);
    WriteFile(folder / "info.txt", catalogueText);
    std::vector<std::string> removed;
    const std::string expected = PurgeByRereading(favourites, catalogue, removed);
    ASSERT_FALSE(removed.empty());
    PurgeFavorites(folder / "favs.txt", folder / "info.txt", folder / "changes.txt", "Arcade");
    EXPECT_EQ(ReadFile(folder / "favs.txt"), expected);
    std::string removedText;
    for (const auto& name : removed) {
        removedText += name + "\r\n";
    }
    EXPECT_EQ(ReadFile(folder / "changes.txt"), removedText);
}

} // namespace
} // namespace coinlight
