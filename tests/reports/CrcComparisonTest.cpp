#include "reports/CrcComparison.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <random>

#include "reports/CrcInfoFile.h"
#include "reports/WhatRomsChanged.h"
#include "support/TestFiles.h"

using namespace coinlight;
using namespace coinlight::test;

namespace {

/// The comparison exactly as the report has always made it: two tables that shrink from the
/// front and are scanned from their first live record, quadratic at worst. The real one
/// must give the same sections in the same order.
CrcChanges ScanningComparison(std::vector<CrcEntry> added, std::vector<CrcEntry> removed) {
    std::size_t firstNew = 0;
    std::size_t firstLast = 0;
    const auto retire = [](std::vector<CrcEntry>& list, std::size_t& first, std::size_t at) {
        std::swap(list[first], list[at]);
        ++first;
    };
    CrcChanges changes;
    for (int pass = 0; pass < 2; ++pass) {
        for (std::size_t i = firstNew, end = added.size(); i < end; ++i) {
            for (std::size_t j = firstLast; j < removed.size(); ++j) {
                const bool same = added[i].name == removed[j].name &&
                                  (pass == 1 || added[i].crcs == removed[j].crcs);
                if (same) {
                    if (pass == 1) {
                        changes.changed.push_back(removed[j]);
                    }
                    retire(added, firstNew, i);
                    retire(removed, firstLast, j);
                    break;
                }
            }
        }
    }
    changes.added.assign(added.begin() + static_cast<long>(firstNew), added.end());
    changes.removed.assign(removed.begin() + static_cast<long>(firstLast), removed.end());
    return changes;
}

std::vector<std::string> Names(const std::vector<CrcEntry>& entries) {
    std::vector<std::string> names;
    for (const auto& entry : entries) {
        names.emplace_back(std::string(entry.name) + "/" + std::string(entry.crcs));
    }
    return names;
}

std::string Record(const std::string& name, const std::string& description,
                   const std::string& crcs) {
    return "\"" + name + "\",\"" + description + "\",\"" + crcs + "\"\r\n";
}

} // namespace

TEST(WhatRomsChanged, IdenticalFilesSayNothingChangedAndWriteNoReport) {
    TempFolder folder;
    const std::string crcs =
        Record("pacman", "Pac-Man", "a=1;") + Record("galaga", "Galaga", "b=2;");
    WriteFile(folder / "crcinfo.txt", crcs);
    WriteFile(folder / "crcinfolast.txt", crcs);
    WriteFile(folder / "changedroms.txt", "an older report");
    const auto run = CompareCrcInfoFiles(folder / "crcinfo.txt", folder / "crcinfolast.txt",
                                         folder / "changedroms.txt");
    EXPECT_FALSE(run.error);
    EXPECT_FALSE(run.anyChange);
    EXPECT_EQ(run.text,
              "These ROMs have changed in this version of MAME.  BIOS or Device files are not "
              "tested.  ROMs requiring a BIOS or Device that has changed will not be listed "
              "here.\r\n\r\n\r\nAdded\t\r\n\r\nNo additions found.\r\n\r\n\r\nRemoved\t\r\n\r\n"
              "No removals found.\r\n\r\n\r\nChanged\t\r\n\r\nNo changes found.\r\n");
    EXPECT_EQ(ReadFile(folder / "changedroms.txt"), "an older report");
}

TEST(WhatRomsChanged, GainedRomIsChangedAndARenamedSetIsAddedAndRemoved) {
    TempFolder folder;
    WriteFile(folder / "crcinfolast.txt", Record("pacman", "Pac-Man (old)", "a=1;") +
                                              Record("galaga", "Galaga", "b=2;") +
                                              Record("dkongo", "Donkey Kong", "c=3;"));
    WriteFile(folder / "crcinfo.txt", Record("pacman", "Pac-Man", "a=1;x=9;") +
                                          Record("galaga", "Galaga", "b=2;") +
                                          Record("dkong", "Donkey Kong", "c=3;"));
    const auto run = CompareCrcInfoFiles(folder / "crcinfo.txt", folder / "crcinfolast.txt",
                                         folder / "changedroms.txt");
    ASSERT_TRUE(run.anyChange);
    EXPECT_NE(run.text.find("Added\t\r\n\r\ndkong\tDonkey Kong\r\n"), std::string::npos)
        << run.text;
    EXPECT_NE(run.text.find("Removed\t\r\n\r\ndkongo\tDonkey Kong\r\n"), std::string::npos);
    EXPECT_NE(run.text.find("Changed\t\r\n\r\npacman\tPac-Man (old)\r\n"), std::string::npos)
        << "a changed machine is described as the old file had it";
    EXPECT_EQ(run.text.find("galaga"), std::string::npos);
    EXPECT_EQ(ReadFile(folder / "changedroms.txt"), run.text);
}

