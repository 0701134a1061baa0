// check-options against Debian's MAME 0.251 itself.
#include <algorithm>
#include <gtest/gtest.h>
#include <set>
#include <sstream>

#include "core/CommandLine.h"
#include "settings/OptionSupport.h"
#include "support/TestFiles.h"

namespace coinlight {
namespace {

constexpr const char* kMame = "/usr/games/mame";

std::vector<std::string> Lines(const std::string& text) {
    std::vector<std::string> lines;
    std::istringstream in(text);
    for (std::string line; std::getline(in, line);) {
        lines.push_back(line);
    }
    return lines;
}

TEST(RealMameOptionCheck, ListsWhatDebiansMameIgnores) {
    if (!std::filesystem::exists(kMame)) {
        GTEST_SKIP() << "Debian's MAME is not installed at " << kMame;
    }
    test::TempFolder folder;
    const auto optionsIni = folder / "data" / "settings" / "options.ini";
    test::WriteFile(optionsIni, "[Miscellaneous]\r\nCoinlight Version=26.02.0\r\n[MAME]\r\n"
                                "Executable=mame\r\n[Core Search Path Options]\r\n"
                                "MAME=/usr/games\r\n");
    const auto checked = test::RunShell(QuotePath(test::ToolProgram().string()) +
                                        " check-options " + QuotePath(optionsIni.string()));
    ASSERT_EQ(checked.status, 0) << checked.output;
    const auto unknown = Lines(checked.output);

    // What MAME lists, read here by the first word of each line, and what mame.ini gets.
    const auto listed = test::RunShell(std::string(kMame) + " -noreadconfig -showconfig");
    std::set<std::string> known;
    for (const std::string& line : Lines(listed.output)) {
        if (!line.empty() && line[0] != '#') {
            known.insert(line.substr(0, line.find(' ')));
        }
    }
    std::vector<std::string> expected;
    for (const std::string& option : WrittenOptionNames()) {
        if (known.count(option) == 0) {
            expected.push_back(option);
        }
    }
    EXPECT_EQ(unknown, expected);
    // The families that only other builds of MAME take.
    for (const char* option : {"hlsl_enable", "bloom_scale", "yiq_enable", "priority", "profile",
                               "vector_beam_smooth", "triplebuffer", "dual_lightgun"}) {
        EXPECT_NE(std::find(unknown.begin(), unknown.end(), option), unknown.end()) << option;
    }
    for (const char* option : {"speed", "throttle", "gl_glsl", "video", "bgfx_path", "sound"}) {
        EXPECT_EQ(std::find(unknown.begin(), unknown.end(), option), unknown.end()) << option;
    }
    EXPECT_GT(unknown.size(), 80u);
    EXPECT_LT(unknown.size(), 120u);
}

} // namespace
} // namespace coinlight
