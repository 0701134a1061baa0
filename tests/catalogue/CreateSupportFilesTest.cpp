#include <algorithm>
#include <gtest/gtest.h>

#include "CatalogueTestSupport.h"
#include "catalogue/QuotedRecordFile.h"
#include "core/ProfileFile.h"

using namespace coinlight;
using namespace coinlight::test;
using F = MachineField;

namespace {

std::vector<std::string> Names(const RecordLoad<MachineRecord>& load) {
    std::vector<std::string> names;
    for (const auto& record : load.records) {
        names.emplace_back(record.Field(F::Rom));
    }
    return names;
}

const MachineRecord& Find(const RecordLoad<MachineRecord>& load, std::string_view rom) {
    const auto at = std::find_if(load.records.begin(), load.records.end(),
                                 [&](const MachineRecord& r) { return r.Field(F::Rom) == rom; });
    if (at == load.records.end()) {
        throw std::runtime_error("no record for " + std::string(rom));
    }
    return *at;
}

/// The fields of a record in column order, joined by '|'.
std::string Fields(const MachineRecord& record) {
    std::string fields;
    for (std::size_t column = 0; column < kMachineFieldCount; ++column) {
        fields += (column == 0 ? "" : "|") + std::string(record.Field(column));
    }
    return fields;
}

} // namespace

TEST(CreateSupportFiles, SortsMachinesIntoTheInfoFilesWithEveryField) {
    CatalogueFolder folder;
    RecordingProgress progress;
    const auto result = CreateSupportFiles(folder.Sources(), progress);
    ASSERT_TRUE(result.outcome.Succeeded()) << result.outcome.messages[0].text;

    const auto arcade = LoadMachineRecords(folder.Output() / "arcadeinfo.txt");
    const auto other = LoadMachineRecords(folder.Output() / "otherinfo.txt");
    ASSERT_FALSE(arcade.error);
    ASSERT_FALSE(other.error);
    // In file order; devices, BIOS sets, screenless, unlisted and MAME's own sets are left
    // out, and a machine in both lists is Other.
    EXPECT_EQ(Names(arcade), (std::vector<std::string>{"alpha", "beta", "gamma", "heir"}));
    EXPECT_EQ(Names(other), (std::vector<std::string>{"handheld", "console", "both"}));
    EXPECT_EQ(result.counts.arcade, 4);
    EXPECT_EQ(result.counts.other, 3);

    EXPECT_EQ(Fields(Find(arcade, "alpha")),
              "Alpha & Omega Deluxe Turbo|1981|Imperfect|Imperfect|Unemulated|Good|Joy, Joy|"
              "Acme & Sons|Raster|288x224|Vertical|60.606061|alpha|Parent|N/A|N/A|"
              "test/alpha.cpp|N/A|Yes|Yes|No|Catver.ini Not Found");
    EXPECT_EQ(Fields(Find(other, "console")),
              "Console|1985|Good|Good|Good|Good|N/A|Consoles Inc.|Raster|256x240|Horizontal|"
              "60.098814|console|Parent|cart;quik|console;console_cass|test/console.cpp|N/A|No|"
              "Yes|Yes|Catver.ini Not Found");
    const auto& beta = Find(arcade, "beta");
    EXPECT_EQ(beta.Field(F::Year), "Unknown");
    EXPECT_EQ(beta.Field(F::Manufacturer), "Unknown");
    EXPECT_EQ(beta.Field(F::SetType), "Clone of alpha");
    EXPECT_EQ(beta.Field(F::RomOf), "alpha");
    EXPECT_EQ(beta.Field(F::DeviceRomsRequired), "No");
    EXPECT_EQ(Find(arcade, "gamma").Field(F::Year), "19??");
    EXPECT_EQ(Find(arcade, "gamma").Field(F::Manufacturer), "MAME Testers");
    EXPECT_EQ(Find(arcade, "gamma").Field(F::RomRequired), "No");

    const auto steps = std::vector<std::string>{"step Creating Coinlight assist files...",
                                                "heading Other Machines:"};
    ASSERT_GE(progress.events.size(), 2u);
    EXPECT_EQ(std::vector<std::string>(progress.events.begin(), progress.events.begin() + 2),
              steps);
    EXPECT_EQ(progress.events.back(), "clear");
}

