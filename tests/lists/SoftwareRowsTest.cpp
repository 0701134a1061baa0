#include "lists/SoftwareRows.h"

#include <gtest/gtest.h>

#include "lists/SoftwareFile.h"
#include "support/TestFiles.h"

namespace coinlight {
namespace {

using test::TempFolder;
using test::WriteFile;

std::string SoftwareLine(const std::string& availability, const std::string& name,
                         const std::string& list = "a2600") {
    return "\"" + availability + "\",\"Game " + name +
           "\",\"1982\",\"Yes\",\"Activision\",\"Cart\",\"" + name + "\",\"N/A\",\"N/A\",\"" +
           list + "\"\r\n";
}

std::vector<std::string> Names(const SoftwareLoad& load) {
    std::vector<std::string> names;
    for (std::size_t row = 0; row < load.rows->size(); ++row) {
        names.emplace_back(load.rows->Field(row, SoftwareField::Name));
    }
    return names;
}

TEST(LoadListsSoftware, KeepsAndCountsOnlyTheKindAskedFor) {
    TempFolder folder;
    const auto file = folder / "a2600.txt";
    WriteFile(file, SoftwareLine("A", "pitfall") + SoftwareLine("U", "riverraid") +
                        SoftwareLine("A", "adventur") + SoftwareLine("U", "et"));
    const SoftwareLoad available = LoadListsSoftware(file, SoftwareKind::Available);
    EXPECT_FALSE(available.error);
    EXPECT_EQ(Names(available), (std::vector<std::string>{"pitfall", "adventur"}));
    EXPECT_EQ(available.available, 2);
    EXPECT_EQ(available.unavailable, 0) << "the other kind is neither added nor counted";
    EXPECT_EQ(available.rows->Field(0, SoftwareField::Software), "Game pitfall");
    EXPECT_EQ(available.rows->Field(0, SoftwareField::List), "a2600");

    const SoftwareLoad unavailable = LoadListsSoftware(file, SoftwareKind::Unavailable);
    EXPECT_EQ(Names(unavailable), (std::vector<std::string>{"riverraid", "et"}));
    EXPECT_EQ(unavailable.available, 0);
    EXPECT_EQ(unavailable.unavailable, 2);
}

TEST(LoadListsSoftware, AFileCutOffMidRecordKeepsTheRowsBeforeAndSaysWhere) {
    TempFolder folder;
    const auto file = folder / "cut.txt";
    const std::string whole = SoftwareLine("A", "pitfall") + SoftwareLine("A", "kaboom", "cass");
    WriteFile(file, whole.substr(0, whole.size() - 20));
    const SoftwareLoad load = LoadListsSoftware(file, SoftwareKind::Available);
    EXPECT_EQ(Names(load), std::vector<std::string>{"pitfall"});
    ASSERT_TRUE(load.error);
    EXPECT_EQ(load.error->title, "Coinlight");
    EXPECT_EQ(load.error->text, "Error In LoadListsSoftware: Input past end of file\nLine Number: "
                                "4\n\nSoftware List: \nDevice Type: Cart\nSoftware: kaboom");
}

TEST(LoadListsSoftware, AMissingFileAndNoiseEndTheLoadWithoutACrash) {
    TempFolder folder;
    SoftwareLoad load = LoadListsSoftware(folder / "none.txt", SoftwareKind::Available);
    ASSERT_TRUE(load.error);
    EXPECT_NE(load.error->text.find("File not found"), std::string::npos);
    EXPECT_EQ(load.rows->size(), 0u);

    std::string noise;
    for (int i = 0; i < 5000; ++i) {
        noise.push_back(static_cast<char>((i * 131) % 256));
    }
    WriteFile(folder / "noise.txt", noise);
    load = LoadListsSoftware(folder / "noise.txt", SoftwareKind::Unavailable);
    EXPECT_LE(load.rows->size(), 5000u);
}

TEST(LoadListsSoftware, TheCountersAreSixteenBitAsThisListHasAlwaysCounted) {
    TempFolder folder;
    std::string text;
    for (int i = 0; i < 32768; ++i) {
        text += SoftwareLine("A", "g" + std::to_string(i));
    }
    WriteFile(folder / "many.txt", text);
    const SoftwareLoad load = LoadListsSoftware(folder / "many.txt", SoftwareKind::Available);
    EXPECT_EQ(load.available, 32767);
    EXPECT_EQ(load.rows->size(), 32767u);
    ASSERT_TRUE(load.error);
    EXPECT_TRUE(load.error->text.starts_with("Error In LoadListsSoftware: Overflow"));
    EXPECT_NE(load.error->text.find("Software: g32767"), std::string::npos);
}

TEST(SoftwareFileTakesLong, FromNineHundredThousandAndOneBytes) {
    TempFolder folder;
    WriteFile(folder / "short.txt", std::string(900000, 'x'));
    WriteFile(folder / "long.txt", std::string(900001, 'x'));
    EXPECT_FALSE(SoftwareFileTakesLong(folder / "short.txt"));
    EXPECT_TRUE(SoftwareFileTakesLong(folder / "long.txt"));
    EXPECT_FALSE(SoftwareFileTakesLong(folder / "none.txt"));
}

} // namespace
} // namespace coinlight
