// The main window with Debian's MAME itself: a machine that needs no ROM really runs.
#include <gtest/gtest.h>

#include "core/FileTests.h"
#include "support/ScriptedPrompter.h"
#include "support/TestFiles.h"
#include "ui/MachineListView.h"
#include "ui/frmMain.h"

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

} // namespace
} // namespace coinlight::test
