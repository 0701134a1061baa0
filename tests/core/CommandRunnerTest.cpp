#include "core/CommandRunner.h"

#include <gtest/gtest.h>
#include <signal.h>

#include "core/CommandLine.h"
#include "support/TestFiles.h"

namespace coinlight {
namespace {

using namespace std::chrono_literals;
using test::ReadFile;
using test::TempFolder;

TEST(CommandRunner, RunsInTheGivenFolderHonoursRedirectionsAndGivesTheExitStatus) {
    TempFolder folder;
    const auto work = folder / "MAME folder";
    std::filesystem::create_directories(work);
    const auto out = folder / "out file.txt";
    const auto err = folder / "err.txt";
    const ExecResult result = ExecCmd("pwd > " + QuotePath(out.string()) + " 2> " +
                                          QuotePath(err.string()) + "; echo oops >&2",
                                      work, nullptr);
    EXPECT_EQ(result.outcome, ExecOutcome::Finished);
    EXPECT_EQ(ReadFile(out), work.string() + "\n");
    EXPECT_EQ(result.exitStatus, 0);
    EXPECT_EQ(ExecCmd("exit 3", work, nullptr).exitStatus, 3);
}

TEST(CommandRunner, AQuickChildIsNeverPumpedASlowOneIsPumpedEveryInterval) {
    TempFolder folder;
    int pumps = 0;
    const auto count = [&pumps] {
        ++pumps;
        return true;
    };
    EXPECT_EQ(ExecCmd("true", folder.Path(), count, 200ms).outcome, ExecOutcome::Finished);
    EXPECT_EQ(pumps, 0);
    EXPECT_EQ(ExecCmd("sleep 0.5", folder.Path(), count, 100ms).outcome, ExecOutcome::Finished);
    EXPECT_GE(pumps, 3);
    EXPECT_LE(pumps, 6);
}

TEST(CommandRunner, APumpThatSaysStopEndsTheWholeProcessGroup) {
    TempFolder folder;
    const auto marker = folder / "survived.txt";
    int pumps = 0;
    const ExecResult result = ExecCmd(
        "sleep 3 && touch " + QuotePath(marker.string()), folder.Path(),
        [&pumps] { return ++pumps < 2; }, 50ms);
    EXPECT_EQ(result.outcome, ExecOutcome::Cancelled);
    ::usleep(3'300'000);
    EXPECT_FALSE(std::filesystem::exists(marker)) << "the child's children were ended too";
}

TEST(CommandRunner, AVanishedMameFolderGivesTheDriveMessageAndRunsNothing) {
    TempFolder folder;
    const auto gone = folder / "gone";
    const auto out = folder / "out.txt";
    const ExecResult result = ExecCmd("echo x > " + QuotePath(out.string()), gone, nullptr);
    EXPECT_EQ(result.outcome, ExecOutcome::FolderUnavailable);
    EXPECT_FALSE(result.IsFatal());
    EXPECT_EQ(result.message, "The MAME folder " + gone.string() +
                                  " cannot be reached.  Check the MAME path in Options and "
                                  "try again.");
    EXPECT_FALSE(std::filesystem::exists(out));
}

} // namespace
} // namespace coinlight
