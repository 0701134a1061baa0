// The software panel beside the Other Machines list: when it loads, what it shows.
#include <QAbstractButton>
#include <QDir>
#include <QLineEdit>

#include "SoftwarePanelFixture.h"

namespace coinlight::test {
namespace {

class SoftwarePanelTest : public SoftwarePanelFixture {};

TEST_F(SoftwarePanelTest, ViewingAMachineMakesItsFileAndListsOneKindOfTitles) {
    ShowOther("a2600");
    EXPECT_TRUE(FileExists(SoftFile("a2600")));
    EXPECT_EQ(Titles(), (std::vector<std::string>{"pitfall", "pit;fall"}))
        << "available titles, by description";
    EXPECT_EQ(Controls().lblPanel[1]->toolTip(), "Software: 2");
    EXPECT_EQ(Panel(1), "Atari 2600 (NTSC)") << "the machine's details follow the load";
    EXPECT_FALSE(Page().Option(0)->isHidden());
    EXPECT_FALSE(Page().RunNoSoftware()->isHidden());
    EXPECT_FALSE(Page().StringEdit()->isHidden());
    EXPECT_TRUE(Controls().cmdStart->isEnabled());
    EXPECT_TRUE(Controls().cmdStart->isDefault());
    EXPECT_FALSE(Page().Cover()->isVisible());

    Page().Option(1)->click();
    EXPECT_EQ(Titles(), (std::vector<std::string>{"adventur", "riverraid"}));
    EXPECT_EQ(Controls().lblPanel[1]->toolTip(), "Software: 2");
    EXPECT_FALSE(Controls().cmdStart->isDefault());
    SelectTitle("riverraid");
    EXPECT_EQ(Panel(1), "River Raid");
    EXPECT_EQ(Panel(6), "Unavailable");
}

TEST_F(SoftwarePanelTest, AMachineWithoutListsSaysSoAndGetsNoFile) {
    ShowOther("pet2001");
    EXPECT_EQ(Panel(1), " *** This Machine Does Not Have Any Software Lists ***");
    EXPECT_EQ(Panel(2), "pet2001");
    EXPECT_FALSE(FileExists(SoftFile("pet2001")));
    EXPECT_EQ(Software().Model().rowCount(), 0);
    EXPECT_TRUE(Page().Option(0)->isHidden());
    EXPECT_TRUE(Page().Option(1)->isHidden());
    EXPECT_TRUE(Page().RunNoSoftware()->isHidden());
    EXPECT_TRUE(Controls().cmdStart->isEnabled()) << "it starts without a title";
}

TEST_F(SoftwarePanelTest, ARedMachineCannotStartNorBeEdited) {
    ShowOther("redbox");
    EXPECT_FALSE(Controls().cmdStart->isEnabled());
    EXPECT_TRUE(Page().StringEdit()->isHidden());
    EXPECT_TRUE(Page().RunNoSoftware()->isHidden());
    EXPECT_FALSE(Page().Option(0)->isHidden()) << "its titles can still be looked at";
    SelectMachine("a2600");
    StandStill();
    EXPECT_TRUE(Controls().cmdStart->isEnabled());
}

TEST_F(SoftwarePanelTest, MovingFasterThanTheStandStillLoadsNothingOnTheWay) {
    ShowOther("pet2001");
    SelectMachine("a2600");
    SelectMachine("redbox");
    SelectMachine("cpc464");
    EXPECT_TRUE(Page().Timer()->isActive());
    EXPECT_EQ(Page().Timer()->interval(), 1000);
    EXPECT_FALSE(FileExists(SoftFile("a2600")));
    EXPECT_FALSE(FileExists(SoftFile("redbox")));
    StandStill();
    EXPECT_FALSE(FileExists(SoftFile("a2600"))) << "passed over, never loaded";
    EXPECT_TRUE(FileExists(SoftFile("cpc464")));
    EXPECT_EQ(Titles(), (std::vector<std::string>{"charger", "disky", "oddone", "twoside"}));
    SelectMachine("cpc464");
    EXPECT_FALSE(Page().Timer()->isActive()) << "the machine on show is not loaded again";
}

TEST_F(SoftwarePanelTest, HeaderClicksSortAndAListOfOneRowIgnoresThem) {
    ShowOther("cpc464");
    emit Software().ColumnClicked(1); // Year
    EXPECT_EQ(Titles(), (std::vector<std::string>{"twoside", "charger", "disky", "oddone"}));
    emit Software().ColumnClicked(1);
    EXPECT_EQ(Titles(), (std::vector<std::string>{"oddone", "disky", "charger", "twoside"}))
        << "a second click on the column turns the order round";
    emit Software().ColumnClicked(5);
    EXPECT_EQ(Titles(), (std::vector<std::string>{"charger", "disky", "oddone", "twoside"}));

    std::filesystem::remove(SoftwareFolder() / "a2600" / "pit;fall.zip");
    std::filesystem::remove(SoftFile("a2600"));
    SelectMachine("a2600");
    StandStill();
    ASSERT_EQ(Titles(), std::vector<std::string>{"pitfall"});
    const int key = Software().Model().SortKey();
    emit Software().ColumnClicked(key == 1 ? 2 : 1);
    EXPECT_EQ(Software().Model().SortKey(), key) << "one row: the click changes nothing";
}

TEST_F(SoftwarePanelTest, RefreshSoftwareMeasuresAvailabilityAgain) {
    ShowOther("a2600");
    ASSERT_EQ(Titles(), (std::vector<std::string>{"pitfall", "pit;fall"}));
    WriteFile(SoftwareFolder() / "a2600" / "adventur.7z", "7z");
    ShowOther("a2600");
    EXPECT_EQ(Titles().size(), 2u) << "the file keeps what was measured when it was made";
    Controls().mnuRefreshSoftware->trigger();
    EXPECT_EQ(Titles(), (std::vector<std::string>{"adventur", "pitfall", "pit;fall"}));
}

TEST_F(SoftwarePanelTest, ANewSoftwareFolderInOptionsThrowsEveryFileAway) {
    ShowOther("a2600");
    WriteFile(SoftFile("cpc464"), "");
    const auto elsewhere = m_folder / "more software";
    WriteFile(elsewhere / "a2600" / "adventur.zip", "zip");
    AnswerDialog([&](QDialog& dialog) {
        const auto fill = [&dialog](const char* name, const QString& text) {
            dialog.findChild<QLineEdit*>(QString::fromLatin1(name))->setText(text);
        };
        for (const char* name : {"txtSamPath", "txtArtworkPath", "txtCtrlrPath", "txtCheatPath",
                                 "txtPluginsPath", "txtLanguagePath"}) {
            fill(name, QDir::tempPath());
        }
        fill("txtMESSSoftwarePath", QString::fromStdString(elsewhere.string()));
        dialog.findChild<QAbstractButton*>(QStringLiteral("cmdNext"))->click();
        dialog.findChild<QAbstractButton*>(QStringLiteral("cmdOK"))->click();
        if (dialog.isVisible()) {
            ADD_FAILURE() << "Options refused: " << Told();
            dialog.reject();
        }
    });
    Form().Options();
    EXPECT_FALSE(FileExists(SoftFile("cpc464"))) << "every machine's file went";
    Form().ViewOther();
    EXPECT_EQ(Titles(), std::vector<std::string>{"adventur"}) << "measured in the new folder";
}

TEST_F(SoftwarePanelTest, AFileCutOffMidRecordShowsTheRowsBeforeAndSaysSo) {
    WriteFile(SoftFile("a2600"),
              "\"A\",\"Pitfall!\",\"1982\",\"Yes\",\"Activision\",\"Cart\",\"pitfall\",\"N/A\","
              "\"N/A\",\"a2600\"\r\n\"A\",\"Kaboom!\",\"1981\",\"Yes\",\"Activ");
    ShowOther("a2600");
    EXPECT_EQ(Titles(), std::vector<std::string>{"pitfall"});
    ASSERT_FALSE(m_prompter.Prompts().empty());
    EXPECT_TRUE(
        m_prompter.Texts().back().startsWith("Error In LoadListsSoftware: Input past end of file"));
    EXPECT_FALSE(m_context.flags.fatalErrorFlag) << "the program goes on";
}

TEST_F(SoftwarePanelTest, WithoutSoftwareXmlTheUserIsToldAndNothingIsMade) {
    ShowOther("pet2001");
    std::filesystem::remove(Output() / "software.xml");
    SelectMachine("a2600");
    StandStill();
    ASSERT_FALSE(m_prompter.Prompts().empty());
    EXPECT_EQ(m_prompter.Prompts().back().title, "LoadSoftwareLists");
    EXPECT_EQ(m_prompter.Texts().back(), "Cannot find software.xml.  Exiting sub.");
    EXPECT_FALSE(FileExists(SoftFile("a2600")));
    EXPECT_FALSE(Page().Cover()->isVisible());
}

TEST_F(SoftwarePanelTest, TheSlotListingIsAskedOfMameOnceAndShown) {
    ShowOther("a2600");
    emit Controls().lblBLinks[LinkListSlots]->linkActivated(QStringLiteral("#"));
    emit Controls().lblBLinks[LinkListSlots]->linkActivated(QStringLiteral("#"));
    EXPECT_EQ(Runs(), std::vector<std::string>{"a2600 -listslots"});
    EXPECT_TRUE(Page().SlotListing()->toPlainText().contains("joyport1"));
    const auto* tabs = Page().findChild<QTabWidget*>(QStringLiteral("tabSoftware"));
    ASSERT_NE(tabs, nullptr);
    EXPECT_EQ(tabs->currentWidget(), Page().SlotListing()) << "the listing comes to the front";
    SelectMachine("cpc464");
    StandStill();
    EXPECT_TRUE(Page().SlotListing()->toPlainText().isEmpty())
        << "another machine's slots are not shown for this one";
}

} // namespace
} // namespace coinlight::test
