#include "catalogue/NameList.h"

#include <gtest/gtest.h>
#include <variant>

#include "catalogue/MachineLists.h"
#include "catalogue/ProfileTextBuilder.h"
#include "core/ProfileFile.h"
#include "support/TestFiles.h"

using namespace coinlight;
using namespace coinlight::test;

TEST(NameList, MembershipIsTheSearchForTheMarkedName) {
    const NameList list("|pacman|puckman||mspacman|x|y");
    EXPECT_TRUE(list.Contains("pacman"));
    EXPECT_TRUE(list.Contains("mspacman"));
    EXPECT_TRUE(list.Contains("")); // "||" stands in the line
    EXPECT_FALSE(list.Contains("Pacman"));
    EXPECT_FALSE(list.Contains("pac"));
    EXPECT_FALSE(list.Contains("y")); // no `|` after it
    EXPECT_TRUE(list.Contains("x"));
    // A name that holds the separator is found the way the text search finds it.
    EXPECT_TRUE(list.Contains("pacman|puckman"));
    EXPECT_FALSE(list.Contains("puckman|x"));

    NameList devices;
    for (int i = 0; i < 1000; ++i) {
        devices.Add("dev" + std::to_string(i));
    }
    EXPECT_EQ(devices.Size(), 1000u);
    EXPECT_TRUE(devices.Contains("dev999"));
    EXPECT_FALSE(devices.Contains("dev1000"));
    EXPECT_EQ(devices.Text().substr(0, 11), "|dev0|dev1|");
}

TEST(MachineLists, ReadsTheLinesAfterArcadeAndOtherAndOtherWins) {
    const auto lists =
        ParseListsText("header\nArcade text\nArcade\r\n|a|both|\r\nnoise\nOther\n|b|both|\n");
    ASSERT_TRUE(std::holds_alternative<MachineLists>(lists));
    const auto& read = std::get<MachineLists>(lists);
    EXPECT_EQ(read.Place("a"), MachineLists::Placement::Arcade);
    EXPECT_EQ(read.Place("b"), MachineLists::Placement::Other);
    EXPECT_EQ(read.Place("both"), MachineLists::Placement::Other);
    EXPECT_EQ(read.Place("c"), MachineLists::Placement::Unlisted);
}

TEST(MachineLists, AFileWithoutItsLinesIsReadPastTheEnd) {
    for (const char* text :
         {"Arcade\n|a|\n", "Arcade\n|a|\nOther\n", "arcade\n|a|\nOther\n|b|\n", ""}) {
        const auto lists = ParseListsText(text);
        ASSERT_TRUE(std::holds_alternative<RunTimeError>(lists)) << text;
        EXPECT_EQ(std::get<RunTimeError>(lists).description, "Input past end of file");
    }
    TempFolder folder;
    const auto missing = ReadListsFile(folder / "lists.txt");
    ASSERT_TRUE(std::holds_alternative<RunTimeError>(missing));
    EXPECT_EQ(std::get<RunTimeError>(missing).number, kErrorFileNotFound);
}

TEST(ProfileTextBuilder, GivesTheBytesOfTheSameWritesMadeOneByOne) {
    TempFolder folder;
    const auto file = folder / "softfilter.ini";
    ProfileTextBuilder builder;
    const std::tuple<const char*, const char*, const char*> writes[] = {
        {"32x", "32x", "NTSC-U"}, {"genesis", "megadriv", "NTSC-U"}, {"genesis", "sega_cd", ""},
        {"32X", "32x", "PAL"},    {"nes", "nes", "NTSC\r\nx"},       {"genesis", "MEGADRIV", "JPN"},
    };
    for (const auto& [section, key, value] : writes) {
        builder.Set(section, key, value);
        ASSERT_TRUE(WriteProfileValue(file, section, key, value));
    }
    ASSERT_TRUE(INISpacing(file));
    EXPECT_EQ(builder.Text(true), ReadFile(file));
    EXPECT_EQ(builder.SectionCount(), 3u);
    EXPECT_EQ(ReadProfileValue(file, "genesis", "megadriv", "?"), "JPN");
}
