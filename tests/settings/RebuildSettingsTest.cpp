#include "settings/RebuildSettings.h"

#include <gtest/gtest.h>

#include "core/FileTests.h"
#include "settings/ComboChoices.h"
#include "support/TestFiles.h"

namespace coinlight {
namespace {

using test::ReadFile;
using test::TempFolder;
using test::WriteFile;

class RebuildTest : public ::testing::Test {
protected:
    RebuildTest() {
        WriteFile(m_data.Output() / "bios.ini", "[BIOS]\r\nneogeo=Europe> euro;;Japan> japan\r\n");
        ComboSources sources;
        sources.processors = 1;
        m_choices = ComboChoices(sources);
    }

    void Profile(const std::string& name, const std::string& text) const {
        WriteFile(m_data.Settings() / name, text);
    }

    TempFolder m_folder;
    DataLayout m_data{m_folder.Path()};
    ComboChoices m_choices;
};

TEST_F(RebuildTest, RepairsRefusedValuesReportsThemAndASecondRunFindsNothing) {
    // A BIOS that belongs to another machine, a check box with a word, a lost frame skip.
    Profile("pacman.cfg", "[Core Misc Options]\r\nBIOS=Japan> japan\r\nCheat=yes\r\n");
    Profile("neogeo.cfg", "[Core Misc Options]\r\nBIOS=Japan> japan\r\n");
    Profile("raster.cfg", "[Core Performance Options]\r\nFrame Skip=11 Of 12\r\n");
    Profile("lcd.cfg", "[Core Performance Options]\r\nSpeed=150%\r\n");
    WriteFile(m_data.Settings() / "options.ini", "[Core Misc Options]\r\nBIOS=Japan\r\n");
    std::vector<std::size_t> progress;
    const RebuildOutcome first =
        RebuildSettings(m_data, m_choices, [&](std::size_t done, std::size_t total) {
            EXPECT_EQ(total, 4u);
            progress.push_back(done);
        });
    EXPECT_TRUE(first.changed);
    EXPECT_FALSE(first.failure);
    EXPECT_EQ(progress, (std::vector<std::size_t>{1, 2, 3, 4}));
    EXPECT_EQ(first.text, "Filename\tSetting\r\n\r\n\r\n"
                          "pacman.cfg\tCheat\r\npacman.cfg\tBios\r\n\r\n"
                          "raster.cfg\tFrame Skip\r\n\r\n");
    EXPECT_EQ(ReadFile(RebuildReportFile(m_data)), first.text);
    const std::string pacman = ReadFile(m_data.Settings() / "pacman.cfg");
    EXPECT_NE(pacman.find("BIOS=Default\r\n"), std::string::npos);
    EXPECT_NE(pacman.find("Cheat=0\r\n"), std::string::npos);
    EXPECT_NE(ReadFile(m_data.Settings() / "neogeo.cfg").find("BIOS=Japan> japan"),
              std::string::npos)
        << "its own BIOS stays";
    EXPECT_EQ(ReadFile(m_data.Settings() / "options.ini"), "[Core Misc Options]\r\nBIOS=Japan\r\n")
        << "only profiles are looked at";

    const RebuildOutcome second = RebuildSettings(m_data, m_choices);
    EXPECT_FALSE(second.changed);
    EXPECT_EQ(second.text, "No invalid values were detected in your setting files.");
    EXPECT_FALSE(FileExists(RebuildReportFile(m_data))) << "the old report goes";
    EXPECT_FALSE(RebuildReportText(m_data));
}

TEST_F(RebuildTest, AMachineNamedLikeAClassIsTakenForOne) {
    WriteFile(m_data.Output() / "bios.ini", "[BIOS]\r\nrastan=World> world;;Japan> jp\r\n"
                                            "rasterblaster=Europe> euro\r\n");
    Profile("rastan.cfg", "[Core Misc Options]\r\nBIOS=World> world\r\n");
    Profile("rasterblaster.cfg", "[Core Misc Options]\r\nBIOS=Europe> euro\r\n");
    const RebuildOutcome outcome = RebuildSettings(m_data, m_choices);
    EXPECT_EQ(outcome.text, "Filename\tSetting\r\n\r\n\r\nrasterblaster.cfg\tBios\r\n\r\n")
        << "only \"Default\" is offered to what looks like a class profile";
}

TEST_F(RebuildTest, BadProfilesAreRepairedWhereTheyCanBeAndNothingElseIsTouched) {
    std::string binary(2048, '\0');
    for (std::size_t i = 0; i < binary.size(); ++i) {
        binary[i] = static_cast<char>(i * 31 % 256);
    }
    Profile("binary.cfg", binary);
    Profile("garbage.cfg", "garbage\r\n[[[\r\n[Core Sound Options]\r\nVolume=loud\r\n==\r\n");
    const RebuildOutcome outcome = RebuildSettings(m_data, m_choices);
    EXPECT_EQ(outcome.text, "Filename\tSetting\r\n\r\n\r\ngarbage.cfg\tVolume\r\n\r\n");
    EXPECT_EQ(ReadFile(m_data.Settings() / "binary.cfg"), binary);
    const std::string garbage = ReadFile(m_data.Settings() / "garbage.cfg");
    EXPECT_NE(garbage.find("Volume=0dB"), std::string::npos);
    EXPECT_NE(garbage.find("garbage"), std::string::npos) << "lines it cannot read are kept";
}

TEST_F(RebuildTest, NoProfilesNoFolderNoReport) {
    EXPECT_TRUE(SettingsFiles(m_data).empty());
    const RebuildOutcome outcome = RebuildSettings(m_data, m_choices);
    EXPECT_FALSE(outcome.changed);
    EXPECT_FALSE(outcome.failure);
}

} // namespace
} // namespace coinlight
