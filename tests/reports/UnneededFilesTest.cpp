#include "reports/UnneededFiles.h"

#include <gtest/gtest.h>

#include "lists/MachineRow.h"
#include "reports/CaseFoldedNames.h"
#include "reports/UnneededMove.h"
#include "support/TestFiles.h"

using namespace coinlight;
using namespace coinlight::test;

namespace {

MachineRow Row(std::string_view name, std::string_view romOf = "N/A",
               std::string_view deviceRoms = "No") {
    std::array<std::string_view, kRecordFieldCount> fields{};
    fields[ColName] = name;
    fields[ColRomOf] = romOf;
    fields[ColDeviceRomsRequired] = deviceRoms;
    return MachineRow(fields, "", true);
}

std::vector<std::string> Texts(const std::vector<RomFolderFile>& entries) {
    std::vector<std::string> texts;
    for (const auto& entry : entries) {
        texts.push_back(entry.Text());
    }
    return texts;
}

class UnneededFiles : public ::testing::Test {
protected:
    UnneededFiles() {
        for (const auto& row : {Row("pacman"), Row("mspacman", "pacman"), Row("neogeo", "N/A"),
                                Row("mslug", "neogeo", "Yes")}) {
            m_needed.Add(row);
        }
    }
    std::string Arcade() const { return (m_folder / "arcade roms").string(); }
    std::string Other() const { return (m_folder / "other").string(); }

    UnneededSearch Search(SetFormat format = SetFormat::Zip) {
        std::vector<std::string> searched;
        auto search = CompareWithLists(
            ScanRomFolders({Arcade()}, {Other()}, format,
                           [&searched](const std::string& folder) { searched.push_back(folder); }),
            m_needed);
        EXPECT_EQ(searched, (std::vector<std::string>{Arcade(), Other()}));
        return search;
    }

    TempFolder m_folder;
    NeededNames m_needed;
};

} // namespace

TEST_F(UnneededFiles, WrongFormatDuplicatesAndUnlistedSetsAreSurplusInScanOrder) {
    WriteFile(m_folder / "arcade roms" / "pacman.zip", "z");
    WriteFile(m_folder / "arcade roms" / "galaga.7z", "7");
    WriteFile(m_folder / "arcade roms" / "readme.txt", "t");
    WriteFile(m_folder / "arcade roms" / "NeoGeo.ZIP", "z");
    WriteFile(m_folder / "arcade roms" / "yes.zip", "the device column's word counts as needed");
    std::filesystem::create_directories(m_folder / "arcade roms" / "subfolder.zip");
    WriteFile(m_folder / "other" / "pacman.zip", "z");
    WriteFile(m_folder / "other" / "oldgame.zip", "z");
    const UnneededSearch search = Search();
    EXPECT_EQ(
        Texts(search.entries),
        (std::vector<std::string>{Arcade() + "|galaga.7z", Arcade() + "|readme.txt",
                                  Other() + "|pacman.zip {Duplicate}", Other() + "|oldgame.zip"}));
    EXPECT_TRUE(search.orphanFound);
    EXPECT_EQ(search.Status(), "Search complete.");
}

TEST_F(UnneededFiles, SevenZipSetsUnderZipAreAllSurplusAndNotAnOrphanFound) {
    WriteFile(m_folder / "arcade roms" / "pacman.7z", "7");
    WriteFile(m_folder / "arcade roms" / "mslug.7z", "7");
    auto search = Search(SetFormat::Zip);
    EXPECT_EQ(search.entries.size(), 2u);
    EXPECT_TRUE(search.noFiles);
    EXPECT_EQ(search.Status(), "No files found in your ROMs folder(s).");
    search = Search(SetFormat::SevenZip);
    EXPECT_TRUE(search.entries.empty());
    EXPECT_EQ(search.Status(), "Search complete.  No orphan files found.");
}

TEST(UnneededFilesWithoutFolders, NoRomFoldersFindNothing) {
    const auto search = CompareWithLists(ScanRomFolders({}, {}, SetFormat::Zip, {}), NeededNames{});
    EXPECT_TRUE(search.noFiles);
    EXPECT_EQ(search.Status(), "No files found in your ROMs folder(s).");
    const auto missing =
        CompareWithLists(ScanRomFolders({"/no/such/folder", ""}, {}, SetFormat::Zip, {}), {});
    EXPECT_FALSE(missing.error);
    EXPECT_TRUE(missing.noFiles);
}

TEST_F(UnneededFiles, MovesGoAsideUnderThePlainNameAndAClashLeavesBothFiles) {
    WriteFile(m_folder / "arcade roms" / "pacman.zip", "first");
    WriteFile(m_folder / "other" / "pacman.zip", "second");
    WriteFile(m_folder / "other" / "old game.zip", "old");
    const auto unneeded = m_folder / "data" / "unneeded files";
    WriteFile(unneeded / "other" / "old game.zip", "moved before");
    const UnneededSearch search = Search();
    ASSERT_EQ(search.entries.size(), 2u);

    const UnneededMove duplicate = MoveUnneededFile(search.entries[0], unneeded, {Arcade()});
    EXPECT_TRUE(duplicate.moved);
    EXPECT_FALSE(duplicate.message);
    EXPECT_EQ(ReadFile(unneeded / "other" / "pacman.zip"), "second");
    EXPECT_EQ(ReadFile(m_folder / "arcade roms" / "pacman.zip"), "first");

    const UnneededMove clash = MoveUnneededFile(search.entries[1], unneeded, {Arcade()});
    EXPECT_FALSE(clash.moved);
    ASSERT_TRUE(clash.message);
    EXPECT_EQ(clash.message->text, "Cannot move file.  File already exists in destination folder.");
    EXPECT_EQ(ReadFile(m_folder / "other" / "old game.zip"), "old");
    EXPECT_EQ(ReadFile(unneeded / "other" / "old game.zip"), "moved before");
}

TEST(UnneededDestination, TheMameFolderWhenWritableElseTheDataFolder) {
    TempFolder folder;
    EXPECT_EQ(UnneededFilesFolder(folder.Path(), "/data"), folder / "unneeded files");
    EXPECT_EQ(UnneededFilesFolder(folder / "gone", "/data"),
              std::filesystem::path("/data/unneeded files"));
    const auto question = ConfirmRemovalQuestion("/data/unneeded files");
    EXPECT_NE(question.text.find("moved to an \"unneeded files\" folder in /data."),
              std::string::npos);
    EXPECT_TRUE(question.noIsDefault);
    EXPECT_EQ(EmptyRemovalSelectionMessage().text, "You must select at least 1 file to remove.");
}

TEST(CaseFoldedNames, GrowsAndFindsNamesWhateverTheirCaseOrLength) {
    CaseFoldedNames names;
    const std::string longName(100, 'Q');
    for (int i = 0; i < 5000; ++i) {
        EXPECT_TRUE(names.Insert("Set" + std::to_string(i)));
    }
    EXPECT_TRUE(names.Insert(longName));
    EXPECT_FALSE(names.Insert("SET42")) << "already there in another case";
    EXPECT_FALSE(names.Insert(std::string(100, 'q')));
    EXPECT_EQ(names.Size(), 5001u);
    for (int i = 0; i < 5000; i += 7) {
        EXPECT_TRUE(names.Contains("sEt" + std::to_string(i))) << i;
    }
    EXPECT_FALSE(names.Contains("set5000"));
    EXPECT_FALSE(names.Contains(""));
    EXPECT_TRUE(names.Insert(""));
    EXPECT_TRUE(names.Contains(""));
}
