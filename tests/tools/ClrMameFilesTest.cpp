#include "tools/ClrMameFiles.h"

#include <algorithm>
#include <array>
#include <functional>
#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "support/TestFiles.h"

namespace coinlight {
namespace {

using test::ReadFile;
using test::TempFolder;
using test::WriteFile;

// A favourite's record: only the short name and the software lists matter here.
std::string Favourite(const std::string& rom, const std::string& lists) {
    std::array<std::string, 22> fields;
    fields.fill("N/A");
    fields[0] = "Machine " + rom;
    fields[12] = rom;
    fields[15] = lists;
    std::string line;
    for (const std::string& field : fields) {
        line += (line.empty() ? "\"" : ",\"") + field + "\"";
    }
    return line + "\r\n";
}

std::string Settings(std::size_t padding) {
    return "<?xml version=\"1.0\"?>\r\n<settings>\r\n"
           "\t<item name=\"Rebuilder/filter\" active=\"1\">xp://old</item>\r\n"
           "\t<item name=\"Scanner/filter\" active=\"1\">xp://old\r\n"
           "\t  and more</item>\r\n"
           "\t<item name=\"Other/filter\" active=\"1\">keep me</item>\r\n"
           "\t<padding>" +
           std::string(padding, 'p') + "</padding>\r\n</settings>\r\n";
}

const char* const kMachineList =
    "<mame build=\"0.251\">\n"
    "\t<machine name=\"invaders\" sourcefile=\"mw8080bw.cpp\" sampleof=\"invaders\">\n"
    "\t\t<description>Space Invaders</description>\n"
    "\t\t<year>1978</year>\n"
    "\t\t<manufacturer>Taito</manufacturer>\n"
    "\t\t<rom name=\"invaders.h\" size=\"2048\"/>\n"
    "\t\t<sample name=\"0\"/>\n"
    "\t</machine>\n"
    "\t<machine name=\"pacman\" sourcefile=\"pacman.cpp\">\n"
    "\t\t<sample name=\"not ours\"/>\n"
    "\t</machine>\n"
    "\t<machine name=\"homerun\" sampleof=\"homerun\">\n"
    "\t\t<sample name=\"x\"/>\n"
    "\t</machine>\n"
    "</mame>\n";

std::function<bool(std::string_view&)> AllLines(std::string_view text) {
    return [text, at = std::size_t{0}](std::string_view& line) mutable {
        if (at >= text.size()) {
            return false;
        }
        const std::size_t end = std::min(text.find('\n', at), text.size());
        line = text.substr(at, end - at);
        at = end + 1;
        return true;
    };
}

TEST(SoftwareListFilter, JoinsTheListsAndDoublesQuotes) {
    EXPECT_EQ(SoftwareListFilter({"a500_flop"}), "xp://softwarelist[@name='a500_flop']/software");
    EXPECT_EQ(SoftwareListFilter({"nes", "o'brien's"}),
              "xp://softwarelist[@name='nes' or @name='o''brien''s']/software");
}

TEST(ReplaceFilterItems, ReplacesBothItemsAndKeepsEveryOtherLine) {
    const std::string updated =
        ReplaceFilterItems(Settings(10), "xp://softwarelist[@name='a<b&c']/software");
    const std::string value = "xp://softwarelist[@name='a&lt;b&amp;c']/software";
    EXPECT_EQ(updated, "<?xml version=\"1.0\"?>\r\n<settings>\r\n"
                       "\t<item name=\"Rebuilder/filter\" active=\"1\">" +
                           value +
                           "</item><!--Coinlight-->\r\n"
                           "\t<item name=\"Scanner/filter\" active=\"1\">" +
                           value +
                           "</item><!--Coinlight-->\r\n"
                           "\t<item name=\"Other/filter\" active=\"1\">keep me</item>\r\n"
                           "\t<padding>pppppppppp</padding>\r\n</settings>\r\n");
    // Done twice, the file reads as done once: the mark is not piled up.
    EXPECT_EQ(ReplaceFilterItems(updated, "xp://softwarelist[@name='a<b&c']/software"), updated);
}

TEST(ReplaceFilterItems, AnItemThatNeverClosesKeepsTheLinesAfterIt) {
    const std::string settings = "<settings>\n"
                                 "<item name=\"Scanner/filter\" active=\"1\">cut\n"
                                 "<item name=\"Keep\">1</item>\n"
                                 "</settings>";
    const std::string updated = ReplaceFilterItems(settings, "F");
    EXPECT_EQ(updated, "<settings>\r\n"
                       "<item name=\"Scanner/filter\" active=\"1\">F</item><!--Coinlight-->\r\n"
                       "<item name=\"Keep\">1</item>\r\n"
                       "</settings>\r\n");
}

TEST(SampleMachinesXml, TakesMachinesWithSamplesAndOnlyTheirDescriptiveLines) {
    std::size_t taken = 99;
    const std::string xml = SampleMachinesXml(AllLines(kMachineList), &taken);
    EXPECT_EQ(taken, 1u);
    EXPECT_EQ(xml, "<?xml version=\"1.0\"?>\r\n<mame>\r\n"
                   "\t<machine name=\"invaders\" sourcefile=\"mw8080bw.cpp\" "
                   "sampleof=\"invaders\">\r\n"
                   "\t\t<description>Space Invaders</description>\r\n"
                   "\t\t<year>1978</year>\r\n"
                   "\t\t<manufacturer>Taito</manufacturer>\r\n"
                   "\t\t<sample name=\"0\"/>\r\n"
                   "\t</machine>\r\n"
                   "</mame>\r\n");
}

TEST(SampleMachinesXml, AListCutShortStillGivesAWholeFile) {
    const std::string list(kMachineList);
    const std::string cut = list.substr(0, list.find("\t\t<rom"));
    std::size_t taken = 0;
    const std::string xml = SampleMachinesXml(AllLines(cut), &taken);
    EXPECT_EQ(taken, 1u);
    EXPECT_TRUE(xml.ends_with("\t\t<manufacturer>Taito</manufacturer>\r\n"
                              "\t</machine>\r\n</mame>\r\n"))
        << xml;
    const std::string binary("\0\xff<machine name=\"\xfe\" sampleof=\"\0\">\r\n\x01", 36);
    const std::string hostile = "<machine name=\"a\" sampleof=\"b\">\n<machine name=\"";
    for (const std::string& bytes : {binary, hostile}) {
        const std::string damaged = SampleMachinesXml(AllLines(bytes));
        EXPECT_TRUE(damaged.starts_with("<?xml version=\"1.0\"?>\r\n<mame>\r\n"));
        EXPECT_TRUE(damaged.ends_with("</mame>\r\n"));
    }
}

class CreateClrMameFiles : public ::testing::Test {
protected:
    TempFolder folder;
    std::filesystem::path data = folder / "data";
    std::filesystem::path tool = folder / "clr mame";
    std::vector<std::string> stages;

