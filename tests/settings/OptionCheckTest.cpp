// Which options the MAME in use takes: its -showconfig read, the options Coinlight writes
// checked against it, the values MAME refused named with their controls, check-options.
#include <algorithm>
#include <gtest/gtest.h>

#include "core/CommandLine.h"
#include "settings/MameOptionsCapture.h"
#include "settings/OptionSupport.h"
#include "settings/RejectedValues.h"
#include "support/TestFiles.h"

namespace coinlight {
namespace {

using test::ReadFile;
using test::TempFolder;
using test::WriteFile;

/// A -showconfig listing in MAME's shape of every option Coinlight writes but `missing`.
std::string ListingWithout(std::initializer_list<std::string_view> missing) {
    std::string listing = "#\n# CORE PERFORMANCE OPTIONS\n#\n";
    for (const std::string& name : WrittenOptionNames()) {
        if (std::find(missing.begin(), missing.end(), name) == missing.end()) {
            listing += name + std::string(std::max<std::size_t>(1, 26 - name.size()), ' ') + "0\n";
        }
    }
    return listing;
}

TEST(KnownMameOptions, ReadsTheNameOfEachOptionLineAndNothingElse) {
    const auto known = KnownMameOptions::Parse(
        "#\r\n# CORE SEARCH PATH OPTIONS\r\n#\r\n"
        "rompath                   $HOME/mame/roms;/usr/share/games/mame/roms\r\n"
        "hashpath\r\n"
        "  speed                   1.0\n"
        "Speedy is no option\n"
        "\n"
        "not=an option line\n"
        "\x01\xFF garbage\n"
        "blu_ratio\t1.0,0.0,0.0\n"
        "last_line_without_end 1");
    ASSERT_TRUE(known);
    EXPECT_EQ(known->Size(), 5u);
    for (const char* name :
         {"rompath", "hashpath", "speed", "SPEED", "blu_ratio", "last_line_without_end"}) {
        EXPECT_TRUE(known->Knows(name)) << name;
    }
    for (const char* name : {"core", "not", "garbage", "usr", "speedy", ""}) {
        EXPECT_FALSE(known->Knows(name)) << name;
    }
}

TEST(KnownMameOptions, AnAnswerWithoutOptionsIsNoAnswer) {
    EXPECT_FALSE(KnownMameOptions::Parse(""));
    EXPECT_FALSE(KnownMameOptions::Parse("#\n# NOTHING\n#\n\n"));
    EXPECT_FALSE(KnownMameOptions::Parse("Unknown option: -showconfig\nUsage: mame\n"));
    EXPECT_FALSE(KnownMameOptions::Parse(std::string("\0\0\xFE", 3)));
    EXPECT_FALSE(KnownMameOptions::Parse(std::string(100, 'a') + " 1\n")) << "no such long name";
    EXPECT_FALSE(KnownMameOptions::Read("/no/such/showconfig.txt"));
}

TEST(OptionSupport, TheWrittenOptionsAreEveryLineOfTheProfileSectionsOnce) {
    const auto written = WrittenOptionNames();
    ASSERT_GE(written.size(), 3u);
    EXPECT_EQ(std::vector<std::string>(written.begin(), written.begin() + 3),
              (std::vector<std::string>{"autoframeskip", "frameskip", "seconds_to_run"}));
    for (const char* name : {"ror", "flipy", "profile", "hlsl_write", "glsl_shader_mame9",
                             "blu_ratio", "dual_lightgun", "dtd"}) {
        EXPECT_NE(std::find(written.begin(), written.end(), name), written.end()) << name;
    }
    auto sorted = written;
    std::sort(sorted.begin(), sorted.end());
    EXPECT_EQ(std::adjacent_find(sorted.begin(), sorted.end()), sorted.end()) << "each once";
    EXPECT_EQ(std::find(written.begin(), written.end(), "rompath"), written.end())
        << "the base text is not the profile's";
}

TEST(OptionSupport, UnknownOptionsAndTheControlsThatLoseEveryOption) {
    const auto known = KnownMameOptions::Parse(
        ListingWithout({"hlsl_enable", "speed", "priority", "autoframeskip", "ror", "rol",
                        "autoror", "autorol", "glsl_shader_screen3"}));
    ASSERT_TRUE(known);
    EXPECT_EQ(
        UnknownOptionNames(*known),
        (std::vector<std::string>{"autoframeskip", "speed", "ror", "rol", "autoror", "autorol",
                                  "glsl_shader_screen3", "priority", "hlsl_enable"}))
        << "in the order mame.ini holds them";
    EXPECT_EQ(
        UnsupportedControls(*known),
        (std::vector<std::string>{"cboSpeed", "cboRoll", "txtGLSL(7)", "cboPriority", "chkHLSL"}))
        << "Frame Skip still has frameskip; Other Commands never reaches mame.ini";
    const std::string report = MameOptionsReport(*known);
    EXPECT_NE(report.find("It does not know 9 of the"), std::string::npos) << report;
    EXPECT_NE(report.find("\nhlsl_enable\tHLSL (chkHLSL)\n"), std::string::npos) << report;
    EXPECT_NE(report.find("\nglsl_shader_screen3\tGLSL Shader Screen 3 (txtGLSL(7))\n"),
              std::string::npos);

    const auto everything = KnownMameOptions::Parse(ListingWithout({}));
    EXPECT_TRUE(UnknownOptionNames(*everything).empty());
    EXPECT_TRUE(UnsupportedControls(*everything).empty());
    EXPECT_NE(MameOptionsReport(*everything).find("It takes every option"), std::string::npos);
}

TEST(RejectedValues, MamesRefusalsAreNamedWithTheControlThatHoldsTheOption) {
    // As Debian's MAME 0.251 writes them for a mame.ini with bad values.
    const std::string errors =
        "Error in command line:\n"
        "While parsing /tmp/ini/mame.ini:\n"
        "Illegal float value for speed: \"abc\"; reverting to 1.0\n"
        "Illegal boolean value for throttle: \"maybe\"; reverting to 1\r\n"
        "Out-of-range integer value for numscreens: \"9\" (must be between 1 and 4, "
        "inclusive); reverting to 1\n"
        "Illegal integer value for seconds_to_run: \"x\"; reverting to 0\n"
        "Illegal value for nothing in particular\n"
        "error: XDG_RUNTIME_DIR is invalid or not set in the environment.\n"
        "Illegal float value for beam_width_min: \"x\"; reverting to 1.0";
    const std::string named = NameRejectingControls(errors);
    EXPECT_EQ(named,
              "Error in command line:\n"
              "While parsing /tmp/ini/mame.ini:\n"
              "Illegal float value for speed: \"abc\"; reverting to 1.0  <- Speed (cboSpeed)\n"
              "Illegal boolean value for throttle: \"maybe\"; reverting to 1  <- Throttle "
              "(chkThrottle)\r\n"
              "Out-of-range integer value for numscreens: \"9\" (must be between 1 and 4, "
              "inclusive); reverting to 1  <- Number Of Screens (cboNumScreens)\n"
              "Illegal integer value for seconds_to_run: \"x\"; reverting to 0\n"
              "Illegal value for nothing in particular\n"
              "error: XDG_RUNTIME_DIR is invalid or not set in the environment.\n"
              "Illegal float value for beam_width_min: \"x\"; reverting to 1.0  <- Beam Min "
              "(cboBeamMin)");

    const auto rejected = RejectedValueOf("Illegal integer value for seconds_to_run: \"x\"");
    ASSERT_TRUE(rejected);
    EXPECT_EQ(rejected->option, "seconds_to_run");
    EXPECT_TRUE(rejected->control.empty()) << "a fixed line of mame.ini has no control";
    for (const char* line : {"Illegal float value for : \"x\"", "Illegal float value for speed",
                             "  Illegal float value for speed: \"x\"", "Illegal", ""}) {
        EXPECT_FALSE(RejectedValueOf(line)) << line;
    }
    EXPECT_EQ(NameRejectingControls(std::string("\0\xFF\n\n", 4)), std::string("\0\xFF\n\n", 4));
}

class MameOptionsCaptureTest : public ::testing::Test {
protected:
    MameOptionsCaptureTest() : m_mame(test::InstallFakeMame(m_folder / "mame dir")) {
        std::filesystem::create_directories(m_data.Output());
    }
    std::optional<KnownMameOptions> Ask(std::string* error = nullptr) {
        MameOptionsCapture capture(m_mame.folder, m_mame.executable, m_data);
        return capture.Finish({}, error);
    }

