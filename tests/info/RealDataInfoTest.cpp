// The searches over support files the community really publishes, with their byte-order
// marks, blanks after commas, C1 characters and text read twice. The files are not part
// of the project; where they are absent the tests say so and skip.
#include <gtest/gtest.h>

#include "InfoTestSupport.h"
#include "core/TextFile.h"
#include "info/CheatSearch.h"
#include "info/DollarRecordSearch.h"
#include "info/HistorySearch.h"
#include "support/TestFiles.h"

namespace coinlight::test {
namespace {

class RealData : public ::testing::Test {
protected:
    void SetUp() override {
        const auto folder = RealDataFolder();
        if (!folder) {
            GTEST_SKIP() << "the real support files (shared/realdata) are not on this machine";
        }
        m_data = *folder;
    }
    std::filesystem::path File(const char* name) const { return m_data / name; }

    std::string Dollar(const char* file, const std::string& machine,
                       std::optional<InfoError>* error = nullptr) {
        std::string panel;
        const auto failure = SearchDollarRecords(File(file), ArcadeSelection(machine), panel);
        if (error != nullptr) {
            *error = failure;
        } else {
            EXPECT_FALSE(failure) << file << " " << machine << ": " << failure->description;
        }
        return panel;
    }

    std::filesystem::path m_data;
};

TEST_F(RealData, EveryMachineOfCommandDatIsFoundAsItsLineWritesIt) {
    const auto lines = ReadTextLines(File("command_raine-vendored_2022-09-19.dat"));
    ASSERT_TRUE(lines);
    int records = 0;
    for (const auto& line : *lines) {
        if (!line.starts_with("$info=")) {
            continue;
        }
        ++records;
        const std::string first = line.substr(6, line.find(',') - 6);
        const std::string panel = Dollar("command_raine-vendored_2022-09-19.dat", first);
        EXPECT_NE(panel, "No information found for this machine.\n") << first;
    }
    EXPECT_EQ(records, 162);
    EXPECT_EQ(Dollar("command_raine-vendored_2022-09-19.dat", "fitfight"),
              "No information found for this machine.\n")
        << "written \"aof, fitfight\": the blank keeps it from matching";
    const std::string aof = Dollar("command_raine-vendored_2022-09-19.dat", "aof");
    EXPECT_TRUE(aof.starts_with("*---INFO---*\n")) << aof.substr(0, 40);
    EXPECT_NE(aof.find("Art of Fighting\n"), std::string::npos);
    EXPECT_EQ(aof.find("$end"), std::string::npos);
    EXPECT_EQ(aof.find("\xC2\xAB"
                       "Buttons"),
              std::string::npos)
        << "only the first block";
}

TEST_F(RealData, GameInitAndMessInfoRecordsReadToTheirEnd) {
    const std::string first = Dollar("gameinit_0.250.dat", "3bagflnz");
    EXPECT_TRUE(first.starts_with("INITIALIZATION:\n")) << first.substr(0, 40);
    const std::string last = Dollar("gameinit_0.250.dat", "zookeepbl");
    EXPECT_NE(last, "No information found for this machine.\n");
    EXPECT_TRUE(last.ends_with("\n\n"));

    const std::string canon = Dollar("messinfoREM_0.261.dat", "canonv30");
    EXPECT_NE(canon.find("internet \xC3\xA2\xE2\x82\xAC\xE2\x80\x9C all the photos"),
              std::string::npos)
        << "a dash read twice that is none of the three repairs stays as it came";
}

TEST_F(RealData, HistoryFilesOfOtherLayoutsFindNothingAndNeverFail) {
    std::optional<InfoError> error;
    Dollar("history_raine-filtered_from-xml-2.50.dat", "1941", &error);
    ASSERT_TRUE(error) << "a record with no $mame or $cmd block runs to the end of the file";
    EXPECT_EQ(error->number, 62);
    Dollar("history_raine-filtered_from-xml-2.50.dat", "bgareggablj", &error);
    EXPECT_TRUE(error) << "found through the comma at the end of its line";

    for (const char* file :
         {"history_raine-filtered_from-xml-2.50.dat", "history_mame0.35b8.dat"}) {
        std::string panel;
        EXPECT_FALSE(SearchHistory(File(file), ArcadeSelection("pacman"), panel)) << file;
        EXPECT_EQ(panel, "No history found.\n") << file;
    }
}

TEST_F(RealData, ACheatFileFromTheCollectionListsItsCheats) {
    TempFolder folder;
    std::filesystem::create_directories(folder / "temp");
    const auto sample = ReadFileBytes(File("cheat_sample_ddrj.xml"));
    ASSERT_TRUE(sample);
    MakeArchive(folder / "cheat.7z", {{"ddrj.xml", *sample}});
    std::string panel;
    EXPECT_FALSE(
        SearchCheats(folder / "cheat.7z", folder / "temp", ArcadeSelection("ddrj"), panel));
    EXPECT_TRUE(panel.starts_with("Re-enable 'Money' song\nAutoplay\n")) << panel;
    EXPECT_EQ(CountFiles(folder / "temp"), 0u);
}

} // namespace
} // namespace coinlight::test
