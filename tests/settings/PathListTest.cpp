#include "settings/PathList.h"

#include <gtest/gtest.h>

#include "settings/StartBoxes.h"

namespace coinlight {
namespace {

using Paths = std::vector<std::string>;

TEST(CreateMultiplePathArray, SplitsAtSemicolonsAndWarnsAboutUnusableLists) {
    PathList list = CreateMultiplePathArray("/roms/arcade;/mnt/more roms;;/x");
    EXPECT_EQ(list.paths, (Paths{"/roms/arcade", "/mnt/more roms", "", "/x"}));
    EXPECT_EQ(list.warning, std::nullopt);
    EXPECT_EQ(CreateMultiplePathArray("/roms").paths, Paths{"/roms"});

    for (const char* unusable : {"/", "roms;/x", "C:\\ROMS"}) {
        list = CreateMultiplePathArray(unusable);
        ASSERT_TRUE(list.warning.has_value()) << unusable;
        EXPECT_EQ(list.warning->text, "Invalid path passed to CreateMultiplePathArray.\n" +
                                          std::string(unusable) + "\nPlease check your paths.");
        EXPECT_EQ(list.warning->title, "Coinlight");
        EXPECT_EQ(list.warning->icon, MessageIcon::Information);
        EXPECT_FALSE(list.paths.empty()); // split all the same
    }
    list = CreateMultiplePathArray("");
    EXPECT_TRUE(list.warning.has_value());
    EXPECT_TRUE(list.paths.empty());
}

TEST(StartBoxes, RecordAndPlaybackExcludeEachOtherAndAutoRunStaysOutOfMameIni) {
    StartBoxes boxes;
    boxes.autoSave = true;
    StartBoxClick click = ClickStartBox(boxes, StartBox::Record, true);
    EXPECT_TRUE(click.rewriteMameIni);
    EXPECT_TRUE(click.boxes.record);
    click = ClickStartBox(click.boxes, StartBox::Playback, true);
    EXPECT_TRUE(click.boxes.playback);
    EXPECT_FALSE(click.boxes.record);
    click = ClickStartBox(click.boxes, StartBox::Record, false);
    EXPECT_TRUE(click.boxes.playback); // unticking one leaves the other alone
    EXPECT_TRUE(click.rewriteMameIni);
    click = ClickStartBox(click.boxes, StartBox::AutoRun, true);
    EXPECT_FALSE(click.rewriteMameIni);
    EXPECT_TRUE(click.boxes.autoRun);
    click = ClickStartBox(click.boxes, StartBox::AutoSave, false);
    EXPECT_TRUE(click.rewriteMameIni);
    EXPECT_FALSE(click.boxes.autoSave);

    boxes = {true, true, false, true};
    EXPECT_EQ(AfterArcadeStart(boxes), (StartBoxes{true, false, false, true}));
}

} // namespace
} // namespace coinlight