    void SetUp() override {
        WriteFile(data / "output" / "otherfavs.txt", Favourite("a500", "amiga_flop;amiga_cd") +
                                                         Favourite("nes", "nes;N/A;amiga_cd") +
                                                         Favourite("apple2", "N/A"));
        WriteFile(data / "output" / "machine.xml", kMachineList);
        std::filesystem::create_directories(data / "temp");
        WriteFile(tool / "settings.xml", Settings(kSmallSettingsLimit));
        WriteFile(tool / "software.xml", "<softwarelists/>");
    }

    ClrMameOutcome Create() {
        ClrMameRequest request;
        request.dataFolder = data;
        request.toolFolder = tool;
        request.progress = [this](const char* stage) {
            stages.emplace_back(stage);
        };
        return CreateClrMAMEFiles(request);
    }

    static std::string Messages(const ClrMameOutcome& outcome) {
        std::string text;
        for (const ClrMameMessage& message : outcome.messages) {
            text += message.title + ": " + message.text + (message.information ? "" : " (failed)") +
                    "\n";
        }
        return text;
    }
};

TEST_F(CreateClrMameFiles, WritesTheToolsFilesAndKeepsTheOldSettings) {
    const std::string old = ReadFile(tool / "settings.xml");
    const ClrMameOutcome outcome = Create();
    EXPECT_EQ(Messages(outcome), "");
    EXPECT_EQ(outcome.favourites, 3u);
    EXPECT_EQ(outcome.softwareLists, 3u);
    EXPECT_EQ(outcome.sampleMachines, 1u);
    EXPECT_TRUE(outcome.settingsReplaced);
    EXPECT_EQ(stages, (std::vector<std::string>{"Generating ClrMAME files...",
                                                "Updating ClrMAME settings.xml..."}));

    EXPECT_EQ(ReadFile(tool / "machine.txt"), "a500\r\nnes\r\napple2\r\n");
    EXPECT_NE(ReadFile(tool / "sample.xml").find("<machine name=\"invaders\""), std::string::npos);
    EXPECT_EQ(ReadFile(tool / "settings.bak"), old);
    const std::string settings = ReadFile(tool / "settings.xml");
    EXPECT_NE(settings.find(">xp://softwarelist[@name='amiga_flop' or @name='amiga_cd' or "
                            "@name='nes']/software</item><!--Coinlight-->"),
              std::string::npos)
        << settings.substr(0, 400);
    EXPECT_EQ(settings.find("xp://old"), std::string::npos);
    EXPECT_FALSE(std::filesystem::exists(data / "temp" / "settings.xml"));
}

TEST_F(CreateClrMameFiles, ASmallResultLeavesTheSettingsAlone) {
    WriteFile(tool / "settings.xml", Settings(100));
    const std::string old = ReadFile(tool / "settings.xml");
    const ClrMameOutcome outcome = Create();
    EXPECT_EQ(Messages(outcome),
              "Coinlight: New settings.xml is small.  Not overwriting original.\n");
    EXPECT_FALSE(outcome.settingsReplaced);
    EXPECT_EQ(ReadFile(tool / "settings.xml"), old);
    EXPECT_TRUE(std::filesystem::exists(tool / "machine.txt"));
}

TEST_F(CreateClrMameFiles, MissingInputsStopWithAMessageAndWriteNothing) {
    std::filesystem::remove(tool / "software.xml");
    EXPECT_EQ(Messages(Create()), "CreateClrMAMEFiles: Cannot find software.xml.  Exiting sub.\n");
    std::filesystem::remove(tool / "settings.xml");
    EXPECT_EQ(Messages(Create()), "CreateClrMAMEFiles: Cannot find settings.xml.  Exiting sub.\n");
    std::filesystem::remove(data / "output" / "otherfavs.txt");
    EXPECT_EQ(Messages(Create()),
              "Coinlight: A Favorite Other Machines file needs to exist before we can create other "
              "machine and software ClrMAME files.\n");
    EXPECT_FALSE(std::filesystem::exists(tool / "machine.txt"));
    EXPECT_TRUE(stages.empty());
}

TEST_F(CreateClrMameFiles, NoMachineListIsAFailureThatKeepsTheSettings) {
    std::filesystem::remove(data / "output" / "machine.xml");
    const std::string old = ReadFile(tool / "settings.xml");
    const ClrMameOutcome outcome = Create();
    EXPECT_EQ(Messages(outcome), "CreateClrMAMEFiles: Process Incomplete. (failed)\n");
    EXPECT_EQ(ReadFile(tool / "settings.xml"), old);
    EXPECT_FALSE(std::filesystem::exists(tool / "settings.bak"));
}

TEST_F(CreateClrMameFiles, DamagedInputsNeverLeaveAHalfWrittenSettingsFile) {
    const std::string inputs[] = {
        std::string("\0\xff\xfe\x01\"a\",\"", 9),
        Favourite("ok", "x'; rm -rf /;'") + "\"cut\",\"",
        std::string(50000, '"'),
    };
    for (const std::string& favourites : inputs) {
        SetUp();
        WriteFile(data / "output" / "otherfavs.txt", favourites);
        WriteFile(data / "output" / "machine.xml", std::string("\0<machine\xff", 10));
        const std::string old = ReadFile(tool / "settings.xml");
        const ClrMameOutcome outcome = Create();
        ASSERT_FALSE(outcome.messages.empty() && !outcome.settingsReplaced);
        const std::string now = ReadFile(tool / "settings.xml");
        if (outcome.settingsReplaced) {
            EXPECT_EQ(ReadFile(tool / "settings.bak"), old);
            EXPECT_NE(now.find("<!--Coinlight-->"), std::string::npos);
            EXPECT_TRUE(now.ends_with("</settings>\r\n"));
        } else {
            EXPECT_EQ(now, old) << Messages(outcome);
        }
    }
}

} // namespace
} // namespace coinlight
