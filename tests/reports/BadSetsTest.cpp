#include "reports/BadSets.h"

#include <gtest/gtest.h>

using namespace coinlight;

TEST(BadSets, OnlyLinesEndingInIsBadAreListedAndCounted) {
    const std::string report = "romset pacman [puckman] is bad\r\n"
                               "romset galaga is good\r\n"
                               "romset dkong is bad, or so it seems\n"
                               "romset mspacman [pacman] is bad\n"
                               "2 romsets found, 0 were OK.";
    EXPECT_TRUE(HasBadSets(report));
    const BadSetList bad = ListBadSets(report);
    EXPECT_EQ(bad.count, 2);
    EXPECT_FALSE(bad.error);
    EXPECT_EQ(bad.text, "2 bad sets found.\r\rromset pacman [puckman] is bad\r\n"
                        "romset mspacman [pacman] is bad\r\n\rEnd of report.\r\r");
}

TEST(BadSets, AReportWithoutBadSetsOffersNothingAndListsNothing) {
    EXPECT_FALSE(HasBadSets("romset galaga is good\nromset bad is best available\n"));
    EXPECT_FALSE(HasBadSets(""));
    EXPECT_EQ(ListBadSets("").text, "0 bad sets found.\r\r\rEnd of report.\r\r");
}

TEST(BadSets, BinaryAndOverlongReportsEndInAMessageNotACrash) {
    std::string binary;
    for (int i = 0; i < 4096; ++i) {
        binary.push_back(static_cast<char>((i * 7919) & 0xFF));
    }
    binary.append("\0 is bad", 8);
    EXPECT_EQ(ListBadSets(binary).count, 1);

    std::string huge;
    for (int i = 0; i < 32768; ++i) {
        huge += "romset x is bad\n";
    }
    const BadSetList overflow = ListBadSets(huge);
    ASSERT_TRUE(overflow.error);
    EXPECT_EQ(overflow.error->text, "Error In Find: Overflow\nLine Number: 3");
}
