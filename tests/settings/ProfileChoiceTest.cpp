#include "settings/ProfileChoice.h"

#include <gtest/gtest.h>

#include "settings/MonochromeList.h"
#include "support/TestFiles.h"

namespace coinlight {
namespace {

using test::TempFolder;
using test::WriteFile;

std::string Choose(std::string_view display, int level, bool monochrome,
                   std::string_view orientation, std::string_view current = "previous") {
    return ChooseProfileName({display, level, monochrome, orientation}, current);
}

TEST(ChooseProfileName, EachLevelDividesTheMachinesMoreFinely) {
    EXPECT_EQ(Choose("Raster", 0, true, "V"), "raster");
    EXPECT_EQ(Choose("Raster", 1, true, "V"), "raster-m");
    EXPECT_EQ(Choose("Raster", 2, true, "V"), "raster-mv");
    EXPECT_EQ(Choose("Raster", 1, false, "H"), "raster-c");
    EXPECT_EQ(Choose("Raster", 2, false, "H"), "raster-ch");
    EXPECT_EQ(Choose("Vector", 0, false, "H"), "vector");
    EXPECT_EQ(Choose("Vector", 1, true, "H"), "vector-m");
    EXPECT_EQ(Choose("Vector", 2, true, "V"), "vector-mv");
    // No screen makes a profile for an unknown orientation.
    EXPECT_EQ(Choose("Raster", 2, false, "U"), "raster-cu");
}

TEST(ChooseProfileName, NotApplicableIsRasterLcdIsAlwaysLcdAndStrangersKeepTheName) {
    EXPECT_EQ(Choose("N/A", 0, false, "H"), "raster");
    EXPECT_EQ(Choose("N/A", 2, true, "H"), "raster-mh");
    for (int level : {0, 1, 2, 7}) {
        EXPECT_EQ(Choose("LCD", level, true, "V"), "lcd");
    }
    EXPECT_EQ(Choose("Other", 0, false, "H"), "previous");
    EXPECT_EQ(Choose("raster", 0, false, "H"), "previous");
    EXPECT_EQ(Choose("Raster", 3, false, "H"), "previous");
    EXPECT_EQ(Choose("Vector", -1, false, "H"), "previous");
}

TEST(MonochromeList, TheFileReplacesTheBuiltInList) {
    TempFolder folder;
    const DataLayout data{folder.Path()};
    const MonochromeList builtIn = MonochromeList::Load(data);
    EXPECT_TRUE(builtIn.Contains("pong"));
    EXPECT_TRUE(builtIn.Contains("Asteroid"));
    EXPECT_TRUE(builtIn.Contains("wolfpack"));
    EXPECT_FALSE(builtIn.Contains("pacman"));

    WriteFile(data.Support() / "monochrome.ini", "PacMan\r\nmsPacman\nbzone \r\n");
    const MonochromeList fromFile = MonochromeList::Load(data);
    EXPECT_TRUE(fromFile.Contains("pacman"));
    EXPECT_TRUE(fromFile.Contains("MSPACMAN"));
    EXPECT_FALSE(fromFile.Contains("pong"));
    EXPECT_FALSE(fromFile.Contains("bzone")) << "the whole line is the name";
}

TEST(ProfileChoice, TheMachinesOwnProfileWinsOverItsClass) {
    TempFolder folder;
    const DataLayout data{folder.Path()};
    EXPECT_EQ(ArcadeStartProfile(data, "pacman", "raster-ch"), std::nullopt);
    WriteFile(data.Settings() / "raster-ch.cfg", "");
    EXPECT_EQ(ArcadeStartProfile(data, "pacman", "Raster-CH"), data.Settings() / "raster-ch.cfg");
    WriteFile(data.Settings() / "pacman.cfg", "");
    EXPECT_EQ(ArcadeStartProfile(data, "pacman", "raster-ch"), data.Settings() / "pacman.cfg");

    const auto earlier = data.Settings() / "vector.cfg";
    EXPECT_EQ(OtherStartProfile(data, "c64", earlier), earlier);
    WriteFile(data.Settings() / "other.cfg", "");
    EXPECT_EQ(OtherStartProfile(data, "c64", earlier), data.Settings() / "other.cfg");
    WriteFile(data.Settings() / "c64.cfg", "");
    EXPECT_EQ(OtherStartProfile(data, "c64", earlier), data.Settings() / "c64.cfg");
}

} // namespace
} // namespace coinlight
