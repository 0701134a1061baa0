#include "core/CommandLine.h"

#include <gtest/gtest.h>

#include "support/TestFiles.h"

namespace coinlight {
namespace {

TEST(CommandLine, QuotedPathsReachTheShellLiterally) {
    test::TempFolder folder;
    const std::string nasty = "it's a \"test\" $HOME `id` \\ back; rm -rf x & | * ? ( ) ~";
    const auto file = folder / nasty;
    const auto result = test::RunShell("printf %s " + QuotePath(file.string()));
    EXPECT_EQ(result.output, file.string());
    EXPECT_EQ(QuotePath("/a b/c"), "\"/a b/c\"");
}

TEST(CommandLine, ShortNamesAreLowerCaseLettersDigitsAndUnderscores) {
    EXPECT_TRUE(IsShortName("pacman"));
    EXPECT_TRUE(IsShortName("sf2_ce1"));
    EXPECT_FALSE(IsShortName(""));
    EXPECT_FALSE(IsShortName("Pacman"));
    EXPECT_FALSE(IsShortName("pac man"));
    EXPECT_FALSE(IsShortName("pacman;reboot"));
    EXPECT_FALSE(IsShortName("a:b"));
    EXPECT_TRUE(IsShortNameWithColons("nes:smb"));
    EXPECT_FALSE(IsShortNameWithColons("nes:$(id)"));
}

TEST(CommandLine, BuildsTheLineWithQuotedPathsAndRedirections) {
    CommandLine line("/opt/My MAME", "mame");
    line.Word("-inipath").Path("/data/Coinlight/temp").ShortName("pacman");
    line.RedirectOutput("/data/out.txt").RedirectError("/data/err.txt");
    ASSERT_TRUE(line.IsValid());
    EXPECT_EQ(line.Text(), "\"/opt/My MAME/mame\" -inipath \"/data/Coinlight/temp\" pacman > "
                           "\"/data/out.txt\" 2> \"/data/err.txt\"");
}

TEST(CommandLine, LowerCasingNeverTouchesAPath) {
    CommandLine line("/Games/MAME", "MAME");
    line.Word("-Inipath").Path("/Data/Temp").UserText(" -Video NONE");
    EXPECT_EQ(line.LowerCasedText(), "\"/Games/MAME/MAME\" -inipath \"/Data/Temp\" -video none");
}

TEST(CommandLine, ABadShortNameInvalidatesTheWholeLine) {
    CommandLine line("/usr/games", "mame");
    line.ShortName("pacman; rm -rf ~");
    EXPECT_FALSE(line.IsValid());
    EXPECT_EQ(line.Text(), "");
}

} // namespace
} // namespace coinlight
