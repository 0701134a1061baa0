#include <gtest/gtest.h>
#include <variant>

#include "core/LineReader.h"
#include "catalogue/MakeLists.h"
#include "support/TestFiles.h"

using namespace coinlight;
using namespace coinlight::test;

TEST(LineReader, LinesAcrossBlocksAndLongerThanABlock) {
    TempFolder folder;
    std::string text;
    std::vector<std::string> expected;
    for (int i = 0; text.size() < (5u << 20); ++i) {
        expected.push_back("line " + std::to_string(i) +
                           std::string(static_cast<std::size_t>(i % 97), 'x'));
        text += expected.back() + (i % 3 == 0 ? "\r\n" : "\n");
    }
    expected.push_back(std::string(3u << 20, 'L') + " needle");
    text += expected.back() + "\n";
    expected.push_back("last without end");
    text += expected.back();
    WriteFile(folder / "big.txt", text);

    LineReader reader(folder / "big.txt");
    std::string_view line;
    std::size_t index = 0;
    while (reader.Next(line)) {
        ASSERT_LT(index, expected.size());
        ASSERT_EQ(line, expected[index]) << index;
        ++index;
    }
    EXPECT_EQ(index, expected.size());
    EXPECT_FALSE(reader.Failed());

    LineReader search(folder / "big.txt");
    ASSERT_TRUE(search.NextHolding("line 40000x", line));
    EXPECT_EQ(line.substr(0, 11), "line 40000x");
    ASSERT_TRUE(search.NextHolding("needle", line));
    EXPECT_EQ(line, expected[expected.size() - 2]);
    ASSERT_TRUE(search.Next(line));
    EXPECT_EQ(line, "last without end");
    EXPECT_FALSE(search.NextHolding("line", line));
    EXPECT_FALSE(LineReader(folder / "missing.txt").IsOpen());
}

TEST(MakeLists, DevicesAreLeftOutAndSoftwareOrCoinlessMachinesAreOther) {
    const auto made = MakeLists(FixturesFolder() / "catalogue" / "machine.xml");
    ASSERT_TRUE(std::holds_alternative<MadeLists>(made));
    const std::string& text = std::get<MadeLists>(made).text;
    EXPECT_NE(text.find("MAME 0.251 (fixture)"), std::string::npos);
    // Only alpha takes coins and has no software list.
    EXPECT_NE(
        text.find("\r\nArcade\r\n|alpha|\r\nOther\r\n|beta|gamma|handheld|console|both|mybios|"
                  "mamegame|noscreen|lostone|heir|lostbios|victim|\r\n"),
        std::string::npos)
        << text;
    EXPECT_EQ(std::get<MadeLists>(made).arcade, 1u);
    EXPECT_EQ(std::get<MadeLists>(made).other, 12u);
}