TEST(WhatRomsChanged, SectionsComeInTheOrderOfTheShrinkingTables) {
    // Duplicated names and CRC lists make the order of the swaps matter.
    std::mt19937 random(13);
    for (int round = 0; round < 200; ++round) {
        const auto entry = [&random](int names) {
            const int name = std::uniform_int_distribution<int>(0, names)(random);
            const int crcs = std::uniform_int_distribution<int>(0, 2)(random);
            return std::pair{"m" + std::to_string(name), "c" + std::to_string(crcs)};
        };
        std::vector<std::pair<std::string, std::string>> newPairs, lastPairs;
        const int size = std::uniform_int_distribution<int>(0, 30)(random);
        for (int i = 0; i < size; ++i) {
            newPairs.push_back(entry(size));
            lastPairs.push_back(entry(size));
        }
        std::vector<CrcEntry> newList, lastList;
        for (const auto& [name, crcs] : newPairs) {
            newList.push_back(CrcEntry::Of(name, "new", crcs));
        }
        for (const auto& [name, crcs] : lastPairs) {
            lastList.push_back(CrcEntry::Of(name, "old", crcs));
        }
        const CrcChanges expected = ScanningComparison(newList, lastList);
        const CrcChanges actual = CompareCrcLists(newList, lastList);
        ASSERT_EQ(Names(actual.added), Names(expected.added)) << "round " << round;
        ASSERT_EQ(Names(actual.removed), Names(expected.removed)) << "round " << round;
        ASSERT_EQ(Names(actual.changed), Names(expected.changed)) << "round " << round;
    }
}

TEST(WhatRomsChanged, ElapsedTimeIsInSecondsUpTo59AndAHalf) {
    EXPECT_EQ(ElapsedTimeText(0.2), " Elapsed Time: 0 Seconds");
    EXPECT_EQ(ElapsedTimeText(59.4), " Elapsed Time: 59 Seconds");
    EXPECT_EQ(ElapsedTimeText(59.6), " Elapsed Time: 1 Minute(s)");
    EXPECT_EQ(ElapsedTimeText(149), " Elapsed Time: 2 Minute(s)");
}

TEST(WhatRomsChanged, MissingFilesAreToldAndBrokenFilesEndInTheErrorText) {
    TempFolder folder;
    const auto newFile = folder / "crcinfo.txt";
    const auto lastFile = folder / "crcinfolast.txt";
    auto run = CompareCrcInfoFiles(newFile, lastFile, std::nullopt);
    ASSERT_TRUE(run.missing);
    EXPECT_EQ(run.missing->text, "Cannot find crcinfo.txt.");
    WriteFile(newFile, Record("pacman", "Pac-Man", "a=1;"));
    run = CompareCrcInfoFiles(newFile, lastFile, std::nullopt);
    ASSERT_TRUE(run.missing);
    EXPECT_EQ(run.missing->title, "What ROMs Changed");
    EXPECT_NE(run.missing->text.find("must first detect a new version of MAME"), std::string::npos);

    // Cut off in the middle of its last record.
    WriteFile(lastFile, Record("pacman", "Pac-Man", "a=1;") + "\"galaga\",\"Gal");
    run = CompareCrcInfoFiles(newFile, lastFile, folder / "changedroms.txt");
    ASSERT_TRUE(run.error);
    EXPECT_EQ(ComparisonErrorText(*run.error),
              "Error: 62 Input past end of file\r\nLine Number: 5");
    EXPECT_FALSE(std::filesystem::exists(folder / "changedroms.txt"));

    std::string binary;
    for (int i = 0; i < 65536; ++i) {
        binary.push_back(static_cast<char>((i * 2654435761u) >> 13));
    }
    WriteFile(lastFile, binary);
    run = CompareCrcInfoFiles(newFile, lastFile, std::nullopt);
    EXPECT_TRUE(run.error || !run.text.empty());
}

TEST(CrcInfoFile, BlockByBlockReadsWhatTheWholeTextHolds) {
    // Records over several blocks of the reader; in some files one record's fields run
    // over a line end, once inside a block and once across a block's edge, which only a
    // reading of the whole text can follow.
    constexpr std::size_t kBlockEdge = std::size_t{1} << 19;
    TempFolder folder;
    std::mt19937 random(6);
    for (int round = 0; round < 4; ++round) {
        std::string text;
        const auto fill = [&](std::size_t size) {
            for (int i = 0; text.size() < size; ++i) {
                text += Record("m" + std::to_string(text.size()), "Machine",
                               std::string(static_cast<std::size_t>(random() % 400), 'c') + ";");
            }
        };
        const std::size_t splitAt = round == 1 ? 1000 : kBlockEdge - 700;
        fill(splitAt);
        if (round == 1 || round == 2) {
            text += "\"split\",\"Split\",\r\n\"" + std::string(1000, 'c') + ";\"\r\n";
        }
        fill(1'500'000);
        if (round == 3) {
            text.resize(text.size() - 7); // the last record cut inside its last field
        }
        const auto file = folder / "crcinfo.txt";
        WriteFile(file, text);
        const auto read = ReadCrcInfoFile(file);
        ASSERT_TRUE(read);
        const CrcRecords whole = ParseCrcRecords(text);
        EXPECT_EQ(Names(read->records.entries), Names(whole.entries)) << "round " << round;
        EXPECT_EQ(read->records.error.has_value(), whole.error.has_value()) << "round " << round;
        // A line end after a comma ends the record's fields early: the rest is out of step.
        EXPECT_EQ(whole.error.has_value(), round == 1 || round == 2);
    }
    EXPECT_FALSE(ReadCrcInfoFile(folder / "none.txt"));
}
