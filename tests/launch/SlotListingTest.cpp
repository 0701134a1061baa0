#include "launch/SlotListing.h"

#include <gtest/gtest.h>

#include "core/CommandLine.h"
#include "support/TestFiles.h"

namespace coinlight {
namespace {

using test::ReadFile;
using test::TempFolder;
using test::WriteFile;

struct SlotSetup {
    TempFolder folder;
    DataLayout data{folder / "Coin $Data"};
    test::FakeMame mame = test::InstallFakeMame(folder / "My MAME");
    Preferences preferences;

    SlotSetup() {
        preferences.mame.executable = mame.executable;
        preferences.searchPaths.mame = mame.folder.string();
    }
    SlotListing List(std::string_view machine) {
        return ListSlots(preferences, data, machine, [] { return true; });
    }
    std::size_t Runs() const {
        const std::string launches = ReadFile(mame.Launches());
        return static_cast<std::size_t>(std::count(launches.begin(), launches.end(), '\n'));
    }
};

TEST(SlotListing, TheCommandQuotesItsPathsAndNamesNoIniFolder) {
    SlotSetup setup;
    EXPECT_EQ(SlotListingCommand(setup.preferences, setup.data, "a2600"),
              QuotePath(setup.mame.folder.string() + "/mame") + " a2600 -listslots > " +
                  QuotePath((setup.data.Temp() / "a2600_slots.txt").string()));
    EXPECT_EQ(SlotListingCommand(setup.preferences, setup.data, "a2600;ls"), std::nullopt);
}

TEST(SlotListing, MameIsAskedOnceAndTheListingKept) {
    SlotSetup setup;
    const SlotListing first = setup.List("a2600");
    EXPECT_TRUE(first.ranMame);
    EXPECT_NE(first.text.find("joyport1"), std::string::npos) << first.text;
    EXPECT_EQ(ReadFile(setup.data.Temp() / "a2600_slots.txt"), first.text);
    const SlotListing second = setup.List("a2600");
    EXPECT_FALSE(second.ranMame);
    EXPECT_EQ(second.text, first.text);
    EXPECT_EQ(setup.Runs(), 1u);
}

TEST(SlotListing, AnEmptyListingIsAskedForAgainAndBadNamesNever) {
    SlotSetup setup;
    WriteFile(setup.data.Temp() / "a2600_slots.txt", "");
    EXPECT_TRUE(setup.List("a2600").ranMame) << "an empty file is what a failed run leaves";
    const SlotListing refused = setup.List("a2600 `reboot`");
    EXPECT_FALSE(refused.ranMame);
    EXPECT_FALSE(refused.refusal.empty());
    EXPECT_EQ(setup.Runs(), 1u);
}

} // namespace
} // namespace coinlight
