#include "catalogue/AddCatver.h"

#include <gtest/gtest.h>

#include "CatalogueTestSupport.h"
#include "catalogue/QuotedRecordFile.h"

using namespace coinlight;
using namespace coinlight::test;

namespace {

std::string Record(const std::string& rom, const std::string& category) {
    MachineFields fields;
    for (std::size_t column = 0; column < kMachineFieldCount; ++column) {
        fields.values[column] = "f" + std::to_string(column);
    }
    fields[MachineField::Rom] = rom;
    fields[MachineField::Category] = category;
    std::string line;
    AppendQuotedRecord(line, fields.values);
    return line;
}

struct CatverFolder {
    TempFolder temp;
    DataLayout data{temp.Path()};
    CatverFolder() {
        WriteFile(data.Support() / "catver.ini",
                  "[Category]\r\nalpha=Maze / Collect\r\nbeta = Shooter\r\n");
    }
};

} // namespace

TEST(AddCatver, RewritesOnlyTheCategoryOfTheInfoFileAndItsFavourites) {
    CatverFolder folder;
    WriteFile(folder.data.Output() / "arcadeinfo.txt", Record("alpha", "Catver.ini Not Found") +
                                                           Record("beta", "Old") +
                                                           Record("gone", "Puzzle"));
    WriteFile(folder.data.Output() / "arcadefavs.txt", Record("beta", "Old"));
    WriteFile(folder.data.Output() / "otherfavs.txt", Record("alpha", "Untouched"));
    RecordingProgress progress;
    const auto outcome = AddCatver("arcadeinfo.txt", folder.data, progress);
    ASSERT_TRUE(outcome.Succeeded());
    EXPECT_EQ(ReadFile(folder.data.Output() / "arcadeinfo.txt"), Record("alpha", "Maze / Collect") +
                                                                     Record("beta", "Shooter") +
                                                                     Record("gone", "Unknown"));
    EXPECT_EQ(ReadFile(folder.data.Output() / "arcadefavs.txt"), Record("beta", "Shooter"));
    EXPECT_EQ(ReadFile(folder.data.Output() / "otherfavs.txt"), Record("alpha", "Untouched"));
    EXPECT_EQ(progress.events,
              (std::vector<std::string>{"catver Different catver.ini detected!|Adding catver "
                                        "info to arcadeinfo.txt...|Options will open next so "
                                        "you can verify your selections.",
                                        "catver clear"}));
}

TEST(AddCatver, AnyOtherFileGoesWithTheOtherFavouritesAndAMissingOneIsLeftAlone) {
    CatverFolder folder;
    WriteFile(folder.data.Output() / "otherinfo.txt", Record("alpha", "x"));
    RecordingProgress progress;
    ASSERT_TRUE(AddCatver("otherinfo.txt", folder.data, progress).Succeeded());
    EXPECT_EQ(ReadFile(folder.data.Output() / "otherinfo.txt"), Record("alpha", "Maze / Collect"));
    EXPECT_FALSE(std::filesystem::exists(folder.data.Output() / "otherfavs.txt"));
}

TEST(AddCatver, AFailureLeavesTheOldFileWhole) {
    CatverFolder folder;
    const std::string cutShort = Record("alpha", "x") + "\"beta\",\"only two\"\r\n";
    WriteFile(folder.data.Output() / "arcadeinfo.txt", cutShort);
    RecordingProgress progress;
    const auto outcome = AddCatver("arcadeinfo.txt", folder.data, progress);
    EXPECT_TRUE(outcome.fatalError);
    ASSERT_EQ(outcome.messages.size(), 1u);
    EXPECT_EQ(outcome.messages[0].text,
              "Error In AddCatver: Input past end of file\nLine Number: 21");
    EXPECT_EQ(ReadFile(folder.data.Output() / "arcadeinfo.txt"), cutShort);
    EXPECT_EQ(CountFiles(folder.data.Output()), 1u);

    const auto missing = AddCatver("otherinfo.txt", folder.data, progress);
    EXPECT_TRUE(missing.fatalError);
    EXPECT_EQ(missing.messages[0].text, "Error In AddCatver: File not found\nLine Number: 21");
}