    TempFolder m_folder;
    DataLayout m_data{m_folder / "data"};
    test::FakeMame m_mame;
};

TEST_F(MameOptionsCaptureTest, KeepsMamesAnswerAndOnlyAGoodOne) {
    m_mame.SetBehaviour("drop speed\n");
    const auto known = Ask();
    ASSERT_TRUE(known);
    EXPECT_FALSE(known->Knows("speed"));
    EXPECT_TRUE(known->Knows("throttle"));
    const std::string kept = ReadFile(MameOptionsFile(m_data));
    EXPECT_EQ(kept.find("\nspeed "), std::string::npos);
    EXPECT_NE(kept.find("\nthrottle "), std::string::npos);
    EXPECT_NE(ReadFile(m_mame.Launches()).find("\t-showconfig\t-noreadconfig\n"), std::string::npos)
        << "no ini file read";

    for (const char* behaviour : {"exit 1\n", "garbage\n", "truncate\nexit 9\n"}) {
        m_mame.SetBehaviour(behaviour);
        std::string error;
        EXPECT_FALSE(Ask(&error)) << behaviour;
        EXPECT_FALSE(error.empty());
        EXPECT_TRUE(ReadFile(MameOptionsFile(m_data)) == kept) << "the last answer stays";
    }
    EXPECT_EQ(test::CountFiles(m_data.Output()), 1u) << "no temporary file left";
}

test::ShellResult CheckOptions(const std::filesystem::path& optionsIni) {
    return test::RunShell(QuotePath(test::ToolProgram().string()) + " check-options " +
                          QuotePath(optionsIni.string()) + " 2>&1");
}

TEST_F(MameOptionsCaptureTest, CheckOptionsPrintsWhatAFakeMameDrops) {
    const auto optionsIni = m_data.Settings() / "options.ini";
    WriteFile(optionsIni, "[Miscellaneous]\r\nCoinlight Version=26.02.0\r\n[MAME]\r\n"
                          "Executable=" +
                              m_mame.executable + "\r\n[Core Search Path Options]\r\nMAME=" +
                              m_mame.folder.string() + "\r\n");
    m_mame.SetBehaviour("drop hlsl_enable\ndrop speed\ndrop profile\n");
    const auto result = CheckOptions(optionsIni);
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.output, "speed\nprofile\nhlsl_enable\n");
    EXPECT_TRUE(std::filesystem::exists(MameOptionsFile(m_data))) << "kept as the window keeps it";

    m_mame.SetBehaviour("exit 2\n");
    const auto failed = CheckOptions(optionsIni);
    EXPECT_EQ(failed.status, 1);
    EXPECT_NE(failed.output.find("exit status 2"), std::string::npos) << failed.output;
    EXPECT_EQ(CheckOptions(m_folder / "none" / "options.ini").status, 1);
}

} // namespace
} // namespace coinlight
