#include "catalogue/RunMAMEList.h"

#include <gtest/gtest.h>

#include "CatalogueTestSupport.h"

using namespace coinlight;
using namespace coinlight::test;

namespace {

struct MameFolder {
    TempFolder temp;
    DataLayout data{temp / "data folder"};
    FakeMame mame;

    MameFolder() : mame(InstallFakeMame(temp / "mame $dir", "fake-mame", "mame 0.251")) {
        std::filesystem::create_directories(data.Output());
        WriteFile(data.Support() / "lists.txt", "Arcade\n|pong|\nOther\n|\n");
    }
    MameProgram Program() const { return {mame.folder, mame.executable}; }
};

} // namespace

TEST(RunMAMEList, CapturesBothListsIntoTheOutputFolder) {
    MameFolder folder;
    RecordingProgress progress;
    ASSERT_TRUE(RunMAMEList("listxml", folder.Program(), folder.data, progress).Succeeded());
    EXPECT_EQ(ReadFile(folder.data.Output() / "machine.xml"),
              ReadFile(FixturesFolder() / "fake-mame" / "listxml.xml"));
    EXPECT_EQ(progress.events, std::vector<std::string>{"capture Creating machine.xml..."});
    // The fake has no software list to play: MAME failing still leaves the (empty) file.
    const auto software = RunMAMEList("listsoftware", folder.Program(), folder.data, progress);
    EXPECT_TRUE(software.Succeeded());
    EXPECT_TRUE(std::filesystem::exists(folder.data.Output() / "software.xml"));
    const std::string launches = ReadFile(folder.mame.Launches());
    EXPECT_NE(launches.find("\t-listxml\t-nodtd\n"), std::string::npos) << launches;
    EXPECT_NE(launches.find(folder.mame.folder.string() + "\t-listsoftware\t-nodtd\n"),
              std::string::npos);
}

TEST(RunMAMEList, WithoutListsTxtNothingRuns) {
    MameFolder folder;
    std::filesystem::remove(folder.data.Support() / "lists.txt");
    RecordingProgress progress;
    const auto outcome = RunMAMEList("listxml", folder.Program(), folder.data, progress);
    EXPECT_TRUE(outcome.fatalError);
    ASSERT_EQ(outcome.messages.size(), 1u);
    EXPECT_EQ(outcome.messages[0].text,
              "Cannot find lists.txt.  This file is needed to populate machines in the proper "
              "lists.  It is included with Coinlight.\nPut the file in the Coinlight support "
              "folder and try again.");
    EXPECT_FALSE(std::filesystem::exists(folder.mame.Launches()));
}

TEST(RunMAMEList, AMissingMameFolderWarnsAndThenEndsTheStart) {
    MameFolder folder;
    RecordingProgress progress;
    const auto outcome =
        RunMAMEList("listxml", {folder.temp / "gone", "mame"}, folder.data, progress);
    EXPECT_TRUE(outcome.fatalError);
    ASSERT_EQ(outcome.messages.size(), 2u);
    EXPECT_EQ(outcome.messages[0].text, "The MAME folder " + (folder.temp / "gone").string() +
                                            " cannot be reached.  Check the MAME path in "
                                            "Options and try again.");
    EXPECT_EQ(outcome.messages[1].text,
              "The machine.xml was not created.  Coinlight will now close.\n\nThis may mean "
              "you do not have permission to read or write files in " +
                  folder.data.Output().string() + ".");
}

TEST(BackupMAMEFile, KeepsTheOldCaptureUnderTheDoubledName) {
    MameFolder folder;
    EXPECT_FALSE(BackupMAMEFile("machine.xml", folder.data));
    EXPECT_FALSE(std::filesystem::exists(folder.data.Output() / "machine.xmllast.xml"));
    WriteFile(folder.data.Output() / "machine.xml", "old list");
    WriteFile(folder.data.Output() / "machine.xmllast.xml", "older list");
    EXPECT_FALSE(BackupMAMEFile("machine.xml", folder.data));
    EXPECT_EQ(ReadFile(folder.data.Output() / "machine.xmllast.xml"), "old list");
    EXPECT_EQ(ReadFile(folder.data.Output() / "machine.xml"), "old list");
}
