#include <gtest/gtest.h>

#include "core/CommandLine.h"
#include "support/TestFiles.h"

using namespace coinlight;
using namespace coinlight::test;

namespace {

std::string Quoted(const std::filesystem::path& path) {
    return QuotePath(path.string());
}

std::string Tool(const std::string& arguments) {
    return Quoted(ToolProgram()) + " " + arguments;
}

} // namespace

TEST(CatalogueTool, BuildsACatalogueAndPrintsItsCounts) {
    TempFolder folder;
    const auto fixtures = FixturesFolder() / "catalogue";
    const auto out = folder / "out put";
    std::filesystem::create_directories(out);
    const auto run = RunShell(Tool("catalogue " + Quoted(fixtures / "machine.xml") + " " +
                                   Quoted(fixtures / "lists.txt") + " " + Quoted(out) +
                                   " --catver " + Quoted(fixtures / "catver.ini")));
    ASSERT_EQ(run.status, 0) << run.output;
    EXPECT_NE(run.output.find("arcadeinfo.txt: 4 machines\n"), std::string::npos) << run.output;
    EXPECT_NE(run.output.find("otherinfo.txt: 3 machines\n"), std::string::npos);
    EXPECT_NE(run.output.find("unlisted.txt: 2 machines\n"), std::string::npos);
    EXPECT_NE(ReadFile(out / "arcadeinfo.txt").find("Maze / Collect"), std::string::npos);

    // Software and category merge over what was just made.
    const auto soft = out / "soft" / "console.txt";
    std::filesystem::create_directories(soft.parent_path());
    const auto software =
        RunShell(Tool("software " + Quoted(fixtures / "software.xml") + " " +
                      Quoted(out / "softfilter.ini") + " console " + "'console;console_cass' " +
                      Quoted(soft) + " --swpath " + Quoted(folder / "roms")));
    ASSERT_EQ(software.status, 0) << software.output;
    EXPECT_NE(software.output.find(": 4 software items"), std::string::npos) << software.output;

    WriteFile(folder / "new.ini", "[Category]\nbeta=Sports\n");
    const auto catver = RunShell(
        Tool("catver " + Quoted(out / "arcadeinfo.txt") + " " + Quoted(folder / "new.ini")));
    ASSERT_EQ(catver.status, 0);
    const std::string arcade = ReadFile(out / "arcadeinfo.txt");
    EXPECT_EQ(arcade.find("Maze / Collect"), std::string::npos);
    EXPECT_NE(arcade.find("\"Sports\""), std::string::npos);
}

TEST(CatalogueTool, MakesListsAndReportsMisuseAndFailures) {
    TempFolder folder;
    const auto made =
        RunShell(Tool("make-lists " + Quoted(FixturesFolder() / "catalogue" / "machine.xml") + " " +
                      Quoted(folder / "lists.txt")));
    ASSERT_EQ(made.status, 0);
    EXPECT_EQ(made.output, "arcade: 1\nother: 12\n");
    EXPECT_NE(ReadFile(folder / "lists.txt").find("\r\nArcade\r\n|alpha|\r\n"), std::string::npos);

    EXPECT_EQ(RunShell(Tool("catalogue only-one 2>/dev/null")).status, 2);
    EXPECT_EQ(RunShell(Tool("make-lists 2>/dev/null")).status, 2);
    const auto failed =
        RunShell(Tool("catalogue " + Quoted(folder / "none.xml") + " " +
                      Quoted(folder / "lists.txt") + " " + Quoted(folder.Path()) + " 2>&1"));
    EXPECT_EQ(failed.status, 1);
    EXPECT_EQ(failed.output.rfind("Error In CreateSupportFiles: File not found", 0), 0u)
        << failed.output;
}
