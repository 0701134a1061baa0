#include "lists/ListFilters.h"

#include <gtest/gtest.h>

#include "RecordBuilder.h"

namespace coinlight {
namespace {

using test::Record;
using test::Views;

bool Hides(MachineFilter& filter, const std::array<std::string, kRecordFieldCount>& record) {
    return filter.Hides(Views(record));
}

TEST(ListFilters, BiosFilterHidesWholeChainsInFileOrder) {
    Preferences preferences;
    preferences.biosFilter = {{"Neo-Geo MV-6F: NeoGeo", true}};
    MachineFilter filter(ListFilterSettings::ForArcade(preferences));
    EXPECT_FALSE(Hides(filter, Record("neogeo"))) << "the BIOS set itself names no BIOS";
    EXPECT_TRUE(Hides(filter, Record("mslug", {{ColRomOf, "neogeo"}}))) << "case is ignored";
    EXPECT_TRUE(Hides(filter, Record("mslugb", {{ColRomOf, "mslug"}})))
        << "a machine whose parent went goes too";
    EXPECT_FALSE(Hides(filter, Record("pacman", {{ColRomOf, "puckman"}})));
    MachineFilter fresh(ListFilterSettings::ForArcade(preferences));
    EXPECT_FALSE(Hides(fresh, Record("mslugb", {{ColRomOf, "mslug"}})))
        << "a chain only reaches machines that come after it";
}

TEST(ListFilters, CategoryFilterIgnoresCaseAndMachinesWithoutCatver) {
    Preferences preferences;
    preferences.categoryFilter = {{"Casino / Cards", true}};
    MachineFilter filter(ListFilterSettings::ForArcade(preferences));
    EXPECT_TRUE(Hides(filter, Record("poker", {{ColCategory, "CASINO / CARDS"}})));
    EXPECT_FALSE(Hides(filter, Record("shoot")));
    preferences.categoryFilter = {{"Catver.ini Not Found", true}};
    MachineFilter noCatver(ListFilterSettings::ForArcade(preferences));
    EXPECT_FALSE(Hides(noCatver, Record("any", {{ColCategory, "Catver.ini Not Found"}})));
}

TEST(ListFilters, EachHideSwitchDropsItsMachines) {
    Preferences preferences;
    OtherPreferences& o = preferences.other;
    o.hideArcadeClones = o.hidePreliminary = o.hideVs = o.hideBootleg = o.hideChd = true;
    o.hideImperfect = true;
    MachineFilter filter(ListFilterSettings::ForArcade(preferences));
    EXPECT_TRUE(Hides(filter, Record("c", {{ColSetType, "Clone of pacman"}})));
    EXPECT_TRUE(Hides(filter, Record("p", {{ColDriver, "Preliminary"}})));
    EXPECT_TRUE(Hides(filter, Record("v", {{ColMachine, "VS. Super Mario Bros."}})));
    EXPECT_TRUE(Hides(filter, Record("w", {{ColMachine, "Vsomething"}})));
    EXPECT_TRUE(Hides(filter, Record("b", {{ColManufacturer, "bootleg (Alpha)"}})));
    EXPECT_FALSE(Hides(filter, Record("b2", {{ColManufacturer, "Bootleg"}}))) << "case counts";
    EXPECT_TRUE(Hides(filter, Record("d", {{ColChdRequired, "Yes"}})));
    EXPECT_TRUE(Hides(filter, Record("i", {{ColDriver, "Imperfect"}})));
    EXPECT_FALSE(Hides(filter, Record("ok")));
}

TEST(ListFilters, YearFilterDropsOddYearsAndLaterOnes) {
    Preferences preferences;
    preferences.other.hideYear = true;
    preferences.other.year = "1985";
    MachineFilter filter(ListFilterSettings::ForArcade(preferences));
    EXPECT_FALSE(Hides(filter, Record("a", {{ColYear, "1985"}})));
    EXPECT_TRUE(Hides(filter, Record("b", {{ColYear, "1986"}})));
    EXPECT_TRUE(Hides(filter, Record("c", {{ColYear, "198?"}})));
    EXPECT_TRUE(Hides(filter, Record("d", {{ColYear, "Unknown"}})));
    preferences.other.year.clear();
    MachineFilter emptyYear(ListFilterSettings::ForArcade(preferences));
    EXPECT_TRUE(Hides(emptyYear, Record("e", {{ColYear, "1970"}})))
        << "every year sorts after an empty text";
}

TEST(ListFilters, OtherMachinesKnowOnlyTheirOwnSwitches) {
    Preferences preferences;
    OtherPreferences& o = preferences.other;
    o.hideArcadeClones = o.hidePreliminary = o.hideYear = o.hideVs = true;
    MachineFilter lenient(ListFilterSettings::ForOther(preferences));
    EXPECT_FALSE(Hides(lenient, Record("c", {{ColSetType, "Clone of a500"}, {ColYear, "19??"}})));
    o.hideOtherClones = true;
    MachineFilter strict(ListFilterSettings::ForOther(preferences));
    EXPECT_TRUE(Hides(strict, Record("c", {{ColSetType, "Clone of a500"}})));
}

} // namespace
} // namespace coinlight
