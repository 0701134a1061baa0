#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QDir>
#include <QHeaderView>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>

#include "MainWindowFixture.h"
#include "core/ProfileFile.h"

namespace coinlight::test {
namespace {

class MainWindow : public MainWindowFixture {
protected:
    MainWindow() {
        AddRom("pacman");
        AddRom("galaga");
    }

    /// Answers the next Options dialog: valid folders, then the filter boxes named, then OK.
    void TickFiltersInOptions(std::vector<const char*> boxes) {
        AnswerDialog([boxes](QDialog& dialog) {
            // The paths page first: its fields must be valid for OK to pass.
            const auto fill = [&dialog](const char* name, const QString& text) {
                dialog.findChild<QLineEdit*>(QString::fromLatin1(name))->setText(text);
            };
            for (const char* name : {"txtSamPath", "txtArtworkPath", "txtCtrlrPath", "txtCheatPath",
                                     "txtPluginsPath", "txtLanguagePath"}) {
                fill(name, QDir::tempPath());
            }
            dialog.findChild<QAbstractButton*>(QStringLiteral("cmdNext"))->click();
            for (const char* box : boxes) {
                dialog.findChild<QAbstractButton*>(QString::fromLatin1(box))->click();
            }
            dialog.findChild<QAbstractButton*>(QStringLiteral("cmdOK"))->click();
            if (dialog.isVisible()) {
                ADD_FAILURE() << "Options did not close";
                dialog.reject();
            }
        });
    }
};

TEST_F(MainWindow, LoadsEveryListSortedWithItsFirstRowSelected) {
    ASSERT_TRUE(Load()) << Told();
    const MainControls& c = Controls();
    EXPECT_EQ(c.lvAll->Model().rowCount(), 11);
    EXPECT_EQ(Names(*c.lvAvailable), (std::vector<std::string>{"galaga", "pacman", "pong"}));
    EXPECT_EQ(c.lvUnavailable->Model().rowCount(), 8);
    EXPECT_EQ(c.lvOther->Model().rowCount(), 4);
    EXPECT_EQ(Names(*c.lvAll).front(), "asteroid") << "sorted by machine name";
    EXPECT_EQ(c.lvAll->SelectedRow(), 0);
    EXPECT_EQ(c.fraList->title(), "All Arcade Machines");
    EXPECT_EQ(Panel(0), "Machines: 11");
    EXPECT_TRUE(m_prompter.Prompts().empty()) << m_prompter.Texts().join("|").toStdString();
}

TEST_F(MainWindow, EachViewSetsItsCaptionCountTickAndCommands) {
    ASSERT_TRUE(Load()) << Told();
    const MainControls& c = Controls();
    Form().ViewAvailableArcade();
    EXPECT_EQ(c.fraList->title(), "Available Arcade Machines");
    EXPECT_EQ(Panel(0), "Machines: 3");
    EXPECT_TRUE(c.mnuViewAvailable->isChecked());
    EXPECT_FALSE(c.mnuViewAll->isChecked());
    EXPECT_TRUE(c.cmdStart->isEnabled());
    EXPECT_FALSE(c.chkAutoRun->isHidden());

    c.chkAutoRun->setChecked(true);
    Form().ViewUnavailableArcade();
    EXPECT_EQ(c.fraList->title(), "Unavailable Arcade Machines");
    EXPECT_EQ(Panel(0), "Machines: 8");
    EXPECT_FALSE(c.cmdStart->isEnabled());
    EXPECT_TRUE(c.cmdAudit->isEnabled());
    EXPECT_TRUE(c.chkAutoRun->isHidden());
    EXPECT_FALSE(c.chkAutoRun->isChecked());
    EXPECT_EQ(Panel(6), "Unavailable");

    Form().ViewOther();
    EXPECT_TRUE(Form().InOtherView());
    EXPECT_EQ(c.fraList->title(), "Other Machines");
    EXPECT_EQ(Panel(0), "Machines: 4");
    EXPECT_TRUE(c.lblToggle->isHidden());
    EXPECT_FALSE(c.cmdArcadeSettings->isEnabled());
    EXPECT_TRUE(c.cmdOtherSettings->isEnabled());
    EXPECT_TRUE(c.mnuViewOtherMachines->isChecked());
    EXPECT_EQ(c.lvOther->toolTip(), c.lvOther->toolTip());
    EXPECT_EQ(c.lblPanel[1]->toolTip(), "Software: 0") << "the titles the software panel loaded";

    Form().ViewAllArcade();
    EXPECT_FALSE(Form().InOtherView());
    EXPECT_FALSE(c.lblToggle->isHidden());
    EXPECT_TRUE(c.cmdArcadeSettings->isEnabled());
    EXPECT_EQ(c.lblPanel[1]->toolTip(), "Machine");
}

TEST_F(MainWindow, TheToggleCyclesTheArcadeListsAndFiltersMarkTheCaption) {
    WriteOptions("[View]\r\nFilters=True\r\n");
    ASSERT_TRUE(Load()) << Told();
    const MainControls& c = Controls();
    EXPECT_EQ(c.fraList->title(), "All Arcade Machines *");
    emit c.lblToggle->linkActivated(QStringLiteral("#"));
    EXPECT_EQ(c.fraList->title(), "Available Arcade Machines *");
    emit c.lblToggle->linkActivated(QStringLiteral("#"));
    EXPECT_EQ(c.fraList->title(), "Unavailable Arcade Machines *");
    emit c.lblToggle->linkActivated(QStringLiteral("#"));
    EXPECT_EQ(c.fraList->title(), "All Arcade Machines *");
}

TEST_F(MainWindow, TheDetailsStripFollowsTheSelectedRowOfEachList) {
    WriteFile(m_context.data.Settings() / "galaga.cfg", "[x]\r\n");
    ASSERT_TRUE(Load()) << Told();
    const MainControls& c = Controls();
    c.lvAll->SelectRow(c.lvAll->Model().RowOfShortName("pong"));
    EXPECT_EQ(Panel(1), "Pong (Rev E) & Friends");
    EXPECT_EQ(Panel(2), "pong");
    EXPECT_EQ(Panel(3), "59.922743");
    EXPECT_EQ(Panel(4), "H");
    EXPECT_EQ(Panel(5), "P");
    EXPECT_EQ(Panel(6), "Raster Settings");
    c.lvAll->SelectRow(c.lvAll->Model().RowOfShortName("mspacman"));
    EXPECT_EQ(Panel(4), "V");
    EXPECT_EQ(Panel(5), "C");
    EXPECT_EQ(Panel(6), "Unavailable");
    EXPECT_FALSE(c.cmdStart->isEnabled());
    EXPECT_TRUE(c.cmdAudit->isEnabled());
    c.lvAll->SelectRow(c.lvAll->Model().RowOfShortName("galaga"));
    EXPECT_EQ(Panel(6), "Custom Settings");
    EXPECT_TRUE(c.cmdStart->isEnabled());

    Form().ViewAvailableArcade();
    c.lvAvailable->SelectRow(c.lvAvailable->Model().RowOfShortName("pacman"));
    EXPECT_EQ(Panel(2), "pacman");
    EXPECT_EQ(Panel(6), "Raster Settings");

    Form().ViewOther();
    c.lvOther->SelectRow(c.lvOther->Model().RowOfShortName("pet2001"));
    EXPECT_EQ(Panel(6), "Other Settings");
    c.lvOther->SelectRow(c.lvOther->Model().RowOfShortName("a500"));
    EXPECT_EQ(Panel(6), "Unavailable");
    const auto red = c.lvOther->Model().data(c.lvOther->Model().index(c.lvOther->SelectedRow(), 0),
                                             Qt::ForegroundRole);
    EXPECT_EQ(red.value<QColor>(), QColor(Qt::red));
}

TEST_F(MainWindow, EachFilterHidesItsMachinesAtLoad) {
    const std::vector<std::pair<std::string, std::string>> filters = {
        {"Hide Arcade Clones=True", "mspacman"},
        {"Hide Preliminary=True", "protoa"},
        {"Hide Vs=True", "vsmario"},
        {"Hide Bootleg=True", "dkongb"},
        {"Hide CHD=True", "kinst"},
        {"Hide Imperfect=True", "kinst"},
    };
    for (const auto& [line, hidden] : filters) {
        WriteOptions("[Preferences Other]\r\n" + line + "\r\n");
        ASSERT_TRUE(Load()) << line << Told();
        const auto names = Names(*Controls().lvAll);
        EXPECT_EQ(names.size(), 10u) << line;
        EXPECT_EQ(std::count(names.begin(), names.end(), hidden), 0) << line;
        m_form.reset();
    }
    WriteOptions("[Preferences BIOS]\r\nNeo-Geo MV-6F: neogeo=True\r\nTotal=1\r\n\r\n"
                 "[Preferences Other]\r\nHide Year=True\r\nYear=1985\r\n");
    ASSERT_TRUE(Load()) << Told();
    EXPECT_EQ(Names(*Controls().lvAll),
              (std::vector<std::string>{"asteroid", "galaga", "mspacman", "pacman", "pong"}))
        << "neogeo is too late, dkongb has no four-digit year, mslug goes with its BIOS";
    EXPECT_EQ(Controls().lvOther->Model().rowCount(), 4) << "the year filter is arcade-only";
}

TEST_F(MainWindow, SavedSelectionAndSortComeBackUnlessTheyCannot) {
    WriteFile(m_context.data.Settings() / "!hide2.txt", "");
    WriteOptions("[Preferences Other]\r\nHide Arcade Clones=True\r\n\r\n[View]\r\n"
                 "All Key=k.mspacman\r\nAll Sort Key=2\r\nAll Sort Order=1\r\n"
                 "Available Key=k.pong\r\nAvailable Sort Key=1\r\nAvailable Sort Order=1\r\n");
    ASSERT_TRUE(Load()) << Told();
    const MainControls& c = Controls();
    EXPECT_EQ(c.lvAll->SelectedRow(), 0) << "a machine the filters hide selects the first row";
    EXPECT_EQ(c.lvAll->Model().SortKey(), 0) << "a hidden column cannot stay the sort column";
    EXPECT_EQ(c.lvAll->Model().SortOrder(), 0);
    EXPECT_EQ(m_context.preferences.view.all.sortKey, 0);
    EXPECT_TRUE(c.lvAll->IsColumnHidden(2));
    EXPECT_EQ(Names(*c.lvAvailable), (std::vector<std::string>{"galaga", "pacman", "pong"}))
        << "1981, 1980, 1972: years descending, ties by name";
    EXPECT_EQ(c.lvAvailable->SelectedMachine()->ShortName(), "pong");
}

TEST_F(MainWindow, HeaderClicksSortAndSmallListsIgnoreThem) {
    WriteOptions("[Preferences Other]\r\nHide CHD=True\r\n");
    ASSERT_TRUE(Load()) << Told();
    const MainControls& c = Controls();
    Form().SortColumn(*c.lvAll, ColYear);
    EXPECT_EQ(Names(*c.lvAll).front(), "pong");
    EXPECT_EQ(m_context.preferences.view.all.sortKey, ColYear);
    EXPECT_EQ(m_context.preferences.view.all.sortOrder, 0);
    Form().SortColumn(*c.lvAll, ColYear);
    EXPECT_EQ(m_context.preferences.view.all.sortOrder, 1) << "the same column again reverses";
    EXPECT_EQ(Names(*c.lvAll).back(), "pong");
    Form().SortColumn(*c.lvAll, ColName);
    EXPECT_EQ(m_context.preferences.view.all.sortOrder, 0) << "another column starts ascending";
}

TEST_F(MainWindow, AListOfOneRowIgnoresHeaderClicks) {
    for (const char* name :
         {"mspacman", "asteroid", "vsmario", "dkongb", "neogeo", "mslug", "kinst"}) {
        AddRom(name);
    }
    ASSERT_TRUE(Load()) << Told();
    const MainControls& c = Controls();
    Form().ViewUnavailableArcade();
    ASSERT_EQ(c.lvUnavailable->Model().rowCount(), 1);
    Form().SortColumn(*c.lvUnavailable, ColYear);
    EXPECT_EQ(m_context.preferences.view.unavailable.sortKey, 0);
    EXPECT_EQ(c.lvUnavailable->Model().SortKey(), 0);
}

TEST_F(MainWindow, ClosingSavesWhatTheUserLeft) {
    ASSERT_TRUE(Load()) << Told();
    const MainControls& c = Controls();
    c.lvAll->SelectRow(c.lvAll->Model().RowOfShortName("galaga"));
    Form().SortColumn(*c.lvAll, ColYear);
    Form().ViewAvailableArcade();
    Form().close();
    const auto options = m_context.data.OptionsIni();
    EXPECT_EQ(ReadProfileValue(options, "View", "All Key", ""), "k.galaga");
    EXPECT_EQ(ReadProfileValue(options, "View", "All Sort Key", ""), "1");
    EXPECT_EQ(ReadProfileValue(options, "View", "List View", ""), "Available Arcade Machines");
    EXPECT_EQ(ReadProfileValue(options, "View", "Unavailable Key", ""), "k.asteroid");
}

TEST_F(MainWindow, PlayersComeFromTheSupportFile) {
    WriteFile(m_context.data.Support() / "nplayers.ini", "[NPlayers]\r\npacman=2P alt\r\n");
    ASSERT_TRUE(Load()) << Told();
    const MachineListModel& all = Controls().lvAll->Model();
    EXPECT_EQ(all.headerData(ColPlayers, Qt::Horizontal, Qt::DisplayRole).toString(), "Players");
    EXPECT_EQ(all.Row(all.RowOfShortName("pacman"))->Field(ColPlayers), "2P alt");
    EXPECT_EQ(all.Row(all.RowOfShortName("galaga"))->Field(ColPlayers), "Unknown");
    EXPECT_EQ(Controls().lvOther->Model().columnCount(), kRecordFieldCount + 1);
}

TEST_F(MainWindow, ABrokenRecordEndsTheStartWithTheVersionAdvice) {
    WriteFile(Output() / "arcadeinfo.txt", "\"Pac-Man\",\"1980\"\r\n");
    EXPECT_FALSE(Load());
    EXPECT_TRUE(m_context.flags.fatalErrorFlag);
    ASSERT_EQ(m_prompter.Prompts().size(), 1u);
    EXPECT_EQ(m_prompter.Prompts()[0].icon, PromptIcon::Critical);
    EXPECT_TRUE(m_prompter.Texts()[0].startsWith("Error In LoadListsArcade: "));
    EXPECT_TRUE(m_prompter.Texts()[0].endsWith(
        "This might mean you are not using the correct version of MAME."));
}

TEST_F(MainWindow, FavouritesFilesMissingDifferByFamily) {
    WriteOptions("[View]\r\nFavorite Arcade=True\r\n");
    ASSERT_TRUE(Load()) << Told();
    EXPECT_EQ(Controls().lvAll->Model().rowCount(), 11) << "the full arcade list instead";
    EXPECT_FALSE(m_context.preferences.view.favoriteArcade);
    EXPECT_FALSE(Controls().mnuViewArcadeFavorites->isChecked());
    m_form.reset();

    WriteOptions("[View]\r\nFavorite Other=True\r\n");
    EXPECT_FALSE(Load());
    ASSERT_FALSE(m_prompter.Texts().isEmpty());
    EXPECT_TRUE(m_prompter.Texts().back().startsWith("Error In LoadListsOther: "));
}

TEST_F(MainWindow, AMissingRomFolderLeavesEveryMachineThatNeedsFilesUnavailable) {
    WriteOptions();
    std::filesystem::remove_all(Roms());
    ASSERT_TRUE(Load()) << Told();
    EXPECT_EQ(Names(*Controls().lvAvailable), (std::vector<std::string>{"pong"}));
    EXPECT_EQ(Controls().lvUnavailable->Model().rowCount(), 10);
}

TEST_F(MainWindow, FiltersChosenInOptionsReloadTheListsAndMarkTheCaption) {
    ASSERT_TRUE(Load()) << Told();
    Form().ViewOther();
    TickFiltersInOptions({"chkHideClonesArcade", "chkHideCHD"});
    Form().Options();
    ASSERT_EQ(DialogsOpened(), 1) << Told();
    const MainControls& c = Controls();
    EXPECT_TRUE(Form().InOtherView()) << "the user stays in the Other view";
    EXPECT_EQ(c.fraList->title(), "Other Machines *");
    EXPECT_EQ(c.lvOther->Model().RowOfShortName("cdimono1"), -1) << "other list reloaded";
    EXPECT_EQ(c.lvAll->Model().RowOfShortName("mspacman"), -1) << "arcade list reloaded too";
    EXPECT_EQ(c.lvAll->Model().RowOfShortName("kinst"), -1);
    EXPECT_EQ(ReadProfileValue(m_context.data.OptionsIni(), "View", "Filters", ""), "True");
    Form().ViewAllArcade();
    EXPECT_EQ(c.fraList->title(), "All Arcade Machines *");
}

TEST_F(MainWindow, AReloadKeepsEachListsSortAndSelectedMachine) {
    ASSERT_TRUE(Load()) << Told();
    const MainControls& c = Controls();
    Form().SortColumn(*c.lvAll, ColYear);
    Form().SortColumn(*c.lvAll, ColYear); // descending
    c.lvAll->SelectRow(c.lvAll->Model().RowOfShortName("galaga"));
    Form().ViewAvailableArcade();
    Form().SortColumn(*c.lvAvailable, ColManufacturer);
    c.lvAvailable->SelectRow(c.lvAvailable->Model().RowOfShortName("pong"));

    TickFiltersInOptions({"chkHideClonesArcade"});
    Form().Options();
    ASSERT_EQ(DialogsOpened(), 1) << Told();

    ASSERT_EQ(c.lvAvailable->SelectedMachine()->ShortName(), "pong");
    EXPECT_EQ(c.lvAvailable->header()->sortIndicatorSection(), ColManufacturer);
    EXPECT_EQ(Names(*c.lvAvailable), (std::vector<std::string>{"pong", "galaga", "pacman"}))
        << "Atari, Namco, Namco (Midway license)";
    Form().ViewAllArcade();
    ASSERT_NE(c.lvAll->SelectedMachine(), nullptr);
    EXPECT_EQ(c.lvAll->SelectedMachine()->ShortName(), "galaga");
    EXPECT_EQ(c.lvAll->header()->sortIndicatorSection(), ColYear);
    EXPECT_EQ(c.lvAll->header()->sortIndicatorOrder(), Qt::DescendingOrder);
    std::vector<std::string> years;
    for (int row = 0; row < c.lvAll->Model().rowCount(); ++row) {
        years.emplace_back(c.lvAll->Model().Row(row)->Field(ColYear));
    }
    EXPECT_TRUE(std::is_sorted(years.rbegin(), years.rend())) << "newest first, after the reload";
}

TEST_F(MainWindow, EveryCommandOfTheWindowIsOfferedAsALink) {
    ASSERT_TRUE(Load()) << Told();
    Form().show();
    const MainControls& c = Controls();
    // With links preferred, each command's link stands in for its button.
    for (auto [button, link] : {std::pair{c.cmdArcadeSettings, LinkArcadeSettings},
                                std::pair{c.cmdAudit, LinkAudit}, std::pair{c.cmdInfo, LinkInfo}}) {
        EXPECT_FALSE(button->isVisible()) << button->objectName().toStdString();
        EXPECT_TRUE(c.lblBLinks[static_cast<std::size_t>(link)]->isVisible()) << link;
    }
    EXPECT_TRUE(c.mnuViewShots->isEnabled());
    c.lvAll->SelectRow(c.lvAll->Model().RowOfShortName("pacman"));
    EXPECT_TRUE(c.lblBLinks[LinkStart]->isEnabled());
    Form().ViewOther();
    EXPECT_FALSE(c.lblBLinks[LinkStart]->isEnabled()) << "other machines cannot start yet";
    EXPECT_FALSE(c.cmdStart->isEnabled());
    Form().ViewAllArcade();
    EXPECT_TRUE(c.lblBLinks[LinkStart]->isEnabled());
}

TEST_F(MainWindow, TheWindowFitsTheScreenAndTheStripHoldsStill) {
    ASSERT_TRUE(Load()) << Told();
    Form().show();
    QApplication::processEvents();
    const QRect screen = Form().screen()->availableGeometry();
    EXPECT_TRUE(screen.contains(Form().frameGeometry()))
        << "the designed size is larger than the offscreen screen of " << screen.width() << "x"
        << screen.height();

    // Choosing an unavailable machine hides the start boxes; the strip must not move.
    MachineListView& all = *Controls().lvAll;
    all.SelectRow(all.Model().RowOfShortName("pacman"));
    QApplication::processEvents();
    const int top = Controls().lblPanel[0]->mapTo(&Form(), QPoint()).y();
    all.SelectRow(all.Model().RowOfShortName("mspacman"));
    QApplication::processEvents();
    EXPECT_FALSE(Controls().chkAutoSave->isVisible());
    EXPECT_EQ(Controls().lblPanel[0]->mapTo(&Form(), QPoint()).y(), top);
}

TEST_F(MainWindow, TypingFindsMachinesByDescriptionWhateverTheSortColumn) {
    ASSERT_TRUE(Load()) << Told();
    MachineListView& all = *Controls().lvAll;
    Form().SortColumn(all, ColName);
    all.setCurrentIndex(all.Model().index(all.SelectedRow(), ColName));
    all.keyboardSearch(QStringLiteral("d"));
    all.keyboardSearch(QStringLiteral("o"));
    all.keyboardSearch(QStringLiteral("n"));
    ASSERT_NE(all.SelectedMachine(), nullptr);
    EXPECT_EQ(all.SelectedMachine()->ShortName(), "dkongb") << "Donkey Kong (bootleg)";
    all.keyboardSearch(QStringLiteral("m")); // soon after: "donm" names nothing
    EXPECT_EQ(all.SelectedMachine()->ShortName(), "dkongb");
}

} // namespace
} // namespace coinlight::test
