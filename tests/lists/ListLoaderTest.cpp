#include "lists/ListLoader.h"

#include <gtest/gtest.h>

#include "RecordBuilder.h"
#include "lists/RowSort.h"
#include "support/TestFiles.h"

namespace coinlight {
namespace {

using test::Record;
using test::RecordLine;
using test::TempFolder;
using test::WriteFile;

std::vector<std::string> Names(const LoadedList& list, const std::vector<std::uint32_t>& rows) {
    std::vector<std::string> names;
    for (const auto row : rows) {
        names.emplace_back(list.machines->rows[row].ShortName());
    }
    return names;
}

class Loader : public ::testing::Test {
protected:
    Loader() : m_roms(m_folder / "roms"), m_info(m_folder / "info.txt") {
        std::filesystem::create_directories(m_roms);
    }

    ListLoadOptions Options() {
        m_index = std::make_unique<RomFolderIndex>(std::vector<std::string>{m_roms.string()});
        ListLoadOptions options;
        options.roms = m_index.get();
        return options;
    }

    TempFolder m_folder;
    std::filesystem::path m_roms;
    std::filesystem::path m_info;
    std::unique_ptr<RomFolderIndex> m_index;
};

TEST_F(Loader, ArcadeMachinesAreAvailableByTheirFiles) {
    WriteFile(m_info, RecordLine(Record("pacman")) + RecordLine(Record("galaga")) +
                          RecordLine(Record("pong", {{ColRomRequired, "No"}})) +
                          RecordLine(Record("mspacman", {{ColSetType, "Clone of pacman"}})));
    WriteFile(m_roms / "pacman.zip", "x");
    WriteFile(m_roms / "galaga.7z", "x");
    LoadedList list = LoadArcadeList(m_info, Options(), {});
    ASSERT_TRUE(list.error.empty()) << list.error;
    EXPECT_EQ(Names(list, list.available), (std::vector<std::string>{"pacman", "galaga", "pong"}));
    EXPECT_EQ(Names(list, list.unavailable), (std::vector<std::string>{"mspacman"}));

    ListLoadOptions merged = Options();
    merged.mergedRomSets = true;
    list = LoadArcadeList(m_info, merged, {});
    EXPECT_EQ(list.unavailable.size(), 0u) << "a clone is found through its parent's file";

    ListLoadOptions skip = Options();
    skip.skipSearch = true;
    skip.roms = nullptr;
    EXPECT_EQ(LoadArcadeList(m_info, skip, {}).available.size(), 4u);
}

TEST_F(Loader, FolderIndexAnswersAsTestingEachFileWould) {
    WriteFile(m_roms / "a.zip", "x");
    WriteFile(m_folder / "more" / "b.7z", "x");
    std::filesystem::create_directories(m_roms / "c.zip"); // a folder by that name counts too
    const RomFolderIndex index(
        {m_roms.string(), "", (m_folder / "more").string(), (m_folder / "missing").string()});
    EXPECT_TRUE(index.RomFileExists("a"));
    EXPECT_TRUE(index.RomFileExists("b"));
    EXPECT_TRUE(index.RomFileExists("c"));
    EXPECT_FALSE(index.RomFileExists("A")) << "names compare exactly";
    EXPECT_FALSE(index.RomFileExists(""));
    EXPECT_FALSE(RomFolderIndex({}).RomFileExists("a"));
}

TEST_F(Loader, OtherMachinesStayListedAndAreMarkedByTheirFilesAndDisks) {
    WriteFile(m_info, RecordLine(Record("nofiles", {{ColRomRequired, "No"}})) +
                          RecordLine(Record("cart")) + RecordLine(Record("missing")) +
                          RecordLine(Record("cdrom", {{ColChdRequired, "Yes"}})) +
                          RecordLine(Record("cdrom2", {{ColChdRequired, "Yes"}})) +
                          RecordLine(Record("odd", {{ColChdRequired, "Maybe"}})));
    WriteFile(m_roms / "cart.zip", "x");
    WriteFile(m_roms / "cdrom.zip", "x");
    WriteFile(m_roms / "cdrom" / "disc.chd", "x");
    WriteFile(m_roms / "cdrom2.zip", "x");
    std::filesystem::create_directories(m_roms / "cdrom2");
    const LoadedList list = LoadOtherList(m_info, Options(), {});
    ASSERT_EQ(list.machines->rows.size(), 6u);
    std::vector<bool> available;
    for (const auto& row : list.machines->rows) {
        available.push_back(row.Available());
    }
    EXPECT_EQ(available, (std::vector<bool>{true, true, false, true, false, true}));
}

TEST_F(Loader, PlayersComeFromTheListOrReadUnknown) {
    WriteFile(m_info, RecordLine(Record("pacman")) + RecordLine(Record("galaga")));
    WriteFile(m_folder / "nplayers.ini", "[NPlayers]\r\npacman=2P alt\r\n");
    ListLoadOptions options = Options();
    options.nplayers = std::make_shared<const ProfileDocument>("[NPlayers]\r\npacman=2P alt\r\n");
    const LoadedList list = LoadArcadeList(m_info, options, {});
    EXPECT_EQ(list.machines->rows[0].Field(ColPlayers), "2P alt");
    EXPECT_EQ(list.machines->rows[1].Field(ColPlayers), "Unknown");
    EXPECT_EQ(LoadOtherList(m_info, options, {}).machines->rows[0].Field(ColPlayers), "")
        << "the other list has no Players column";
}

TEST_F(Loader, CountsAreReportedAtTheFirstRowEvery25thAndAtTheEnd) {
    std::string text;
    for (int i = 0; i < 60; ++i) {
        text += RecordLine(Record("m" + std::to_string(i), {{ColRomRequired, "No"}}));
    }
    WriteFile(m_info, text);
    std::vector<int> counts;
    int yields = 0;
    LoadArcadeList(m_info, Options(),
                   {[&](int n) { counts.push_back(n); },
                    [&] {
                        ++yields;
                    }});
    EXPECT_EQ(counts, (std::vector<int>{1, 25, 50, 60}));
    EXPECT_EQ(yields, 60);
}

TEST_F(Loader, ABrokenRecordOrMissingFileFailsNamingTheMachine) {
    std::string damaged = RecordLine(Record("dkong"));
    damaged.erase(damaged.rfind("Shooter") - 1, 1); // its last field lost a quote
    WriteFile(m_info, RecordLine(Record("good")) + damaged);
    const LoadedList broken = LoadArcadeList(m_info, Options(), {});
    EXPECT_EQ(broken.error, "Error In LoadListsArcade: Input past end of file\nROM: dkong\n"
                            "Line Number: 2\n\nThis might mean you are not using the correct "
                            "version of MAME.");
    WriteFile(m_info, "\"short\",\"record\"\r\n");
    EXPECT_NE(LoadArcadeList(m_info, Options(), {}).error.find("\nROM: \nLine Number: 1"),
              std::string::npos)
        << "a line without a name field names nothing rather than a piece of itself";
    const LoadedList missing = LoadOtherList(m_folder / "none.txt", Options(), {});
    EXPECT_NE(missing.error.find("Error In LoadListsOther: "), std::string::npos);
    EXPECT_TRUE(missing.machines->rows.empty());
}

TEST_F(Loader, AnyRecordTheWriterCanWriteLoads) {
    const std::string description(70'000, 'x');
    WriteFile(m_info, RecordLine(Record("long", {{ColMachine, description}})) +
                          RecordLine(Record("after")));
    const LoadedList list = LoadArcadeList(m_info, Options(), {});
    ASSERT_EQ(list.error, "");
    ASSERT_EQ(list.machines->rows.size(), 2u);
    EXPECT_EQ(list.machines->rows[0].Field(ColMachine), description);
    EXPECT_EQ(list.machines->rows[0].Field(ColCategory), "Shooter");
    EXPECT_EQ(list.machines->rows[1].ShortName(), "after");
}

TEST_F(Loader, RowsStayReadableWhenAnotherProgramEmptiesTheFile) {
    WriteFile(m_info, RecordLine(Record("pacman")) + RecordLine(Record("galaga")));
    const LoadedList list = LoadArcadeList(m_info, Options(), {});
    ASSERT_EQ(list.error, "");
    std::filesystem::resize_file(m_info, 0); // `: > arcadeinfo.txt` while Coinlight runs
    std::vector<std::uint32_t> order = AllRows(*list.machines);
    SortRows(order, *list.machines, ColName, false);
    EXPECT_EQ(Names(list, order), (std::vector<std::string>{"galaga", "pacman"}));
    EXPECT_EQ(list.machines->rows[1].Field(ColCategory), "Shooter");
}

} // namespace
} // namespace coinlight
