#include "reports/AuditReport.h"

#include <gtest/gtest.h>

#include "reports/ReportTail.h"
#include "reports/VerifyReports.h"
#include "support/TestFiles.h"

using namespace coinlight;
using namespace coinlight::test;

namespace {

MameCommand Mame() {
    return {"/opt/my mame", "mame", "/data/temp"};
}

} // namespace

TEST(AuditCommands, AskMameFourTimesInOrderWithTheNameAfterTheIniPath) {
    const auto lines = AuditCommandLines(Mame(), "pacman", "/data $dir/temp");
    ASSERT_EQ(lines.size(), 4u);
    EXPECT_EQ(lines[0], "\"/opt/my mame/mame\" -inipath \"/data/temp\" pacman -verifyroms > "
                        "\"/data \\$dir/temp/vroms.txt\"");
    EXPECT_NE(lines[1].find(" pacman -listroms > \"/data \\$dir/temp/lroms.txt\""),
              std::string::npos);
    EXPECT_NE(lines[2].find(" pacman -verifysamples > "), std::string::npos);
    EXPECT_NE(lines[3].find(" pacman -listsamples > \"/data \\$dir/temp/lsamples.txt\""),
              std::string::npos);
    for (const char* hostile : {"", "pac man", "a;rm -rf x", "$(id)", "Pacman", "neo:geo"}) {
        EXPECT_TRUE(AuditCommandLines(Mame(), hostile, "/t").empty()) << hostile;
    }
}

TEST(AuditReport, AMissingCaptureNamesTheFolderAndLeavesNoCaptureBehind) {
    TempFolder temp;
    WriteFile(temp / "vroms.txt", "romset pacman is good\n");
    WriteFile(temp / "lroms.txt", "ROMs required\n");
    const AuditReport report = MakeAuditReport({true, true}, temp.Path());
    EXPECT_TRUE(report.capturesMissing);
    EXPECT_EQ(report.text,
              "Unable to find audit file(s).  This may mean you do not have permission to "
              "read or write files in " +
                  temp.Path().string() + ".");
    EXPECT_EQ(CountFiles(temp.Path()), 0u);
}

TEST(VerifyCommands, QuoteTheWildcardAndRefuseAForeignMachine) {
    const auto roms = VerifyCommandLine(Mame(), VerifyKind::OtherRoms, "/data/output", "");
    ASSERT_TRUE(roms);
    EXPECT_EQ(*roms, "\"/opt/my mame/mame\" -inipath \"/data/temp\" '*' -verifyroms > "
                     "\"/data/output/otherauditroms.txt\"");
    EXPECT_EQ(*VerifyCommandLine(Mame(), VerifyKind::AllSoftware, "/o", "ignored"),
              "\"/opt/my mame/mame\" -inipath \"/data/temp\" -verifysoftware > "
              "\"/o/otherauditallsoftware.txt\"");
    EXPECT_EQ(*VerifyCommandLine(Mame(), VerifyKind::MachineSoftware, "/o", "a500"),
              "\"/opt/my mame/mame\" -inipath \"/data/temp\" a500 -verifysoftware > "
              "\"/o/otherauditmachinessoftware.txt\"");
    EXPECT_FALSE(VerifyCommandLine(Mame(), VerifyKind::MachineSoftware, "/o", ""));
    EXPECT_FALSE(VerifyCommandLine(Mame(), VerifyKind::MachineSoftware, "/o", "a500 `x`"));
    EXPECT_EQ(MissingReportMessage(ReportOf(SoftwareReportKind("a;b"))).title,
              "Last Machine's Software Report");
    EXPECT_EQ(MissingReportMessage(ReportOf(VerifyKind::Samples)).text,
              "Cannot find Samples report.  You can create one from the Reports pull-down menu "
              "above.");
}

TEST(ReportTail, GivesWholeLinesAsTheFileGrows) {
    TempFolder folder;
    const auto file = folder / "report.txt";
    ReportTail tail(file);
    EXPECT_EQ(tail.NewLines(), "") << "before the shell has made the file";
    WriteFile(file, "romset a is good\nromset b is b");
    EXPECT_EQ(tail.NewLines(), "romset a is good\n");
    EXPECT_EQ(tail.NewLines(), "");
    WriteFile(file, "romset a is good\nromset b is bad\r\nromset c");
    EXPECT_EQ(tail.NewLines(), "romset b is bad\r\n");
}
