#include "settings/MameIniPreview.h"

#include <gtest/gtest.h>

#include "settings/BuildIni.h"
#include "support/TestFiles.h"

namespace coinlight {
namespace {

using test::TempFolder;
using test::WriteFile;

constexpr const char* kIncomplete = "The mame.ini is incomplete because";
constexpr const char* kOtherCommands = "The following other commands will run as command-line "
                                       "options and override settings in the ini(s): \n";

Preferences WithIni(const std::filesystem::path& folder) {
    Preferences preferences;
    preferences.searchPaths.ini = folder.string();
    return preferences;
}

TEST(MameIniPreview, ABaseTextAloneIsCalledIncomplete) {
    TempFolder folder;
    const Preferences preferences = WithIni(folder.Path());
    ASSERT_EQ(CreateMAMEIni(preferences, {}), std::nullopt);
    const MameIniPreview preview = PreviewMameIni(preferences, "");
    EXPECT_EQ(preview.caption, "MAME.Ini");
    EXPECT_EQ(preview.text.rfind(std::string(kIncomplete), 0), 0u);
    EXPECT_NE(preview.text.find("will be used.\n\n#\n# CORE CONFIGURATION OPTIONS\n"),
              std::string::npos);
    EXPECT_EQ(preview.text.find('\r'), std::string::npos);

    // 99 lines are still short of a profile, 100 are not.
    std::string lines;
    std::string shown;
    for (int line = 0; line < 99; ++line) {
        lines += "x\r\n";
        shown += "x\n";
    }
    WriteFile(folder / "mame.ini", lines);
    EXPECT_NE(PreviewMameIni(preferences, "").text.find(kIncomplete), std::string::npos);
    WriteFile(folder / "mame.ini", lines + "x\r\n");
    EXPECT_EQ(PreviewMameIni(preferences, "").text, shown + "x\n");
}

TEST(MameIniPreview, StrayIniFilesAndOtherCommandsAreNotedBeforeTheFile) {
    TempFolder folder;
    const Preferences preferences = WithIni(folder.Path());
    WriteFile(folder / "pacman.cfg", "[Core Performance Options]\r\nSpeed=120%\r\n");
    ASSERT_EQ(BuildIni(preferences, {}, folder / "pacman.cfg").failure, std::nullopt);
    WriteFile(folder / "vertical.ini", "");
    WriteFile(folder / "notes.INI", ""); // MAME reads only lower-case names
    std::filesystem::create_directories(folder / "folder.ini");

    const MameIniPreview preview = PreviewMameIni(preferences, "-joystick_map 4");
    const std::string expectedNote =
        "There are 2 .ini files.  Settings in other .ini files (such as vertical.ini) will "
        "override settings in the mame.ini.  You should remove any .ini files from your Ini "
        "folder.  Coinlight will handle the .ini file.\n\n" +
        std::string(kOtherCommands) + "-joystick_map 4\n\n#\n# CORE CONFIGURATION OPTIONS\n";
    EXPECT_EQ(preview.text.rfind(expectedNote, 0), 0u) << preview.text.substr(0, 400);
    EXPECT_NE(preview.text.find("speed\t1.20\n"), std::string::npos);
}

TEST(StrayIniWarning, WarnsOnlyWhenMoreThanMameIniIsThere) {
    TempFolder folder;
    EXPECT_EQ(StrayIniWarning(folder / "missing"), std::nullopt);
    WriteFile(folder / "mame.ini", "");
    EXPECT_EQ(StrayIniWarning(folder.Path()), std::nullopt);
    WriteFile(folder / "vertical.ini", "");
    WriteFile(folder / "horizont.ini", "");
    const auto warning = StrayIniWarning(folder.Path());
    ASSERT_TRUE(warning.has_value());
    EXPECT_EQ(warning->title, "Warning: Multiple Ini Files Found");
    EXPECT_EQ(warning->icon, MessageIcon::Warning);
    EXPECT_EQ(warning->text.rfind("There are 3 .ini files.  Settings", 0), 0u);
}

} // namespace
} // namespace coinlight
