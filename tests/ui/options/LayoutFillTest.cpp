#include "ui/options/LayoutFill.h"

#include <gtest/gtest.h>

#include "support/TestFiles.h"

namespace coinlight {
namespace {

using test::TempFolder;
using test::WriteFile;

class LayoutFill : public ::testing::Test {
protected:
    LayoutFill() {
        m_locations.distributionData = m_folder / "share";
        m_locations.home = m_folder / "home";
    }

    std::string Make(const std::filesystem::path& folder) {
        std::filesystem::create_directories(folder);
        return folder.string();
    }

    void MakeExecutable(const std::filesystem::path& file, bool executable) {
        WriteFile(file, "#!/bin/sh\n");
        using std::filesystem::perms;
        std::filesystem::permissions(file, executable ? perms::owner_all : perms::owner_read);
    }

    TempFolder m_folder;
    MameLocations m_locations;
};

TEST_F(LayoutFill, BesideMameRequiredFoldersAreNamedAndOptionalOnesOnlyWhenThere) {
    const std::filesystem::path mame = m_folder / "My MAME";
    Make(mame / "roms" / "arcade" / "device");
    Make(mame / "roms" / "other" / "bios");
    PathTexts texts;
    EXPECT_EQ(FillFromLayout(mame, m_locations, texts), FolderLayout::BesideMame);
    const std::string base = mame.string();
    EXPECT_EQ(texts[PathField::ArcadeRoms], base + "/roms/arcade;" + base + "/roms/arcade/device");
    EXPECT_EQ(texts[PathField::OtherRoms], base + "/roms/other;" + base + "/roms/other/bios");
    EXPECT_EQ(texts[PathField::Hash], "");
    EXPECT_EQ(texts[PathField::Software], "");
    EXPECT_EQ(texts[PathField::Samples], base + "/samples");
    EXPECT_EQ(texts[PathField::Ini], "") << "Coinlight's own, never filled";
}

TEST_F(LayoutFill, AnyOneSubFolderKeepsTheLayoutBesideMame) {
    for (const char* sub : {"hash", "snap", "roms"}) {
        TempFolder mame;
        EXPECT_EQ(ChooseLayout(mame.Path()), FolderLayout::Distribution);
        Make(mame / sub);
        EXPECT_EQ(ChooseLayout(mame.Path()), FolderLayout::BesideMame) << sub;
    }
}

TEST_F(LayoutFill, ThePackagedLayoutTakesSharedDataAndTheUsersFolder) {
    const std::string roms = (m_locations.home / ".mame" / "roms").string();
    const std::string share = m_locations.distributionData.string();
    Make(m_locations.distributionData / "artwork" / "cabinet");
    PathTexts texts;
    texts[PathField::Samples] = "/mine/samples";
    EXPECT_EQ(FillFromLayout(m_folder / "usr" / "games", m_locations, texts),
              FolderLayout::Distribution);
    // The one ROM folder is named for every family, made or not.
    EXPECT_EQ(texts[PathField::ArcadeRoms], roms);
    EXPECT_EQ(texts[PathField::OtherRoms], roms);
    EXPECT_EQ(texts[PathField::Software], roms);
    EXPECT_EQ(texts[PathField::Hash], "") << "no hash folder is installed";
    EXPECT_EQ(texts[PathField::Samples], "/mine/samples") << "a filled field is kept";
    EXPECT_EQ(texts[PathField::Artwork], share + "/artwork;" + share + "/artwork/cabinet");
    EXPECT_EQ(texts[PathField::Cfg], (m_locations.home / ".mame" / "cfg").string());
}

TEST_F(LayoutFill, WithoutAHomeNoUserFolderIsNamed) {
    m_locations.home.clear();
    PathTexts homeless;
    FillFromLayout(m_folder / "bin", m_locations, homeless);
    EXPECT_EQ(homeless[PathField::ArcadeRoms], "");
    EXPECT_EQ(homeless[PathField::Cfg], "");
    EXPECT_EQ(homeless[PathField::Plugins], (m_locations.distributionData / "plugins").string());
}

TEST_F(LayoutFill, TheSearchPathGivesTheFirstExecutableMame) {
    MakeExecutable(m_folder / "plain" / "mame", false);
    MakeExecutable(m_folder / "games" / "mame", true);
    MakeExecutable(m_folder / "later" / "mame", true);
    Make(m_folder / "folder" / "mame");
    const std::string path = "relative:" + (m_folder / "folder").string() +
                             "::" + (m_folder / "plain").string() + ":" +
                             (m_folder / "games").string() + ":" + (m_folder / "later").string();
    EXPECT_EQ(FindMameOnPath(path), m_folder / "games" / "mame");
    EXPECT_EQ(FindMameOnPath((m_folder / "plain").string()), std::nullopt);
    EXPECT_EQ(FindMameOnPath(""), std::nullopt);
}

} // namespace
} // namespace coinlight
