#include <gtest/gtest.h>

#include "core/CommandLine.h"
#include "support/TestFiles.h"

using namespace coinlight;
using namespace coinlight::test;

namespace {

std::string Tool(const std::string& arguments) {
    return QuotePath(ToolProgram().string()) + " " + arguments;
}

std::string Q(const std::filesystem::path& path) {
    return QuotePath(path.string());
}

} // namespace

TEST(ReportTool, CrcReportPrintsTheChangesAndWritesTheFileOnlyWhenThereAreSome) {
    TempFolder folder;
    WriteFile(folder / "new.txt",
              "\"pacman\",\"Pac-Man\",\"a=1;b=2;\"\r\n\"dkong\",\"DK\",\"c=3;\"\r\n");
    WriteFile(folder / "last.txt",
              "\"pacman\",\"Pac-Man\",\"a=1;\"\r\n\"dkong\",\"DK\",\"c=3;\"\r\n");
    const auto out = folder / "changed roms.txt";
    auto run = RunShell(Tool("crc-report " + Q(folder / "new.txt") + " " + Q(folder / "last.txt") +
                             " --out " + Q(out)));
    ASSERT_EQ(run.status, 0) << run.output;
    EXPECT_NE(run.output.find("Changed\t\r\n\r\npacman\tPac-Man\r\n"), std::string::npos)
        << run.output;
    EXPECT_EQ(ReadFile(out), run.output);

    std::filesystem::remove(out);
    run = RunShell(Tool("crc-report " + Q(folder / "last.txt") + " " + Q(folder / "last.txt") +
                        " --out " + Q(out)));
    EXPECT_EQ(run.status, 0);
    EXPECT_NE(run.output.find("No changes found."), std::string::npos);
    EXPECT_FALSE(std::filesystem::exists(out));

    WriteFile(folder / "cut.txt", "\"pacman\",\"Pac");
    run = RunShell(Tool("crc-report " + Q(folder / "cut.txt") + " " + Q(folder / "last.txt")) +
                   " 2>&1");
    EXPECT_EQ(run.status, 1);
    EXPECT_NE(run.output.find("Error: 62 Input past end of file"), std::string::npos) << run.output;
    EXPECT_EQ(RunShell(Tool("crc-report " + Q(folder / "gone.txt") + " " + Q(folder / "last.txt")))
                  .status,
              1);
    EXPECT_EQ(RunShell(Tool("crc-report only-one.txt 2>/dev/null")).status, 2);
}

TEST(ReportTool, UnneededListsWhatTheSavedListsDoNotNeed) {
    TempFolder folder;
    const auto data = folder / "data";
    std::filesystem::create_directories(data / "output");
    for (const auto& entry :
         std::filesystem::directory_iterator(FixturesFolder() / "catalogue-small" / "output")) {
        std::filesystem::copy_file(entry.path(), data / "output" / entry.path().filename());
    }
    const auto roms = folder / "roms";
    for (const char* file :
         {"pacman.zip", "mspacman.zip", "oldgame.zip", "galaga.7z", "a500.zip"}) {
        WriteFile(roms / file, "z");
    }
    WriteFile(data / "settings" / "options.ini",
              "[Miscellaneous]\r\nCoinlight Version=26.02.0\r\n\r\n[Core Search Path Options]\r\n"
              "Arcade ROMs=" +
                  roms.string() + "\r\n\r\n[Preferences Other]\r\nHide Arcade Clones=True\r\n");
    const auto options = data / "settings" / "options.ini";
    auto run = RunShell(Tool("unneeded " + Q(options)));
    ASSERT_EQ(run.status, 0) << run.output;
    // A hidden clone's set is surplus too; other machines count only with their folders.
    EXPECT_EQ(run.output, roms.string() + "|galaga.7z\n" + roms.string() + "|a500.zip\n" +
                              roms.string() + "|mspacman.zip\n" + roms.string() + "|oldgame.zip\n");
    run = RunShell(Tool("unneeded " + Q(options) + " --7z"));
    EXPECT_EQ(run.output.find("galaga.7z"), std::string::npos);
    EXPECT_EQ(RunShell(Tool("unneeded " + Q(folder / "none.ini") + " 2>/dev/null")).status, 1);
    EXPECT_EQ(RunShell(Tool("unneeded " + Q(options) + " --rar 2>/dev/null")).status, 2);
}
