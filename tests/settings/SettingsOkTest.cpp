#include "settings/SettingsOk.h"

#include <gtest/gtest.h>

#include "core/FileTests.h"
#include "settings/OptionCatalogue.h"
#include "settings/ProfileChoice.h"
#include "settings/ProfileCompare.h"
#include "support/TestFiles.h"

namespace coinlight {
namespace {

using test::ReadFile;
using test::TempFolder;
using test::WriteFile;

class SettingsOkTest : public ::testing::Test {
protected:
    std::filesystem::path Profile(std::string_view name) const { return ProfilePath(m_data, name); }

    SettingsOkOutcome Ok(const std::string& caption, OptionValues values,
                         std::string displayType = "Raster") {
        return SettingsOk(m_data, {caption, "raster-ch", "pacman", std::move(displayType)}, values);
    }

    TempFolder m_folder;
    DataLayout m_data{m_folder.Path()};
};

OptionValues With(std::string_view control, std::string value) {
    OptionValues values;
    values[RowOfControl(control)] = std::move(value);
    return values;
}

TEST_F(SettingsOkTest, AClassProfileAtTheDefaultsIsNotKept) {
    WriteFile(Profile("raster-ch"), "[Core Rotation Options]\r\nFlip=Both\r\n");
    const SettingsOkOutcome outcome = Ok("Raster Settings", OptionValues());
    EXPECT_FALSE(FileExists(Profile("raster-ch")));
    EXPECT_EQ(outcome.currentProfile, Profile("raster-ch"));
    EXPECT_FALSE(outcome.panelText);

    Ok("Raster Settings", With("cboFlip", "Both"));
    EXPECT_NE(ReadFile(Profile("raster-ch")).find("\r\nFlip=Both\r\n"), std::string::npos);
}

TEST_F(SettingsOkTest, AMachinesProfileEqualToItsClassIsDropped) {
    WriteFile(Profile("raster-ch"), "[Core Rotation Options]\r\nFlip=Both\r\n");
    const SettingsOkOutcome same = Ok("Custom Settings", With("cboFlip", "Both"));
    EXPECT_FALSE(FileExists(Profile("pacman")));
    EXPECT_EQ(same.panelText, "Raster Settings");
    EXPECT_TRUE(same.messages.empty());

    // One text differing in case only is a difference.
    WriteFile(Profile("raster-ch"), "[Core Artwork Options]\r\nOverride Artwork=Bezel\r\n");
    const SettingsOkOutcome caseOnly = Ok("Custom Settings", With("txtOverrideArtwork", "bezel"));
    EXPECT_TRUE(FileExists(Profile("pacman")));
    EXPECT_EQ(caseOnly.panelText, "Custom Settings");

    // The last key alone makes a difference as well.
    // (A length of its own: a file rewritten at once with as many bytes may keep its stamp.)
    WriteFile(Profile("raster-ch"),
              "[Core Artwork Options]\r\nOverride Artwork=bezel\r\nCrop=0\r\n");
    OptionValues last = With("txtOverrideArtwork", "bezel");
    last[RowOfControl("txtOtherCommands")] = "-nofilter";
    Ok("Custom Settings", last);
    EXPECT_TRUE(FileExists(Profile("pacman")));
}

TEST_F(SettingsOkTest, WithoutAClassProfileTheDefaultsDecide) {
    const SettingsOkOutcome defaults = Ok("Custom Settings", OptionValues(), "N/A");
    EXPECT_FALSE(FileExists(Profile("pacman")));
    EXPECT_EQ(defaults.panelText, "Raster* Settings");

    const SettingsOkOutcome unknown = Ok("Custom Settings", OptionValues(), "Mystery");
    EXPECT_FALSE(FileExists(Profile("pacman")));
    EXPECT_EQ(unknown.panelText, "Custom Settings") << "a display type it does not know";

    Ok("Custom Settings", With("chkCheat", "1"));
    EXPECT_TRUE(FileExists(Profile("pacman")));
}

TEST_F(SettingsOkTest, AMissingKeyComparesAsItsDefaultAndChecksAsNumbers) {
    WriteFile(Profile("raster-ch"), "[Core Performance Options]\r\nThrottle=1.0\r\n");
    Ok("Custom Settings", OptionValues());
    EXPECT_FALSE(FileExists(Profile("pacman"))) << "Throttle 1.0 is 1, every other key missing";
}

TEST_F(SettingsOkTest, ACheckValueThatIsNoNumberFailsTheComparisonAndKeepsTheFile) {
    WriteFile(Profile("raster-ch"), "[Core Performance Options]\r\nThrottle=on\r\n");
    const SettingsOkOutcome outcome = Ok("Custom Settings", OptionValues());
    EXPECT_TRUE(FileExists(Profile("pacman")));
    ASSERT_EQ(outcome.messages.size(), 1u);
    EXPECT_TRUE(outcome.messages[0].text.starts_with("Error In CompareSettings: "));
    EXPECT_NE(outcome.messages[0].text.find("\nLine Number: "), std::string::npos);
    EXPECT_NE(outcome.messages[0].text.find("You should run Rebuild Settings"), std::string::npos);
}

TEST_F(SettingsOkTest, OtherMachinesCompareWithOtherCfg) {
    WriteFile(Profile("other"), "[Core Misc Options]\r\nCheat=1\r\n");
    WriteFile(Profile("raster-ch"), "[Core Misc Options]\r\nCheat=0\r\n");
    const SettingsOkOutcome outcome = Ok("Custom Settings", With("chkCheat", "1"), "Other");
    EXPECT_FALSE(FileExists(Profile("pacman")));
    EXPECT_EQ(outcome.panelText, "Other Settings");
}

TEST_F(SettingsOkTest, RestoreReloadsTheClassOnlyForAMachinesOwnProfile) {
    const SettingsScreenFacts custom{"Custom Settings", "raster-ch", "pacman", "Raster"};
    EXPECT_FALSE(RestoreSource(m_data, custom)) << "no files at all";
    WriteFile(Profile("raster-ch"), "[Core Misc Options]\r\nCheat=1\r\n");
    EXPECT_FALSE(RestoreSource(m_data, custom)) << "no profile of the machine yet";
    WriteFile(Profile("pacman"), "[Core Misc Options]\r\nCheat=0\r\n");
    EXPECT_EQ(RestoreSource(m_data, custom), Profile("raster-ch"));
    EXPECT_FALSE(RestoreSource(m_data, {"Raster Settings", "raster-ch", "pacman", "Raster"}));

    WriteFile(Profile("other"), "[Core Misc Options]\r\nCheat=1\r\n");
    const SettingsScreenFacts other{"Custom Settings", "raster-ch", "pacman", "Other"};
    EXPECT_EQ(ClassProfileName(other), "other");
    EXPECT_EQ(RestoreSource(m_data, other), Profile("other"));
}

TEST(ProfileCompare, ClassLabelsOfTheDisplayTypes) {
    EXPECT_EQ(ClassSettingsLabel("Raster"), "Raster Settings");
    EXPECT_EQ(ClassSettingsLabel("Vector"), "Vector Settings");
    EXPECT_EQ(ClassSettingsLabel("LCD"), "LCD Settings");
    EXPECT_EQ(ClassSettingsLabel("Other"), "Other Settings");
    EXPECT_EQ(ClassSettingsLabel("N/A"), "Raster* Settings");
    EXPECT_FALSE(ClassSettingsLabel("raster"));
}

} // namespace
} // namespace coinlight
