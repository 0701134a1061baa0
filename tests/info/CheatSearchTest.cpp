#include "info/CheatSearch.h"

#include <gtest/gtest.h>

#include "InfoTestSupport.h"
#include "core/FileTests.h"
#include "support/TestFiles.h"

namespace coinlight::test {
namespace {

const std::string kPacmanCheats = "<mamecheat version=\"1\">\r\n"
                                  "  <cheat desc=\"Infinite Lives\">\r\n"
                                  "    <script state=\"run\"/>\r\n"
                                  "  </cheat>\r\n"
                                  "\t<cheat desc=\"Invincible\"><comment>Ghosts pass</comment>\r\n"
                                  "  <cheat desc=\"Level Select\"/>\r\n"
                                  "</mamecheat>\r\n";

class CheatSearch : public ::testing::Test {
protected:
    CheatSearch() {
        std::filesystem::create_directories(Temp());
        MakeArchive(Archive(), {{"galaga.xml", "<cheat desc=\"Galaga\">\n"},
                                {"pacman.xml", kPacmanCheats},
                                {"nes/pacman.xml", "<cheat desc=\"Not the arcade one\">\n"},
                                {"nes/smb.xml", "<cheat desc=\"Moon Jump\">\n"},
                                {"famicom/smb.xml", "<cheat desc=\"Famicom\">\n"}});
    }
    std::filesystem::path Archive() const { return m_folder / "mame" / "cheat.7z"; }
    std::filesystem::path Temp() const { return m_folder / "temp"; }

    std::string Search(const InfoSelection& selection, const ArchiveLimits& limits = {}) {
        std::string panel;
        const auto error = SearchCheats(Archive(), Temp(), selection, panel, limits);
        EXPECT_FALSE(error) << error->description;
        EXPECT_EQ(CountFiles(Temp()), 0u) << "the extracted file is deleted again";
        return panel;
    }
    InfoError Failure(const InfoSelection& selection, const ArchiveLimits& limits = {}) {
        std::string panel;
        const auto error = SearchCheats(Archive(), Temp(), selection, panel, limits);
        EXPECT_TRUE(error);
        EXPECT_EQ(CountFiles(Temp()), 0u) << "nothing half-written is left";
        return error.value_or(InfoError{});
    }

