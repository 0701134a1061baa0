#include "online/UpdateCheck.h"

#include <gtest/gtest.h>

namespace coinlight {
namespace {

std::string Padded(std::string text) {
    text.resize(128, ' ');
    return text;
}

TEST(UpdateCheck, TheVersionBehindTheWordIsReadWithoutItsDots) {
    EXPECT_EQ(ReadRemoteVersion(Padded("02/14/26 Coinlight Heritage 26.02.0 is out")).number,
              26020);
    EXPECT_EQ(ReadRemoteVersion(Padded("02/14/26 Heritage 26.02")).number, 2602)
        << "two parts make a smaller number than three";
    EXPECT_EQ(ReadRemoteVersion("Heritage 26.3.1 Heritage 1.0.0 ").number, 2631)
        << "the first word counts";
    EXPECT_EQ(ReadRemoteVersion(Padded("x Heritage +27.01.0")).number, 27010);
    EXPECT_EQ(ReadRemoteVersion(Padded("x Heritage 0.0.0")).number, 0);
    EXPECT_EQ(ReadRemoteVersion(Padded("x Heritage -1")).number, -1);
}

TEST(UpdateCheck, AHeadWithoutAReadableVersionIsAnError) {
    const auto noBlank = ReadRemoteVersion("02/14/26 Heritage 26.02.0");
    EXPECT_FALSE(noBlank.number) << "the version must stand before the end of the head";
    EXPECT_FALSE(noBlank.error.empty());
    const auto word = ReadRemoteVersion(Padded("02/14/26 Heritage v26 "));
    EXPECT_FALSE(word.number);
    EXPECT_NE(word.error.find("Type mismatch"), std::string::npos) << word.error;
    EXPECT_FALSE(ReadRemoteVersion(Padded("02/14/26 heritage 26.02.0")).number)
        << "the word is compared as it is written";
    EXPECT_FALSE(ReadRemoteVersion(Padded("x Heritage  26.02.0")).number) << "empty version";
    EXPECT_FALSE(ReadRemoteVersion(Padded("x Heritage 99999999999")).number) << "overflow";
    EXPECT_FALSE(ReadRemoteVersion("").number);
    EXPECT_FALSE(ReadRemoteVersion("Heritage ").number);
    EXPECT_FALSE(ReadRemoteVersion(std::string("Heritage 2\0 ", 12)).number);
}

TEST(UpdateCheck, WithoutTheWordTheNinthCharacterOnIsRead) {
    EXPECT_EQ(ReadRemoteVersion(Padded("02/14/26 news")).number, std::nullopt);
    EXPECT_EQ(ReadRemoteVersion(Padded("02/14/2626.1.0 news")).number, 2610)
        << "a number that happens to stand there counts";
}

TEST(UpdateCheck, OwnVersionJoinsTheDigitsWithATwoDigitMinor) {
    EXPECT_EQ(VersionNumber(26, 2, 0), 26020);
    EXPECT_EQ(VersionNumber(26, 12, 3), 26123);
    EXPECT_EQ(VersionNumber(1, 2, 10), 10210);
    EXPECT_EQ(OwnVersionNumber(), 26020);
}

TEST(UpdateCheck, TheComparisonSaysOneOfThreeThingsOrNothing) {
    const auto newer = UpdateVerdict(26030, 26020, "http://example.invalid");
    ASSERT_TRUE(newer);
    EXPECT_EQ(newer->title, "Check For Update");
    EXPECT_EQ(newer->icon, MessageIcon::Information);
    EXPECT_EQ(newer->text,
              "A new version of Coinlight is available.\r\nGet it at http://example.invalid.");
    EXPECT_EQ(UpdateVerdict(26020, 26020, "")->text,
              "No update available.  You have the latest version of Coinlight.");
    EXPECT_EQ(UpdateVerdict(2602, 26020, "")->text,
              "You have a newer version of Coinlight than the one available on the website.");
    EXPECT_FALSE(UpdateVerdict(0, 26020, ""));
    EXPECT_FALSE(UpdateVerdict(-5, 26020, ""));
    EXPECT_EQ(OnlineCommandError("Update", kUpdateTitle, "Overflow").text,
              "Error in Update: Overflow");
}

} // namespace
} // namespace coinlight
