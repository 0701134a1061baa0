#include "launch/LaunchCommand.h"

#include <gtest/gtest.h>

#include "core/CommandLine.h"
#include "support/TestFiles.h"

namespace coinlight {
namespace {

using test::RunShell;

Preferences MamePaths(const std::string& mame, const std::string& ini) {
    Preferences preferences;
    preferences.searchPaths.mame = mame;
    preferences.searchPaths.ini = ini;
    preferences.mame.executable = "mame";
    return preferences;
}

TEST(FoldDoubleBlanks, MakesOnePassFromTheLeft) {
    EXPECT_EQ(FoldDoubleBlanks("a  b"), "a b");
    EXPECT_EQ(FoldDoubleBlanks("a   b"), "a  b");
    EXPECT_EQ(FoldDoubleBlanks("a    b"), "a  b");
    EXPECT_EQ(FoldDoubleBlanks("a     b"), "a   b");
    EXPECT_EQ(FoldDoubleBlanks(" a b "), " a b ");
    EXPECT_EQ(FoldDoubleBlanks(""), "");
}

TEST(LaunchCommandLine, QuotesThePathsAndLowerCasesTheRest) {
    const DataLayout data{"/Home/Me/Coin Data"};
    const Preferences preferences = MamePaths("/Games/MAME", "/Games/MAME/Ini");
    EXPECT_EQ(ComposeLaunchCommandLine(preferences, data, "pacman", ""),
              "\"/Games/MAME/mame\" -inipath \"/Games/MAME/Ini\" pacman > "
              "\"/Home/Me/Coin Data/temp/results.txt\" 2> \"/Home/Me/Coin Data/temp/error.txt\"");
    EXPECT_EQ(ComposeLaunchCommandLine(preferences, data, "pacman", "-Joystick_Map 4"),
              "\"/Games/MAME/mame\" -inipath \"/Games/MAME/Ini\" pacman -joystick_map 4 > "
              "\"/Home/Me/Coin Data/temp/results.txt\" 2> \"/Home/Me/Coin Data/temp/error.txt\"");
    EXPECT_EQ(ComposeLaunchCommandLine(preferences, data, "Pacman", ""), std::nullopt);
    EXPECT_EQ(ComposeLaunchCommandLine(preferences, data, "pacman;reboot", ""), std::nullopt);
    EXPECT_EQ(ComposeLaunchCommandLine(preferences, data, "", ""), std::nullopt);
}

TEST(LaunchCommandLine, BlanksAroundOtherCommandsAreFoldedOnce) {
    const DataLayout data{"/d"};
    const Preferences preferences = MamePaths("/m  m", "/i");
    const auto middle = [&](std::string_view other) {
        const std::string line =
            ComposeLaunchCommandLine(preferences, data, "pacman", other).value_or("");
        const std::size_t from = line.find("pacman");
        return line.substr(from, line.find("> \"/d/temp") - from);
    };
    EXPECT_EQ(middle(" -video none "), "pacman -video none ");
    EXPECT_EQ(middle("-video   none"), "pacman -video  none ");
    EXPECT_EQ(middle("-video none   "), "pacman -video none  ");
    EXPECT_EQ(middle("   -video none"), "pacman  -video none ");
    EXPECT_EQ(middle("  "), "pacman  ");
    // The blanks inside a quoted path are the path's own.
    EXPECT_EQ(ComposeLaunchCommandLine(preferences, data, "pacman", "").value_or("").substr(0, 9),
              "\"/m  m/ma");
}

TEST(LaunchLineTool, PrintsTheArcadeCommandLine) {
    test::TempFolder folder;
    const auto options = folder / "Coin Data/settings/options.ini";
    test::WriteFile(options, "[Miscellaneous]\r\nCoinlight Version=26.02.0\r\n"
                             "[MAME]\r\nExecutable=mame\r\n[Core Search Path Options]\r\n"
                             "MAME=/usr/Games\r\nIni=/ini\r\n");
    const std::string tool =
        QuotePath(test::ToolProgram().string()) + " launch-line " + QuotePath(options.string());
    const std::string data = (folder / "Coin Data").string();
    auto result = RunShell(tool + " pong --other-commands '-Video  None   -sound none'");
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.output,
              "\"/usr/Games/mame\" -inipath \"/ini\" pong -video none  -sound none > \"" + data +
                  "/temp/results.txt\" 2> \"" + data + "/temp/error.txt\"\n");
    EXPECT_EQ(
        RunShell(tool + " pong").output.rfind("\"/usr/Games/mame\" -inipath \"/ini\" pong > \"", 0),
        0u);

    result = RunShell(tool + " 'pong; rm -rf ~' 2>&1");
    EXPECT_EQ(result.status, 1);
    EXPECT_NE(result.output.find("is not the short name of a machine"), std::string::npos);
    EXPECT_EQ(RunShell(tool + " 2>/dev/null").status, 2);
    EXPECT_EQ(RunShell(tool + " pong --other-commands 2>/dev/null").status, 2);
    EXPECT_EQ(RunShell(QuotePath(test::ToolProgram().string()) + " launch-line /none.ini pong 2>&1")
                  .status,
              1);
}

} // namespace
} // namespace coinlight
