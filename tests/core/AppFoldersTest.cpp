#include "core/AppFolders.h"

#include <gtest/gtest.h>
#include <map>

#include "core/MarkerFlags.h"
#include "support/TestFiles.h"

namespace coinlight {
namespace {

using test::ReadFile;
using test::TempFolder;
using test::WriteFile;

EnvironmentLookup FakeEnvironment(std::map<std::string, std::string> values) {
    return [values](const char* name) -> std::optional<std::string> {
        const auto found = values.find(name);
        if (found == values.end()) {
            return std::nullopt;
        }
        return found->second;
    };
}

TEST(AppFolders, DataFolderFollowsPortableIdeAndXdgRules) {
    TempFolder folder;
    const auto app = folder / "app";
    std::filesystem::create_directories(app);
    const auto environment = FakeEnvironment({{"XDG_DATA_HOME", "/data"}, {"HOME", "/home/u"}});
    EXPECT_EQ(ResolveDataFolder(app, false, environment), "/data/Coinlight");
    EXPECT_EQ(ResolveDataFolder(app, true, environment), "/data/Coinlight - IDE");
    const auto noXdg = FakeEnvironment({{"HOME", "/home/u"}, {"XDG_DATA_HOME", "relative"}});
    EXPECT_EQ(ResolveDataFolder(app, false, noXdg), "/home/u/.local/share/Coinlight");
    WriteFile(app / "portable.txt", "");
    EXPECT_EQ(ResolveDataFolder(app, true, environment), app);
    EXPECT_TRUE(IsPortable(app));
}

TEST(AppFolders, IdeModeIsTheEnvironmentSwitch) {
    EXPECT_TRUE(IsIdeMode(FakeEnvironment({{"COINLIGHT_IDE", "1"}})));
    EXPECT_FALSE(IsIdeMode(FakeEnvironment({{"COINLIGHT_IDE", "yes"}})));
    EXPECT_FALSE(IsIdeMode(FakeEnvironment({})));
}

TEST(AppFolders, MakesTheFolderTreeAndReportsWhatStopsIt) {
    TempFolder folder;
    // On a new account even the parents of the data folder may be missing.
    const DataLayout layout{folder / "new home" / ".local" / "share" / "data with blanks $x"};
    EXPECT_FALSE(MakeFolderTree(layout));
    for (const auto& made :
         {layout.Settings(), layout.Output(), layout.Software(), layout.Temp()}) {
        EXPECT_TRUE(std::filesystem::is_directory(made)) << made;
    }
    EXPECT_FALSE(std::filesystem::exists(layout.Support())) << "support is not the program's";
    EXPECT_FALSE(MakeFolderTree(layout)) << "a second start finds everything in place";

    const DataLayout blocked{folder / "blocked"};
    WriteFile(blocked.root / "output", "a file where a folder should be");
    const auto problem = MakeFolderTree(blocked);
    ASSERT_TRUE(problem);
    EXPECT_NE(problem->find("output"), std::string::npos);
}

TEST(AppFolders, MigratesOldNamesAndRefusesToOverwrite) {
    TempFolder folder;
    const DataLayout layout{folder.Path()};
    ASSERT_FALSE(MakeFolderTree(layout));
    WriteFile(layout.Output() / "messfavs.txt", "favs");
    WriteFile(layout.Output() / "messchanges.txt", "changes");
    WriteFile(layout.Settings() / "mess.cfg", "cfg");
    WriteFile(layout.Support() / "other.txt", "obsolete");
    EXPECT_FALSE(MigrateOldNames(layout));
    EXPECT_EQ(ReadFile(layout.Output() / "otherfavs.txt"), "favs");
    EXPECT_EQ(ReadFile(layout.Output() / "otherfavschanges.txt"), "changes");
    EXPECT_EQ(ReadFile(layout.Settings() / "other.cfg"), "cfg");
    EXPECT_FALSE(std::filesystem::exists(layout.Support() / "other.txt"));
    EXPECT_FALSE(std::filesystem::exists(layout.Output() / "messfavs.txt"));

    WriteFile(layout.Output() / "messfavs.txt", "older favs");
    const auto problem = MigrateOldNames(layout);
    ASSERT_TRUE(problem);
    EXPECT_NE(problem->find("already exists"), std::string::npos);
    EXPECT_EQ(ReadFile(layout.Output() / "otherfavs.txt"), "favs") << "nothing is overwritten";
    EXPECT_EQ(ReadFile(layout.Output() / "messfavs.txt"), "older favs");
}

TEST(AppFolders, InstallsOnlyTheSupportFilesThatAreMissing) {
    TempFolder folder;
    const auto distribution = folder / "dist";
    WriteFile(distribution / "lists.txt", "shipped lists");
    WriteFile(distribution / "monochrome.ini", "shipped mono");
    const DataLayout layout{folder / "data"};
    WriteFile(layout.Support() / "lists.txt", "the user's own lists");
    EXPECT_EQ(InstallSupportFiles(distribution, layout), 1);
    EXPECT_EQ(ReadFile(layout.Support() / "lists.txt"), "the user's own lists");
    EXPECT_EQ(ReadFile(layout.Support() / "monochrome.ini"), "shipped mono");
    EXPECT_EQ(InstallSupportFiles(distribution, layout), 0);
    EXPECT_EQ(InstallSupportFiles(folder / "nowhere", layout), 0);
}

TEST(MarkerFlags, PresenceSetsFlagsAndNoStretchGivesItsRectangle) {
    TempFolder folder;
    const DataLayout layout{folder.Path()};
    ASSERT_FALSE(MakeFolderTree(layout));
    MarkerFlags flags = ReadMarkerFlags(layout);
    EXPECT_FALSE(flags.skipNews || flags.noScroll || flags.noStretch || flags.skipSearch ||
                 flags.allowMany);

    for (const char* marker :
         {"!skipnews.txt", "!noscroll.txt", "!skipsearch.txt", "!allowmany.txt"}) {
        WriteFile(layout.Marker(marker), "");
    }
    WriteFile(layout.Marker("!nostretch.ini"), "[Position]\r\nLeft=100\r\n[Size]\r\nWidth=abc\r\n");
    flags = ReadMarkerFlags(layout);
    EXPECT_TRUE(flags.skipNews && flags.noScroll && flags.noStretch && flags.skipSearch &&
                flags.allowMany);
    EXPECT_EQ(flags.picturePlace.left, 100);
    EXPECT_EQ(flags.picturePlace.top, 285);
    EXPECT_EQ(flags.picturePlace.height, 4760);
    EXPECT_EQ(flags.picturePlace.width, 4760) << "a bad number keeps the default";
}

TEST(MarkerFlags, HideMarkersNameColumnsFromTwoToTheLast) {
    TempFolder folder;
    const DataLayout layout{folder.Path()};
    for (const char* marker : {"!hide1.txt", "!hide2.txt", "!hide7.txt", "!hide30.txt"}) {
        WriteFile(layout.Marker(marker), "");
    }
    EXPECT_EQ(HiddenColumns(layout, 24), (std::set<int>{2, 7}));
}

} // namespace
} // namespace coinlight
