#include "catalogue/SoftwareCatalogue.h"

#include <gtest/gtest.h>

#include "catalogue/QuotedRecordFile.h"
#include "core/AtomicFileWriter.h"
#include "support/TestFiles.h"

using namespace coinlight;
using namespace coinlight::test;
using S = SoftwareField;

namespace {

struct SoftwareFolder {
    TempFolder temp;
    SoftwareSources sources;

    SoftwareFolder() {
        sources.softwareXml = FixturesFolder() / "catalogue" / "software.xml";
        sources.softFilterIni = temp / "softfilter.ini";
        WriteFile(sources.softFilterIni, "[console]\r\nconsole=NTSC\r\nconsole_cass=\r\n");
        std::filesystem::create_directories(File().parent_path());
    }

    RecordLoad<SoftwareRecord> Make(const std::string& machine, const std::string& lists) {
        const auto result = WriteSoftwareFile(sources, machine, SoftwareListsOf(lists), File());
        EXPECT_TRUE(result.outcome.messages.empty()) << result.outcome.messages[0].text;
        return LoadSoftwareRecords(File());
    }
    std::filesystem::path File() const { return temp / "soft" / "console.txt"; }
};

std::vector<std::string> Names(const RecordLoad<SoftwareRecord>& load) {
    std::vector<std::string> names;
    for (const auto& record : load.records) {
        names.emplace_back(record.Field(S::Name));
    }
    return names;
}

} // namespace

TEST(SoftwareCatalogue, KeepsGoodItemsOfTheListWithEveryField) {
    SoftwareFolder folder;
    const auto load = folder.Make("console", "console");
    ASSERT_FALSE(load.error);
    // "broken" has a no-dump ROM, "palonly" fails the NTSC filter, "baddisk" a no-dump disk,
    // "empty" no file at all; "tape1" is in "console_cass", which the key must not match.
    EXPECT_EQ(Names(load), (std::vector<std::string>{"good", "twodisks", "cdgame"}));
    const auto& good = load.records[0];
    std::vector<std::string_view> fields;
    for (std::size_t column = 0; column < kSoftwareFieldCount; ++column) {
        fields.push_back(good.Field(column));
    }
    EXPECT_EQ(fields, (std::vector<std::string_view>{"U", "Good & Plenty Deluxe Edition", "1987",
                                                     "No", "Homebrew", "Cart", "good",
                                                     "console:basic", "N/A", "console"}));
    EXPECT_EQ(load.records[1].Field(S::Devices), "Flop1;Flop2");
    EXPECT_EQ(load.records[1].Field(S::Publisher), "Unlicensed");
    EXPECT_EQ(load.records[1].Field(S::Supported), "Yes");
    EXPECT_EQ(load.records[2].Field(S::Disk), "Cd Game (disc 1)");
    EXPECT_EQ(load.records[2].Field(S::Devices), "Cdrom;Boot");
}

TEST(SoftwareCatalogue, WithoutAFilterEveryCompatibilityStaysAndListsFollowEachOther) {
    SoftwareFolder folder;
    // No section for this machine: nothing is filtered.
    const auto load = folder.Make("both", "console_cass;console;nosuchlist");
    ASSERT_FALSE(load.error);
    EXPECT_EQ(Names(load),
              (std::vector<std::string>{"tape1", "good", "palonly", "twodisks", "cdgame"}));
    EXPECT_EQ(load.records[0].Field(S::List), "console_cass");
    EXPECT_EQ(load.records[2].Field(S::Publisher), "Pirate");
    EXPECT_EQ(load.records[2].Field(S::Requirement), "N/A");
}

TEST(SoftwareCatalogue, AvailabilityLooksForFoldersForDisksAndArchivesOtherwise) {
    SoftwareFolder folder;
    const auto first = folder.temp / "roms one";
    const auto second = folder.temp / "roms$two";
    WriteFile(second / "console" / "good.7z", "x");
    WriteFile(first / "console" / "twodisks.zip", "x");
    // The disk item needs its folder; an archive of its name does not count.
    WriteFile(first / "console" / "cdgame.zip", "x");
    folder.sources.softwarePaths = {first, second};
    auto load = folder.Make("console", "console");
    ASSERT_EQ(load.records.size(), 3u);
    EXPECT_EQ(load.records[0].Field(S::Availability), "A");
    EXPECT_EQ(load.records[1].Field(S::Availability), "A");
    EXPECT_EQ(load.records[2].Field(S::Availability), "U");

    std::filesystem::create_directories(second / "console" / "cdgame");
    load = folder.Make("console", "console");
    EXPECT_EQ(load.records[2].Field(S::Availability), "A");
    EXPECT_FALSE(SoftwareIsAvailable(false, "good", "other", folder.sources.softwarePaths));
    EXPECT_FALSE(SoftwareIsAvailable(false, "good", "console", {}));
}

TEST(SoftwareCatalogue, AFileCutOffInADroppedItemFailsWithTheItemInHand) {
    SoftwareFolder folder;
    const std::string xml = ReadFile(folder.sources.softwareXml);
    folder.sources.softwareXml = folder.temp / "software.xml";
    WriteFile(folder.sources.softwareXml, xml.substr(0, xml.find('\n', xml.find("b3.bin")) + 1));
    WriteFile(folder.File(), "old");
    const auto result = WriteSoftwareFile(folder.sources, "console", {"console"}, folder.File());
    ASSERT_EQ(result.outcome.messages.size(), 1u);
    EXPECT_FALSE(result.outcome.messages[0].critical);
    EXPECT_FALSE(result.outcome.fatalError);
    EXPECT_EQ(result.outcome.messages[0].text,
              "Error In CreateSoftwareFile: Input past end of file\nLine Number: 6\n\n"
              "Software List: console\nDevice Type: Cart\nSoftware: broken");
    // The file is thrown away, so the next view builds it again.
    EXPECT_FALSE(std::filesystem::exists(folder.File()));

    std::filesystem::remove(folder.sources.softwareXml);
    const auto missing = WriteSoftwareFile(folder.sources, "console", {"console"}, folder.File());
    ASSERT_EQ(missing.outcome.messages.size(), 1u);
    EXPECT_EQ(missing.outcome.messages[0].text,
              "Error In CreateSoftwareFile: File not found\nLine Number: 4\n\n"
              "Software List: console\nDevice Type: \nSoftware: ");
}

TEST(SoftwareCatalogue, KillSoftsOtherDeletesOneMachineOrAll) {
    TempFolder folder;
    WriteFile(folder / "nes.txt", "x");
    WriteFile(folder / "a2600.txt", "x");
    WriteFile(folder / "notes.dat", "x");
    EXPECT_TRUE(KillSoftsOther(folder.Path(), "nes"));
    EXPECT_FALSE(std::filesystem::exists(folder / "nes.txt"));
    EXPECT_TRUE(std::filesystem::exists(folder / "a2600.txt"));
    EXPECT_TRUE(KillSoftsOther(folder.Path(), "nes")); // nothing left to delete
    EXPECT_FALSE(KillSoftsOther(folder.Path(), "../a2600"));
    EXPECT_TRUE(std::filesystem::exists(folder / "a2600.txt"));
    EXPECT_TRUE(KillSoftsOther(folder.Path(), ""));
    EXPECT_FALSE(std::filesystem::exists(folder / "a2600.txt"));
    EXPECT_TRUE(std::filesystem::exists(folder / "notes.dat"));
}
