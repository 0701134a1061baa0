#include "online/UrlText.h"

#include <gtest/gtest.h>

namespace coinlight {
namespace {

std::string Assemble(const std::string& body, bool firstChunkOnly = false) {
    return AssembleUrlText(body, firstChunkOnly);
}

TEST(UrlText, TheFirstChunkIsPaddedTheRestFollowsAsItCame) {
    const std::string exact(128, 'x');
    EXPECT_EQ(Assemble(exact), exact) << "128 bytes fill the buffer and nothing follows";
    const std::string shorter(127, 'y');
    EXPECT_EQ(Assemble(shorter), shorter + " ") << "one fill character behind 127 bytes";
    EXPECT_EQ(Assemble(""), std::string(128, ' ')) << "an empty file is all fill";
    std::string large;
    for (int i = 0; i < 100 * 1024; ++i) {
        large.push_back(static_cast<char>('a' + i % 26));
    }
    EXPECT_EQ(Assemble(large), large);
    const std::string binary("\0\xff\r\n\x80", 5);
    EXPECT_EQ(Assemble(binary), binary + std::string(123, ' ')) << "bytes pass unchanged";
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
