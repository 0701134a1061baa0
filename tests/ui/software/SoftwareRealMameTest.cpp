// The software panel and the slot listing with Debian's MAME itself.
#include <gtest/gtest.h>

#include <QTest>

#include "core/FileTests.h"
#include "lists/RecordBuilder.h"
#include "support/ScriptedPrompter.h"
#include "support/TestFiles.h"
#include "ui/frmMain.h"

namespace coinlight::test {
namespace {

constexpr const char* kMame = "/usr/games/mame";

class SoftwareRealMame : public ::testing::Test {
protected:
    void SetUp() override {
        if (!std::filesystem::exists(kMame)) {
            GTEST_SKIP() << "Debian's MAME is not installed at " << kMame;
        }
        m_context.appFolder = m_folder / "app";
        m_context.data.root = m_folder / "data";
        const auto output = m_context.data.Output();
        std::filesystem::create_directories(output);
        for (const auto& entry :
             std::filesystem::directory_iterator(FixturesFolder() / "catalogue-small" / "output")) {
            std::filesystem::copy_file(entry.path(), output / entry.path().filename());
        }
        WriteFile(output / "otherinfo.txt",
                  RecordLine(Record("a2600", {{ColMachine, "Atari 2600 (NTSC)"},
                                              {ColBriefNames, "cart"},
                                              {ColSoftwareLists, "a2600;a2600_cass"},
                                              {ColRomRequired, "No"}})));
        // MAME's own software lists of the machine, as -listsoftware prints them.
        const ShellResult lists = RunShell(std::string(kMame) + " -listsoftware a2600 -nodtd");
        ASSERT_EQ(lists.status, 0);
        WriteFile(output / "software.xml", lists.output);
        WriteFile(m_context.data.Support() / "lists.txt",
                  "Arcade\r\n|pacman|\r\nOther\r\n|a2600|\r\n");
        WriteFile(
            m_context.data.OptionsIni(),
            "[Miscellaneous]\r\nCoinlight Version=26.02.0\r\nLists.txt Size=" +
                std::to_string(*FileSize(m_context.data.Support() / "lists.txt")) +
                "\r\n\r\n[MAME]\r\nExecutable=mame\r\nMame.exe Size=" +
                std::to_string(*FileSize(kMame)) +
                "\r\n\r\n[Core Search Path Options]\r\nMAME=/usr/games\r\nArcade ROMs=" +
                (m_folder / "roms").string() + "\r\nOther ROMs=" + (m_folder / "roms").string() +
                "\r\nIni=" + m_context.data.Temp().string() +
                "\r\n\r\n[View]\r\nList View=Other Machines\r\nOther Machine Key=k.a2600\r\n");
        m_form = std::make_unique<frmMain>(m_context, m_prompter);
        ASSERT_TRUE(m_form->FormLoad()) << m_prompter.Texts().join("|").toStdString();
    }

    const MainControls& Controls() const { return m_form->Controls(); }

    TempFolder m_folder;
    AppContext m_context;
    ScriptedPrompter m_prompter;
    std::unique_ptr<frmMain> m_form;
};

TEST_F(SoftwareRealMame, TheTitlesOfAnAtari2600AreMadeFromMamesOwnLists) {
    EXPECT_TRUE(FileExists(m_context.data.Software() / "a2600.txt"));
    Controls().picSoftware->Option(1)->click();
    const SoftwareListModel& model = Controls().lvSoftware->Model();
    EXPECT_GT(model.rowCount(), 500) << "no title is on disk: all are unavailable";
    bool pitfall = false;
    for (int row = 0; row < model.rowCount(); ++row) {
        pitfall = pitfall || model.Text(row, SoftwareListModel::ShortName) == "pitfall";
    }
    EXPECT_TRUE(pitfall);
    EXPECT_EQ(Controls().lblPanel[1]->toolTip(),
              QStringLiteral("Software: ") + QString::number(model.rowCount()));
}

TEST_F(SoftwareRealMame, TheSlotsOfAnAtari2600AreListedAndKept) {
    emit Controls().lblBLinks[LinkListSlots]->linkActivated(QStringLiteral("#"));
    const QString listing = Controls().picSoftware->SlotListing()->toPlainText();
    EXPECT_TRUE(listing.contains(QStringLiteral("joyport1"))) << listing.toStdString();
    EXPECT_EQ(ReadFile(m_context.data.Temp() / "a2600_slots.txt"), listing.toStdString());
}

TEST_F(SoftwareRealMame, AnAtari2600StartsWithoutATitle) {
    WriteFile(m_context.data.Settings() / "other.cfg",
              "[Miscellaneous]\r\nOther Commands=-video none -sound none -seconds_to_run 1\r\n");
    Controls().picSoftware->RunNoSoftware()->setChecked(true);
    m_form->PlayOther();
    const std::string lastRun = ReadFile(m_context.data.Output() / "lastrun.txt");
    EXPECT_NE(lastRun.find(" a2600 -video none -sound none -seconds_to_run 1 > "),
              std::string::npos)
        << lastRun;
    // MAME complains of the test machine's missing desktop and sound, but of nothing on the
    // command line.
    const QString errors = Controls().rtfVerify->toPlainText();
    EXPECT_FALSE(errors.contains(QStringLiteral("unknown"), Qt::CaseInsensitive))
        << errors.toStdString();
    EXPECT_FALSE(errors.contains(QStringLiteral("fatal"), Qt::CaseInsensitive))
        << errors.toStdString();
}

} // namespace
} // namespace coinlight::test
