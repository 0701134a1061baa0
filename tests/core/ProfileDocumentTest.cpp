#include "core/ProfileDocument.h"

#include <gtest/gtest.h>

namespace coinlight {
namespace {

const char* const kSample = "[Main]\r\n"
                            "Name = Pac-Man \r\n"
                            "; a comment=not a key\r\n"
                            "Players=2\r\n"
                            "Players=4\r\n"
                            "Flag\r\n"
                            "Empty=\r\n"
                            "\r\n"
                            "[Second]\r\n"
                            "Path=c:\\a=b\r\n"
                            "\r\n"
                            "[main]\r\n"
                            "Hidden=yes\r\n";

TEST(ProfileDocument, LooksUpWithoutRegardToCaseAndTrimsBlanks) {
    const ProfileDocument document(kSample);
    EXPECT_EQ(document.Find("main", "NAME"), "Pac-Man");
    EXPECT_EQ(document.Find(" Main ", "name"), "Pac-Man");
    EXPECT_EQ(document.Find("Second", "path"), "c:\\a=b") << "the value follows the first '='";
    EXPECT_EQ(document.Find("Main", "Empty"), "");
}

TEST(ProfileDocument, FirstSectionAndFirstKeyOfANameDecide) {
    const ProfileDocument document(kSample);
    EXPECT_EQ(document.Find("Main", "Players"), "2");
    EXPECT_FALSE(document.Find("Main", "Hidden")) << "a repeated section is not searched";
}

TEST(ProfileDocument, LinesWithoutEqualsAndCommentsAreNoValues) {
    const ProfileDocument document(kSample);
    EXPECT_FALSE(document.Find("Main", "Flag"));
    EXPECT_FALSE(document.Find("Main", "; a comment"));
    EXPECT_FALSE(document.Find("Nowhere", "Name"));
    EXPECT_FALSE(document.Find("Main", "Missing"));
}

TEST(ProfileDocument, AcceptsLfLinesAndALastLineWithoutBreak) {
    const ProfileDocument document("[A]\nx=1\ny=2");
    EXPECT_EQ(document.Find("A", "x"), "1");
    EXPECT_EQ(document.Find("A", "y"), "2");
}

TEST(ProfileDocument, KeysBeforeAnySectionAreNotFound) {
    const ProfileDocument document("loose=1\r\n[A]\r\nx=1\r\n");
    EXPECT_FALSE(document.Find("", "loose"));
    EXPECT_EQ(document.Find("A", "x"), "1");
}

TEST(ProfileDocument, ReplacesAnExistingKeyInPlaceKeepingItsSpelling) {
    const ProfileDocument document("[A]\r\nFirst=1\r\nSecond=2\r\n");
    EXPECT_EQ(document.WithValue("a", "FIRST", "9"), "[A]\r\nFirst=9\r\nSecond=2\r\n");
}

TEST(ProfileDocument, AddsANewKeyAfterTheLastNonEmptyLineOfItsSection) {
    const ProfileDocument document("[A]\r\nx=1\r\n\r\n[B]\r\ny=2\r\n");
    EXPECT_EQ(document.WithValue("A", "z", "3"), "[A]\r\nx=1\r\nz=3\r\n\r\n[B]\r\ny=2\r\n");
    const ProfileDocument emptySection("[A]\r\n\r\n[B]\r\n");
    EXPECT_EQ(emptySection.WithValue("A", "k", "v"), "[A]\r\nk=v\r\n\r\n[B]\r\n");
}

TEST(ProfileDocument, AddsANewSectionAtTheEnd) {
    const ProfileDocument document("[A]\r\nx=1\r\n");
    EXPECT_EQ(document.WithValue("New", "k", "v"), "[A]\r\nx=1\r\n[New]\r\nk=v\r\n");
    EXPECT_EQ(ProfileDocument().WithValue("S", "k", ""), "[S]\r\nk=\r\n");
}

TEST(ProfileDocument, AKeyWithoutEqualsIsReplacedWhenWritten) {
    const ProfileDocument document("[A]\r\nFlag\r\n");
    EXPECT_EQ(document.WithValue("A", "flag", "1"), "[A]\r\nFlag=1\r\n");
}

TEST(ProfileDocument, DeletesKeysAndSections) {
    const ProfileDocument document("[A]\r\nx=1\r\ny=2\r\n\r\n[B]\r\nz=3\r\n");
    EXPECT_EQ(document.WithoutKey("A", "X"), "[A]\r\ny=2\r\n\r\n[B]\r\nz=3\r\n");
    EXPECT_EQ(document.WithoutSection("a"), "[B]\r\nz=3\r\n");
    EXPECT_EQ(document.WithoutKey("A", "none"), document.Text());
}

TEST(ProfileDocument, ClearingASectionKeepsItsHeaderAndSpacing) {
    const ProfileDocument document("[A]\r\nx=1\r\n;note\r\ny=2\r\n\r\n[B]\r\nz=3\r\n");
    EXPECT_EQ(document.WithSectionCleared("A"), "[A]\r\n\r\n[B]\r\nz=3\r\n");
}

TEST(ProfileDocument, ListsTheEntriesOfASectionInFileOrder) {
    const ProfileDocument document(kSample);
    const auto entries = document.Entries("Main");
    ASSERT_EQ(entries.size(), 4u);
    EXPECT_EQ(entries[0].first, "Name");
    EXPECT_EQ(entries[3].first, "Empty");
}

TEST(ProfileDocument, SurvivesBinaryGarbage) {
    std::string garbage;
    for (int i = 0; i < 5000; ++i) {
        garbage.push_back(static_cast<char>((i * 131) & 0xFF));
    }
    garbage += "\n[S]\nk=v\n";
    const ProfileDocument document(garbage);
    EXPECT_EQ(document.Find("S", "k"), "v");
    EXPECT_FALSE(document.Find("S", "missing"));
}

TEST(ProfileDocument, FindsEveryKeyOfALargeSection) {
    std::string text = "[NPlayers]\r\n";
    for (int i = 0; i < 20000; ++i) {
        text += "game" + std::to_string(i) + "=" + std::to_string(i % 4 + 1) + "P\r\n";
    }
    const ProfileDocument document(text);
    for (int i = 0; i < 20000; i += 997) {
        EXPECT_EQ(document.Find("nplayers", "GAME" + std::to_string(i)),
                  std::to_string(i % 4 + 1) + "P");
    }
    EXPECT_FALSE(document.Find("NPlayers", "game20000"));
}

} // namespace
} // namespace coinlight
