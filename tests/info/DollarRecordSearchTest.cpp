#include "info/DollarRecordSearch.h"

#include <gtest/gtest.h>

#include "InfoTestSupport.h"
#include "support/TestFiles.h"

namespace coinlight::test {
namespace {

TEST(InfoLine, NamesCompareWholeAndPiecesAreNotTrimmed) {
    EXPECT_TRUE(InfoLineNames("$info=a,b,c", "b"));
    EXPECT_TRUE(InfoLineNames("$info=a,b,c", "c"));
    EXPECT_FALSE(InfoLineNames("$info=a, b", "b")) << "the blank belongs to the piece";
    EXPECT_TRUE(InfoLineNames("$info=a, b", " b"));
    EXPECT_FALSE(InfoLineNames("$info=abc", "ab")) << "the whole rest of the line counts";
    EXPECT_FALSE(InfoLineNames("$info=ab ", "ab"));
    EXPECT_TRUE(InfoLineNames("$info=1941,1941u,", "1941u")) << "a comma at the end";
    EXPECT_TRUE(InfoLineNames("$info=x,$info=y", "y")) << "every $info= goes";
    EXPECT_FALSE(InfoLineNames("$info=PACMAN", "pacman"));
    EXPECT_FALSE(InfoLineNames("$infopacman", "pacman"));
}

TEST(DoubleDecodedText, IsRepairedOnlyWhereItWasReadTwice) {
    // "─", "—" and "©" in UTF-8, each read as cp1252 and stored as UTF-8 again.
    std::string twice = "a \xC3\xA2\xE2\x80\x9D\xE2\x82\xAC b \xC3\xA2\xE2\x82\xAC\xE2\x80\x9D c "
                        "\xC3\x82\xC2\xA9 1981";
    RepairDoubleDecoded(twice);
    EXPECT_EQ(twice, "a - b - c \xC2\xA9 1981");
    const std::string right = "a \xE2\x94\x80 b \xE2\x80\x94 c \xC2\xA9 \xC3\xA2 \xC3\x82";
    std::string kept = right;
    RepairDoubleDecoded(kept);
    EXPECT_EQ(kept, right) << "correct text shows as itself";
}

class DollarRecords : public ::testing::Test {
protected:
    std::string Search(const std::string& text, const std::string& machine) {
        WriteFile(File(), text);
        std::string panel;
        const auto error = SearchDollarRecords(File(), ArcadeSelection(machine), panel);
        EXPECT_FALSE(error) << error->description;
        return panel;
    }
    std::filesystem::path File() const { return m_folder / "command.dat"; }

    TempFolder m_folder;
};

TEST_F(DollarRecords, TheFirstBlockOfTheRecordIsShown) {
    const std::string dat = "\xEF\xBB\xBF# command.dat\r\n"
                            "$info=aof, fitfight\r\n"
                            "$cmd\r\n"
                            "[Controls]\r\n"
                            "  Punch \xC3\xA2\xE2\x82\xAC\xE2\x80\x9D kick\r\n"
                            "$end\r\n"
                            "$cmd\r\n"
                            "second block\r\n"
                            "$end\r\n"
                            "$info=pacman,puckman\r\n"
                            "$bio\r\n"
                            "skipped\r\n"
                            "$mame text dropped\r\n"
                            "Eat the dots.\r\n"
                            "\r\n"
                            "$end trailing\r\n";
    EXPECT_EQ(Search(dat, "aof"), "[Controls]\n  Punch - kick\n\n");
    EXPECT_EQ(Search(dat, "fitfight"), "No information found for this machine.\n");
    EXPECT_EQ(Search(dat, "puckman"), "Eat the dots.\n\n\n")
        << "lines before $mame are passed over, the $mame and $end lines dropped";
    EXPECT_EQ(Search(dat, "Pacman"), "No information found for this machine.\n");
}

TEST_F(DollarRecords, TheSearchWalksPastOtherRecordsToFindABlock) {
    // A record with neither $cmd nor $mame takes the next record's block: the search is
    // a line matcher, and this is what it has always shown.
    EXPECT_EQ(Search("$info=a\n$bio\nbio of a\n$end\n$info=b\n$mame\nb's\n$end\n", "a"), "b's\n\n");
}

TEST_F(DollarRecords, ARecordWithoutItsEndIsAnError) {
    WriteFile(File(), "$info=pacman\n$mame\nno end in sight\n");
    std::string panel;
    EXPECT_EQ(SearchDollarRecords(File(), ArcadeSelection("pacman"), panel),
              InfoError({62, "Input past end of file"}));
    WriteFile(File(), "$info=pacman\n$bio\n");
    EXPECT_EQ(SearchDollarRecords(File(), ArcadeSelection("pacman"), panel),
              InfoError({62, "Input past end of file"}));
    EXPECT_EQ(SearchDollarRecords(m_folder / "none.dat", ArcadeSelection("pacman"), panel),
              InfoError({53, "File not found"}));
}

TEST_F(DollarRecords, BinaryAndHostileBytesAreShownAsTheyCame) {
    using namespace std::string_literals;
    const std::string dat =
        "\0\0$info=pacman\n$info=pacman\0\n$info=pacman\n$mame\n\xff\xfe\0\x97\n"s +
        std::string(5000, '$') + "\n$end"s;
    EXPECT_EQ(Search(dat, "pacman"), "\xff\xfe\0\x97\n"s + std::string(5000, '$') + "\n\n");
}

} // namespace
} // namespace coinlight::test
