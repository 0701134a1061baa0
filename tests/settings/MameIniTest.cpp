#include <algorithm>
#include <gtest/gtest.h>

#include "core/TextFile.h"
#include "settings/BuildIni.h"
#include "settings/IniTranslation.h"
#include "settings/OptionValues.h"
#include "support/TestFiles.h"

namespace coinlight {
namespace {

using Lines = std::vector<std::string>;
using test::ReadFile;
using test::TempFolder;
using test::WriteFile;

Preferences SomePaths(const std::filesystem::path& ini) {
    Preferences preferences;
    SearchPathPreferences& paths = preferences.searchPaths;
    paths.arcadeRoms = "/roms/Arcade One;/roms/two";
    paths.otherRoms = "/roms/Other";
    paths.software = "/soft";
    paths.hash = "/mame/hash";
    paths.samples = "/mame/samples";
    paths.artwork = "/mame/artwork";
    paths.controller = "/mame/ctrlr";
    paths.ini = ini.string();
    paths.cheat = "/mame/cheat";
    paths.plugins = "/mame/plugins";
    paths.language = "/mame/language";
    preferences.outputPaths = {"/out/cfg", "/out/nvram", "/out/inp",
                               "/out/sta", "/out/snap",  "/out/diff"};
    return preferences;
}

using ProfileValues = std::vector<std::pair<const char*, const char*>>;

/// The mame.ini lines a profile holding `values` (key, value pairs) gives.
Lines ProfileLines(const ProfileValues& values) {
    OptionValues options;
    for (const auto& [key, value] : values) {
        EXPECT_TRUE(options.Set(key, value)) << key;
    }
    const ProfileSections sections = ProfileSectionLines(options);
    EXPECT_FALSE(sections.problem.has_value());
    return sections.lines;
}

/// The lines of one option, bare or with a value, in file order.
Lines LinesOf(const Lines& lines, std::string_view name) {
    Lines found;
    for (const auto& line : lines) {
        if (line == name || line.rfind(std::string(name) + "\t", 0) == 0) {
            found.push_back(line);
        }
    }
    return found;
}

std::string LineOf(const Lines& lines, std::string_view name) {
    const Lines found = LinesOf(lines, name);
    EXPECT_EQ(found.size(), 1u) << name;
    return found.empty() ? std::string() : found.front();
}

TEST(MameIniBase, ArcadeViewsGetTheFoldersStateAndPlaybackOptions) {
    Preferences preferences = SomePaths("/data/temp");
    MameIniBase base;
    base.machine = "pacman";
    const Lines expected = {"#",
                            "# CORE CONFIGURATION OPTIONS",
                            "#",
                            "readconfig\t1",
                            "writeconfig\t0",
                            "",
                            "#",
                            "# CORE SEARCH PATH OPTIONS",
                            "#",
                            "homepath\t.",
                            "rompath\t/roms/Arcade One;/roms/two",
                            "hashpath",
                            "samplepath\t/mame/samples",
                            "artpath\t/mame/artwork",
                            "ctrlrpath\t/mame/ctrlr",
                            "inipath\t/data/temp",
                            "fontpath\t.",
                            "cheatpath\t/mame/cheat",
                            "crosshairpath",
                            "pluginspath\t/mame/plugins",
                            "languagepath\t/mame/language",
                            "swpath",
                            "",
                            "#",
                            "# CORE OUTPUT DIRECTORY OPTIONS",
                            "#",
                            "cfg_directory\t/out/cfg",
                            "nvram_directory\t/out/nvram",
                            "input_directory\t/out/inp",
                            "state_directory\t/out/sta",
                            "snapshot_directory\t/out/snap",
                            "diff_directory\t/out/diff",
                            "# comment_directory",
                            "# share_directory",
                            "",
                            "#",
                            "# CORE STATE/PLAYBACK OPTIONS",
                            "#",
                            "state",
                            "autosave\t0",
                            "rewind\t0",
                            "rewind_capacity\t100",
                            "playback",
                            "record",
                            "exit_after_playback\t0",
                            "mngwrite",
                            "aviwrite",
                            "wavwrite",
                            "snapname\t%g/%i",
                            "snapsize\tauto",
                            "snapview\tauto",
                            "snapbilinear\t1",
                            "statename\t%g",
                            "burnin\t0"};
    EXPECT_EQ(MameIniBaseLines(preferences, base), expected);

    base.boxes.autoSave = true;
    base.boxes.record = true;
    preferences.searchPaths.crosshair = "/mame/cross hair";
    preferences.searchPaths.samples.clear();
    const Lines lines = MameIniBaseLines(preferences, base);
    EXPECT_EQ(LineOf(lines, "autosave"), "autosave\t1");
    EXPECT_EQ(LineOf(lines, "record"), "record\tpacman.inp");
    EXPECT_EQ(LineOf(lines, "playback"), "playback");
    EXPECT_EQ(LineOf(lines, "crosshairpath"), "crosshairpath\t/mame/cross hair");
    EXPECT_EQ(LineOf(lines, "samplepath"), "samplepath\t"); // an empty path keeps its TAB
    // The software selection only matters to other machines.
    base.software = SoftwareListState::NoneSelected;
    EXPECT_EQ(LineOf(MameIniBaseLines(preferences, base), "snapname"), "snapname\t%g/%i");
}

TEST(MameIniBase, TheOtherMachinesViewAddsSoftwareAndNamesSnapshotsByTitle) {
    const Preferences preferences = SomePaths("/data/temp");
    MameIniBase base;
    base.otherView = true;
    base.machine = "c64";
    base.boxes.playback = true;
    Lines lines = MameIniBaseLines(preferences, base);
    EXPECT_EQ(LineOf(lines, "rompath"), "rompath\t/roms/Other;/soft");
    EXPECT_EQ(LineOf(lines, "hashpath"), "hashpath\t/mame/hash");
    EXPECT_EQ(LineOf(lines, "swpath"), "swpath");
    EXPECT_EQ(LineOf(lines, "playback"), "playback\tc64.inp");
    EXPECT_EQ(LineOf(lines, "snapname"), "snapname\t%g/%i");

    base.software = SoftwareListState::Selected;
    base.selectedParts = "Flop1;Flop2";
    EXPECT_EQ(LineOf(MameIniBaseLines(preferences, base), "snapname"), "snapname\t%g/%d_flop1");
    base.software = SoftwareListState::NoneSelected;
    lines = MameIniBaseLines(preferences, base);
    EXPECT_TRUE(LinesOf(lines, "snapname").empty());
    EXPECT_EQ(lines.size(), 53u);
}

TEST(MameIniBase, CreateMAMEIniWritesCrLfAndNeedsAnIniFolder) {
    TempFolder folder;
    const Preferences preferences = SomePaths(folder.Path());
    WriteFile(folder / "mame.ini", "old text that must go\r\n");
    ASSERT_EQ(CreateMAMEIni(preferences, {}), std::nullopt);
    const std::string text = ReadFile(folder / "mame.ini");
    EXPECT_EQ(text.rfind("#\r\n# CORE CONFIGURATION OPTIONS\r\n#\r\nreadconfig\t1\r\n", 0), 0u);
    EXPECT_EQ(text.find("old text"), std::string::npos);
    EXPECT_EQ(text.substr(text.size() - 10), "burnin\t0\r\n");

    const auto failure = CreateMAMEIni(SomePaths(""), {});
    ASSERT_TRUE(failure.has_value());
    EXPECT_EQ(failure->icon, MessageIcon::Critical);
    EXPECT_EQ(failure->text.rfind("Error In CreateMAMEIni: ", 0), 0u);
    EXPECT_NE(failure->text.find("\nLine Number: "), std::string::npos);
    EXPECT_TRUE(CreateMAMEIni(SomePaths(folder / "no such folder"), {}).has_value());
}

struct Translation {
    ProfileValues values; // the profile's; none gives the defaults
    Lines expected;       // some of the mame.ini lines it gives
};

TEST(ProfileSections, EachProfileValueGivesItsMameIniLines) {
    const std::vector<Translation> translations = {
        {{},
         {"frameskip\t0", "speed\t1.00", "ror\t0", "autorol\t0", "ctrlr", "bios", "language",
          "audio_latency\t0.0", "screen\tauto", "bgfx_path\tbgfx"}},
        {{{"Frame Skip", "Auto"}, {"Speed", "150%"}, {"Volume", "-12dB"}},
         {"autoframeskip\t1", "frameskip\t0", "speed\t1.50", "volume\t-12"}},
        {{{"Frame Skip", "10 Of 12"}, {"Speed", "1%"}},
         {"autoframeskip\t0", "frameskip\t10", "speed\t0.01"}},
        {{{"Frame Skip", "7 Of 12"}}, {"frameskip\t7"}},
        {{{"Roll", "AutoRight"}, {"Flip", "Horizontally"}},
         {"ror\t0", "rol\t0", "autoror\t1", "autorol\t0", "flipx\t0", "flipy\t1"}},
        {{{"Roll", "Left"}, {"Flip", "Vertically"}}, {"rol\t1", "flipx\t1", "flipy\t0"}},
        {{{"Flip", "Both"}}, {"flipx\t1", "flipy\t1"}},
        {{{"Controller Config", "XArcade.cfg"},
          {"BIOS", "Europe MVS (Ver. 2)> Euro"},
          {"Language", "German"},
          {"Audio Latency", "2/5 To 3/5"}},
         {"ctrlr\txarcade", "bios\teuro", "language\tgerman", "audio_latency\t2"}},
        {{{"BIOS", "XEuro"}, {"Audio Latency", "4/5 To 5/5"}}, {"bios\teuro", "audio_latency\t4"}},
        {{{"Controller Config", "cfg"}, {"Audio Latency", "1/5 TO 2/5"}},
         {"ctrlr\t", "audio_latency\t1/5 to 2/5"}},
        // Screens and paths keep their case where it matters.
        {{{"Screens", "\\\\.\\DISPLAY2"},
          {"Screen0", "\\\\.\\DISPLAY1"},
          {"Screen1", "Auto"},
          {"BGFX Path", "/home/Me/BGFX Shaders"},
          {"HLSL Path", "C:\\MAME\\HLSL"},
          {"Video", "OpenGL"},
          {"Effect", "Scanlines"},
          {"UI Mode Key", "SCRLOCK"},
          {"GLSL Shader MAME 0", "/Shaders/Glow"}},
         {"screen\t\\\\.\\DISPLAY2", "screen0\t\\\\.\\display1", "screen1\tauto",
          "bgfx_path\t/home/Me/BGFX Shaders", "hlslpath\tC:\\MAME\\HLSL", "video\topengl",
          "effect\tscanlines", "uimodekey\tSCRLOCK", "glsl_shader_mame0\t/Shaders/Glow"}},
        // Fixed lines, and options without a value.
        {{{"Plugin Enable", ""}},
         {"plugin\t", "seconds_to_run\t0", "ui\tcabinet", "glsl_shader_screen9\tnone",
          "debugscript", "attach_window"}},
    };
    for (const Translation& translation : translations) {
        std::string profile;
        for (const auto& [key, value] : translation.values) {
            profile += std::string(key) + "=" + value + "; ";
        }
        SCOPED_TRACE(profile);
        const Lines lines = ProfileLines(translation.values);
        for (const std::string& expected : translation.expected) {
            EXPECT_EQ(LineOf(lines, expected.substr(0, expected.find('\t'))), expected);
        }
    }
}

TEST(ProfileSections, SpeedsAreHundredthsRoundedHalfUp) {
    EXPECT_EQ(HundredthsText("33.5"), "0.34");
    EXPECT_EQ(HundredthsText("14.5"), "0.15"); // 0.145 has no exact binary form
    EXPECT_EQ(HundredthsText(" 99.5 "), "1.00");
    EXPECT_EQ(HundredthsText("-5"), "-0.05");
    EXPECT_EQ(HundredthsText("-0.2"), "0.00");
    EXPECT_EQ(HundredthsText("12345678901234567890"), "123456789012345678.90");
    for (const char* bad : {"", "fast", "1.2.3", "1e2", "-", ".", "12 5"}) {
        EXPECT_EQ(HundredthsText(bad), std::nullopt) << bad;
    }
}

TEST(ProfileSections, RollAndFlipWordsTheyDoNotKnowWriteNoLines) {
    const Lines lines = ProfileLines({{"Roll", "right"}, {"Flip", "Diagonally"}});
    for (const char* gone : {"ror", "rol", "autoror", "autorol", "flipx", "flipy"}) {
        EXPECT_TRUE(LinesOf(lines, gone).empty()) << gone;
    }
    EXPECT_EQ(LineOf(lines, "rotate"), "rotate\t1");
}

TEST(ProfileSections, SectionsHaveHeadingsAndOtherCommandsGoToTheCommandLine) {
    const Lines lines = ProfileLines({{"Other Commands", "-cheat"}});
    EXPECT_TRUE(LinesOf(lines, "Other Commands").empty());
    EXPECT_EQ(Lines(lines.begin(), lines.begin() + 5),
              (Lines{"", "#", "# CORE PERFORMANCE OPTIONS", "#", "autoframeskip\t0"}));
    EXPECT_EQ(lines.back(), "dtd\t0");
    EXPECT_EQ(std::count(lines.begin(), lines.end(), "#"), 2 * 38);
    EXPECT_EQ(ProfileSectionLines(OptionValues()).otherCommands, "");
    OptionValues withCommands;
    withCommands.Set("Other Commands", "-joystick_map 4");
    EXPECT_EQ(ProfileSectionLines(withCommands).otherCommands, "-joystick_map 4");
}

TEST(BuildIni, AppendsTheProfileToTheBaseTextAndReturnsItsOtherCommands) {
    TempFolder folder;
    const Preferences preferences = SomePaths(folder / "ini");
    MameIniBase base;
    base.machine = "pacman";
    // A profile of another release: keys missing, keys in another case.
    WriteFile(folder / "pacman.cfg", "[Core Performance Options]\nSpeed=200%\n"
                                     "[Bloom Post-Processing Options]\nBloom Blend mode=1\n"
                                     "[miscellaneous]\nother commands=-joystick_map 4\n");
    std::filesystem::create_directories(folder / "ini");
    const IniBuild build = BuildIni(preferences, base, folder / "pacman.cfg");
    ASSERT_EQ(build.failure, std::nullopt);
    EXPECT_EQ(build.commandString, "-joystick_map 4");

    const auto lines = ReadTextLines(folder / "ini/mame.ini").value_or(Lines{});
    EXPECT_EQ(Lines(lines.begin(), lines.begin() + 2),
              (Lines{"#", "# CORE CONFIGURATION OPTIONS"}));
    EXPECT_GE(lines.size(), 100u);
    EXPECT_EQ(LineOf(lines, "speed"), "speed\t2.00");
    EXPECT_EQ(LineOf(lines, "throttle"), "throttle\t1");
    EXPECT_EQ(LineOf(lines, "bloom_blend_mode"), "bloom_blend_mode\t1");
    EXPECT_EQ(LineOf(lines, "burnin"), "burnin\t0");
    EXPECT_NE(ReadFile(folder / "ini/mame.ini").find("burnin\t0\r\n\r\n#\r\n# CORE PERFORMANCE"),
              std::string::npos);

    // A second build without the base text in between doubles the sections.
    ASSERT_EQ(BuildIni(preferences, base, folder / "pacman.cfg").failure, std::nullopt);
    EXPECT_EQ(LinesOf(ReadTextLines(folder / "ini/mame.ini").value_or(Lines{}), "speed").size(),
              2u);
}

TEST(BuildIni, ASpeedThatIsNoNumberFailsAndLeavesMameIniAsItWas) {
    TempFolder folder;
    const Preferences preferences = SomePaths(folder.Path());
    ASSERT_EQ(CreateMAMEIni(preferences, {}), std::nullopt);
    const std::string before = ReadFile(folder / "mame.ini");
    WriteFile(
        folder / "bad.cfg",
        "[Core Performance Options]\r\nSpeed=fast\r\n[Miscellaneous]\r\nOther Commands=-x\r\n");
    const IniBuild build = BuildIni(preferences, {}, folder / "bad.cfg");
    ASSERT_TRUE(build.failure.has_value());
    EXPECT_EQ(build.failure->text,
              "Error In BuildIni: Type mismatch (Speed \"fast\")\nLine Number: 2");
    EXPECT_EQ(build.failure->icon, MessageIcon::Critical);
    EXPECT_EQ(build.commandString, "");
    EXPECT_EQ(ReadFile(folder / "mame.ini"), before);

    EXPECT_TRUE(BuildIni(SomePaths(""), {}, folder / "bad.cfg").failure.has_value());
}

} // namespace
} // namespace coinlight
