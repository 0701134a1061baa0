#include <gtest/gtest.h>

#include "core/CommandLine.h"
#include "core/TextFile.h"
#include "settings/BuildIni.h"
#include "support/TestFiles.h"

namespace coinlight {
namespace {

using test::RunShell;
using test::TempFolder;
using test::WriteFile;

/// A data folder whose options.ini names a few paths, and the quoted path of that file.
struct ToolData {
    TempFolder folder;
    std::filesystem::path optionsIni = folder / "My Data/settings/options.ini";

    ToolData() {
        WriteFile(optionsIni, "[Miscellaneous]\r\nCoinlight Version=26.02.0\r\n"
                              "[MAME]\r\nExecutable=mame\r\nMame.exe Size=1\r\n"
                              "[Core Search Path Options]\r\nMAME=/usr/games\r\n"
                              "Arcade ROMs=/roms/Arcade\r\nIni=/data/temp\r\n");
    }
    std::string Options() const { return QuotePath(optionsIni.string()); }
};

test::ShellResult Tool(const std::string& arguments) {
    return RunShell(QuotePath(test::ToolProgram().string()) + " " + arguments);
}

TEST(MameIniTool, PrintsWhatCreateMAMEIniAndBuildIniWrite) {
    ToolData data;
    Preferences preferences;
    preferences.searchPaths.arcadeRoms = "/roms/Arcade";
    preferences.searchPaths.ini = "/data/temp";
    preferences.searchPaths.mame = "/usr/games";
    MameIniBase base;
    base.machine = "pacman";
    base.boxes.record = true;
    std::string expected;
    for (const auto& line : MameIniBaseLines(preferences, base)) {
        expected += line + "\r\n";
    }
    EXPECT_EQ(Tool("mameini " + data.Options() + " --machine pacman --record").output, expected);

    WriteFile(data.optionsIni.parent_path() / "raster-ch.cfg",
              "[Core Rotation Options]\r\nFlip=Both\r\n");
    const auto withProfile = Tool("mameini " + data.Options() + " --profile raster-ch");
    EXPECT_EQ(withProfile.status, 0);
    const auto lines = SplitLines(withProfile.output);
    EXPECT_GE(lines.size(), 100u);
    EXPECT_NE(withProfile.output.find("\r\nflipx\t1\r\nflipy\t1\r\n"), std::string::npos);

    const auto other =
        Tool("mameini " + data.Options() + " --other --software-unselected --profile " +
             QuotePath((data.optionsIni.parent_path() / "raster-ch.cfg").string()));
    EXPECT_EQ(other.status, 0);
    EXPECT_EQ(other.output.find("snapname"), std::string::npos);
    EXPECT_NE(Tool("mameini " + data.Options() + " --other --software-part 'Cart;Flop'")
                  .output.find("snapname\t%g/%d_cart\r\n"),
              std::string::npos);
}

TEST(MameIniTool, MisuseAndBadFilesExitWithAMessage) {
    ToolData data;
    const std::string options = data.Options();
    for (const std::string& misuse : std::vector<std::string>{
             "", "--other", options + " --record", options + " --machine",
             options + " --machine a --record --playback", options + " --bogus",
             options + " --software-part a --software-unselected"}) {
        EXPECT_EQ(Tool("mameini " + misuse + " 2>/dev/null").status, 2) << misuse;
    }
    auto result = Tool("mameini " + QuotePath((data.folder / "none.ini").string()) + " 2>&1");
    EXPECT_EQ(result.status, 1);
    EXPECT_NE(result.output.find("coinlight-tool: cannot read"), std::string::npos);
    result = Tool("mameini " + options + " --profile nosuch 2>&1");
    EXPECT_EQ(result.status, 1);
    EXPECT_NE(result.output.find("no profile nosuch"), std::string::npos);

    WriteFile(data.optionsIni.parent_path() / "bad.cfg", "[Core Performance Options]\nSpeed=x\n");
    result = Tool("mameini " + options + " --profile bad 2>&1");
    EXPECT_EQ(result.status, 1);
    EXPECT_NE(result.output.find("Type mismatch"), std::string::npos);

    WriteFile(data.optionsIni, "[Miscellaneous]\r\nCoinlight Version=1.0\r\n");
    result = Tool("mameini " + options + " 2>&1");
    EXPECT_EQ(result.status, 1);
    EXPECT_NE(result.output.find("older release"), std::string::npos);
    WriteFile(data.optionsIni, std::string("\0\xff\xfe garbage", 11));
    EXPECT_EQ(Tool("mameini " + options + " 2>/dev/null").status, 1);
}

} // namespace
} // namespace coinlight
