// The favourites lists from the right-click menu, the View menu and the Reports menu.
#include <QTextBrowser>

#include "SoftwarePanelFixture.h"

namespace coinlight::test {
namespace {

class FavoritesUiTest : public SoftwarePanelFixture {
protected:
    void AddFromMenu(MachineListView& list) {
        PrepareMenu(list);
        ASSERT_TRUE(Controls().mnuAddFavorite->isEnabled());
        Controls().mnuAddFavorite->trigger();
    }
    void PrepareMenu(MachineListView& list) {
        const QRect row = list.visualRect(list.currentIndex());
        emit list.customContextMenuRequested(row.center());
        Controls().mnuRClick->hide();
    }
};

TEST_F(FavoritesUiTest, AddViewAndRemoveOtherFavourites) {
    ShowOther("cpc464");
    MachineListView& other = *Controls().lvOther;
    AddFromMenu(other);
    SelectMachine("a2600");
    AddFromMenu(other);
    AddFromMenu(other);
    ASSERT_EQ(m_prompter.Prompts().size(), 1u);
    EXPECT_EQ(m_prompter.Prompts().back().title, "Add To Favorites");
    EXPECT_EQ(m_prompter.Texts().back(), "Machine already on list.");
    EXPECT_TRUE(Controls().mnuRefreshSoftware->isVisible());

    Controls().mnuViewOtherFavorites->trigger();
    EXPECT_TRUE(m_context.preferences.view.favoriteOther);
    EXPECT_EQ(Names(other), (std::vector<std::string>{"cpc464", "a2600"}))
        << "in the order they were added";
    PrepareMenu(other);
    EXPECT_FALSE(Controls().mnuAddFavorite->isEnabled());
    EXPECT_TRUE(Controls().mnuRemoveFavorite->isEnabled());

    SelectMachine("a2600");
    Controls().mnuRemoveFavorite->trigger();
    EXPECT_EQ(Names(other), std::vector<std::string>{"cpc464"});
    SelectMachine("cpc464");
    Controls().mnuRemoveFavorite->trigger();
    EXPECT_EQ(m_prompter.Prompts().back().title, "Remove Favorite");
    EXPECT_EQ(m_prompter.Texts().back(),
              "Your Favorite list is empty.  Coinlight will now return to the full list.");
    EXPECT_FALSE(FileExists(Output() / "otherfavs.txt"));
    EXPECT_FALSE(m_context.preferences.view.favoriteOther);
    EXPECT_FALSE(Controls().mnuViewOtherFavorites->isChecked());
    EXPECT_EQ(Names(other).size(), 4u) << "the full list is back";
    EXPECT_TRUE(Form().InOtherView());
}

TEST_F(FavoritesUiTest, ArcadeFavouritesWithOldAndGarbageLinesStillLoad) {
    AddRom("pacman");
    ShowOther("a2600");
    WriteFile(Output() / "arcadefavs.txt",
              std::string("\"GALAGA\"\r\n\x01\x02 noise \"\r\n") +
                  "\"Pac-Man (Midway)\",\"1980\",\"Good\",\"Good\",\"Good\",\"Good\",\"Joy8way\","
                  "\"Namco\",\"Raster\",\"256x224\",\"Vertical\",\"60.606061\",\"pacman\","
                  "\"Parent\",\"N/A\",\"N/A\",\"maker/game.cpp\",\"N/A\",\"Yes\",\"No\",\"No\","
                  "\"Maze\"\r\n");
    Form().ViewAllArcade();
    Controls().mnuViewArcadeFavorites->trigger();
    EXPECT_FALSE(m_context.flags.fatalErrorFlag) << Told();
    EXPECT_EQ(Names(*Controls().lvAll), (std::vector<std::string>{"galaga", "pacman"}));
    EXPECT_NE(ReadFile(Output() / "arcadefavs.txt").find("Maze / Collect"), std::string::npos)
        << "records taken from the catalogue";

    PrepareMenu(*Controls().lvAll);
    EXPECT_TRUE(Controls().mnuRemoveFavorite->isEnabled());
    EXPECT_FALSE(Controls().mnuRefreshSoftware->isVisible());
}

TEST_F(FavoritesUiTest, TheChangesReportIsShownOrSaidMissing) {
    ShowOther("a2600");
    Controls().mnuReportsFavoriteOtherChanges->trigger();
    EXPECT_EQ(m_prompter.Prompts().back().title, "Favorite Other Machine Changes");
    EXPECT_EQ(m_prompter.Texts().back(), "This report does not exist.");
    EXPECT_EQ(Controls().pages->currentWidget(), Controls().fraList);

    WriteFile(Output() / "otherfavschanges.txt", "gone1\r\ngone2\r\n");
    Controls().mnuReportsFavoriteOtherChanges->trigger();
    EXPECT_EQ(Controls().pages->currentWidget(), Controls().fraVerify);
    EXPECT_EQ(Controls().fraVerify->title(), "Favorite Other Machine Changes");
    EXPECT_TRUE(Controls().rtfVerify->toPlainText().endsWith("gone1\ngone2\n"));
    EXPECT_FALSE(Controls().cmdFind->isEnabled()) << "the report page takes the commands away";
    Form().ReturnList1();
    EXPECT_EQ(Controls().pages->currentWidget(), Controls().fraList);
    EXPECT_TRUE(Controls().cmdFind->isEnabled()) << "and the list gives them back";
    EXPECT_TRUE(Controls().cmdStart->isEnabled());
}

TEST_F(FavoritesUiTest, NoFavouritesListSaysSoAndUnticks) {
    ShowOther("a2600");
    Controls().mnuViewOtherFavorites->trigger();
    EXPECT_EQ(m_prompter.Prompts().back().title, "Favorite Other Machines");
    EXPECT_EQ(m_prompter.Texts().back(), "You do not have a Favorite Other Machines list.  ");
    EXPECT_FALSE(Controls().mnuViewOtherFavorites->isChecked());
    EXPECT_FALSE(m_context.preferences.view.favoriteOther);
}

} // namespace
} // namespace coinlight::test
