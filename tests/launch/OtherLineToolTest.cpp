#include <gtest/gtest.h>

#include "core/CommandLine.h"
#include "launch/OtherLaunch.h"
#include "support/TestFiles.h"

namespace coinlight {
namespace {

using test::RunShell;
using test::TempFolder;
using test::WriteFile;

struct ToolData {
    TempFolder folder;
    std::filesystem::path optionsIni = folder / "My Data/settings/options.ini";

    ToolData() {
        WriteFile(optionsIni, "[Miscellaneous]\r\nCoinlight Version=26.02.0\r\n"
                              "[MAME]\r\nExecutable=mame\r\nMame.exe Size=1\r\n"
                              "[Core Search Path Options]\r\nMAME=/usr/games\r\n"
                              "Arcade ROMs=/roms/Arcade\r\nIni=/data/temp\r\n");
    }
    /// Standard output, or with `errors` standard error alone.
    test::ShellResult Tool(const std::string& arguments, bool errors = false) const {
        return RunShell(QuotePath(test::ToolProgram().string()) + " other-line " +
                        QuotePath(optionsIni.string()) + " " + arguments +
                        (errors ? " 2>&1 >/dev/null" : " 2>/dev/null"));
    }
    std::string Line(std::string_view tail) const {
        const std::string temp = (folder / "My Data/temp").string();
        return "\"/usr/games/mame\" -inipath \"/data/temp\" cpc464" + std::string(tail) + " > " +
               QuotePath(temp + "/results.txt") + " 2> " + QuotePath(temp + "/error.txt") + "\n";
    }
};

TEST(OtherLineTool, PrintsTheLineOfAStartAndWhatTheWindowWouldSay) {
    ToolData data;
    const std::string title = "cpc464 --devices 'cass;flop1' --lists 'cpc_cass;cpc_flop' "
                              "--software twoside --parts 'Cass1;Cass2'";
    EXPECT_EQ(data.Tool(title).output, data.Line(" -cass twoside"));
    EXPECT_EQ(data.Tool(title, true).output,
              "Start: This title has 2 parts (Cass1;Cass2). Coinlight will load the first part "
              "but you must load the remaining parts from the Internal UI once the title has "
              "started.\n");
    EXPECT_EQ(data.Tool(title + " --other-commands '-Window  -Nothrottle'").output,
              data.Line(" -cass twoside -window -nothrottle"));
    EXPECT_EQ(data.Tool("cpc464 --devices cass --lists N/A").output, data.Line(""));
    EXPECT_EQ(data.Tool("cpc464 --devices cass --lists cpc_cass --run-no-software "
                        "--software x --parts Cass")
                  .output,
              data.Line(""));
    EXPECT_EQ(data.Tool("cpc464 --devices cass --lists cpc_cass --software x --parts Cass "
                        "--requirement scharger")
                  .output,
              data.Line(" scharger -cass x"));
}

TEST(OtherLineTool, TheEditAnswerReplacesTheArgumentsAndAnEmptyOneStops) {
    ToolData data;
    const std::string title = "cpc464 --devices cass --lists cpc_cass --software odd --parts Quik "
                              "--string-edit";
    EXPECT_EQ(data.Tool(title + " --edit-answer '-Quik Odd'").output, data.Line(" -quik odd"));
    const auto told = data.Tool(title + " --edit-answer -x", true).output;
    EXPECT_TRUE(told.starts_with("Command Line Edit: Unable to determine device type.")) << told;
    EXPECT_TRUE(told.ends_with("/usr/games/mame cpc464  odd\n")) << told;
    const auto stopped = data.Tool(title + " --edit-answer ''");
    EXPECT_EQ(stopped.status, 1);
    EXPECT_EQ(stopped.output, "");
    EXPECT_EQ(data.Tool(title).status, 1) << "no answer is a cancelled box";
}

TEST(OtherLineTool, RefusesWhatMustNotReachAShellAndMisuse) {
    ToolData data;
    const auto refused =
        data.Tool("cpc464 --devices cass --lists cpc_cass --software 'x;reboot' --parts Cass");
    EXPECT_EQ(refused.status, 1);
    EXPECT_EQ(refused.output, "");
    EXPECT_EQ(data.Tool("cpc464 --devices cass --lists cpc_cass", true).output,
              "Start: You must tick \"Don't Start Software\" or select a software title when "
              "starting a machine which has software .\n");
    EXPECT_EQ(data.Tool("'cpc 464' --devices cass --lists N/A").status, 1);
    EXPECT_EQ(data.Tool("cpc464 --lists N/A").status, 2) << "--devices is required";
    EXPECT_EQ(data.Tool("cpc464 --devices a --lists N/A --parts Cass").status, 2)
        << "parts without a title";
    EXPECT_EQ(data.Tool("cpc464 --devices a --devices b --lists N/A").status, 2);
    EXPECT_EQ(data.Tool("cpc464 --devices a --lists N/A --bogus").status, 2);
}

} // namespace
} // namespace coinlight
