#include "core/ValueText.h"

#include <gtest/gtest.h>

namespace coinlight {
namespace {

TEST(ValueText, BooleansAcceptWordsInAnyCaseAndNumbers) {
    EXPECT_EQ(ParseBool("True"), true);
    EXPECT_EQ(ParseBool(" false "), false);
    EXPECT_EQ(ParseBool("TRUE"), true);
    EXPECT_EQ(ParseBool("-1"), true);
    EXPECT_EQ(ParseBool("0"), false);
    EXPECT_EQ(ParseBool("2.5"), true);
    EXPECT_FALSE(ParseBool(""));
    EXPECT_FALSE(ParseBool("yes"));
    EXPECT_EQ(BoolText(true), "True");
    EXPECT_EQ(BoolText(false), "False");
}

TEST(ValueText, WholeNumbersRoundHalfToEvenAndRespectTheirRange) {
    EXPECT_EQ(ParseInteger("12"), 12);
    EXPECT_EQ(ParseInteger(" -7 "), -7);
    EXPECT_EQ(ParseInteger("2.5"), 2);
    EXPECT_EQ(ParseInteger("3.5"), 4);
    EXPECT_EQ(ParseInteger("&H10"), 16);
    EXPECT_EQ(ParseInteger("32767"), 32767);
    EXPECT_FALSE(ParseInteger("32768")) << "16 bits";
    EXPECT_FALSE(ParseInteger("12abc"));
    EXPECT_FALSE(ParseInteger(""));
    EXPECT_EQ(ParseLong("2147483647"), 2147483647L);
    EXPECT_FALSE(ParseLong("2147483648"));
    EXPECT_EQ(ParseSize("356894752"), 356894752LL);
    EXPECT_EQ(ParseSize("5000000000"), 5000000000LL);
}

TEST(ValueText, ColoursKeepTheirSignedFormAndSystemBit) {
    EXPECT_EQ(ColourText(Colour{0x80000005u}), "-2147483643");
    EXPECT_EQ(ParseColour("-2147483643"), Colour{0x80000005u});
    EXPECT_EQ(ParseColour("2147483653"), Colour{0x80000005u});
    EXPECT_EQ(ParseColour("16777215"), Colour{0xFFFFFFu});
    EXPECT_TRUE(Colour{0x80000010u}.IsSystemColour());
    EXPECT_FALSE(Colour{0xFFFFFFu}.IsSystemColour());
    EXPECT_FALSE(ParseColour("red"));
}

TEST(ValueText, DaysReadBothFormsAndWriteIso) {
    const auto day = ParseDay("2026-11-21");
    ASSERT_TRUE(day);
    EXPECT_EQ(DayText(*day), "2026-11-21");
    EXPECT_EQ(ParseDay("11/21/2026"), day);
    EXPECT_FALSE(ParseDay("2026-02-30"));
    EXPECT_FALSE(ParseDay("yesterday"));
    EXPECT_FALSE(ParseDay("2026-11"));
    EXPECT_FALSE(ParseDay(""));
    EXPECT_EQ(DayText(YearsBefore(*ParseDay("2024-02-29"), 5)), "2019-02-28");
    EXPECT_EQ(DayText(YearsBefore(*day, 5)), "2021-11-21");
}

} // namespace
} // namespace coinlight
