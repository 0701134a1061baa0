#include "online/NewsText.h"

#include <gtest/gtest.h>

namespace coinlight {
namespace {

using std::chrono::year;

Day On(int y, unsigned m, unsigned d) {
    return Day(year(y) / std::chrono::month(m) / std::chrono::day(d));
}

TEST(NewsText, TheDateIsReadFromTheFirstEightCharacters) {
    EXPECT_EQ(NewsDate("02/14/26 Coinlight Heritage 26.02.0 "), On(2026, 2, 14));
    EXPECT_EQ(NewsDate("12/31/99;forced"), On(1999, 12, 31)) << "30-99 are the last century";
    EXPECT_EQ(NewsDate("1/5/29  text"), On(2029, 1, 5)) << "blanks around the date";
    EXPECT_EQ(NewsDate("2/1/2026"), On(2026, 2, 1));
    EXPECT_EQ(NewsDate("2026-2-1"), On(2026, 2, 1));
    EXPECT_EQ(NewsDate("03-07-26"), On(2026, 3, 7));
    EXPECT_EQ(NewsDate("3.7.26"), On(2026, 3, 7));
}

TEST(NewsText, AnythingElseIsNoDate) {
    for (const char* text :
         {"", "garbage!", "13/01/26", "02/30/26", "2/14", "123/1/26", "0/1/26", "02/14-26",
          "//26 ...", "<html><", "1/1/260", "\xff\xfe\x01", "26/02/14", "02/1x/26"}) {
        EXPECT_FALSE(NewsDate(text)) << text;
    }
    EXPECT_EQ(NewsDate("02/14/2026"), On(2020, 2, 14)) << "only eight characters count";
    EXPECT_EQ(NewsDate("02/14/2"), On(2002, 2, 14));
}

TEST(NewsText, AtStartOnlyNewerNewsShowsAndItsDateIsKept) {
    const Day last = On(2026, 2, 14);
    const auto newer = DecideStartupNews("02/15/26 hello", last);
    EXPECT_EQ(newer.verdict, StartupNewsVerdict::Show);
    EXPECT_EQ(newer.dateToStore, On(2026, 2, 15));
    EXPECT_EQ(DecideStartupNews("02/14/26 same day", last).verdict, StartupNewsVerdict::NotNewer);
    EXPECT_EQ(DecideStartupNews("01/01/26 older", last).verdict, StartupNewsVerdict::NotNewer);
    EXPECT_EQ(DecideStartupNews("garbage! text", last).verdict, StartupNewsVerdict::BadDate);
    EXPECT_EQ(DecideStartupNews("02/1", last).verdict, StartupNewsVerdict::BadDate)
        << "a text shorter than nine characters is tested on what there is";
}

TEST(NewsText, ASemicolonInTheNinthPlaceForcesTheNewsAndStoresDayZero) {
    const Day last = On(2026, 2, 14);
    for (const char* text : {"01/01/20;old but forced", "garbage!;no date at all"}) {
        const auto forced = DecideStartupNews(text, last);
        EXPECT_EQ(forced.verdict, StartupNewsVerdict::Show) << text;
        EXPECT_EQ(forced.dateToStore, EmptyNewsDay());
    }
    EXPECT_EQ(DayText(EmptyNewsDay()), "1899-12-30");
    EXPECT_EQ(DecideStartupNews("01/01/20 later", EmptyNewsDay()).verdict, StartupNewsVerdict::Show)
        << "after a forced news any dated news is new";
    EXPECT_FALSE(NewsForced("01/01/20 ;"));
    EXPECT_FALSE(NewsForced("01/01/20"));
}

} // namespace
} // namespace coinlight
