#include "core/FileTests.h"

#include <gtest/gtest.h>

#include "support/TestFiles.h"

namespace coinlight {
namespace {

using test::TempFolder;
using test::WriteFile;

TEST(FileTests, ExistsCountsFilesAndFoldersAlike) {
    TempFolder folder;
    WriteFile(folder / "a file.zip", "x");
    EXPECT_TRUE(FileExists(folder / "a file.zip"));
    EXPECT_TRUE(FileExists(folder.Path()));
    EXPECT_FALSE(FileExists(folder / "none"));
    EXPECT_FALSE(FileExists(""));
}

TEST(FileTests, MissingLooksForFilesOnlyAndUnderstandsWildcards) {
    TempFolder folder;
    WriteFile(folder / "roms" / "pacman.zip", "x");
    WriteFile(folder / "roms" / "Galaga.7z", "x");
    std::filesystem::create_directories(folder / "roms" / "folder.zip");
    EXPECT_FALSE(FileMissing(folder / "roms" / "pacman.zip"));
    EXPECT_TRUE(FileMissing(folder / "roms" / "folder.zip")) << "a folder is not a file";
    EXPECT_TRUE(FileMissing(folder / "roms" / "PACMAN.ZIP")) << "names compare exactly";
    EXPECT_FALSE(FileMissing(folder / "roms" / "*.zip"));
    EXPECT_TRUE(FileMissing(folder / "roms" / "gal?ga.*"));
    EXPECT_FALSE(FileMissing(folder / "roms" / "Gal?ga.*"));
    EXPECT_TRUE(FileMissing(folder / "roms" / "*.chd"));
    EXPECT_TRUE(FileMissing(folder / "nowhere" / "*.zip"));
}

TEST(FileTests, WildcardsMatchLikeAFileDialog) {
    EXPECT_TRUE(MatchesWildcard("*", ""));
    EXPECT_TRUE(MatchesWildcard("*.txt", "a.b.txt"));
    EXPECT_TRUE(MatchesWildcard("a*b*c", "axxbyyc"));
    EXPECT_FALSE(MatchesWildcard("a*b*c", "axxbyy"));
    EXPECT_TRUE(MatchesWildcard("?x", "ax"));
    EXPECT_FALSE(MatchesWildcard("?x", "x"));
}

TEST(FileTests, SizeIsForRegularFilesOnly) {
    TempFolder folder;
    WriteFile(folder / "f", "12345");
    EXPECT_EQ(FileSize(folder / "f"), 5u);
    EXPECT_FALSE(FileSize(folder.Path()));
    EXPECT_FALSE(FileSize(folder / "none"));
}

} // namespace
} // namespace coinlight
