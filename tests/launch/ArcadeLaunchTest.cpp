#include "launch/ArcadeLaunch.h"

#include <gtest/gtest.h>

#include "core/AppFolders.h"
#include "core/CommandRunner.h"
#include "core/TextFile.h"
#include "launch/LaunchAftermath.h"
#include "launch/LaunchCommand.h"
#include "settings/MameIniBase.h"
#include "support/TestFiles.h"

namespace coinlight {
namespace {

using test::ReadFile;
using test::TempFolder;
using test::WriteFile;

/// A data folder, a fake MAME and the paths of options.ini pointing at them.
struct LaunchSetup {
    TempFolder folder;
    AppContext context;
    test::FakeMame mame;

    LaunchSetup() {
        context.data.root = folder / "Coin Data";
        EXPECT_EQ(MakeFolderTree(context.data), std::nullopt);
        mame = test::InstallFakeMame(folder / "My MAME");
        Preferences& preferences = context.preferences;
        preferences.mame.executable = mame.executable;
        preferences.searchPaths.mame = mame.folder.string();
        preferences.searchPaths.ini = context.data.Temp().string();
        preferences.outputPaths.input = (folder / "inp").string();
        preferences.outputPaths.cfg = (folder / "cfg").string();
    }

    std::filesystem::path MameIni() const { return context.data.Temp() / "mame.ini"; }
    std::filesystem::path Profile(std::string_view name) const {
        return context.data.Settings() / (std::string(name) + ".cfg");
    }

    static ArcadeStartRequest Request(std::string machine = "pacman") {
        ArcadeStartRequest request;
        request.selection = {"Available Arcade Machines", "Raster", std::move(machine), "V", false};
        request.profileName = "previous";
        return request;
    }