    TempFolder m_folder;
};

TEST_F(CheatSearch, AMachinesCheatsAreTheEntryAtTheRoot) {
    EXPECT_EQ(Search(ArcadeSelection("pacman")),
              "Infinite Lives\n\tInvincible(Ghosts pass)\nLevel Select\n")
        << "one line per cheat; blanks trimmed, tabs kept, a same-line comment in brackets";
    EXPECT_EQ(Search(ArcadeSelection("smb")), "No cheats found for this machine.\n")
        << "an entry in a folder is not a machine's";
    EXPECT_EQ(Search(ArcadeSelection("PACMAN")), "No cheats found for this machine.\n");
}

TEST_F(CheatSearch, ASoftwareTitlesCheatsAreFiledUnderTheMachine) {
    EXPECT_EQ(Search(OtherSelection("nes", "NES", "smb", "famicom", "Super Mario Bros.")),
              "Super Mario Bros.\n\nMoon Jump\n")
        << "the machine's folder, whatever list the title is in";
    EXPECT_EQ(Search(OtherSelection("nes", "NES", "zelda", "nes", "Zelda")),
              "Zelda\n\nNo cheats found for this software title.\n");
    EXPECT_EQ(Search(OtherSelection("nes", "NES")),
              "No software for this machine or no software was selected.\n");
    InfoSelection noCaption = OtherSelection("nes", "NES", "smb", "nes", "Super Mario Bros.");
    noCaption.softwareCaption = false;
    EXPECT_EQ(Search(noCaption), "No software for this machine or no software was selected.\n");
}

TEST_F(CheatSearch, EntriesNamedTheWindowsWayAreFoundToo) {
    MakeArchive(Archive(), {{"nes\\smb.xml", "<cheat desc=\"Backslash\">\n"}});
    EXPECT_EQ(Search(OtherSelection("nes", "NES", "smb", "nes", "SMB")), "SMB\n\nBackslash\n");
}

TEST_F(CheatSearch, ExtractionNeverWritesOutsideTheFolder) {
    MakeArchive(Archive(), {{"../../x.xml", "<cheat desc=\"Escaped\">\n"},
                            {"/etc/y.xml", "<cheat desc=\"Absolute\">\n"},
                            {"..", "dots"}});
    for (const char* wanted : {"x.xml", "y.xml", ".."}) {
        const auto error = ExtractArchiveEntry(
            Archive(), [&](std::string_view name) { return name.ends_with(wanted); }, Temp());
        EXPECT_FALSE(error) << wanted;
    }
    EXPECT_TRUE(FileExists(Temp() / "x.xml")) << "the inner path is dropped";
    EXPECT_TRUE(FileExists(Temp() / "y.xml"));
    EXPECT_EQ(CountFiles(m_folder.Path()), 3u) << "cheat.7z and the two in temp, nothing else";
    std::filesystem::remove(Temp() / "x.xml");
    std::filesystem::remove(Temp() / "y.xml");
    EXPECT_EQ(Search(ArcadeSelection("../../x")), "Escaped\n")
        << "even a key that climbs only reaches the file in temp";
    EXPECT_EQ(CountFiles(m_folder.Path()), 1u);

    // A link planted in the folder is replaced, not followed.
    WriteFile(m_folder / "victim.txt", "keep");
    std::filesystem::create_symlink(m_folder / "victim.txt", Temp() / "pacman.xml");
    MakeArchive(Archive(), {{"pacman.xml", kPacmanCheats}});
    EXPECT_EQ(Search(ArcadeSelection("pacman")).substr(0, 15), "Infinite Lives\n");
    EXPECT_EQ(ReadFile(m_folder / "victim.txt"), "keep");
}

TEST_F(CheatSearch, DamagedEncryptedAndHugeArchivesAreErrors) {
    WriteFile(Archive(), "this is not an archive at all\n");
    EXPECT_EQ(Failure(ArcadeSelection("pacman")).number, 321);

    MakeArchive(Archive(), {{"pacman.xml", kPacmanCheats + std::string(4000, 'x')}});
    const std::string whole = ReadFile(Archive());
    WriteFile(Archive(), whole.substr(0, whole.size() / 2));
    EXPECT_EQ(Failure(ArcadeSelection("pacman")).number, 321) << "a truncated archive";

    for (const char* name : {"data-encrypted.7z", "headers-encrypted.7z"}) {
        std::filesystem::copy_file(FixturesFolder() / "info" / name, Archive(),
                                   std::filesystem::copy_options::overwrite_existing);
        const InfoError error = Failure(ArcadeSelection("pacman"));
        EXPECT_EQ(error.number, 321) << name;
        EXPECT_NE(error.description.find("ncrypt"), std::string::npos) << error.description;
    }

    MakeArchive(Archive(), {{"pacman.xml", std::string(100000, ' ') + kPacmanCheats}});
    ArchiveLimits tight;
    tight.entryBytes = 50000;
    EXPECT_EQ(Failure(ArcadeSelection("pacman"), tight).number, 7) << "an entry too large";
    MakeArchive(Archive(), {{"a.xml", std::string(60000, 'a')}, {"pacman.xml", kPacmanCheats}});
    tight.entryBytes = 1 << 20;
    tight.passedBytes = 50000;
    EXPECT_EQ(Failure(ArcadeSelection("pacman"), tight).number, 7) << "too much to pass over";
    tight.passedBytes = 1 << 20;
    tight.entryCount = 1;
    EXPECT_EQ(Failure(ArcadeSelection("pacman"), tight).number, 7) << "too many entries";
    tight.entryCount = 10;
    tight.archiveBytes = 100;
    EXPECT_EQ(Failure(ArcadeSelection("pacman"), tight).number, 7) << "an archive too large";

    std::filesystem::remove(Archive());
    EXPECT_EQ(Failure(ArcadeSelection("pacman")).number, 53);
}

TEST(CheatArchive, ListsEveryEntryWithItsInnerPath) {
    TempFolder folder;
    MakeArchive(folder / "cheat.7z", {{"pacman.xml", "a"}, {"nes/smb.xml", "b"}});
    const ArchiveListing listing = ListArchiveEntries(folder / "cheat.7z");
    EXPECT_FALSE(listing.error);
    EXPECT_EQ(listing.names, (std::vector<std::string>{"pacman.xml", "nes/smb.xml"}));
    EXPECT_FALSE(ExtractedName("nes/"));
    EXPECT_FALSE(ExtractedName("a/.."));
    EXPECT_EQ(ExtractedName("a\\b\\c.xml"), "c.xml");
}

} // namespace
} // namespace coinlight::test
