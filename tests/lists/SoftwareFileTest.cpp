#include "lists/SoftwareFile.h"

#include <gtest/gtest.h>

#include "core/FileTests.h"
#include "support/TestFiles.h"

namespace coinlight {
namespace {

using test::FixturesFolder;
using test::ReadFile;
using test::TempFolder;
using test::WriteFile;

struct SoftwareSetup {
    TempFolder folder;
    DataLayout data{folder / "data"};
    int announced = 0;

    SoftwareSetup() {
        std::filesystem::create_directories(data.Output());
        std::filesystem::copy_file(FixturesFolder() / "catalogue" / "software.xml",
                                   data.Output() / "software.xml");
    }
    SoftwareFilePreparation Prepare(std::string_view machine, std::string_view lists) {
        return PrepareSoftwareFile(data, {folder / "soft"}, machine, lists,
                                   [this] { ++announced; });
    }
};

TEST(PrepareSoftwareFile, MakesTheFileOnceFromEachListOfTheMachine) {
    SoftwareSetup setup;
    WriteFile(setup.folder / "soft" / "console_cass" / "tape1.zip", "");
    EXPECT_EQ(setup.Prepare("console", "console_cass;other").status, SoftwareFileStatus::Ready);
    EXPECT_EQ(setup.announced, 1);
    const std::string made = ReadFile(SoftwareFileOf(setup.data, "console"));
    EXPECT_EQ(made, "\"A\",\"Tape One\",\"1986\",\"Yes\",\"Tapes Ltd\",\"Cass\",\"tape1\",\"N/A\","
                    "\"N/A\",\"console_cass\"\r\n\"U\",\"Elsewhere\",\"1993\",\"Yes\",\"Nobody\","
                    "\"Cart\",\"elsewhere\",\"N/A\",\"N/A\",\"other\"\r\n");
    std::filesystem::remove(setup.folder / "soft" / "console_cass" / "tape1.zip");
    EXPECT_EQ(setup.Prepare("console", "console_cass;other").status, SoftwareFileStatus::Ready);
    EXPECT_EQ(setup.announced, 1) << "the file is kept: no second extraction";
    EXPECT_EQ(ReadFile(SoftwareFileOf(setup.data, "console")), made)
        << "availability is what it was when the file was made";
}

TEST(PrepareSoftwareFile, MachinesWithoutListsGetNoFile) {
    SoftwareSetup setup;
    const SoftwareFilePreparation prepared = setup.Prepare("pet2001", "N/A");
    EXPECT_EQ(prepared.status, SoftwareFileStatus::NoLists);
    EXPECT_FALSE(prepared.message);
    EXPECT_FALSE(FileExists(SoftwareFileOf(setup.data, "pet2001")));
    EXPECT_EQ(setup.announced, 0);
}

TEST(PrepareSoftwareFile, WithoutSoftwareXmlItSaysSoAndMakesNothing) {
    SoftwareSetup setup;
    std::filesystem::remove(setup.data.Output() / "software.xml");
    const SoftwareFilePreparation prepared = setup.Prepare("console", "console");
    EXPECT_EQ(prepared.status, SoftwareFileStatus::NoSoftwareXml);
    ASSERT_TRUE(prepared.message);
    EXPECT_EQ(prepared.message->title, "LoadSoftwareLists");
    EXPECT_EQ(prepared.message->text, "Cannot find software.xml.  Exiting sub.");
    EXPECT_FALSE(FileExists(setup.data.Software()));
}

TEST(PrepareSoftwareFile, ANameThatIsNoShortNameNeverBecomesAFileName) {
    SoftwareSetup setup;
    for (const char* machine : {"../../escape", "a b", "x;rm", ""}) {
        const SoftwareFilePreparation prepared = setup.Prepare(machine, "console");
        EXPECT_EQ(prepared.status, SoftwareFileStatus::Failed) << machine;
        EXPECT_TRUE(prepared.message.has_value());
    }
    EXPECT_EQ(test::CountFiles(setup.folder.Path()), 1u) << "only software.xml";
}

TEST(PrepareSoftwareFile, AFailedExtractionSaysWhereAndLeavesNoFileBehind) {
    SoftwareSetup setup;
    WriteFile(setup.data.Output() / "software.xml",
              "<softwarelists>\n\t<softwarelist name=\"console\">\n\t\t<software "
              "name=\"good\">\n\t\t\t<part name=\"cart\">\n\t\t\t\t<rom name=\"a\"/>\n"
              "\t\t</software>\n\t\t<software name=broken>\n");
    const SoftwareFilePreparation failed = setup.Prepare("console", "console");
    EXPECT_EQ(failed.status, SoftwareFileStatus::Failed);
    ASSERT_TRUE(failed.message);
    EXPECT_EQ(failed.message->title, "Coinlight");
    EXPECT_TRUE(failed.message->text.starts_with("Error In CreateSoftwareFile: "))
        << failed.message->text;
    EXPECT_NE(failed.message->text.find("Software List: console"), std::string::npos);
    EXPECT_FALSE(FileExists(SoftwareFileOf(setup.data, "console")));
    EXPECT_EQ(test::CountFiles(setup.data.Software()), 0u) << "no temporary file either";
}

} // namespace
} // namespace coinlight
