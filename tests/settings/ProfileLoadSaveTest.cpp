#include <gtest/gtest.h>

#include "core/ProfileFile.h"
#include "settings/ComboChoices.h"
#include "settings/OptionCatalogue.h"
#include "settings/ProfileLoad.h"
#include "settings/ProfileSave.h"
#include "support/TestFiles.h"

namespace coinlight {
namespace {

using test::ReadFile;
using test::TempFolder;
using test::WriteFile;

std::size_t Row(std::string_view control) {
    return RowOfControl(control);
}

ComboChoices Choices() {
    ComboSources sources;
    sources.processors = 2;
    sources.fonts = {"DejaVu Sans"};
    return ComboChoices(sources);
}

/// A value other than the default that the row's control takes and that a save keeps.
std::string OtherValue(std::size_t row, const ComboChoices& choices) {
    const OptionRow& option = OptionCatalogue()[row];
    switch (option.kind) {
    case OptionKind::Check:
        return option.defaultValue == "1" ? "0" : "1";
    case OptionKind::Combo:
        for (const auto& item : choices.Items(row)) {
            if (item != option.defaultValue) {
                return item;
            }
        }
        return std::string(option.defaultValue); // a list with one item (the BIOS of a class)
    case OptionKind::Text:
        break;
    }
    return "value " + std::to_string(row);
}

TEST(ProfileLoadSave, EveryRowComesBackAsSavedInCatalogueOrder) {
    TempFolder folder;
    const auto profile = folder / "raster.cfg";
    const ComboChoices choices = Choices();
    OptionValues values;
    for (std::size_t row = 0; row < values.size(); ++row) {
        values[row] = OtherValue(row, choices);
    }
    OptionValues saved = values;
    std::string error;
    ASSERT_TRUE(SaveProfileValues(profile, saved, &error)) << error;
    EXPECT_EQ(saved, values) << "nothing here needs cleaning";

    const LoadedProfile loaded = LoadProfileValues(profile, choices);
    EXPECT_TRUE(loaded.refused.empty());
    for (std::size_t row = 0; row < values.size(); ++row) {
        EXPECT_EQ(loaded.values[row], values[row]) << OptionCatalogue()[row].key;
    }
    const std::string text = ReadFile(profile);
    EXPECT_TRUE(text.starts_with("[Core Performance Options]\r\nFrame Skip=Auto\r\n"));
    EXPECT_TRUE(text.ends_with("\r\n\r\n[Miscellaneous]\r\nOther Commands=value 208\r\n"));
    EXPECT_LT(text.find("Sleep="), text.find("Speed=")) << "keys in catalogue order";
}

TEST(ProfileLoadSave, ARefusedDropDownValueGivesTheDefaultAMessageAndLeavesTheFile) {
    TempFolder folder;
    const auto profile = folder / "raster.cfg";
    const std::string bytes = "[Core Performance Options]\r\nFrame Skip=13 Of 12\r\nSpeed=150%\r\n"
                              "[Core Misc Options]\r\nBIOS=Japan> jp\r\n";
    WriteFile(profile, bytes);
    const LoadedProfile loaded = LoadProfileValues(profile, Choices());
    ASSERT_EQ(loaded.refused, (std::vector<std::size_t>{Row("cboFrameSkip"), Row("cboBIOS")}));
    EXPECT_EQ(loaded.values[Row("cboFrameSkip")], "None");
    EXPECT_EQ(loaded.values[Row("cboSpeed")], "150%");
    EXPECT_EQ(loaded.values[Row("cboBIOS")], "Default");
    EXPECT_EQ(ReadFile(profile), bytes) << "only OK or a rebuild writes the file";

    const UserMessage message = RefusalMessage(Row("cboFrameSkip"), "Raster Settings");
    EXPECT_EQ(message.title, "Raster Settings");
    EXPECT_EQ(message.icon, MessageIcon::Information);
    EXPECT_EQ(message.text, "Error loading Frame Skip.  The MAME default value \"None\" will be "
                            "used.\nYou should run Rebuild Settings from the Tools pull-down "
                            "menu above to correct this problem.");
    // The BIOS list changes from machine to machine: a rebuild would not help.
    const UserMessage bios = RefusalMessage(Row("cboBIOS"), "Custom Settings");
    EXPECT_EQ(bios.title, "Coinlight");
    EXPECT_EQ(bios.icon, MessageIcon::None);
    EXPECT_NE(bios.text.find("BIOS options are different with this machine."), std::string::npos);
    EXPECT_EQ(bios.text.find("Rebuild"), std::string::npos);
}

TEST(ProfileLoadSave, ACheckBoxTakesNumbersOnly) {
    const ComboChoices choices;
    const std::size_t throttle = Row("chkThrottle");
    for (const char* number : {"1", "0", " 1 ", "+1", "0.0", "-1", "2", "0.4"}) {
        EXPECT_TRUE(ControlAccepts(throttle, number, choices)) << number;
    }
    for (const char* garbage : {"yes", "", "1x", "True", "1e3", "40000", "nan", "inf"}) {
        EXPECT_FALSE(ControlAccepts(throttle, garbage, choices)) << garbage;
    }
    EXPECT_EQ(ShownValue(throttle, "0.4"), "0") << "rounded as an integer conversion rounds";
    EXPECT_EQ(ShownValue(throttle, "-1"), "1");
    EXPECT_EQ(CheckNumber("2.5"), 2) << "halves go to even";
    EXPECT_TRUE(ControlAccepts(Row("txtHLSL(3)"), "anything at all", choices));
    EXPECT_FALSE(ControlAccepts(Row("cboSpeed"), "100%", choices)) << "an empty list takes nothing";
}

TEST(ProfileLoadSave, SavingCleansEmptyBoxesAndLowersWhatMameReadsWithoutCase) {
    TempFolder folder;
    OptionValues values;
    values[Row("txtAspect(2)")] = "";
    values[Row("txtIntScaleX")] = "";
    values[Row("txtGLSL(3)")] = "";
    values[Row("cboResolutions")] = "";
    values[Row("txtOtherCommands")] = "-JoyMap Upper";
    values[Row("txtHLSL(20)")] = "1.0E0";
    values[Row("txtHLSL(5)")] = "Shadow-Mask.PNG";
    values[Row("txtBGFX(0)")] = "/Home/Me/BGFX";
    values[Row("txtBGFX(4)")] = "Movie";
    values[Row("txtPluginEnable")] = "HiScore";
    ASSERT_TRUE(SaveProfileValues(folder / "lcd.cfg", values));
    EXPECT_EQ(values[Row("txtAspect(2)")], "Auto");
    EXPECT_EQ(values[Row("txtIntScaleX")], "0");
    EXPECT_EQ(values[Row("txtGLSL(3)")], "None");
    EXPECT_EQ(values[Row("cboResolutions")], "Auto");
    EXPECT_EQ(values[Row("txtOtherCommands")], "-joymap upper");
    EXPECT_EQ(values[Row("txtHLSL(20)")], "1.0e0");
    EXPECT_EQ(values[Row("txtPluginEnable")], "hiscore");
    // Paths and file names keep their case: the file system does not ignore it.
    EXPECT_EQ(values[Row("txtHLSL(5)")], "Shadow-Mask.PNG");
    EXPECT_EQ(values[Row("txtBGFX(0)")], "/Home/Me/BGFX");
    EXPECT_EQ(values[Row("txtBGFX(4)")], "Movie");

    const LoadedProfile loaded = LoadProfileValues(folder / "lcd.cfg", ComboChoices());
    EXPECT_EQ(loaded.values[Row("txtAspect(2)")], "Auto");
    EXPECT_EQ(loaded.values[Row("txtOtherCommands")], "-joymap upper");
}

TEST(ProfileLoadSave, DefaultsWholeOrByGroupAndTheTestForThem) {
    OptionValues values;
    EXPECT_TRUE(SettingsAreDefault(values));
    values[Row("txtOtherCommands")] = "-nofilter";
    EXPECT_FALSE(SettingsAreDefault(values)) << "the last key counts too";
    values[Row("chkHLSL")] = "1";
    values[Row("txtHLSL(46)")] = "1";
    values[Row("chkYIQ")] = "1";
    values[Row("txtBloomPost(13)")] = "x.png";
    SetDefaults(values, DefaultsGroup::HLSL);
    EXPECT_EQ(values[Row("chkHLSL")], "0");
    EXPECT_EQ(values[Row("txtHLSL(46)")], "0.2126,0.7152,0.0722");
    EXPECT_EQ(values[Row("chkYIQ")], "1") << "another group";
    SetDefaults(values, DefaultsGroup::Bloom);
    EXPECT_EQ(values[Row("txtBloomPost(13)")], "lut-default.png");
    SetDefaults(values);
    EXPECT_TRUE(SettingsAreDefault(values));
}

TEST(ProfileLoadSave, BadFilesLoadWhatTheyCanAndNeverMore) {
    TempFolder folder;
    const ComboChoices choices = Choices();
    // Garbage lines around real keys; a value longer than a read holds.
    WriteFile(folder / "garbage.cfg",
              "\x01\x02junk\r\n=no key\r\n[Core Sound Options\r\nVolume=-3dB\r\n[Core Input "
              "Options]\r\nJoystick=banana\r\nMouse=1\r\n;Mouse=0\r\n[Miscellaneous]\r\nOther "
              "Commands=" +
                  std::string(5000, 'x') + "\r\n");
    const LoadedProfile garbage = LoadProfileValues(folder / "garbage.cfg", choices);
    EXPECT_EQ(garbage.values[Row("cboVolume")], "-3dB") << "a header lacking its bracket counts";
    EXPECT_EQ(garbage.values[Row("chkMouse")], "1");
    EXPECT_EQ(garbage.values[Row("chkJoystick")], "1");
    EXPECT_EQ(garbage.refused, (std::vector<std::size_t>{Row("chkJoystick")}));
    EXPECT_EQ(garbage.values[Row("txtOtherCommands")].size(), kProfileValueLimit);

    std::string binary;
    for (int i = 0; i < 4096; ++i) {
        binary.push_back(static_cast<char>((i * 7919) % 256));
    }
    WriteFile(folder / "binary.cfg", binary);
    const LoadedProfile fromBinary = LoadProfileValues(folder / "binary.cfg", choices);
    EXPECT_EQ(fromBinary.values, OptionValues());
    EXPECT_TRUE(fromBinary.refused.empty());

    const LoadedProfile missing = LoadProfileValues(folder / "none.cfg", choices);
    EXPECT_EQ(missing.values, OptionValues());
    EXPECT_TRUE(missing.refused.empty()) << "a missing file says nothing";
}

} // namespace
} // namespace coinlight
