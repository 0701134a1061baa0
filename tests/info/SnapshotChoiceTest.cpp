#include "info/SnapshotChoice.h"

#include <gtest/gtest.h>

#include "support/TestFiles.h"

namespace coinlight::test {
namespace {

class SnapshotChoice : public ::testing::Test {
protected:
    SnapshotQuery Query(const std::string& machine, const std::string& setType = "Parent") {
        SnapshotQuery query;
        query.snapshotFolder = m_folder / "snap";
        query.machine = machine;
        query.setType = setType;
        return query;
    }
    std::filesystem::path Shot(const std::string& relative) {
        const auto file = m_folder / "snap" / relative;
        WriteFile(file, "png");
        return file;
    }

    TempFolder m_folder;
};

TEST_F(SnapshotChoice, TheHighestNumberedShotWinsAndTheNamedOneIsTheFallback) {
    const auto plain = Shot("pacman.png");
    EXPECT_EQ(ChooseSnapshot(Query("pacman")), plain);
    Shot("pacman/0003.png");
    const auto seventh = Shot("pacman/0007.png");
    Shot("pacman/0010.png"); // MAME's eleventh is not among the ten looked at
    EXPECT_EQ(ChooseSnapshot(Query("pacman")), seventh);
    EXPECT_FALSE(ChooseSnapshot(Query("galaga")));
    EXPECT_FALSE(ChooseSnapshot(Query("")));
}

TEST_F(SnapshotChoice, CloneShotsShowTheParentsEvenWhenTheCloneHasItsOwn) {
    Shot("mspacman/0000.png");
    const auto parents = Shot("pacman/0001.png");
    SnapshotQuery clone = Query("mspacman", "Clone of pacman");
    EXPECT_EQ(ChooseSnapshot(clone), m_folder / "snap" / "mspacman" / "0000.png");
    clone.cloneShots = true;
    EXPECT_EQ(ChooseSnapshot(clone), parents);
    SnapshotQuery parent = Query("pacman");
    parent.cloneShots = true;
    EXPECT_EQ(SnapshotName(parent), "pacman");
}

TEST_F(SnapshotChoice, ASoftwareTitleHasItsOwnPictureFirst) {
    Shot("nes/0002.png");
    SnapshotQuery title = Query("nes");
    title.software = "smb";
    EXPECT_EQ(ChooseSnapshot(title), m_folder / "snap" / "nes" / "0002.png");
    const auto own = Shot("nes/smb.png");
    EXPECT_EQ(ChooseSnapshot(title), own);
}

TEST_F(SnapshotChoice, IconsArtworkAndRelativeFolders) {
    WriteFile(m_folder / "mame" / "icons" / "pacman.ico", "ico");
    EXPECT_EQ(CabinetIconFile(m_folder / "mame", "pacman"),
              m_folder / "mame" / "icons" / "pacman.ico");
    EXPECT_FALSE(CabinetIconFile(m_folder / "mame", "galaga"));
    EXPECT_FALSE(CabinetIconFile(m_folder / "mame", ""));
    WriteFile(m_folder / "art2" / "pacman.zip", "zip");
    const std::vector<std::string> folders{(m_folder / "art1").string(), "",
                                           (m_folder / "art2").string()};
    EXPECT_TRUE(AnyFileInFolders("pacman.zip", folders));
    EXPECT_FALSE(AnyFileInFolders("galaga.zip", folders));
    EXPECT_EQ(SnapshotFolder("snap", "/usr/games"), "/usr/games/snap");
    EXPECT_EQ(SnapshotFolder("/home/u/snap", "/usr/games"), "/home/u/snap");
}

} // namespace
} // namespace coinlight::test
