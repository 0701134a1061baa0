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

using Spoil = std::function<void(CatalogueFolder&)>;

/// Replaces the machine list with `xml`.
Spoil MachineXml(std::string xml) {
    return [xml](CatalogueFolder& folder) {
        WriteFile(folder.Output() / "machine.xml", xml);
    };
}

Spoil ListsTxt(std::string text) {
    return [text](CatalogueFolder& folder) {
        WriteFile(folder.Support() / "lists.txt", text);
    };
}

std::string Fixture() {
    return ReadFile(FixturesFolder() / "catalogue" / "machine.xml");
}

std::string FixtureCutAt(const std::string& text) {
    const std::string xml = Fixture();
    return xml.substr(0, xml.find(text));
}

struct BadInput {
    const char* what;
    Spoil spoil;
    std::string error; // after "Error In CreateSupportFiles: "
    bool withAdvice = false;
};

} // namespace

TEST(CatalogueBadInput, EachBadInputIsToldLeavesTheOldFilesAndAGoodRunMendsIt) {
    std::string garbage;
    for (int i = 0; i < 65536; ++i) {
        garbage.push_back(static_cast<char>((i * 7919 + i / 13) & 0xFF));
    }
    std::string longRomName = Fixture();
    longRomName.replace(longRomName.find("<rom name=\"d.4\""), 15,
                        "<rom name=\"" + std::string(40000, 'n') + "\"");
    const auto manyOthers = GenerateMachines(32768, "o", "lcd");
    const std::vector<BadInput> inputs = {
        {"cut off inside a machine", MachineXml(FixtureCutAt("<driver status=\"good\"")),
         "Input past end of file\nLine Number: 800"},
        {"cut off inside a device", MachineXml(FixtureCutAt("<chip type=\"cpu\" tag=\"cpunorom\"")),
         "Input past end of file\nLine Number: 40"},
        // An unlisted machine is skipped to its end, which never comes.
        {"cut off inside a skipped machine", MachineXml(FixtureCutAt("<manufacturer>Nobody")),
         "Input past end of file\nLine Number: 802"},
        // Neither leaves a filter file to space.
        {"an empty file", MachineXml(""), "File not found\nLine Number: 110", true},
        {"binary garbage", MachineXml(garbage), "File not found\nLine Number: 110", true},
        {"no machine list",
         [](CatalogueFolder& folder) { std::filesystem::remove(folder.Output() / "machine.xml"); },
         "File not found\nLine Number: 40", true},
        {"lists.txt without its Other line",
         ListsTxt("Arcade\r\n|alpha|\r\nOthers\r\n|console|\r\n"),
         "Input past end of file\nLine Number: 52"},
        {"a line beyond sixteen-bit positions", MachineXml(longRomName),
         "Overflow\nLine Number: 807"},
        {"more other machines than sixteen bits count",
         [&](CatalogueFolder& folder) {
             MachineXml(manyOthers.xml)(folder);
             ListsTxt("Arcade\n|\nOther\n" + manyOthers.listLine + "\n")(folder);
         },
         "Overflow\nLine Number: 816"},
    };
    CatalogueFolder folder;
    for (const BadInput& input : inputs) {
        SCOPED_TRACE(input.what);
        ExpectFailureThenRecovery(
            folder, [&] { input.spoil(folder); },
            "Error In CreateSupportFiles: " + input.error +
                (input.withAdvice ? Advice(folder) : ""));
    }
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
