#include "settings/SettingsScreens.h"

#include <gtest/gtest.h>

#include "settings/BiosChoices.h"
#include "support/TestFiles.h"

namespace coinlight {
namespace {

using test::TempFolder;
using test::WriteFile;
using Items = std::vector<std::string>;

TEST(SettingsScreens, EachLevelOffersItsClassesAndEachItemItsProfile) {
    EXPECT_EQ(SettingsLevelItems(0), (Items{"Raster", "Vector", "LCD"}));
    EXPECT_EQ(SettingsLevelItems(1), (Items{"Raster - Color", "Raster - Monochrome",
                                            "Vector - Color", "Vector - Monochrome", "LCD"}));
    const Items finest = SettingsLevelItems(2);
    ASSERT_EQ(finest.size(), 9u);
    EXPECT_EQ(finest.front(), "Raster - Col   Hor");
    EXPECT_EQ(finest[7], "Vector - Mon   Ver");
    EXPECT_EQ(finest.back(), "LCD");
    EXPECT_NE(SettingsLevelTip(2).find("Mon   Ver = Monochrome Vertical"), std::string::npos);
    EXPECT_TRUE(SettingsLevelTip(0).empty());

    const auto classOf = [](std::string_view item) {
        const auto found = ClassOfSettingsItem(item);
        return found ? found->profileName : std::string("(none)");
    };
    EXPECT_EQ(classOf("Raster - Col   Ver"), "raster-cv");
    EXPECT_EQ(classOf("Vector - Monochrome"), "vector-m");
    EXPECT_EQ(classOf("LCD"), "lcd");
    EXPECT_EQ(classOf("Raster - Col Ver"), "(none)") << "the three blanks count";
    EXPECT_EQ(ClassOfSettingsItem("Vector - Col   Hor")->screen, SettingsScreen::Vector);
    EXPECT_EQ(ClassOfSettingsItem("LCD")->screen, SettingsScreen::LCD);
}

TEST(SettingsScreens, DisplayTypesCaptionsAndRestoreWording) {
    EXPECT_EQ(ScreenOfDisplayType("N/A"), SettingsScreen::Raster);
    EXPECT_EQ(ScreenOfDisplayType("Other"), SettingsScreen::Other);
    EXPECT_FALSE(ScreenOfDisplayType("Raster, Raster"));
    EXPECT_EQ(ScreenCaption(SettingsScreen::LCD), "LCD Settings");

    EXPECT_EQ(CustomRestoreCaptions("N/A", true).button, "R&estore Raster Settings");
    EXPECT_EQ(CustomRestoreCaptions("Vector", true).link, "Restore Vector Settings");
    EXPECT_EQ(CustomRestoreCaptions("LCD", false).button, "R&estore MAME Defaults");
    EXPECT_EQ(CustomRestoreCaptions("Other", true).button, "R&estore Other Settings");
    EXPECT_EQ(CustomRestoreCaptions("Other", false).link, "Restore Other Defaults");
    EXPECT_EQ(ClassRestoreCaptions().link, "Restore MAME Defaults");
    EXPECT_EQ(RestoreClassProfile("LCD", "raster-ch"), "lcd");
    EXPECT_EQ(RestoreClassProfile("Other", "raster-ch"), "other");
    EXPECT_EQ(RestoreClassProfile("Raster", "raster-ch"), "raster-ch");
}

TEST(SettingsScreens, ShaderFoldersCannotBeTheRoot) {
    for (const char* root : {"/", "", "relative/folder"}) {
        const ShaderFolderChoice choice = CheckShaderFolder("HLSL", root);
        EXPECT_FALSE(choice.value) << root;
        ASSERT_TRUE(choice.refusal);
        EXPECT_EQ(choice.refusal->title, "HLSL Path");
        EXPECT_EQ(choice.refusal->text, "HLSL cannot reside in the root.  Please select a folder.");
        EXPECT_EQ(choice.refusal->icon, MessageIcon::Critical);
    }
    EXPECT_EQ(CheckShaderFolder("BGFX", "/opt/My BGFX").value, "/opt/My BGFX") << "case kept";
    EXPECT_EQ(GLSLShaderValue("/shaders/CRT.Geom.vsh"), "/shaders/CRT.Geom");
    EXPECT_EQ(GLSLShaderValue("/shaders/plain"), "/shaders/plain");
}

TEST(BiosChoices, AMachineOffersItsEntriesAfterTheDefault) {
    TempFolder folder;
    const auto biosIni = folder / "bios.ini";
    WriteFile(biosIni, "[BIOS]\r\nneogeo=Europe MVS (Ver. 2)> euro;;Japan> japan;;\r\n"
                       "odd=Default\r\n");
    EXPECT_EQ(MachineBiosChoices(biosIni, "NeoGeo").items,
              (Items{"Default", "Europe MVS (Ver. 2)> euro", "Japan> japan"}));
    EXPECT_EQ(MachineBiosChoices(biosIni, "pacman").items, (Items{"Default"}));
    EXPECT_EQ(MachineBiosChoices(biosIni, "odd").items, (Items{"Default"}));
    EXPECT_EQ(MachineBiosChoices(folder / "missing.ini", "neogeo").items, (Items{"Default"}));
    EXPECT_EQ(ClassBiosChoices().items, (Items{"Default"}));
    EXPECT_FALSE(MachineBiosChoices(biosIni, "neogeo").overflowLength);

    WriteFile(folder / "long.ini", "[BIOS]\r\nbig=" + std::string(5000, 'b') + "\r\n");
    const BiosChoices big = MachineBiosChoices(folder / "long.ini", "big");
    EXPECT_EQ(big.overflowLength, 5000u);
    EXPECT_EQ(big.items.at(1).size(), 4095u);
    const UserMessage report = BiosOverflowMessage(5000);
    EXPECT_EQ(report.title, "LoadcboBIOS");
    EXPECT_NE(report.text.find("Put Coinlight - Buffer Overflow(5000) in the Subject field."),
              std::string::npos);
}

TEST(BiosChoices, ClassProfilesAreKnownByTheirNames) {
    for (const char* name : {"raster.cfg", "vector-mv.cfg", "lcd.cfg", "other.cfg",
                             "rasterbomb.cfg", "OTHERWORLD.cfg"}) {
        EXPECT_TRUE(IsClassProfileFileName(name)) << name;
    }
    for (const char* name : {"pacman.cfg", "neogeo.cfg", "vec.cfg"}) {
        EXPECT_FALSE(IsClassProfileFileName(name)) << name;
    }
}

} // namespace
} // namespace coinlight
