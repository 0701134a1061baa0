#include "launch/OtherLaunch.h"

#include <gtest/gtest.h>

#include "core/AppFolders.h"
#include "core/CommandLine.h"
#include "settings/MameIniPreview.h"
#include "support/TestFiles.h"

namespace coinlight {
namespace {

using test::ReadFile;
using test::TempFolder;
using test::WriteFile;

const std::filesystem::path kExecutable = "/games/My MAME/mame";

OtherStartRequest Request(std::string lists = "msx1_cart;msx1_flop") {
    OtherStartRequest request;
    request.selection =
        OtherMachineSelection{"hb75p", "cart1;cart2;flop1", std::move(lists), false};
    request.softwareListEmpty = false;
    request.title = SoftwareTitle{"Cart", "zanac", "N/A", "N/A"};
    return request;
}

std::vector<std::string> Texts(const std::vector<UserMessage>& messages) {
    std::vector<std::string> texts;
    for (const auto& message : messages) {
        texts.push_back(message.text);
    }
    return texts;
}

TEST(PlanOtherStart, TheChecksOfAStartInTheirOrder) {
    const auto refusal = [](const OtherStartRequest& request) {
        const OtherStartPlan plan = PlanOtherStart(request, kExecutable);
        EXPECT_TRUE(plan.notices.empty());
        EXPECT_TRUE(plan.softwareArgs.empty());
        return plan.refusal ? plan.refusal->title + ": " + plan.refusal->text : std::string();
    };
    OtherStartRequest red = Request();
    red.selection->unavailable = true;
    red.softwareListEmpty = true;
    EXPECT_EQ(refusal(red), "Start: This ROM is unavailable.");

    OtherStartRequest empty = Request();
    empty.softwareListEmpty = true;
    empty.title.reset();
    EXPECT_EQ(refusal(empty),
              "Start: If you do not have any software selected, you must tick \"Don't Start "
              "Software\" when starting a machine which has software.");

    OtherStartRequest unselected = Request();
    unselected.title.reset();
    EXPECT_EQ(refusal(unselected),
              "Start: You must tick \"Don't Start Software\" or select a software title when "
              "starting a machine which has software .");

    OtherStartRequest none = Request();
    none.selection.reset();
    EXPECT_EQ(refusal(none), "Start: No machine is selected.");

    OtherStartRequest badName = Request();
    badName.selection->machine = "hb75p;reboot";
    EXPECT_NE(refusal(badName).find("not the short name of a machine"), std::string::npos);

    OtherStartRequest noLists = unselected;
    noLists.selection->softwareLists = "N/A";
    EXPECT_EQ(refusal(noLists), "") << "a machine without lists needs no title";
    OtherStartRequest ticked = unselected;
    ticked.runNoSoftware = true;
    EXPECT_EQ(refusal(ticked), "");
    OtherStartRequest preview = red;
    preview.preview = true;
    EXPECT_EQ(refusal(preview), "") << "the preview checks nothing";
}

TEST(PlanOtherStart, DontStartSoftwareSkipsTheTitleAndTheEditBox) {
    OtherStartRequest request = Request();
    request.title->parts = "Cass1;Cass2";
    request.runNoSoftware = true;
    request.stringEdit = true;
    const OtherStartPlan plan = PlanOtherStart(request, kExecutable);
    EXPECT_FALSE(plan.refusal);
    EXPECT_TRUE(plan.notices.empty());
    EXPECT_TRUE(plan.softwareArgs.empty());
    EXPECT_FALSE(plan.edit);
}

TEST(PlanOtherStart, SeveralPartsAreNamedAndTheFirstIsLoaded) {
    OtherStartRequest request = Request();
    request.selection->devices = "cass1;cass2";
    request.title->parts = "Cass1;Cass2";
    const OtherStartPlan plan = PlanOtherStart(request, kExecutable);
    ASSERT_EQ(plan.notices.size(), 1u);
    EXPECT_EQ(plan.notices[0].title, "Start");
    EXPECT_EQ(plan.notices[0].icon, MessageIcon::Information);
    EXPECT_EQ(plan.notices[0].text,
              "This title has 2 parts (Cass1;Cass2).\nCoinlight will load the first part but you "
              "must load the remaining parts from the Internal UI once the title has started.");
    EXPECT_EQ(plan.softwareArgs, "-cass1 zanac");
}

TEST(PlanOtherStart, DisksRequirementsAndUnknownDevices) {
    OtherStartRequest disk = Request();
    disk.title->disk = "Zanac Disc";
    EXPECT_EQ(PlanOtherStart(disk, kExecutable).softwareArgs, "-cdrm zanac");

    OtherStartRequest charger = Request();
    charger.title->requirement = "scharger";
    charger.title->parts = "Flop1";
    EXPECT_EQ(PlanOtherStart(charger, kExecutable).softwareArgs, "scharger -cass zanac");

    OtherStartRequest unknown = Request();
    unknown.title->parts = "Quik";
    const OtherStartPlan plan = PlanOtherStart(unknown, kExecutable);
    EXPECT_EQ(plan.softwareArgs, " zanac");
    EXPECT_EQ(Texts(plan.notices),
              std::vector<std::string>{"Cannot determine device type but the machine may still "
                                       "work.  If it doesn't, tick the Command Line Edit checkbox "
                                       "to the right to manually edit the string and try again."});

    OtherStartRequest noDevices = Request();
    noDevices.selection->devices = "N/A";
    noDevices.title->parts = "C";
    EXPECT_EQ(PlanOtherStart(noDevices, kExecutable).softwareArgs, " zanac")
        << "\"N/A\" names no device, even for the empty cut of a one-letter part";
}

TEST(PlanOtherStart, TheEditBoxShowsTheWholeLineAndSaysWhenTheDeviceIsUnknown) {
    OtherStartRequest request = Request();
    request.stringEdit = true;
    OtherStartPlan plan = PlanOtherStart(request, kExecutable);
    ASSERT_TRUE(plan.edit);
    EXPECT_EQ(plan.edit->title, "Command Line Edit");
    EXPECT_EQ(plan.edit->preset, "-cart1 zanac");
    EXPECT_EQ(plan.edit->prompt,
              "Here is the string that will be passed to the command line.\n\nYou can edit the "
              "portion after the machine name or leave it as is and click OK.  Click Cancel to "
              "abort starting this machine.\n\n/games/My MAME/mame hb75p -cart1 zanac");

    request.title->parts = "Quik";
    plan = PlanOtherStart(request, kExecutable);
    EXPECT_TRUE(plan.notices.empty()) << "the box says it instead";
    ASSERT_TRUE(plan.edit);
    EXPECT_TRUE(plan.edit->prompt.starts_with("Unable to determine device type.\n\nHere is"));
    EXPECT_TRUE(plan.edit->prompt.ends_with("mame hb75p  zanac"));

    EXPECT_EQ(EditedSoftwareArgs(std::nullopt), std::nullopt) << "Cancel";
    EXPECT_EQ(EditedSoftwareArgs(std::string()), std::nullopt) << "OK on an emptied field";
    EXPECT_EQ(EditedSoftwareArgs(std::string("-Flop2 Zanac")), "-Flop2 Zanac");
}

TEST(PlanOtherStart, ATitleWithShellCharactersIsRefusedWithoutANotice) {
    OtherStartRequest request = Request();
    request.title->parts = "Cass1;Cass2";
    request.title->name = "zanac$(reboot)";
    const OtherStartPlan plan = PlanOtherStart(request, kExecutable);
    ASSERT_TRUE(plan.refusal);
    EXPECT_NE(plan.refusal->text.find("zanac$(reboot)"), std::string::npos);
    EXPECT_TRUE(plan.notices.empty());
    EXPECT_TRUE(plan.softwareArgs.empty());
}

/// A data folder with options pointing at it, for the second half of a start.
struct OtherSetup {
    TempFolder folder;
    AppContext context;

