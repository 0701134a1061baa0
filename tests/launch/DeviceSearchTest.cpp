#include "launch/DeviceSearch.h"

#include <gtest/gtest.h>

#include "launch/SoftwareArgs.h"

namespace coinlight {
namespace {

TEST(FindDeviceSwitch, TakesTheFirstDeviceHoldingThePartWholeOrCut) {
    EXPECT_EQ(FindDeviceSwitch({"cass", "flop1", "flop2"}, "Flop1", false), "flop1");
    EXPECT_EQ(FindDeviceSwitch({"cass", "flop2", "flop1"}, "Flop1", false), "flop2")
        << "the cut \"flop\" finds the second drive first";
    EXPECT_EQ(FindDeviceSwitch({"cart"}, "Cart", false), "cart");
    EXPECT_EQ(FindDeviceSwitch({"cart1", "cart2"}, "Cart", false), "cart1");
    EXPECT_EQ(FindDeviceSwitch({"cass1", "cass2"}, "Cass1", false), "cass1");
    EXPECT_EQ(FindDeviceSwitch({"cass", "cart"}, "Flop", false), std::nullopt);
    EXPECT_EQ(FindDeviceSwitch({}, "Cart", false), std::nullopt);
}

TEST(FindDeviceSwitch, LowersThePartButNotTheDeviceTextItSearches) {
    EXPECT_EQ(FindDeviceSwitch({"CART", "cart2"}, "Cart", false), "cart2");
    EXPECT_EQ(FindDeviceSwitch({"XCart1"}, "cart", false), std::nullopt);
    EXPECT_EQ(FindDeviceSwitch({"xcart1"}, "CART", false), "xcart1");
}

TEST(FindDeviceSwitch, OneLetterPartsTakeTheFirstRealDevice) {
    EXPECT_EQ(FindDeviceSwitch({"", "cass", "flop"}, "A", false), "cass")
        << "an empty device text holds nothing to start with";
    EXPECT_EQ(FindDeviceSwitch({""}, "A", false), std::nullopt);
    EXPECT_EQ(FindDeviceSwitch({"Quik"}, "", false), "quik") << "the result is lowered";
}

TEST(FindDeviceSwitch, ADiskTitleIsACdWhateverTheDevices) {
    EXPECT_EQ(FindDeviceSwitch({"cart"}, "Cart", true), "cdrm");
    EXPECT_EQ(FindDeviceSwitch({}, "", true), "cdrm");
}

TEST(SoftwareArgs, RequirementSwitchAndBareNameForms) {
    EXPECT_EQ(ComposeSoftwareArgs("N/A", "cart", "pitfall"), "-cart pitfall");
    EXPECT_EQ(ComposeSoftwareArgs("N/A", "", "pitfall"), " pitfall")
        << "with no switch MAME looks the name up itself";
    EXPECT_EQ(ComposeSoftwareArgs("x1_flop:tapbas", "flop1", "game"), "x1_flop:tapbas -flop1 game");
    EXPECT_EQ(ComposeSoftwareArgs("scharger", "flop1", "game"), "scharger -cass game");
    EXPECT_EQ(ComposeSoftwareArgs("scharger", "", "game"), "scharger -cass game");
}

TEST(SoftwareArgs, NamesThatAreNotMamesOwnNeverReachTheLine) {
    const SoftwareTitle good{"Cart", "pitfall", "N/A", "N/A"};
    EXPECT_EQ(RefuseSoftwareNames(good, "cart"), std::nullopt);
    EXPECT_EQ(RefuseSoftwareNames(good, ""), std::nullopt);
    EXPECT_EQ(RefuseSoftwareNames({"Flop", "game", "x1_flop:tapbas", "N/A"}, "flop1"),
              std::nullopt);
    for (const char* name : {"pit;fall", "pit fall", "$(reboot)", "Pitfall", "`id`", ""}) {
        const auto refused = RefuseSoftwareNames({"Cart", name, "N/A", "N/A"}, "cart");
        ASSERT_TRUE(refused.has_value()) << name;
        EXPECT_NE(refused->find("short name of a software title"), std::string::npos);
    }
    EXPECT_TRUE(RefuseSoftwareNames(good, "ca rt").has_value());
    EXPECT_TRUE(RefuseSoftwareNames(good, "cart:1").has_value()) << "a switch holds no colon";
    EXPECT_TRUE(RefuseSoftwareNames({"Cart", "game", "a;b", "N/A"}, "cart").has_value());
    EXPECT_TRUE(RefuseSoftwareNames({"Cart", "game", "", "N/A"}, "cart").has_value());
}

} // namespace
} // namespace coinlight
