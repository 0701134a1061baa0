#include <gtest/gtest.h>

#include "core/CommandLine.h"
#include "support/TestFiles.h"

namespace coinlight {
namespace {

using test::ReadFile;
using test::RunShell;

std::string Tool(const std::string& arguments) {
    return QuotePath(test::ToolProgram().string()) + " " + arguments;
}

TEST(IniTool, WritesReadsAndSpacesThroughTheProgramsOwnFunctions) {
    test::TempFolder folder;
    const std::string file = QuotePath((folder / "my options.ini").string());
    ASSERT_EQ(RunShell(Tool("ini-write " + file + " View 'List View' 'Other Machines'")).status, 0);
    ASSERT_EQ(RunShell(Tool("ini-write " + file + " MAME Executable mame")).status, 0);
    EXPECT_EQ(RunShell(Tool("ini-read " + file + " view 'LIST VIEW' none")).output,
              "Other Machines\n");
    EXPECT_EQ(RunShell(Tool("ini-read " + file + " View Missing 'the default'")).output,
              "the default\n");
    ASSERT_EQ(RunShell(Tool("ini-spacing " + file)).status, 0);
    EXPECT_EQ(ReadFile(folder / "my options.ini"),
              "[View]\r\nList View=Other Machines\r\n\r\n[MAME]\r\nExecutable=mame\r\n");
}

TEST(IniTool, MisuseAndFailuresAreReported) {
    test::TempFolder folder;
    EXPECT_EQ(RunShell(Tool("ini-read only-two args 2>/dev/null")).status, 2);
    EXPECT_EQ(RunShell(Tool("no-such-command 2>/dev/null")).status, 2);
    EXPECT_EQ(RunShell(Tool("2>/dev/null")).status, 2);
    const std::string unwritable = QuotePath((folder / "none" / "x.ini").string());
    const auto result = RunShell(Tool("ini-write " + unwritable + " S k v 2>&1"));
    EXPECT_EQ(result.status, 1);
    EXPECT_NE(result.output.find("coinlight-tool:"), std::string::npos);
}

} // namespace
} // namespace coinlight