    OtherSetup() {
        context.data.root = folder / "Coin Data";
        EXPECT_EQ(MakeFolderTree(context.data), std::nullopt);
        Preferences& preferences = context.preferences;
        preferences.mame.executable = "mame";
        preferences.searchPaths.mame = (folder / "My MAME").string();
        preferences.searchPaths.ini = context.data.Temp().string();
        std::filesystem::create_directories(preferences.searchPaths.mame);
    }

    MameIniBase Base(std::string machine = "hb75p") const {
        MameIniBase base;
        base.otherView = true;
        base.machine = std::move(machine);
        return base;
    }
    std::string Line(std::string_view tail) const {
        const std::string temp = context.data.Temp().string();
        return QuotePath(context.preferences.searchPaths.mame + "/mame") + " -inipath " +
               QuotePath(temp) + " hb75p" + std::string(tail) + " > " +
               QuotePath(temp + "/results.txt") + " 2> " + QuotePath(temp + "/error.txt");
    }
};

TEST(PrepareOtherLaunch, TheCommandLineWithAndWithoutTitleAndOtherCommands) {
    OtherSetup setup;
    const auto line = [&](std::string_view args) {
        const OtherLaunchPlan plan =
            PrepareOtherLaunch(setup.context, setup.Base(), args, {}, false);
        EXPECT_EQ(plan.verdict, OtherLaunchVerdict::Ready);
        return plan.commandLine;
    };
    EXPECT_EQ(line(""), setup.Line(""));
    EXPECT_EQ(line("-Cart1 Zanac"), setup.Line(" -cart1 zanac")) << "lower-cased";
    EXPECT_EQ(line(" zanac"), setup.Line(" zanac")) << "the double blank folds";
    WriteFile(setup.context.data.Settings() / "other.cfg",
              "[Miscellaneous]\r\nOther Commands=-Joystick_Map 4\r\n");
    EXPECT_EQ(line("-cart1 zanac"), setup.Line(" -cart1 zanac -joystick_map 4"));
    EXPECT_EQ(line(""), setup.Line(" -joystick_map 4"));
}

TEST(PrepareOtherLaunch, TheMachinesProfileWinsThenOtherThenTheOneInUse) {
    OtherSetup setup;
    const auto settings = setup.context.data.Settings();
    const std::filesystem::path earlier = settings / "earlier.cfg";
    const auto profile = [&] {
        return PrepareOtherLaunch(setup.context, setup.Base(), "", earlier, false).profile;
    };
    EXPECT_EQ(profile(), earlier) << "with neither, the profile in use so far";
    WriteFile(settings / "other.cfg", "[Miscellaneous]\r\nOther Commands=-x\r\n");
    EXPECT_EQ(profile(), settings / "other.cfg");
    WriteFile(settings / "hb75p.cfg", "[Miscellaneous]\r\nOther Commands=-y\r\n");
    const OtherLaunchPlan plan =
        PrepareOtherLaunch(setup.context, setup.Base(), "", earlier, false);
    EXPECT_EQ(plan.profile, settings / "hb75p.cfg");
    EXPECT_EQ(plan.otherCommands, "-y");
}

TEST(PrepareOtherLaunch, ThePreviewBuildsTheIniAndComposesNothing) {
    OtherSetup setup;
    MameIniBase base = setup.Base();
    base.software = SoftwareListState::Selected;
    base.selectedParts = "Flop1;Flop2";
    const OtherLaunchPlan plan = PrepareOtherLaunch(setup.context, base, "-flop1 x", {}, true);
    EXPECT_EQ(plan.verdict, OtherLaunchVerdict::Previewed);
    EXPECT_TRUE(plan.commandLine.empty());
    const std::string ini = ReadFile(setup.context.data.Temp() / "mame.ini");
    EXPECT_NE(ini.find("%g/%d_flop1"), std::string::npos) << "the title selected names snapshots";
    EXPECT_GT(ini.size(), 2000u) << "the profile's sections follow the base text";
}

TEST(PrepareOtherLaunch, StrayIniFilesAreWarnedOfAndAnUnwritableIniFails) {
    OtherSetup setup;
    WriteFile(setup.context.data.Temp() / "vertical.ini", "");
    OtherLaunchPlan plan = PrepareOtherLaunch(setup.context, setup.Base(), "", {}, false);
    ASSERT_TRUE(plan.strayIniWarning);
    EXPECT_EQ(plan.strayIniWarning->title, "Warning: Multiple Ini Files Found");

    setup.context.preferences.searchPaths.ini = (setup.folder / "no such folder").string();
    plan = PrepareOtherLaunch(setup.context, setup.Base(), "", {}, false);
    EXPECT_EQ(plan.verdict, OtherLaunchVerdict::Failed);
    ASSERT_TRUE(plan.message);
    EXPECT_NE(plan.message->text.find("CreateMAMEIni"), std::string::npos);
}

} // namespace
} // namespace coinlight