TEST(CreateSupportFiles, DisplaysGiveImagesResolutionsOrientationsAndRates) {
    CatalogueFolder folder;
    RecordingProgress progress;
    ASSERT_TRUE(CreateSupportFiles(folder.Sources(), progress).outcome.Succeeded());
    const auto arcade = LoadMachineRecords(folder.Output() / "arcadeinfo.txt");
    const auto other = LoadMachineRecords(folder.Output() / "otherinfo.txt");

    // A vector first display hides every resolution; 180 degrees is horizontal.
    const auto& beta = Find(arcade, "beta");
    EXPECT_EQ(beta.Field(F::Images), "Vector, Raster");
    EXPECT_EQ(beta.Field(F::Resolutions), "N/A");
    EXPECT_EQ(beta.Field(F::Orientations), "Horizontal, Horizontal");
    EXPECT_EQ(beta.Field(F::RefreshRates), "40.000000, 60.000000");
    // A raster first display keeps one entry per display, the vector's without size.
    const auto& gamma = Find(arcade, "gamma");
    EXPECT_EQ(gamma.Field(F::Images), "Raster, Vector");
    EXPECT_EQ(gamma.Field(F::Resolutions), "256x224, x");
    EXPECT_EQ(gamma.Field(F::Orientations), "Vertical, Horizontal");
    // LCD and SVG screens upper-case the whole field.
    const auto& handheld = Find(other, "handheld");
    EXPECT_EQ(handheld.Field(F::Images), "SVG, LCD");
    EXPECT_EQ(handheld.Field(F::Resolutions), "1000x800, 64x32");
    EXPECT_EQ(handheld.Field(F::Graphics), "Imperfect");
}

TEST(CreateSupportFiles, WritesChecksumsBiosFilesAndProfileFiles) {
    CatalogueFolder folder;
    RecordingProgress progress;
    ASSERT_TRUE(CreateSupportFiles(folder.Sources(), progress).outcome.Succeeded());
    const auto& out = folder.Output();

    // No-dump ROMs and screenless machines add nothing.
    EXPECT_EQ(ReadFile(out / "crcinfo.txt"),
              "\"alpha\",\"Alpha & Omega Deluxe Turbo\",\"a.1=0a1b2c3d;b.2=ffeeddcc;\"\r\n"
              "\"beta\",\"Beta (clone)\",\"d.4=12345678;\"\r\n");
    // A listed BIOS set, and the machine after an unlisted one, which inherits its flag.
    EXPECT_EQ(ReadFile(out / "biosfilter.txt"),
              "Hide MyTest Machines: Mybios\r\nHide Victim Board Machines: Victim\r\n");
    // The screenless machine's BIOS lines are written before it is dropped.
    EXPECT_EQ(ReadFile(out / "arcadebios.txt"),
              "alpha: Europe (v2)> euro\r\nalpha: Japan & Asia (v3)> japan\r\n"
              "noscreen: Set A> a\r\n");
    EXPECT_EQ(ReadFile(out / "otherbios.txt"), "");
    EXPECT_EQ(ReadFile(out / "bios.ini"),
              "[BIOS]\r\nalpha=Europe (v2)> euro;;Japan & Asia (v3)> japan\r\n");
    // An empty filter still gets its key.
    EXPECT_EQ(ReadFile(out / "softfilter.ini"), "[console]\r\nconsole=NTSC\r\nconsole_cass=\r\n");
    EXPECT_EQ(ReadFile(out / "unlisted.txt"),
              "The machines below were not found in lists.txt and have not been added to any "
              "lists.  You can add them to lists.txt or wait for an updated lists.txt to be "
              "available.  This report will be removed when a complete lists.txt is found."
              "\r\n\r\nlostone\r\nlostbios\r\n\r\n");
}

TEST(CreateSupportFiles, ASkippedMachineLeavesItsSetTypeAndBiosFlagBehind) {
    CatalogueFolder folder;
    RecordingProgress progress;
    const auto result = CreateSupportFiles(folder.Sources(), progress);
    ASSERT_TRUE(result.outcome.Succeeded());
    const auto arcade = LoadMachineRecords(folder.Output() / "arcadeinfo.txt");
    // "heir" has no parent of its own: the unlisted "lostone" before it had.
    const auto& heir = Find(arcade, "heir");
    EXPECT_EQ(heir.Field(F::SetType), "Clone of alpha");
    EXPECT_EQ(heir.Field(F::RomOf), "alpha");
    EXPECT_EQ(heir.Field(F::Source), "test/heir.cpp");
    EXPECT_EQ(result.counts.unlisted, 2u);
    EXPECT_EQ(result.counts.biosSets, 2u);
}

