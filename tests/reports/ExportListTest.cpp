#include "reports/ExportList.h"

#include <gtest/gtest.h>

#include "support/TestFiles.h"

using namespace coinlight;
using namespace coinlight::test;

TEST(ExportList, ItemsStartAtTheNextZoneOf14Columns) {
    EXPECT_EQ(PrintZones({"ROM", "Title"}), "ROM           Title");
    EXPECT_EQ(PrintZones({"abcdefghijklm", "Title"}), "abcdefghijklm Title");
    EXPECT_EQ(PrintZones({"abcdefghijklmn", "Title"}),
              std::string("abcdefghijklmn") + std::string(14, ' ') + "Title")
        << "a short name of 14 characters pushes the title to the second zone after it";
    EXPECT_EQ(PrintZones({"", "Title"}), std::string(14, ' ') + "Title");
}

TEST(ExportList, AnEmptyListHasItsHeaderAndTotal) {
    TempFolder folder;
    const auto file = folder / "Other Machines.txt";
    const UserMessage done = ExportList(file, true, 0, [](int) { return ExportRow{}; });
    EXPECT_EQ(done.title, "Export List");
    EXPECT_EQ(done.text, "Export complete.  List exported as Other Machines.txt.");
    EXPECT_EQ(ReadFile(file), "ROM           Machine\r\n\r\n\r\nTotal: 0\r\n");
}

TEST(ExportList, RowsInTheirOrderAndAFailureLeavesTheOldFile) {
    TempFolder folder;
    const auto file = folder / "All Arcade Machines.txt";
    const std::vector<ExportRow> rows = {{"pacman", "Pac-Man"}, {"abcdefghijklmn", "Long"}};
    ExportList(file, false, 2, [&rows](int row) { return rows[static_cast<std::size_t>(row)]; });
    EXPECT_EQ(ReadFile(file), "ROM           Title\r\n\r\npacman        Pac-Man\r\n"
                              "abcdefghijklmn              Long\r\n\r\nTotal: 2\r\n");
    const UserMessage failed =
        ExportList(folder / "gone" / "x.txt", false, 0, [](int) { return ExportRow{}; });
    EXPECT_EQ(failed.icon, MessageIcon::Critical);
    EXPECT_NE(failed.text.find("Error In Export: "), std::string::npos);
}
