#include "core/TextFile.h"

#include <gtest/gtest.h>

#include "core/AtomicFileWriter.h"
#include "core/LineReader.h"
#include "support/TestFiles.h"

namespace coinlight {
namespace {

using test::ReadFile;
using test::TempFolder;
using test::WriteFile;

std::vector<std::string> ReadAllLines(const std::filesystem::path& file) {
    LineReader reader(file);
    std::vector<std::string> lines;
    std::string_view line;
    while (reader.Next(line)) {
        lines.emplace_back(line);
    }
    return lines;
}

TEST(TextFile, ReadersAcceptCrLfAndLfAndALastLineWithoutBreak) {
    TempFolder folder;
    const auto file = folder / "mixed.txt";
    WriteFile(file, "one\r\ntwo\nthree\r\n\r\nlast");
    const std::vector<std::string> expected = {"one", "two", "three", "", "last"};
    EXPECT_EQ(ReadAllLines(file), expected);
    EXPECT_EQ(ReadTextLines(file), expected);
    WriteFile(file, "");
    EXPECT_TRUE(ReadAllLines(file).empty());
    EXPECT_FALSE(ReadTextLines(folder / "none"));
    EXPECT_FALSE(LineReader(folder / "none").IsOpen());
}

TEST(TextFile, BytesPassThroughUnchanged) {
    TempFolder folder;
    const auto file = folder / "bytes.txt";
    const std::string bytes = std::string("caf\xc3\xa9 \xff\x00 x", 10);
    ASSERT_TRUE(WriteTextLines(file, {bytes, "end"}));
    EXPECT_EQ(ReadFile(file), bytes + "\r\nend\r\n");
    EXPECT_EQ(ReadTextLines(file)->front(), bytes);
}

TEST(AtomicFileWriter, WithoutCommitTheOldFileStaysAndNothingIsLeft) {
    TempFolder folder;
    const auto file = folder / "keep.txt";
    WriteFile(file, "old");
    {
        AtomicFileWriter writer(file);
        writer.WriteLine("new half");
    }
    EXPECT_EQ(ReadFile(file), "old");
    EXPECT_EQ(test::CountFiles(folder.Path()), 1u);
    AtomicFileWriter writer(file);
    writer.WriteLine("new");
    ASSERT_TRUE(writer.Commit());
    EXPECT_EQ(ReadFile(file), "new\r\n");
}

TEST(AtomicFileWriter, AMissingFolderIsReportedNotCreated) {
    TempFolder folder;
    AtomicFileWriter writer(folder / "none" / "x.txt");
    EXPECT_FALSE(writer.IsOpen());
    EXPECT_FALSE(writer.Commit());
    EXPECT_FALSE(writer.Error().empty());
}

TEST(AtomicFileWriter, AReplacedFileKeepsItsRightsAndItsLinks) {
    TempFolder folder;
    const auto file = folder / "options.ini";
    WriteFile(file, "old");
    std::filesystem::permissions(file, std::filesystem::perms::owner_read |
                                           std::filesystem::perms::owner_write);
    ASSERT_TRUE(WriteFileBytes(file, "new"));
    EXPECT_EQ(std::filesystem::status(file).permissions() & std::filesystem::perms::all,
              std::filesystem::perms::owner_read | std::filesystem::perms::owner_write)
        << "a private file stays private";

    // A linked settings file (kept in a dotfiles repository, say) is written where it lives.
    const auto target = folder / "dotfiles" / "options.ini";
    WriteFile(target, "linked old");
    const auto link = folder / "link.ini";
    std::filesystem::create_symlink(target, link);
    ASSERT_TRUE(WriteFileBytes(link, "linked new"));
    EXPECT_TRUE(std::filesystem::is_symlink(link));
    EXPECT_EQ(ReadFile(target), "linked new");
    const auto relative = folder / "dotfiles" / "relative.ini";
    std::filesystem::create_symlink("options.ini", relative);
    ASSERT_TRUE(WriteFileBytes(relative, "through a relative link"));
    EXPECT_EQ(ReadFile(target), "through a relative link");
}

TEST(AtomicFileWriter, LeftoversOfKilledWritesGoAndThoseOfLiveOnesStay) {
    TempFolder folder;
    const auto file = folder / "arcadeinfo.txt";
    WriteFile(file, "catalogue");
    // Named as a process that cannot exist, one of an older version, one of this process.
    const auto dead = folder / "arcadeinfo.txt.tmp-2147483646-ab12CD";
    const auto older = folder / "arcadeinfo.txt.tmp-Xy12ab";
    const auto live = folder / TemporaryPatternFor("arcadeinfo.txt");
    const auto foreign = folder / "notes.tmp-of-mine.txt";
    for (const auto& leftover : {dead, older, live, foreign}) {
        WriteFile(leftover, "half");
    }
    RemoveOrphanedTemporaries(folder.Path());
    EXPECT_FALSE(std::filesystem::exists(dead));
    EXPECT_FALSE(std::filesystem::exists(older));
    EXPECT_TRUE(std::filesystem::exists(live)) << "a write in progress keeps its file";
    EXPECT_TRUE(std::filesystem::exists(foreign)) << "not a name of ours";
    EXPECT_EQ(ReadFile(file), "catalogue");
}

} // namespace
} // namespace coinlight