TEST(CreateSupportFiles, CategoriesComeFromCatverWhenItWasThere) {
    CatalogueFolder folder;
    RecordingProgress progress;
    ASSERT_TRUE(CreateSupportFiles(folder.Sources(true), progress).outcome.Succeeded());
    const auto arcade = LoadMachineRecords(folder.Output() / "arcadeinfo.txt");
    const auto other = LoadMachineRecords(folder.Output() / "otherinfo.txt");
    EXPECT_EQ(Find(arcade, "alpha").Field(F::Category), "Maze / Collect");
    EXPECT_EQ(Find(arcade, "beta").Field(F::Category), "Unknown");
    EXPECT_EQ(Find(other, "console").Field(F::Category), "Game Console");
}

TEST(CreateSupportFiles, ASecondRunKeepsTheLastCopiesAndDropsAnOldReport) {
    CatalogueFolder folder;
    RecordingProgress progress;
    ASSERT_TRUE(CreateSupportFiles(folder.Sources(), progress).outcome.Succeeded());
    const std::string crcs = ReadFile(folder.Output() / "crcinfo.txt");
    const std::string filter = ReadFile(folder.Output() / "biosfilter.txt");
    const std::string arcade = ReadFile(folder.Output() / "arcadeinfo.txt");

    // Now lists.txt knows every machine.
    WriteFile(folder.Support() / "lists.txt",
              "Arcade\r\n|alpha|beta|gamma|both|mamegame|noscreen|heir|victim|lostone|\r\n"
              "Other\r\n|handheld|console|both|mybios|lostbios|\r\n");
    ASSERT_TRUE(CreateSupportFiles(folder.Sources(), progress).outcome.Succeeded());
    EXPECT_EQ(ReadFile(folder.Output() / "crcinfolast.txt"), crcs);
    EXPECT_EQ(ReadFile(folder.Output() / "biosfilterlast.txt"), filter);
    EXPECT_FALSE(std::filesystem::exists(folder.Output() / "unlisted.txt"));
    const auto records = LoadMachineRecords(folder.Output() / "arcadeinfo.txt");
    // With "lostone" listed "heir" is a parent, and "victim" a machine again.
    EXPECT_EQ(Find(records, "heir").Field(F::SetType), "Parent");
    EXPECT_EQ(Find(records, "victim").Field(F::Machine), "Victim Board bios");

    // The same input gives the same files.
    WriteFile(folder.Support() / "lists.txt",
              ReadFile(FixturesFolder() / "catalogue" / "lists.txt"));
    ASSERT_TRUE(CreateSupportFiles(folder.Sources(), progress).outcome.Succeeded());
    EXPECT_EQ(ReadFile(folder.Output() / "arcadeinfo.txt"), arcade);
    EXPECT_EQ(ReadFile(folder.Output() / "crcinfo.txt"), crcs);
}

TEST(CreateSupportFiles, CountsAreShownAtTheFirstMachineEveryTwentyFifthAndTheEnd) {
    CatalogueFolder folder;
    const auto machines = GenerateMachines(60, "m", "raster");
    WriteFile(folder.Output() / "machine.xml", machines.xml);
    WriteFile(folder.Support() / "lists.txt", "Arcade\n" + machines.listLine + "\nOther\n|\n");
    RecordingProgress progress;
    ASSERT_TRUE(CreateSupportFiles(folder.Sources(), progress).outcome.Succeeded());
    std::vector<std::string> counts;
    std::copy_if(progress.events.begin(), progress.events.end(), std::back_inserter(counts),
                 [](const std::string& event) {
                     return event.rfind("arcade", 0) == 0 || event.rfind("other", 0) == 0;
                 });
    EXPECT_EQ(counts, (std::vector<std::string>{"arcade 1", "arcade 25", "arcade 50", "other 0",
                                                "arcade 60"}));
}
