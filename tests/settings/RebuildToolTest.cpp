#include <gtest/gtest.h>

#include "core/CommandLine.h"
#include "core/FileTests.h"
#include "settings/ComboChoices.h"
#include "settings/RebuildSettings.h"
#include "support/TestFiles.h"

namespace coinlight {
namespace {

using test::ReadFile;
using test::RunShell;
using test::TempFolder;
using test::WriteFile;

constexpr const char* kOptions =
    "[Miscellaneous]\r\nCoinlight Version=26.02.0\r\n[Core Search Path Options]\r\n";

/// What the tool prints, or with `errors` what it complains of.
test::ShellResult Rebuild(const std::filesystem::path& data, bool errors = false) {
    return RunShell(QuotePath(test::ToolProgram().string()) + " rebuild-settings " +
                    QuotePath(data.string()) + (errors ? " 2>&1 >/dev/null" : " 2>/dev/null"));
}

TEST(RebuildSettingsTool, RepairsAndReportsAsTheScreenDoes) {
    TempFolder folder;
    const DataLayout data{folder / "My Data"};
    WriteFile(data.OptionsIni(),
              std::string(kOptions) + "Artwork=" + (folder / "art").string() + "\r\n");
    WriteFile(folder / "art" / "scanlines.png", "png");
    WriteFile(data.Settings() / "pacman.cfg",
              "[Core Screen Options]\r\nEffect=Scanlines\r\nGamma=9.99\r\n");
    const auto first = Rebuild(data.root);
    EXPECT_EQ(first.status, 0) << first.output;
    const std::string report = "Filename\tSetting\r\n\r\n\r\npacman.cfg\tGamma\r\n\r\n";
    EXPECT_EQ(first.output, report) << "the effect of the artwork folder is known";
    EXPECT_EQ(ReadFile(RebuildReportFile(data)), report);
    EXPECT_NE(ReadFile(data.Settings() / "pacman.cfg").find("Gamma=1.00"), std::string::npos);

    const auto second = Rebuild(data.root);
    EXPECT_EQ(second.output, "No invalid values were detected in your setting files.\n");
    EXPECT_FALSE(FileExists(RebuildReportFile(data)));
}

TEST(RebuildSettingsTool, RefusesWithoutPreferencesAndSaysWhenThereIsNothing) {
    TempFolder folder;
    const DataLayout data{folder.Path()};
    WriteFile(data.Settings() / "pacman.cfg", "[Core Screen Options]\r\nEffect=Scanlines\r\n");
    const auto refused = Rebuild(data.root, true);
    EXPECT_EQ(refused.status, 1) << "without options.ini every effect would look unknown";
    EXPECT_NE(refused.output.find("options.ini"), std::string::npos);
    EXPECT_EQ(ReadFile(data.Settings() / "pacman.cfg"),
              "[Core Screen Options]\r\nEffect=Scanlines\r\n");

    std::filesystem::remove(data.Settings() / "pacman.cfg");
    WriteFile(data.OptionsIni(), kOptions);
    EXPECT_EQ(Rebuild(data.root).output, "There are no setting files.\n");
    EXPECT_EQ(RunShell(QuotePath(test::ToolProgram().string()) + " rebuild-settings 2>&1").status,
              2);
}

} // namespace
} // namespace coinlight
