#include "core/ProfileDocument.h"

#include <gtest/gtest.h>
#include <optional>
#include <tuple>

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

TEST(ProfileDocument, FindTakesTheFirstSectionAndKeyOfANameWithoutRegardToCase) {
    const ProfileDocument document(kSample);
    const std::vector<std::tuple<std::string, std::string, std::optional<std::string>>> finds = {
        {"main", "NAME", "Pac-Man"},
        {" Main ", "name", "Pac-Man"},
        {"Second", "path", "c:\\a=b"}, // the value follows the first '='
        {"Main", "Empty", ""},
        {"Main", "Players", "2"},
        {"Main", "Hidden", std::nullopt}, // a repeated section is not searched
        {"Main", "Flag", std::nullopt},   // a line without '='
        {"Main", "; a comment", std::nullopt},
        {"Nowhere", "Name", std::nullopt},
        {"Main", "Missing", std::nullopt},
    };
    for (const auto& [section, key, value] : finds) {
        EXPECT_EQ(document.Find(section, key), value) << section << "/" << key;
    }
    // LF lines, a last line without a break, and keys before any section.
    const ProfileDocument lf("loose=1\n[A]\nx=1\ny=2");
    EXPECT_FALSE(lf.Find("", "loose"));
    EXPECT_EQ(lf.Find("A", "x"), "1");
    EXPECT_EQ(lf.Find("A", "y"), "2");
}

TEST(ProfileDocument, EditsChangeOnlyTheirLinesAndKeepTheSpelling) {
    const ProfileDocument twoSections("[A]\r\nx=1\r\ny=2\r\n\r\n[B]\r\nz=3\r\n");
    const std::vector<std::pair<std::string, std::string>> edits = {
        {ProfileDocument("[A]\r\nFirst=1\r\nSecond=2\r\n").WithValue("a", "FIRST", "9"),
         "[A]\r\nFirst=9\r\nSecond=2\r\n"},
        {ProfileDocument("[A]\r\nFlag\r\n").WithValue("A", "flag", "1"), "[A]\r\nFlag=1\r\n"},
        // A new key goes after the last non-empty line of its section, a new section at the end.
        {twoSections.WithValue("A", "k", "v"), "[A]\r\nx=1\r\ny=2\r\nk=v\r\n\r\n[B]\r\nz=3\r\n"},
        {ProfileDocument("[A]\r\n\r\n[B]\r\n").WithValue("A", "k", "v"),
         "[A]\r\nk=v\r\n\r\n[B]\r\n"},
        {ProfileDocument("[A]\r\nx=1\r\n").WithValue("New", "k", "v"),
         "[A]\r\nx=1\r\n[New]\r\nk=v\r\n"},
        {ProfileDocument().WithValue("S", "k", ""), "[S]\r\nk=\r\n"},
        {twoSections.WithoutKey("A", "X"), "[A]\r\ny=2\r\n\r\n[B]\r\nz=3\r\n"},
        {twoSections.WithoutKey("A", "none"), twoSections.Text()},
        {twoSections.WithoutSection("a"), "[B]\r\nz=3\r\n"},
        {ProfileDocument("[A]\r\nx=1\r\n;note\r\ny=2\r\n\r\n[B]\r\nz=3\r\n")
             .WithSectionCleared("A"),
         "[A]\r\n\r\n[B]\r\nz=3\r\n"},
    };
    for (std::size_t row = 0; row < edits.size(); ++row) {
        EXPECT_EQ(edits[row].first, edits[row].second) << "edit " << row;
    }
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
