// The main window with Debian's MAME itself: a machine that needs no ROM really runs.
#include <QAbstractButton>
#include <QLineEdit>

#include "MainWindowFixture.h"

namespace coinlight::test {
namespace {

TEST(RealMame, PongStartsThroughTheMainWindow) {
    if (!std::filesystem::exists("/usr/games/mame")) {
        GTEST_SKIP() << "Debian's MAME is not installed at /usr/games/mame";
    }
    TempFolder folder;
    AppContext context;
    context.appFolder = folder / "app";
    context.data.root = folder / "data";
    std::filesystem::create_directories(context.data.Output());
    for (const auto& entry :
         std::filesystem::directory_iterator(FixturesFolder() / "catalogue-small" / "output")) {
        std::filesystem::copy_file(entry.path(), context.data.Output() / entry.path().filename());
    }
    WriteFile(context.data.Support() / "lists.txt", "Arcade\r\n|pong|\r\nOther\r\n||\r\n");
    const auto options = context.data.OptionsIni();
    WriteFile(options, "[Miscellaneous]\r\nCoinlight Version=26.02.0\r\nLists.txt Size=" +
                           std::to_string(*FileSize(context.data.Support() / "lists.txt")) +
                           "\r\n\r\n[MAME]\r\nExecutable=mame\r\nMame.exe Size=" +
                           std::to_string(*FileSize("/usr/games/mame")) +
                           "\r\n\r\n[Core Search Path Options]\r\nMAME=/usr/games\r\nArcade ROMs=" +
                           (folder / "roms").string() + "\r\nIni=" + context.data.Temp().string() +
                           "\r\n");
    WriteFile(context.data.Settings() / "pong.cfg",
              "[Miscellaneous]\r\nOther Commands=-video none -sound none -seconds_to_run 2\r\n");
    ScriptedPrompter prompter;
    frmMain form(context, prompter);
    ASSERT_TRUE(form.FormLoad()) << prompter.Texts().join("|").toStdString();
    const auto& all = form.Controls().lvAll;
    all->SelectRow(all->Model().RowOfShortName("pong"));
    form.PlayArcade();
    const std::string lastRun = ReadFile(context.data.Output() / "lastrun.txt");
    EXPECT_NE(lastRun.find("\"/usr/games/mame\" -inipath"), std::string::npos) << lastRun;
    EXPECT_NE(lastRun.find(" pong -video none -sound none -seconds_to_run 2 > "),
              std::string::npos);
    EXPECT_TRUE(form.Controls().lblScroll->text().contains("AVERAGE SPEED"))
        << form.Controls().lblScroll->text().toStdString();
}

class RealMameFirstRun : public MainWindowFixture {};

TEST_F(RealMameFirstRun, DebiansMameOnThePathGivesACatalogueAndFilledLists) {
    if (!std::filesystem::exists("/usr/games/mame")) {
        GTEST_SKIP() << "Debian's MAME is not installed at /usr/games/mame";
    }
    std::filesystem::remove_all(m_context.data.root);
    m_writeOptionsOnLoad = false;
    // A user's PATH and home, and the data the mame package installs.
    m_locations.searchPath = "/usr/local/bin:/usr/bin:/bin:/usr/games";
    m_locations.home = m_folder / "home";
    std::filesystem::create_directories(m_locations.home / ".mame" / "roms"); // a user with ROMs
    m_locations.distributionData = "/usr/share/games/mame";
    QString filledPath;
    AnswerDialog([&filledPath](QDialog& dialog) {
        filledPath = dialog.findChild<QLineEdit*>(QStringLiteral("txtMAMEPath"))->text();
        dialog.findChild<QAbstractButton*>(QStringLiteral("cmdNext"))->click();
        dialog.findChild<QAbstractButton*>(QStringLiteral("cmdOK"))->click();
        if (dialog.isVisible()) {
            dialog.reject();
        }
    });
    ASSERT_TRUE(Load()) << Told();
    EXPECT_EQ(filledPath, "/usr/games/mame") << "the first run found MAME on the PATH";
    EXPECT_GT(std::filesystem::file_size(Output() / "machine.xml"), 100'000'000u);
    const MachineListModel& all = Controls().lvAll->Model();
    EXPECT_GT(all.rowCount(), 10000);
    EXPECT_GT(Controls().lvOther->Model().rowCount(), 1000);
    const int pong = all.RowOfShortName("pong");
    ASSERT_GE(pong, 0);
    Form().ViewAvailableArcade();
    EXPECT_GE(Controls().lvAvailable->Model().RowOfShortName("pong"), 0)
        << "a machine that needs no ROM is available";
}

} // namespace
} // namespace coinlight::test
