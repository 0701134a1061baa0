#include "core/ProfileFile.h"

#include <gtest/gtest.h>

#include "support/TestFiles.h"

namespace coinlight {
namespace {

using test::ReadFile;
using test::TempFolder;
using test::WriteFile;

TEST(ProfileFile, ReadsWithDefaultsForMissingFilesSectionsAndKeys) {
    TempFolder folder;
    const auto file = folder / "a.ini";
    EXPECT_EQ(ReadProfileValue(file, "S", "k", "fallback"), "fallback");
    WriteFile(file, "[S]\r\nk=value\r\n");
    EXPECT_EQ(ReadProfileValue(file, "S", "k", "fallback"), "value");
    EXPECT_EQ(ReadProfileValue(file, "S", "other", 42), "42");
    EXPECT_EQ(ReadProfileValue(file, "T", "k", "x"), "x");
}

TEST(ProfileFile, CutsLongValuesAt4095Characters) {
    TempFolder folder;
    const auto file = folder / "long.ini";
    const std::string exact(4096, 'x');
    WriteFile(file, "[S]\r\nexact=" + exact + "\r\nfits=" + std::string(4095, 'y') + "\r\n");
    EXPECT_EQ(ReadProfileValue(file, "S", "exact", ""), std::string(4095, 'x'));
    EXPECT_EQ(ReadProfileValue(file, "S", "fits", "").size(), 4095u);
    EXPECT_EQ(ReadProfileValue(file, "S", "missing", exact).size(), 4095u);
}

TEST(ProfileFile, WritesLineBreaksInValuesAsBlanks) {
    TempFolder folder;
    const auto file = folder / "breaks.ini";
    ASSERT_TRUE(WriteProfileValue(file, "S", "k", "one\r\ntwo\nthree"));
    EXPECT_EQ(ReadProfileValue(file, "S", "k", ""), "one  two three");
    EXPECT_EQ(ReadFile(file), "[S]\r\nk=one  two three\r\n");
}

TEST(ProfileFile, SeesChangesMadeBehindItsBack) {
    TempFolder folder;
    const auto file = folder / "changed.ini";
    WriteFile(file, "[S]\r\nk=1\r\n");
    EXPECT_EQ(ReadProfileValue(file, "S", "k", ""), "1");
    // Same size, other content: the time or the file's identity gives it away.
    WriteFile(file.string() + ".new", "[S]\r\nk=2\r\n");
    std::filesystem::rename(file.string() + ".new", file);
    EXPECT_EQ(ReadProfileValue(file, "S", "k", ""), "2");
    WriteFile(file, "[S]\r\nk=three\r\n");
    EXPECT_EQ(ReadProfileValue(file, "S", "k", ""), "three");
    std::filesystem::remove(file);
    EXPECT_EQ(ReadProfileValue(file, "S", "k", "gone"), "gone");
}

TEST(ProfileFile, WritesReplaceTheFileWithoutLeavingTemporaries) {
    TempFolder folder;
    const auto file = folder / "options.ini";
    WriteFile(file, "[A]\r\nx=1\r\n\r\n[B]\r\ny=2\r\n");
    ASSERT_TRUE(WriteProfileValue(file, "A", "z", "3"));
    ASSERT_TRUE(WriteProfileValue(file, "B", "y", "4"));
    ASSERT_TRUE(WriteProfileValue(file, "C", "w", "5"));
    EXPECT_EQ(ReadFile(file), "[A]\r\nx=1\r\nz=3\r\n\r\n[B]\r\ny=4\r\n[C]\r\nw=5\r\n");
    EXPECT_EQ(test::CountFiles(folder.Path()), 1u);
    EXPECT_EQ(ReadProfileValue(file, "b", "Y", ""), "4");
}

TEST(ProfileFile, AReplaceThatCannotHappenFailsWithAReasonAndLeavesNothing) {
    TempFolder folder;
    // A folder where the file should be: the final rename fails, even for root.
    std::filesystem::create_directories(folder / "taken.ini" / "inside");
    std::string error;
    EXPECT_FALSE(WriteProfileValue(folder / "taken.ini", "S", "k", "v", &error));
    EXPECT_FALSE(error.empty());
    EXPECT_TRUE(std::filesystem::is_directory(folder / "taken.ini" / "inside"));
    EXPECT_EQ(test::CountFiles(folder.Path()), 0u);
}

TEST(ProfileFile, DeletesKeysClearsAndRemovesSections) {
    TempFolder folder;
    const auto file = folder / "d.ini";
    WriteFile(file, "[A]\r\nx=1\r\ny=2\r\n\r\n[B]\r\nz=3\r\n");
    ASSERT_TRUE(DeleteProfileKey(file, "A", "x"));
    ASSERT_TRUE(ClearProfileSection(file, "B"));
    EXPECT_EQ(ReadFile(file), "[A]\r\ny=2\r\n\r\n[B]\r\n");
    ASSERT_TRUE(DeleteProfileSection(file, "A"));
    EXPECT_EQ(ReadFile(file), "[B]\r\n");
}

TEST(INISpacing, PutsOneEmptyLineBeforeEverySectionButTheFirst) {
    TempFolder folder;
    const auto file = folder / "s.ini";
    WriteFile(file, "[A]\r\nx=1\r\n[B]\r\ny=2\r\n\r\n[C]\r\n");
    ASSERT_TRUE(INISpacing(file));
    EXPECT_EQ(ReadFile(file), "[A]\r\nx=1\r\n\r\n[B]\r\ny=2\r\n\r\n[C]\r\n");
    ASSERT_TRUE(INISpacing(file));
    EXPECT_EQ(ReadFile(file), "[A]\r\nx=1\r\n\r\n[B]\r\ny=2\r\n\r\n[C]\r\n") << "idempotent";
}

TEST(INISpacing, CutsAtTheFirstNulAndKeepsLfOnlyFilesWhole) {
    TempFolder folder;
    const auto file = folder / "n.ini";
    WriteFile(file, std::string("[A]\r\nx=1\r\n[B]\r\n", 16) + std::string("\0junk\r\n", 7));
    ASSERT_TRUE(INISpacing(file));
    EXPECT_EQ(ReadFile(file), "[A]\r\nx=1\r\n\r\n[B]\r\n");
    WriteFile(file, "[A]\nx=1\n[B]\ny=2");
    ASSERT_TRUE(INISpacing(file));
    EXPECT_EQ(ReadFile(file), "[A]\r\nx=1\r\n\r\n[B]\r\ny=2\r\n");
}

TEST(ProfileEditor, ManyChangesGiveTheSameFileAsSingleWrites) {
    TempFolder folder;
    const auto single = folder / "single.ini";
    const auto batch = folder / "batch.ini";
    const std::string start = "[View]\r\nList View=All\r\n\r\n[Other]\r\nk=v\r\n";
    WriteFile(single, start);
    WriteFile(batch, start);
    ASSERT_TRUE(WriteProfileValue(single, "View", "List View", "Other Machines"));
    ASSERT_TRUE(WriteProfileValue(single, "View", "Snapshots", "True"));
    ASSERT_TRUE(WriteProfileValue(single, "Misc", "Auto Run", "False"));
    ASSERT_TRUE(INISpacing(single));
    ProfileEditor editor(batch);
    editor.Set("View", "List View", "Other Machines");
    editor.Set("View", "Snapshots", "True");
    editor.Set("Misc", "Auto Run", "False");
    ASSERT_TRUE(editor.Commit(true));
    EXPECT_EQ(ReadFile(batch), ReadFile(single));
    EXPECT_EQ(ReadProfileValue(batch, "misc", "auto run", ""), "False");
}

} // namespace
} // namespace coinlight
