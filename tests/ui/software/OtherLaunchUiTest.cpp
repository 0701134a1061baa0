// Starting other machines from the window, with and without a title, against the fake MAME.
#include <QTextBrowser>

#include "SoftwarePanelFixture.h"
#include "core/ProfileFile.h"

namespace coinlight::test {
namespace {

class OtherLaunchUiTest : public SoftwarePanelFixture {
protected:
    std::string LastRun() { return ReadFile(Output() / "lastrun.txt"); }
    std::string MameIni() { return ReadFile(m_context.data.Temp() / "mame.ini"); }
};

TEST_F(OtherLaunchUiTest, ATitleStartsWithItsDeviceSwitch) {
    ShowOther("a2600");
    SelectTitle("pitfall");
    Controls().cmdStart->click();
    EXPECT_EQ(Runs(), std::vector<std::string>{"a2600 -cart pitfall"});
    EXPECT_NE(LastRun().find(" a2600 -cart pitfall > "), std::string::npos) << LastRun();
    EXPECT_EQ(Controls().lblScroll->text(), "FAKE-MAME: EMULATING A2600");
    EXPECT_EQ(Controls().fraVerify->title(), "MAME Error Output");
    EXPECT_LT(MameIni().size(), 3000u) << "the base text is back after the run";
    EXPECT_EQ(m_prompter.Prompts().size(), 0u) << Told();
}

TEST_F(OtherLaunchUiTest, EnterInTheTitlesStartsOnceAndUnavailableTitlesNever) {
    ShowOther("a2600");
    SelectTitle("pitfall");
    QTest::keyClick(&Software(), Qt::Key_Return);
    EXPECT_EQ(Runs().size(), 1u) << "one key press, one start";
    EXPECT_EQ(Controls().pages->currentWidget(), Controls().fraVerify)
        << "the window's own Enter did not act on the same press and leave the error page";

    Form().ReturnList1();
    Page().Option(1)->click();
    SelectTitle("riverraid");
    emit Software().RowActivated(Software().SelectedRow());
    EXPECT_EQ(Runs().size(), 1u);
    ASSERT_FALSE(m_prompter.Prompts().empty());
    EXPECT_EQ(m_prompter.Prompts().back().title, "Start");
    EXPECT_EQ(m_prompter.Texts().back(), "This software is not available.");
}

TEST_F(OtherLaunchUiTest, AMachineWithListsNeedsATitleOrTheBoxTicked) {
    ShowOther("a2600");
    Controls().cmdStart->click();
    ASSERT_EQ(m_prompter.Prompts().size(), 1u);
    EXPECT_EQ(m_prompter.Texts().back(),
              "You must tick \"Don't Start Software\" or select a software title when starting a "
              "machine which has software .");
    EXPECT_TRUE(Runs().empty());

    Page().RunNoSoftware()->setChecked(true);
    Page().StringEdit()->setChecked(true);
    SelectTitle("pitfall");
    Controls().cmdStart->click();
    EXPECT_EQ(Runs(), std::vector<std::string>{"a2600"}) << "no title, no box, no part message";
    EXPECT_EQ(m_prompter.Prompts().size(), 1u);

    ShowOther("pet2001");
    Controls().cmdStart->click();
    EXPECT_EQ(Runs().back(), "pet2001");
}

TEST_F(OtherLaunchUiTest, SeveralPartsAreToldAndTheFirstLoaded) {
    ShowOther("cpc464");
    SelectTitle("twoside");
    Controls().cmdStart->click();
    ASSERT_EQ(m_prompter.Prompts().size(), 1u);
    EXPECT_EQ(m_prompter.Texts().back(),
              "This title has 2 parts (Cass1;Cass2).\nCoinlight will load the first part but you "
              "must load the remaining parts from the Internal UI once the title has started.");
    EXPECT_EQ(Runs(), std::vector<std::string>{"cpc464 -cass twoside"});
}

TEST_F(OtherLaunchUiTest, DisksChargersAndUnknownDevices) {
    ShowOther("cpc464");
    SelectTitle("disky");
    Controls().cmdStart->click();
    SelectTitle("charger");
    Controls().cmdStart->click();
    SelectTitle("oddone");
    Controls().cmdStart->click();
    EXPECT_EQ(Runs(), (std::vector<std::string>{"cpc464 -cdrm disky",
                                                "cpc464 scharger -cass charger", "cpc464 oddone"}));
    EXPECT_TRUE(m_prompter.Texts().back().startsWith("Cannot determine device type"));
}

TEST_F(OtherLaunchUiTest, CancelInTheEditBoxStartsNothingAndLeavesMameIniAlone) {
    WriteFile(m_context.data.Settings() / "other.cfg",
              "[Miscellaneous]\r\nOther Commands=-nothrottle\r\n");
    ShowOther("cpc464");
    SelectTitle("oddone");
    Page().StringEdit()->setChecked(true);
    const std::string before = MameIni();
    Controls().cmdStart->click(); // nothing queued: the box is cancelled
    ASSERT_EQ(m_prompter.Prompts().size(), 1u) << "the unknown device is told in the box";
    const auto& box = m_prompter.Prompts().back();
    EXPECT_EQ(box.kind, "input");
    EXPECT_EQ(box.title, "Command Line Edit");
    EXPECT_TRUE(box.text.startsWith("Unable to determine device type.\n\n"));
    EXPECT_TRUE(box.text.endsWith("/mame cpc464  oddone"));
    EXPECT_EQ(MameIni(), before);
    EXPECT_TRUE(Runs().empty());

    m_prompter.Queue(QString());
    Controls().cmdStart->click();
    EXPECT_TRUE(Runs().empty()) << "an emptied field stops it too";

    m_prompter.Queue(QStringLiteral("-Flop2 OddOne -Cheat"));
    Controls().cmdStart->click();
    EXPECT_EQ(Runs(), std::vector<std::string>{"cpc464 -flop2 oddone -cheat -nothrottle"})
        << "the edited text lower-cased, other.cfg's commands after it";
}

TEST_F(OtherLaunchUiTest, ATitleNameWithShellCharactersRunsNothing) {
    ShowOther("a2600");
    SelectTitle("pit;fall");
    Controls().cmdStart->click();
    EXPECT_TRUE(Runs().empty());
    ASSERT_FALSE(m_prompter.Prompts().empty());
    EXPECT_TRUE(m_prompter.Texts().back().contains("pit;fall"));
    EXPECT_FALSE(FileExists(Output() / "lastrun.txt"));
}

TEST_F(OtherLaunchUiTest, ARedMachineIsRefusedAndThePreviewShowsOtherCfg) {
    WriteFile(m_context.data.Settings() / "other.cfg",
              "[Miscellaneous]\r\nOther Commands=-nothrottle\r\n");
    ShowOther("redbox");
    Form().PlayOther();
    EXPECT_EQ(m_prompter.Texts().back(), "This ROM is unavailable.");
    Controls().cmdFind->click();
    Form().ReturnList1();
    EXPECT_FALSE(Controls().cmdStart->isEnabled()) << "back from the preview, still unstartable";

    SelectMachine("a2600");
    StandStill();
    SelectTitle("pitfall");
    Controls().cmdFind->click();
    EXPECT_EQ(Controls().fraVerify->title(), "MAME.Ini");
    EXPECT_TRUE(Controls().rtfVerify->toPlainText().contains("%g/%d_cart"))
        << "the selected title names the snapshots";
    EXPECT_EQ(Controls().lblScroll->text(), "other");
    EXPECT_TRUE(Runs().empty());
}

} // namespace
} // namespace coinlight::test
