#include "ui/menu/MenuRules.h"

#include <gtest/gtest.h>
#include <map>
#include <optional>
#include <set>
#include <string>

#include "ui/menu/MenuTable.h"

namespace coinlight {
namespace {

constexpr int kMain = 0;
constexpr int kView = 1;
constexpr int kTools = 2;
constexpr int kReports = 3;
constexpr int kHelp = 4;

// An arcade list on show with a startable machine selected and every command available.
MenuFacts ArcadeFacts() {
    MenuFacts facts;
    facts.view = "All Arcade Machines";
    facts.machineSelected = true;
    facts.startEnabled = true;
    facts.auditEnabled = true;
    facts.infoEnabled = true;
    facts.listHasRows = true;
    return facts;
}

MenuFacts OtherFacts() {
    MenuFacts facts = ArcadeFacts();
    facts.inOtherView = true;
    facts.view = "Other Machines";
    return facts;
}

std::optional<bool> StateOf(int linkIndex, const MenuFacts& facts, std::string_view name) {
    for (const MenuEntryState& state : MenuStates(linkIndex, facts)) {
        if (state.name == name) {
            return state.enabled;
        }
    }
    return std::nullopt;
}

bool Enabled(int linkIndex, const MenuFacts& facts, std::string_view name) {
    const auto state = StateOf(linkIndex, facts, name);
    EXPECT_TRUE(state.has_value()) << name << " is not named by menu " << linkIndex;
    return state.value_or(false);
}

TEST(MenuRulesTable, EveryNamedEntryBelongsToTheMenuOfItsLink) {
    // A misspelt name would leave the real entry enabled whatever the facts say.
    std::map<std::string, std::string> menuOfEntry;
    std::map<std::string, std::string> menuOfSubMenu;
    for (const MenuEntryDefinition& entry : MenuEntries()) {
        menuOfEntry[std::string(entry.name)] = entry.menu;
        if (!entry.subMenu.empty()) {
            menuOfSubMenu[std::string(entry.subMenu)] = entry.menu;
        }
    }
    for (const MenuDefinition& menu : Menus()) {
        if (menu.linkIndex < 0) {
            continue;
        }
        std::set<std::string_view> seen;
        for (const MenuEntryState& state : MenuStates(menu.linkIndex, ArcadeFacts())) {
            const std::string name(state.name);
            EXPECT_TRUE(seen.insert(state.name).second) << name << " named twice";
            const auto entry = menuOfEntry.find(name);
            const auto sub = menuOfSubMenu.find(name);
            ASSERT_TRUE(entry != menuOfEntry.end() || sub != menuOfSubMenu.end())
                << name << " is neither an entry nor a sub-menu";
            const std::string& owner = entry != menuOfEntry.end() ? entry->second : sub->second;
            EXPECT_EQ(owner, menu.name) << name;
        }
    }
}

TEST(MenuRulesTable, HelpMenuAndUnknownLinksNameNothing) {
    MenuFacts facts = ArcadeFacts();
    facts.pageOverLists = true;
    EXPECT_TRUE(MenuStates(kHelp, facts).empty());
    EXPECT_TRUE(MenuStates(-1, facts).empty());
    EXPECT_TRUE(MenuStates(5, facts).empty());
}

TEST(MenuRulesPage, PageOverListsDisablesEverythingButExit) {
    MenuFacts facts = OtherFacts();
    facts.softwareRows = true;
    facts.unlistedReport = true;
    facts.pageOverLists = true;
    for (int link : {kMain, kView, kTools, kReports}) {
        const auto states = MenuStates(link, facts);
        EXPECT_FALSE(states.empty());
        for (const MenuEntryState& state : states) {
            EXPECT_EQ(state.enabled, state.name == "mnuMainExit") << state.name;
        }
    }
    facts.inOtherView = false;
    for (const MenuEntryState& state : MenuStates(kTools, facts)) {
        EXPECT_FALSE(state.enabled) << state.name;
    }
}

TEST(MenuRulesMain, FollowsTheListsOwnCommands) {
    MenuFacts facts = ArcadeFacts();
    EXPECT_TRUE(Enabled(kMain, facts, "mnuMainPlay"));
    EXPECT_TRUE(Enabled(kMain, facts, "mnuMainExport"));
    facts.startEnabled = false;
    facts.listHasRows = false;
    EXPECT_FALSE(Enabled(kMain, facts, "mnuMainPlay"));
    EXPECT_TRUE(Enabled(kMain, facts, "mnuMainAudit"));
    EXPECT_TRUE(Enabled(kMain, facts, "mnuMainInfo"));
    EXPECT_FALSE(Enabled(kMain, facts, "mnuMainExport"));
    facts.auditEnabled = false;
    facts.infoEnabled = false;
    EXPECT_FALSE(Enabled(kMain, facts, "mnuMainAudit"));
    EXPECT_FALSE(Enabled(kMain, facts, "mnuMainInfo"));
    EXPECT_TRUE(Enabled(kMain, facts, "mnuMainExit"));
}

TEST(MenuRulesView, ArcadeAndOtherViewsEnableTheirOwnEntries) {
    const MenuFacts arcade = ArcadeFacts();
    EXPECT_TRUE(Enabled(kView, arcade, "mnuViewArcadeFavorites"));
    EXPECT_TRUE(Enabled(kView, arcade, "mnuViewOtherMachines"));
    EXPECT_TRUE(Enabled(kTools, arcade, "mnuToolsArcade"));
    EXPECT_TRUE(Enabled(kTools, arcade, "mnuToolsLCD"));
    EXPECT_FALSE(Enabled(kTools, arcade, "mnuToolsOther"));
    EXPECT_TRUE(Enabled(kReports, arcade, "mnuReportsSamples"));
    EXPECT_TRUE(Enabled(kReports, arcade, "mnuReportsFavoriteArcadeChanges"));
    EXPECT_FALSE(Enabled(kReports, arcade, "mnuReportsFavoriteOtherChanges"));
    EXPECT_FALSE(Enabled(kReports, arcade, "mnuReportsLastMachinesSoftware"));

    const MenuFacts other = OtherFacts();
    EXPECT_FALSE(Enabled(kView, other, "mnuViewArcadeFavorites"));
    EXPECT_TRUE(Enabled(kView, other, "mnuViewOtherFavorites"));
    EXPECT_FALSE(Enabled(kTools, other, "mnuToolsArcade"));
    EXPECT_FALSE(Enabled(kTools, other, "mnuToolsLCD"));
    EXPECT_TRUE(Enabled(kTools, other, "mnuToolsOther"));
    EXPECT_FALSE(Enabled(kReports, other, "mnuReportsSamples"));
    EXPECT_FALSE(Enabled(kReports, other, "mnuReportsFavoriteArcadeChanges"));
    EXPECT_TRUE(Enabled(kReports, other, "mnuReportsFavoriteOtherChanges"));
    EXPECT_TRUE(Enabled(kReports, other, "mnuReportsLastMachinesSoftware"));
}

TEST(MenuRulesView, NoOtherRomsDropsOtherEntriesOnlyInAnArcadeView) {
    MenuFacts arcade = ArcadeFacts();
    EXPECT_FALSE(DropsOtherFavourites(arcade));
    arcade.otherRomsEmpty = true;
    EXPECT_TRUE(DropsOtherFavourites(arcade));
    EXPECT_FALSE(Enabled(kView, arcade, "mnuViewOtherMachines"));
    EXPECT_FALSE(Enabled(kView, arcade, "mnuViewOtherFavorites"));
    EXPECT_TRUE(Enabled(kView, arcade, "mnuViewAll"));

    // Already in the other list: the way back to it stays open.
    MenuFacts other = OtherFacts();
    other.otherRomsEmpty = true;
    EXPECT_FALSE(DropsOtherFavourites(other));
    EXPECT_TRUE(Enabled(kView, other, "mnuViewOtherMachines"));
    EXPECT_TRUE(Enabled(kView, other, "mnuViewOtherFavorites"));
}

TEST(MenuRulesReports, SoftwareEntriesNeedSoftwareRowsInTheOtherView) {
    MenuFacts facts = OtherFacts();
    EXPECT_FALSE(Enabled(kReports, facts, "mnuReportsSoftware"));
    EXPECT_FALSE(Enabled(kReports, facts, "mnuReportsVerifyMachinesSoftware"));
    facts.softwareRows = true;
    EXPECT_TRUE(Enabled(kReports, facts, "mnuReportsSoftware"));
    EXPECT_TRUE(Enabled(kReports, facts, "mnuReportsVerifyMachinesSoftware"));

    MenuFacts arcade = ArcadeFacts();
    arcade.softwareRows = true;
    EXPECT_FALSE(Enabled(kReports, arcade, "mnuReportsSoftware"));
    EXPECT_FALSE(Enabled(kReports, arcade, "mnuReportsVerifyMachinesSoftware"));
}

TEST(MenuRulesReports, UnlistedMachinesNeedsItsReport) {
    MenuFacts facts = ArcadeFacts();
    EXPECT_FALSE(Enabled(kReports, facts, "mnuReportsUnlistedMachines"));
    facts.unlistedReport = true;
    EXPECT_TRUE(Enabled(kReports, facts, "mnuReportsUnlistedMachines"));
    EXPECT_TRUE(Enabled(kReports, facts, "mnuReportsVerifyROMs"));
}

TEST(MenuRulesTools, CustomSettingsNeedAMachineThatCanStart) {
    MenuFacts facts = ArcadeFacts();
    EXPECT_TRUE(Enabled(kTools, facts, "mnuToolsCustom"));

    MenuFacts unavailableView = facts;
    unavailableView.view = "Unavailable Arcade Machines";
    EXPECT_FALSE(Enabled(kTools, unavailableView, "mnuToolsCustom"));
    EXPECT_TRUE(Enabled(kTools, unavailableView, "mnuToolsArcade"));

    MenuFacts unavailableRow = facts;
    unavailableRow.selectedUnavailable = true;
    EXPECT_FALSE(Enabled(kTools, unavailableRow, "mnuToolsCustom"));

    MenuFacts nothingSelected = facts;
    nothingSelected.machineSelected = false;
    EXPECT_FALSE(Enabled(kTools, nothingSelected, "mnuToolsCustom"));

    MenuFacts other = OtherFacts();
    EXPECT_TRUE(Enabled(kTools, other, "mnuToolsCustom"));
}

} // namespace
} // namespace coinlight
