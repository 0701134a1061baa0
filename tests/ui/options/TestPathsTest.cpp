#include "ui/options/TestPaths.h"

#include <gtest/gtest.h>

#include "support/TestFiles.h"
#include "ui/options/OkPaths.h"
#include "ui/options/PathRules.h"

namespace coinlight {
namespace {

using test::TempFolder;

class FolderChecks : public ::testing::Test {
protected:
    std::string Folder(const std::string& name) {
        std::filesystem::create_directories(m_folder / name);
        return (m_folder / name).string();
    }

    TempFolder m_folder;
};

TEST_F(FolderChecks, TheRootAndRelativePathsAreNoPlaceForAFolder) {
    for (const char* refused : {"", "/", "//", "abc", "roms/arcade", "./roms"}) {
        EXPECT_TRUE(IsRootOrRelative(refused)) << refused;
    }
    for (const char* accepted : {"/a", "/usr/games", "/x;/y"}) {
        EXPECT_FALSE(IsRootOrRelative(accepted)) << accepted;
    }
}

TEST_F(FolderChecks, ATrailingSlashGoesAndTheCaseStays) {
    const std::string samples = Folder("Samples Of MAME");
    const PathTest test = TestPaths(InfoOf(PathField::Samples), samples + "/");
    EXPECT_FALSE(test.failed);
    EXPECT_EQ(test.value, samples);
    EXPECT_TRUE(test.messages.empty());
}

TEST_F(FolderChecks, SeparatorsOfAMultiPathFieldAreCleaned) {
    const std::string a = Folder("a");
    const std::string b = Folder("b");
    const PathTest test = TestPaths(InfoOf(PathField::Artwork), ";" + a + ";;;" + b + ";");
    EXPECT_FALSE(test.failed);
    EXPECT_EQ(test.value, a + ";" + b);
}

TEST_F(FolderChecks, EachRuleTakesWhatItShould) {
    const std::string gone = (m_folder / "gone").string();
    EXPECT_FALSE(TestPaths(InfoOf(PathField::Hash), "").failed) << "optional and empty";
    EXPECT_TRUE(TestPaths(InfoOf(PathField::Hash), gone).failed) << "optional but missing";
    EXPECT_FALSE(TestPaths(InfoOf(PathField::Cheat), gone).failed) << "cheats are optional";
    EXPECT_TRUE(TestPaths(InfoOf(PathField::Plugins), gone).failed);
    const PathTest output = TestPaths(InfoOf(PathField::Snapshot), "snap/");
    EXPECT_FALSE(output.failed) << "MAME makes its output folders";
    EXPECT_EQ(output.value, "snap");
}

TEST_F(FolderChecks, OnePathFieldWithSeveralIsToldButAFolderOfThatNameStands) {
    // Linux allows ';' in a folder name: the existence test has the last word.
    const std::string odd = Folder("x;y");
    const PathTest test = TestPaths(InfoOf(PathField::Controller), odd);
    EXPECT_FALSE(test.failed);
    ASSERT_EQ(test.messages.size(), 1u);
    EXPECT_EQ(test.messages[0],
              "The " + odd + " folder can only have one path.  Please remove one.");
}

TEST_F(FolderChecks, OkStopsAtTheFirstFieldThatFailsInTheOrderOfTheSave) {
    Preferences previous;
    OkPathsInput input;
    input.mamePath = Folder("MAME") + "/mame";
    test::MakeExecutable(input.mamePath);
    input.previous = &previous;
    input.iniFolder = m_folder / "temp";
    input.texts[PathField::ArcadeRoms] = Folder("roms");
    // Both fail; the samples come first in the save.
    input.texts[PathField::Language] = (m_folder / "no-language").string();
    input.texts[PathField::Samples] = (m_folder / "no-samples").string();
    const OkPathsResult result = CheckPathsForOk(input);
    EXPECT_FALSE(result.ok);
    EXPECT_EQ(result.focusField, PathField::Samples);
    EXPECT_EQ(result.texts[PathField::Samples], "");
    EXPECT_EQ(result.texts[PathField::Language], input.texts[PathField::Language]);
    EXPECT_EQ(result.messages.size(), 1u);
}

} // namespace
} // namespace coinlight
