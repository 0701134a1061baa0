#include "catalogue/CatalogueBuilder.h"

#include <gtest/gtest.h>

#include "CatalogueTestSupport.h"
#include "catalogue/CatalogueAbort.h"
#include "catalogue/QuotedRecordFile.h"

using namespace coinlight;
using namespace coinlight::test;

namespace {

/// A first pass that is done at once, or only when the second pass has to wait for it.
class FixedDevices final : public DeviceRomSource {
public:
    FixedDevices(NameList devices, bool late) : m_devices(std::move(devices)), m_late(late) {}
    bool Done() const override { return !m_late; }
    const NameList& Wait() override { return m_devices; }

private:
    NameList m_devices;
    bool m_late;
};

struct BuiltFiles {
    std::string arcade;
    std::string other;
    std::optional<RunTimeError> error;
};

BuiltFiles Build(const std::string& xml, bool lateDevices) {
    TempFolder folder;
    WriteFile(folder / "machine.xml", xml);
    NameList deviceRoms;
    deviceRoms.Add("romdev");
    FixedDevices devices(std::move(deviceRoms), lateDevices);
    const MachineLists lists{NameList("|a|b|c|"), NameList("|o|")};
    CatalogueWriters writers(folder.Path());
    RecordingProgress progress;
    CatalogueBuilder builder(lists, devices, nullptr, writers, progress);
    LineReader reader(folder / "machine.xml");
    BuiltFiles built;
    try {
        builder.Run(reader);
    } catch (const CatalogueAbort& abort) {
        built.error = abort.error;
        return built;
    }
    writers.arcadeInfo.Commit();
    writers.otherInfo.Commit();
    built.arcade = ReadFile(folder / "arcadeinfo.txt");
    built.other = ReadFile(folder / "otherinfo.txt");
    return built;
}

std::string Machine(const std::string& name, const std::string& body) {
    return "\t<machine name=\"" + name + "\">\n" + body +
           "\t\t<display type=\"raster\"/>\n\t</machine>\n";
}

} // namespace

TEST(CatalogueBuilder, DeviceRomsComeOutTheSameWhetherTheFirstPassIsEarlyOrLate) {
    const std::string xml =
        "<mame>\n" +
        Machine("a", "\t\t<device_ref name=\"plain\"/>\n\t\t<device_ref name=\"romdev\"/>\n") +
        Machine("o", "\t\t<device_ref name=\"plain\"/>\n") +
        Machine("b", "\t\t<device_ref name=\"romdev\"/>\n") + Machine("c", "") + "</mame>\n";
    const BuiltFiles early = Build(xml, false);
    const BuiltFiles late = Build(xml, true);
    ASSERT_FALSE(early.error);
    ASSERT_FALSE(late.error);
    EXPECT_EQ(early.arcade, late.arcade);
    EXPECT_EQ(early.other, late.other);
    const auto records = ParseMachineRecords(late.arcade);
    ASSERT_EQ(records.records.size(), 3u);
    EXPECT_EQ(records.records[0].Field(MachineField::DeviceRomsRequired), "Yes");
    EXPECT_EQ(records.records[1].Field(MachineField::DeviceRomsRequired), "Yes");
    EXPECT_EQ(records.records[2].Field(MachineField::DeviceRomsRequired), "No");
    EXPECT_NE(late.other.find("\"No\",\"No\",\"Catver.ini Not Found\""), std::string::npos);
}

TEST(CatalogueBuilder, TheFailureToldIsTheFirstInTheFileWhenEverTheFirstPassEnds) {
    const std::string unread = "\t\t<device_ref name=\"open/>\n";
    const std::string romDevice = "\t\t<device_ref name=\"romdev\"/>\n";
    const std::vector<std::pair<std::string, std::optional<int>>> cases = {
        // After a reference to a device with ROMs the rest are never looked at.
        {Machine("a", romDevice + unread), std::nullopt},
        {Machine("a", unread + romDevice), 808},
        // A second pass that waited for the device list would meet the overflow first.
        {Machine("a", unread) + "\t<machine name=\"" + std::string(40000, 'x') + "\">\n", 808},
    };
    for (std::size_t row = 0; row < cases.size(); ++row) {
        for (const bool late : {false, true}) {
            SCOPED_TRACE("case " + std::to_string(row) + (late ? ", late" : ", early"));
            const auto built = Build("<mame>\n" + cases[row].first + "</mame>\n", late);
            const auto location = cases[row].second;
            ASSERT_EQ(built.error.has_value(), location.has_value());
            if (location) {
                EXPECT_EQ(built.error->number, kErrorInvalidCall);
                EXPECT_EQ(built.error->location, *location);
            }
        }
    }
}

TEST(CatalogueBuilder, TagsAreReadWithTheirTabsRemovedAndBlanksHideThem) {
    const std::string xml = "<mame>\n" + Machine("a", "\t\t<ye\tar>19\t90</year>\n") +
                            Machine("b", "    <year>1991</year>\n") + "</mame>\n";
    const auto records = ParseMachineRecords(Build(xml, false).arcade);
    ASSERT_EQ(records.records.size(), 2u);
    EXPECT_EQ(records.records[0].Field(MachineField::Year), "1990");
    EXPECT_EQ(records.records[1].Field(MachineField::Year), "Unknown");
}
