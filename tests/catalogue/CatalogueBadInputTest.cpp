#include <functional>
#include <gtest/gtest.h>

#include "CatalogueTestSupport.h"
#include "catalogue/QuotedRecordFile.h"

using namespace coinlight;
using namespace coinlight::test;

namespace {

std::string Advice(CatalogueFolder& folder) {
    return "\n\nThis may mean you do not have permission to read or write files in " +
           folder.Output().string() + ".";
}

void RestoreFixtures(CatalogueFolder& folder) {
    WriteFile(folder.Output() / "machine.xml",
              ReadFile(FixturesFolder() / "catalogue" / "machine.xml"));
    WriteFile(folder.Support() / "lists.txt",
              ReadFile(FixturesFolder() / "catalogue" / "lists.txt"));
}

/// A good catalogue first, then `spoil` the input: the run must fail with `message`, leave
/// the record files as they were and the profile files gone, and a good run must mend it.
void ExpectFailureThenRecovery(CatalogueFolder& folder, const std::function<void()>& spoil,
                               const std::string& message) {
    RecordingProgress progress;
    RestoreFixtures(folder);
    ASSERT_TRUE(CreateSupportFiles(folder.Sources(), progress).outcome.Succeeded());
    const std::string arcade = ReadFile(folder.Output() / "arcadeinfo.txt");

    spoil();
    const auto failed = CreateSupportFiles(folder.Sources(), progress);
    EXPECT_TRUE(failed.outcome.fatalError);
    ASSERT_EQ(failed.outcome.messages.size(), 1u);
    EXPECT_EQ(failed.outcome.messages[0].text, message);
    EXPECT_TRUE(failed.outcome.messages[0].critical);
    EXPECT_EQ(ReadFile(folder.Output() / "arcadeinfo.txt"), arcade);
    EXPECT_FALSE(std::filesystem::exists(folder.Output() / "bios.ini"));
    EXPECT_FALSE(std::filesystem::exists(folder.Output() / "softfilter.ini"));
    // Nothing half-written is left beside the files.
    for (const auto& entry : std::filesystem::directory_iterator(folder.Output())) {
        EXPECT_EQ(entry.path().string().find(".tmp-"), std::string::npos) << entry.path();
    }

    RestoreFixtures(folder);
    ASSERT_TRUE(CreateSupportFiles(folder.Sources(), progress).outcome.Succeeded());
    EXPECT_EQ(ReadFile(folder.Output() / "arcadeinfo.txt"), arcade);
    EXPECT_TRUE(std::filesystem::exists(folder.Output() / "softfilter.ini"));
}

/// Replaces the machine list with `xml`.
std::function<void()> MachineXml(CatalogueFolder& folder, std::string xml) {
    return [&folder, xml] {
        WriteFile(folder.Output() / "machine.xml", xml);
    };
}

std::string Fixture() {
    return ReadFile(FixturesFolder() / "catalogue" / "machine.xml");
}

} // namespace

TEST(CatalogueBadInput, AFileCutOffInsideAMachine) {
    CatalogueFolder folder;
    const std::string xml = Fixture();
    ExpectFailureThenRecovery(
        folder, MachineXml(folder, xml.substr(0, xml.find("<driver status=\"good\""))),
        "Error In CreateSupportFiles: Input past end of file\nLine Number: 800");
}

TEST(CatalogueBadInput, AFileCutOffInsideADeviceOrASkippedMachine) {
    CatalogueFolder folder;
    const std::string xml = Fixture();
    ExpectFailureThenRecovery(
        folder, MachineXml(folder, xml.substr(0, xml.find("<chip type=\"cpu\" tag=\"cpunorom\""))),
        "Error In CreateSupportFiles: Input past end of file\nLine Number: 40");
    // An unlisted machine is skipped to its end, which never comes.
    ExpectFailureThenRecovery(
        folder, MachineXml(folder, xml.substr(0, xml.find("<manufacturer>Nobody"))),
        "Error In CreateSupportFiles: Input past end of file\nLine Number: 802");
}

TEST(CatalogueBadInput, AnEmptyFileOrGarbageLeavesNoFilterFileToSpace) {
    CatalogueFolder folder;
    const std::string noFilterFile =
        std::string("Error In CreateSupportFiles: File not found\nLine Number: 110") +
        Advice(folder);
    ExpectFailureThenRecovery(folder, MachineXml(folder, ""), noFilterFile);
    std::string garbage;
    for (int i = 0; i < 65536; ++i) {
        garbage.push_back(static_cast<char>((i * 7919 + i / 13) & 0xFF));
    }
    ExpectFailureThenRecovery(folder, MachineXml(folder, garbage), noFilterFile);
}

TEST(CatalogueBadInput, AMissingMachineListOrListsFileWithoutItsOtherLine) {
    CatalogueFolder folder;
    ExpectFailureThenRecovery(
        folder, [&] { std::filesystem::remove(folder.Output() / "machine.xml"); },
        std::string("Error In CreateSupportFiles: File not found\nLine Number: 40") +
            Advice(folder));
    ExpectFailureThenRecovery(
        folder,
        [&] {
            WriteFile(folder.Support() / "lists.txt",
                      "Arcade\r\n|alpha|\r\nOthers\r\n|console|\r\n");
        },
        "Error In CreateSupportFiles: Input past end of file\nLine Number: 52");
}

TEST(CatalogueBadInput, ALineBeyondSixteenBitPositions) {
    CatalogueFolder folder;
    std::string xml = Fixture();
    xml.replace(xml.find("<rom name=\"d.4\""), 15, "<rom name=\"" + std::string(40000, 'n') + "\"");
    ExpectFailureThenRecovery(folder, MachineXml(folder, xml),
                              "Error In CreateSupportFiles: Overflow\nLine Number: 807");
}

TEST(CatalogueBadInput, MoreOtherMachinesThanSixteenBitsCount) {
    CatalogueFolder folder;
    const auto machines = GenerateMachines(32768, "o", "lcd");
    ExpectFailureThenRecovery(
        folder,
        [&] {
            WriteFile(folder.Output() / "machine.xml", machines.xml);
            WriteFile(folder.Support() / "lists.txt",
                      "Arcade\n|\nOther\n" + machines.listLine + "\n");
        },
        "Error In CreateSupportFiles: Overflow\nLine Number: 816");
}

TEST(CatalogueBadInput, AnOutputFolderThatCannotBeWritten) {
    CatalogueFolder folder;
    RecordingProgress progress;
    auto sources = folder.Sources();
    sources.outputFolder = folder.temp / "gone";
    const auto result = CreateSupportFiles(sources, progress);
    ASSERT_TRUE(result.outcome.fatalError);
    EXPECT_EQ(
        result.outcome.messages[0].text.rfind("Error In CreateSupportFiles: Cannot create", 0), 0u)
        << result.outcome.messages[0].text;
}
