// Starting arcade machines from the main window, against the fake MAME and, once, the real one.
#include <QCheckBox>
#include <QPushButton>
#include <QTest>
#include <QTextBrowser>

#include "MainWindowFixture.h"
#include "core/CommandLine.h"
#include "core/ProfileFile.h"
#include "core/TextFile.h"

namespace coinlight::test {
namespace {

class MainWindowLaunch : public MainWindowFixture {
protected:
    MainWindowLaunch() {
        AddRom("pacman");
        AddRom("galaga");
    }

    void Select(MachineListView& list, const std::string& machine) {
        list.SelectRow(list.Model().RowOfShortName(machine));
    }

    std::string Launches() const { return ReadFile(m_mame.Launches()); }
    std::filesystem::path Inp(const std::string& machine) const {
        return m_folder / "inp" / (machine + ".inp");
    }
};

TEST_F(MainWindowLaunch, AStartRunsTheEmulatorAndShowsWhatItPrinted) {
    ASSERT_TRUE(Load()) << Told();
    Form().ViewAvailableArcade();
    Select(*Controls().lvAvailable, "pacman");
    std::filesystem::remove(m_mame.Launches());
    Form().PlayArcade();

    const std::string temp = m_context.data.Temp().string();
    const std::string expected = QuotePath((m_mame.folder / "mame").string()) + " -inipath " +
                                 QuotePath(temp) + " pacman > " + QuotePath(temp + "/results.txt") +
                                 " 2> " + QuotePath(temp + "/error.txt");
    EXPECT_EQ(ReadFile(Output() / "lastrun.txt"), expected + "\r\n");
    EXPECT_EQ(Launches(), m_mame.folder.string() + "\t-inipath\t" + temp + "\tpacman\n")
        << "the emulator ran in its own folder with the ini folder named";
    EXPECT_EQ(Controls().lblScroll->text(), "FAKE-MAME: EMULATING PACMAN");
    EXPECT_EQ(Controls().lblScroll->toolTip(), "MAME Standard Output");
    EXPECT_EQ(Controls().fraVerify->title(), "MAME Error Output");
    EXPECT_EQ(Controls().pages->currentWidget(), Controls().fraVerify);
    EXPECT_TRUE(Controls().rtfVerify->toPlainText().contains("this is not MAME"));
    EXPECT_FALSE(FileExists(m_context.data.Temp() / "results.txt"));
    EXPECT_FALSE(FileExists(m_context.data.Temp() / "error.txt"));
    EXPECT_FALSE(Form().isHidden()) << "the window is back";
    Form().ReturnList1();
    EXPECT_EQ(Controls().pages->currentWidget(), Controls().fraList);
}

std::size_t Count(const std::string& text, const std::string& what) {
    std::size_t count = 0;
    for (auto at = text.find(what); at != std::string::npos; at = text.find(what, at + 1)) {
        ++count;
    }
    return count;
}

TEST_F(MainWindowLaunch, OneEnterOrDoubleClickStartsOnce) {
    ASSERT_TRUE(Load()) << Told();
    Form().show();
    Form().ViewAvailableArcade();
    Select(*Controls().lvAvailable, "galaga");
    std::filesystem::remove(m_mame.Launches());
    QTest::keyClick(Controls().lvAvailable, Qt::Key_Return);
    EXPECT_EQ(Count(Launches(), "\tgalaga\n"), 1u) << "Enter in the list starts it, once";
    EXPECT_EQ(Controls().pages->currentWidget(), Controls().fraVerify)
        << "the error output of that one run is on show";

    Form().ReturnList1();
    std::filesystem::remove(m_mame.Launches());
    const QModelIndex galaga = Controls().lvAvailable->currentIndex();
    // A double click is a click, then the second press that the system reports as double.
    const QPoint onGalaga = Controls().lvAvailable->visualRect(galaga).center();
    QTest::mouseClick(Controls().lvAvailable->viewport(), Qt::LeftButton, {}, onGalaga);
    QTest::mouseDClick(Controls().lvAvailable->viewport(), Qt::LeftButton, {}, onGalaga);
    EXPECT_EQ(Count(Launches(), "\tgalaga\n"), 1u) << "a double click starts it, once";

    Form().ReturnList1();
    Form().ViewUnavailableArcade();
    const auto told = m_prompter.Texts().size();
    QTest::keyClick(Controls().lvUnavailable, Qt::Key_Return);
    ASSERT_EQ(m_prompter.Texts().size(), told + 1) << Told();
    EXPECT_EQ(m_prompter.Prompts().back().title, "Start");
    EXPECT_EQ(m_prompter.Texts().back(), "This ROM is unavailable.");

    Form().ViewAllArcade();
    Controls().fraVerify->setTitle(QStringLiteral("MAME Error Output"));
    Controls().pages->setCurrentWidget(Controls().fraVerify);
    QTest::keyClick(&Form(), Qt::Key_Return);
    EXPECT_EQ(Controls().pages->currentWidget(), Controls().fraList) << "Enter leaves a text page";
}

TEST_F(MainWindowLaunch, TheWindowStaysHiddenWhileMameRunsWhateverAnotherStartAsks) {
    ASSERT_TRUE(Load()) << Told();
    Form().show();
    Select(*Controls().lvAll, "pacman");
    m_mame.SetBehaviour("sleep 900\n");
    std::filesystem::remove(m_mame.Launches());
    bool hiddenAfterRaise = false;
    QTimer::singleShot(400, &Form(), [this, &hiddenAfterRaise] {
        Form().RaiseFromAnotherStart();
        hiddenAfterRaise = Form().isHidden();
        Form().PlayArcade(); // a start from a second window, or a key that came through
    });
    Form().PlayArcade();
    EXPECT_TRUE(hiddenAfterRaise) << "another start must not bring the window over MAME";
    EXPECT_EQ(Count(Launches(), "\tpacman\n"), 1u) << "no second MAME while one runs";
    EXPECT_FALSE(Form().isHidden()) << "the window is back once MAME ended";
    Form().RaiseFromAnotherStart();
    EXPECT_TRUE(Form().isVisible());
}

TEST_F(MainWindowLaunch, OtherCommandsOfTheMachinesProfileFollowTheName) {
    WriteFile(m_context.data.Settings() / "galaga.cfg",
              "[Miscellaneous]\r\nOther Commands=-Joystick_Map  4   -X\r\n");
    ASSERT_TRUE(Load()) << Told();
    Select(*Controls().lvAll, "galaga");
    Form().PlayArcade();
    const std::string line = ReadFile(Output() / "lastrun.txt");
    EXPECT_NE(line.find(" galaga -joystick_map 4  -x > "), std::string::npos)
        << line << ": lower-cased, and each double blank folded once";
}

TEST_F(MainWindowLaunch, UnavailableMachinesAndMissingRecordingsDoNotStart) {
    ASSERT_TRUE(Load()) << Told();
    std::filesystem::remove(m_mame.Launches());
    Select(*Controls().lvAll, "mspacman");
    Form().PlayArcade();
    ASSERT_FALSE(m_prompter.Prompts().empty());
    EXPECT_EQ(m_prompter.Prompts().back().title, "Start");
    EXPECT_EQ(m_prompter.Texts().back(), "This ROM is unavailable.");

    WriteOptions("[Core Output Directory Options]\r\nInput=" + (m_folder / "inp").string() +
                 "\r\n");
    ASSERT_TRUE(Load()) << Told();
    Select(*Controls().lvAll, "pacman");
    Controls().chkPlayback->setChecked(true);
    Form().PlayArcade();
    EXPECT_TRUE(m_prompter.Texts().back().startsWith("Cannot find the .inp file for this game."));
    EXPECT_FALSE(Controls().chkPlayback->isChecked());
    EXPECT_FALSE(FileExists(m_mame.Launches())) << "nothing was started";
}

TEST_F(MainWindowLaunch, DecliningToOverwriteARecordingStartsWithoutRecording) {
    WriteOptions("[Core Output Directory Options]\r\nInput=" + (m_folder / "inp").string() +
                 "\r\n");
    WriteFile(Inp("pacman"), "old recording");
    ASSERT_TRUE(Load()) << Told();
    Select(*Controls().lvAll, "pacman");
    Controls().chkRecord->setChecked(true);
    m_prompter.Queue(PromptAnswer::No);
    Form().PlayArcade();
    EXPECT_EQ(m_prompter.Prompts().front().title, "Record");
    EXPECT_FALSE(Controls().chkRecord->isChecked());
    EXPECT_NE(Launches().find("pacman"), std::string::npos) << "the machine started all the same";
    EXPECT_EQ(ReadFile(Inp("pacman")), "old recording");
}

TEST_F(MainWindowLaunch, ThePreviewShowsTheIniAndStartsNothing) {
    ASSERT_TRUE(Load()) << Told();
    Select(*Controls().lvAll, "pacman");
    std::filesystem::remove(m_mame.Launches());
    Controls().cmdFind->click();
    EXPECT_EQ(Controls().fraVerify->title(), "MAME.Ini");
    const QString text = Controls().rtfVerify->toPlainText();
    EXPECT_TRUE(
        text.startsWith("The mame.ini is incomplete because you have not made any option changes."))
        << text.left(200).toStdString();
    EXPECT_TRUE(text.contains("inipath") || text.contains("rompath"));
    EXPECT_FALSE(FileExists(m_mame.Launches()));
    EXPECT_FALSE(Controls().cmdFind->isHidden() && Controls().lblBLinks[LinkFind]->isHidden())
        << "the command comes back after the preview";
    const auto lines = ReadTextLines(m_context.data.Temp() / "mame.ini");
    ASSERT_TRUE(lines.has_value());
    EXPECT_LT(lines->size(), 100u) << "the base text is back";
}

TEST_F(MainWindowLaunch, TheStartBoxesReachMameIni) {
    ASSERT_TRUE(Load()) << Told();
    Controls().chkAutoSave->setChecked(true);
    EXPECT_NE(ReadFile(m_context.data.Temp() / "mame.ini").find("autosave"), std::string::npos);
    Controls().chkRecord->setChecked(true);
    Controls().chkPlayback->setChecked(true);
    EXPECT_FALSE(Controls().chkRecord->isChecked()) << "playback and record exclude each other";
}

} // namespace
} // namespace coinlight::test
