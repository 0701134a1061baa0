#include <algorithm>
#include <gtest/gtest.h>
#include <map>
#include <set>

#include "CatalogueTestSupport.h"
#include "core/LineReader.h"
#include "catalogue/QuotedRecordFile.h"
#include "catalogue/RunMAMEList.h"
#include "catalogue/SoftwareCatalogue.h"
#include "core/DataLayout.h"
#include "core/TextFile.h"

using namespace coinlight;
using namespace coinlight::test;

namespace {

const std::filesystem::path kMame = "/usr/games/mame";

/// The machines a catalogue must account for, found without the catalogue's own code:
/// every machine with a screen that is neither a device, a BIOS set nor MAME's own.
std::set<std::string> DisplayedMachines(const std::filesystem::path& machineXml) {
    std::set<std::string> machines;
    LineReader reader(machineXml);
    std::string_view line;
    std::string name;
    bool counts = false;
    bool displayed = false;
    while (reader.Next(line)) {
        if (line.find("<machine name=\"") != std::string_view::npos) {
            const std::size_t start = line.find("name=\"") + 6;
            name = std::string(line.substr(start, line.find('"', start) - start));
            counts = line.find("isdevice=\"yes\"") == std::string_view::npos &&
                     line.find("isbios=\"yes\"") == std::string_view::npos;
            displayed = false;
        } else if (line.find("<manufacturer>MAME</manufacturer>") != std::string_view::npos) {
            counts = false;
        } else if (line.find("<display ") != std::string_view::npos) {
            displayed = true;
        } else if (line.find("</machine>") != std::string_view::npos && counts && displayed) {
            machines.insert(name);
        }
    }
    return machines;
}

std::vector<std::string> RomsOf(const std::filesystem::path& infoFile) {
    const auto load = LoadMachineRecords(infoFile);
    EXPECT_FALSE(load.error) << infoFile;
    std::vector<std::string> roms;
    for (const auto& record : load.records) {
        roms.emplace_back(record.Field(MachineField::Rom));
    }
    return roms;
}

} // namespace

TEST(RealMameCatalogue, DebiansMameGivesAConsistentCatalogueAndSoftwareFiles) {
    if (!std::filesystem::exists(kMame)) {
        GTEST_SKIP() << "Debian's MAME is not installed at " << kMame;
    }
    TempFolder folder;
    const DataLayout data{folder.Path()};
    std::filesystem::create_directories(data.Output() / "soft");
    std::filesystem::create_directories(data.Support());
    std::filesystem::copy_file(std::filesystem::path(COINLIGHT_SHIPPED_SUPPORT) / "lists.txt",
                               data.Support() / "lists.txt");
    const MameProgram mame{kMame.parent_path(), kMame.filename().string()};
    RecordingProgress progress;
    ASSERT_TRUE(RunMAMEList("listxml", mame, data, progress).Succeeded());
    ASSERT_TRUE(RunMAMEList("listsoftware", mame, data, progress).Succeeded());

    const auto result = CreateSupportFiles(CatalogueSourcesIn(data, false), progress);
    ASSERT_TRUE(result.outcome.Succeeded()) << result.outcome.messages[0].text;

    // Every displayed machine lands in exactly one info file, or is named as unlisted.
    const auto arcade = RomsOf(data.Output() / "arcadeinfo.txt");
    const auto other = RomsOf(data.Output() / "otherinfo.txt");
    EXPECT_EQ(static_cast<std::size_t>(result.counts.arcade), arcade.size());
    EXPECT_EQ(static_cast<std::size_t>(result.counts.other), other.size());
    std::map<std::string, int> seen;
    for (const auto* list : {&arcade, &other}) {
        for (const auto& rom : *list) {
            ++seen[rom];
        }
    }
    const std::string unlisted = ReadFile(data.Output() / "unlisted.txt");
    for (const auto& line : SplitLines(unlisted)) {
        if (!line.empty() && line.find(' ') == std::string::npos) {
            ++seen[line];
        }
    }
    const auto expected = DisplayedMachines(data.Output() / "machine.xml");
    EXPECT_GT(expected.size(), 20000u);
    std::set<std::string> catalogued;
    for (const auto& [rom, times] : seen) {
        EXPECT_EQ(times, 1) << rom;
        catalogued.insert(rom);
    }
    std::vector<std::string> missing;
    std::set_difference(expected.begin(), expected.end(), catalogued.begin(), catalogued.end(),
                        std::back_inserter(missing));
    EXPECT_TRUE(missing.empty()) << missing.size() << " missing, first " << missing.front();
    // The shipped lists.txt is made from this very MAME.
    EXPECT_TRUE(unlisted.empty());
    EXPECT_GT(result.counts.crcRecords, 10000u);
    EXPECT_GT(result.counts.softFilterSections, 0u);

    // A console with two lists gets a software file with items of both.
    const SoftwareSources sources{
        data.Output() / "software.xml", data.Output() / "softfilter.ini", {}};
    const auto file = data.Software() / "a2600.txt";
    const auto made = WriteSoftwareFile(sources, "a2600", {"a2600", "a2600_cass"}, file);
    ASSERT_TRUE(made.outcome.messages.empty()) << made.outcome.messages[0].text;
    const auto software = LoadSoftwareRecords(file);
    ASSERT_FALSE(software.error);
    EXPECT_EQ(software.records.size(), made.records);
    EXPECT_GT(made.records, 500u);
    std::set<std::string> lists;
    for (const auto& record : software.records) {
        lists.emplace(record.Field(SoftwareField::List));
        EXPECT_EQ(record.Field(SoftwareField::Availability), "U");
    }
    EXPECT_EQ(lists, (std::set<std::string>{"a2600", "a2600_cass"}));
}
