#include "online/UrlText.h"

#include <gtest/gtest.h>

namespace coinlight {
namespace {

std::string Assemble(const std::string& body, bool firstChunkOnly = false) {
    return AssembleUrlText(body, firstChunkOnly);
}

TEST(UrlText, AnEmptyOrBinaryFileComesBackPaddedAndByteForByte) {
    EXPECT_EQ(Assemble(""), std::string(128, ' ')) << "an empty file is all fill";
    const std::string binary("\0\xff\r\n\x80", 5);
    EXPECT_EQ(Assemble(binary), binary + std::string(123, ' '));
    EXPECT_EQ(Assemble(binary + std::string(200, '\0')), binary + std::string(200, '\0'));
}

TEST(UrlText, NoAnswerIsTheEmptyTextAndLeavesTheHeadOnlySwitchSet) {
    bool firstChunkOnly = true;
    EXPECT_EQ(AssembleUrlText(std::nullopt, firstChunkOnly), "");
    EXPECT_TRUE(firstChunkOnly) << "a failed open does not honour the switch";
    const std::string news = "12/24/25 " + std::string(300, 'n');
    EXPECT_EQ(AssembleUrlText(news, firstChunkOnly), news.substr(0, 128))
        << "the next successful fetch, whoever makes it, gets the head alone";
    EXPECT_FALSE(firstChunkOnly);
    EXPECT_EQ(AssembleUrlText(news, firstChunkOnly), news);
}

TEST(UrlText, AHeadOfAShortFileIsPaddedTooAndATextIsCutAtOneMegabyte) {
    EXPECT_EQ(Assemble("abc", true), "abc" + std::string(125, ' '));
    const std::string huge(kRemoteTextLimit + 5000, 'h');
    EXPECT_EQ(Assemble(huge).size(), kRemoteTextLimit);
    EXPECT_EQ(UrlTextReadLimit(true), 128u);
    EXPECT_EQ(UrlTextReadLimit(false), kRemoteTextLimit);
}

} // namespace
} // namespace coinlight
