#include <gtest/gtest.h>

#include "InfoTestSupport.h"
#include "core/CommandLine.h"
#include "support/TestFiles.h"

namespace coinlight::test {
namespace {

std::string Tool(const std::string& arguments) {
    return QuotePath(ToolProgram().string()) + " " + arguments;
}

class InfoTool : public ::testing::Test {
protected:
    InfoTool() {
        WriteFile(m_folder / "sup port" / "history.xml",
                  "<system name=\"pacman\" />\n<text>\nMaze &amp; dots\n</text>\n"
                  "<item list=\"nes\" name=\"smb\" />\n<text>Plumber\n</text>\n");
        WriteFile(m_folder / "sup port" / "gameinit.dat",
                  "$info=pacman\n$mame\nInsert coin\n$end\n");
        MakeArchive(m_folder / "mame" / "cheat.7z", {{"pacman.xml", "<cheat desc=\"Lives\"/>\n"},
                                                     {"nes/smb.xml", "<cheat desc=\"Jump\"/>\n"}});
    }
    std::string Quoted(const std::filesystem::path& relative) {
        return QuotePath((m_folder / relative).string());
    }

    TempFolder m_folder;
};

TEST_F(InfoTool, PrintsWhatTheClickShowsForEachKindOfSource) {
    const auto history = RunShell(Tool("info " + Quoted("sup port/history.xml") + " pacman"));
    EXPECT_EQ(history.status, 0);
    EXPECT_EQ(history.output, "history.xml\n\n\nMaze & dots\n\n");
    EXPECT_EQ(RunShell(Tool("info " + Quoted("sup port/gameinit.dat") + " pacman")).output,
              "gameinit.dat\n\n\nInsert coin\n\n");
    EXPECT_EQ(RunShell(Tool("info " + Quoted("mame/cheat.7z") + " pacman")).output,
              "cheat.7z\n\n\nLives\n");
    EXPECT_EQ(RunShell(Tool("info " + Quoted("sup port/cheat.7z") + " pacman --mame-folder " +
                            Quoted("mame")))
                  .output,
              "cheat.7z\n\n\nLives\n")
        << "cheat.7z is always the MAME folder's";
}

TEST_F(InfoTool, TheOtherViewTakesTheSoftwareTitle) {
    const auto output =
        RunShell(Tool("info " + Quoted("sup port/history.xml") +
                      " nes --other --software smb --list nes --title 'Nintendo (NES)' "
                      "--software-title 'Super Mario Bros.'"))
            .output;
    EXPECT_EQ(output, "history.xml\n\n\nNo history found for Nintendo (NES).\n\n"
                      "*** Software ***\n\nPlumber\n\n");
    EXPECT_EQ(RunShell(Tool("info " + Quoted("mame/cheat.7z") +
                            " nes --other --software smb "
                            "--software-title SMB"))
                  .output,
              "cheat.7z\n\n\nSMB\n\nJump\n");
    EXPECT_EQ(RunShell(Tool("info " + Quoted("mame/cheat.7z") + " nes --other")).output,
              "cheat.7z\n\n\nNo software for this machine or no software was selected.\n");
}

TEST_F(InfoTool, FailuresAreThePanelsAndMisuseIsRefused) {
    const auto missing = RunShell(Tool("info " + Quoted("sup port/command.dat") + " pacman"));
    EXPECT_EQ(missing.output, "Error: 53\nFile not found\n");
    EXPECT_EQ(RunShell(Tool("info " + Quoted("sup port/history.xml") + " 2>/dev/null")).status, 2);
    EXPECT_EQ(RunShell(Tool("info x.xml pacman --software smb 2>/dev/null")).status, 2)
        << "a title needs the Other view";
    EXPECT_EQ(RunShell(Tool("info x.xml pacman --bogus 2>/dev/null")).status, 2);
    EXPECT_EQ(RunShell(Tool("info x.xml pacman --title 2>/dev/null")).status, 2);
}

} // namespace
} // namespace coinlight::test