    ArcadeLaunchPlan Prepare(const ArcadeStartRequest& request) const {
        return PrepareArcadeLaunch(context, request);
    }
};

TEST(PrepareArcadeLaunch, RefusesUnavailableAndUnfitMachinesBeforeTouchingAnything) {
    LaunchSetup setup;
    const auto refused = [&](ArcadeStartRequest request) {
        const ArcadeLaunchPlan plan = setup.Prepare(request);
        EXPECT_EQ(plan.verdict, ArcadeVerdict::Refused);
        EXPECT_EQ(plan.profileName, "previous");
        return plan.message.value_or(UserMessage{});
    };
    auto request = LaunchSetup::Request();
    request.selection.view = "Unavailable Arcade Machines";
    UserMessage message = refused(request);
    EXPECT_EQ(message.title, "Start");
    EXPECT_EQ(message.text, "This ROM is unavailable.");
    EXPECT_EQ(message.icon, MessageIcon::Information);

    request.selection.view = "All Arcade Machines";
    request.selection.unavailable = true;
    EXPECT_EQ(refused(request).text, "This ROM is unavailable.");
    setup.context.markers.skipSearch = true;
    EXPECT_EQ(refused(request).text.rfind("You are running with !skipsearch.txt which assumes", 0),
              0u);

    EXPECT_EQ(refused(LaunchSetup::Request("")).text, "No machine is selected.");
    for (const char* unfit : {"../../x", "pac man", "PACMAN", "a;reboot"}) {
        EXPECT_NE(refused(LaunchSetup::Request(unfit)).text.find("is not the short name"),
                  std::string::npos)
            << unfit;
    }
    EXPECT_FALSE(std::filesystem::exists(setup.MameIni()));
}

TEST(PrepareArcadeLaunch, AMachineWithoutAnyProfileStartsOnTheBaseText) {
    LaunchSetup setup;
    ASSERT_EQ(CreateMAMEIni(setup.context.preferences, {}), std::nullopt);
    const std::string base = ReadFile(setup.MameIni());
    const ArcadeLaunchPlan plan = setup.Prepare(LaunchSetup::Request());
    ASSERT_EQ(plan.verdict, ArcadeVerdict::Ready);
    EXPECT_EQ(plan.profileName, "raster");
    EXPECT_EQ(plan.profile, std::nullopt);
    EXPECT_EQ(plan.otherCommands, "");
    EXPECT_EQ(plan.recordQuestion, std::nullopt);
    EXPECT_EQ(plan.strayIniWarning, std::nullopt);
    EXPECT_EQ(plan.commandLine, ComposeLaunchCommandLine(setup.context.preferences,
                                                         setup.context.data, "pacman", ""));
    EXPECT_EQ(ReadFile(setup.MameIni()), base);
}

TEST(PrepareArcadeLaunch, TheClassProfileFollowsTheLevelAndTheMachinesOwnWins) {
    LaunchSetup setup;
    setup.context.preferences.other.settingsLevel = 2;
    WriteFile(setup.Profile("raster-mh"),
              "[Core Performance Options]\r\nSpeed=50%\r\n[Miscellaneous]\r\nOther "
              "Commands=-Video None\r\n");
    auto request = LaunchSetup::Request("pong"); // on the built-in monochrome list
    request.selection.orientation = "H";
    ArcadeLaunchPlan plan = setup.Prepare(request);
    ASSERT_EQ(plan.verdict, ArcadeVerdict::Ready);
    EXPECT_EQ(plan.profileName, "raster-mh");
    EXPECT_EQ(plan.profile, setup.Profile("raster-mh"));
    EXPECT_EQ(plan.otherCommands, "-Video None");
    EXPECT_NE(plan.commandLine.find(" pong -video none > "), std::string::npos);
    const auto lines = ReadTextLines(setup.MameIni()).value_or(std::vector<std::string>{});
    EXPECT_GE(lines.size(), 100u);
    EXPECT_NE(std::find(lines.begin(), lines.end(), "speed\t0.50"), lines.end());

    ASSERT_EQ(CreateMAMEIni(setup.context.preferences, {}), std::nullopt);
    WriteFile(setup.Profile("pong"), "[Core Performance Options]\r\nSpeed=75%\r\n");
    plan = setup.Prepare(request);
    EXPECT_EQ(plan.profile, setup.Profile("pong"));
    EXPECT_EQ(plan.otherCommands, "");
    EXPECT_NE(ReadFile(setup.MameIni()).find("speed\t0.75\r\n"), std::string::npos);
}

TEST(PrepareArcadeLaunch, APreviewStopsOnceTheIniIsBuilt) {
    LaunchSetup setup;
    WriteFile(setup.Profile("raster"), "[Miscellaneous]\r\nOther Commands=-cheat\r\n");
    WriteFile(setup.folder / "inp/pacman.inp", "recorded");
    WriteFile(setup.context.data.Temp() / "vertical.ini", "");
    auto request = LaunchSetup::Request();
    request.boxes.record = true;
    request.preview = true;
    const ArcadeLaunchPlan plan = setup.Prepare(request);
    EXPECT_EQ(plan.verdict, ArcadeVerdict::Previewed);
    EXPECT_EQ(plan.otherCommands, "-cheat");
    EXPECT_EQ(plan.message, std::nullopt);
    EXPECT_EQ(plan.recordQuestion, std::nullopt);
    EXPECT_EQ(plan.strayIniWarning, std::nullopt);
    EXPECT_EQ(plan.commandLine, "");
    EXPECT_NE(ReadFile(setup.MameIni()).find("record\tpacman.inp\r\n"), std::string::npos);
}

TEST(PrepareArcadeLaunch, PlaybackNeedsARecordingAndRecordingAsksBeforeOverwriting) {
    LaunchSetup setup;
    auto request = LaunchSetup::Request();
    request.boxes.playback = true;
    ArcadeLaunchPlan plan = setup.Prepare(request);
    EXPECT_EQ(plan.verdict, ArcadeVerdict::PlaybackMissing);
    ASSERT_TRUE(plan.message.has_value());
    EXPECT_EQ(plan.message->title, "Playback");
    EXPECT_EQ(plan.message->text,
              "Cannot find the .inp file for this game.\nYou must record this game first.");
    EXPECT_EQ(plan.commandLine, "");

    WriteFile(setup.folder / "inp/pacman.inp", "recorded");
    EXPECT_EQ(setup.Prepare(request).verdict, ArcadeVerdict::Ready);

    request.boxes = {false, true, false, false};
    plan = setup.Prepare(request);
    ASSERT_EQ(plan.verdict, ArcadeVerdict::Ready);
    ASSERT_TRUE(plan.recordQuestion.has_value());
    EXPECT_EQ(plan.recordQuestion->title, "Record");
    EXPECT_EQ(plan.recordQuestion->text,
              "An .inp file for this game already exists.\nDo you want to overwrite it?");
    EXPECT_EQ(plan.recordQuestion->buttons, MessageButtons::YesNo);
    EXPECT_TRUE(plan.recordQuestion->noIsDefault);
    std::filesystem::remove(setup.folder / "inp/pacman.inp");
    EXPECT_EQ(setup.Prepare(request).recordQuestion, std::nullopt);
}

TEST(PrepareArcadeLaunch, StrayIniFilesAreWarnedAboutAndABadProfileFails) {
    LaunchSetup setup;
    WriteFile(setup.context.data.Temp() / "vertical.ini", "");
    WriteFile(setup.MameIni(), "");
    ArcadeLaunchPlan plan = setup.Prepare(LaunchSetup::Request());
    ASSERT_EQ(plan.verdict, ArcadeVerdict::Ready);
    ASSERT_TRUE(plan.strayIniWarning.has_value());
    EXPECT_EQ(plan.strayIniWarning->text.rfind("There are 2 .ini files.", 0), 0u);

    WriteFile(setup.Profile("raster"), "[Core Performance Options]\r\nSpeed=quick\r\n");
    plan = setup.Prepare(LaunchSetup::Request());
    EXPECT_EQ(plan.verdict, ArcadeVerdict::Failed);
    ASSERT_TRUE(plan.message.has_value());
    EXPECT_EQ(plan.message->text.rfind("Error In BuildIni: ", 0), 0u);
    EXPECT_EQ(plan.commandLine, "");
}

/// Runs a prepared start the way the main window does, up to the clean-up.
LaunchOutput RunStart(LaunchSetup& setup, const ArcadeLaunchPlan& plan) {
    int pumps = 0;
    const ExecResult run =
        ExecCmd(plan.commandLine, setup.mame.folder, [&] { return ++pumps > 0; });
    EXPECT_EQ(run.outcome, ExecOutcome::Finished);
    EXPECT_EQ(WriteLastRun(setup.context.data, plan.commandLine), std::nullopt);
    EXPECT_EQ(CreateMAMEIni(setup.context.preferences, {}), std::nullopt);
    return FinishLaunch(setup.context, "pacman");
}

TEST(ArcadeStart, TheFakeMameRunsAndItsOutputIsReadBackAndCleanedUp) {
    LaunchSetup setup;
    WriteFile(setup.Profile("raster"),
              "[Miscellaneous]\r\nOther Commands=-Video   None -sound none\r\n");
    const ArcadeLaunchPlan plan = setup.Prepare(LaunchSetup::Request());
    ASSERT_EQ(plan.verdict, ArcadeVerdict::Ready);
    const LaunchOutput output = RunStart(setup, plan);

    EXPECT_EQ(output.standardOutput, "fake-mame: emulating pacman\n");
    EXPECT_EQ(output.errorOutput, "fake-mame: warning: this is not MAME\n");
    const std::string launch = ReadFile(setup.mame.Launches());
    EXPECT_EQ(launch, setup.mame.folder.string() + "\t-inipath\t" +
                          setup.context.data.Temp().string() +
                          "\tpacman\t-video\tnone\t-sound\tnone\n");
    EXPECT_EQ(ReadFile(LastRunFile(setup.context.data)), plan.commandLine + "\r\n");
    EXPECT_NE(plan.commandLine.find(" pacman -video  none -sound none > "), std::string::npos);
    // Only the base mame.ini is left in temp.
    EXPECT_EQ(test::CountFiles(setup.context.data.Temp()), 1u);
    EXPECT_LT(ReadTextLines(setup.MameIni()).value_or(std::vector<std::string>{}).size(), 100u);
}

TEST(ArcadeStart, DeleteCfgRemovesMamesOwnFileOfTheMachineOnly) {
    LaunchSetup setup;
    const auto cfg = setup.folder / "cfg/pacman.cfg";
    WriteFile(cfg, "<mameconfig/>");
    WriteFile(setup.Profile("pacman"), "");
    RunStart(setup, setup.Prepare(LaunchSetup::Request()));
    EXPECT_TRUE(std::filesystem::exists(cfg));

    setup.context.preferences.other.deleteCfg = true;
    RunStart(setup, setup.Prepare(LaunchSetup::Request()));
    EXPECT_FALSE(std::filesystem::exists(cfg));
    EXPECT_TRUE(std::filesystem::exists(setup.Profile("pacman")));
}

TEST(FinishLaunch, EmptyCapturesVanishWithoutATrace) {
    LaunchSetup setup;
    WriteFile(StandardOutputFile(setup.context.data), "");
    WriteFile(StandardErrorFile(setup.context.data), "");
    const LaunchOutput output = FinishLaunch(setup.context, "pacman");
    EXPECT_EQ(output.standardOutput, std::nullopt);
    EXPECT_EQ(output.errorOutput, std::nullopt);
    EXPECT_EQ(test::CountFiles(setup.context.data.Temp()), 0u);
    EXPECT_EQ(FinishLaunch(setup.context, "pacman").errorOutput, std::nullopt);

    std::filesystem::remove_all(setup.context.data.Output());
    const auto failure = WriteLastRun(setup.context.data, "line");
    ASSERT_TRUE(failure.has_value());
    EXPECT_EQ(failure->text.rfind("Error in PlayArcade: ", 0), 0u);
}

} // namespace
} // namespace coinlight
