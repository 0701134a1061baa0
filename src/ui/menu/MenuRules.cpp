#include "MenuRules.h"

namespace coinlight {

namespace {

using States = std::vector<MenuEntryState>;

void Add(States& states, std::initializer_list<std::string_view> names, bool enabled) {
    for (std::string_view name : names) {
        states.push_back({name, enabled});
    }
}

States MainMenu(const MenuFacts& f) {
    // As the list's own commands do; Exit is there whatever is on show.
    const bool lists = !f.pageOverLists;
    return {{"mnuMainPlay", lists && f.startEnabled},
            {"mnuMainAudit", lists && f.auditEnabled},
            {"mnuMainInfo", lists && f.infoEnabled},
            {"mnuMainExport", lists && f.listHasRows},
            {"mnuMainExit", true}};
}

States ViewMenu(const MenuFacts& f) {
    States states;
    const bool lists = !f.pageOverLists;
    Add(states,
        {"mnuViewAll", "mnuViewAvailable", "mnuViewUnavailable", "mnuViewRefresh", "mnuViewShots"},
        lists);
    states.push_back({"mnuViewOtherMachines", lists && (f.inOtherView || !f.otherRomsEmpty)});
    states.push_back({"mnuViewOtherFavorites", lists && !DropsOtherFavourites(f)});
    states.push_back({"mnuViewArcadeFavorites", lists && !f.inOtherView});
    return states;
}

States ToolsMenu(const MenuFacts& f) {
    States states;
    const bool lists = !f.pageOverLists;
    Add(states,
        {"mnuToolsRebuild", "mnuToolsOptions", "mnuToolsOpenAppFolder", "mnuToolsOpenDataFolder",
         "mnuToolsMaintenance"},
        lists);
    // LCD settings are a class of the arcade settings.
    Add(states, {"mnuToolsArcade", "mnuToolsLCD"}, lists && !f.inOtherView);
    states.push_back({"mnuToolsOther", lists && f.inOtherView});
    // A custom profile is for a machine one can start.
    const bool custom =
        f.view != "Unavailable Arcade Machines" && !f.selectedUnavailable && f.machineSelected;
    states.push_back({"mnuToolsCustom", lists && custom});
    return states;
}

States ReportsMenu(const MenuFacts& f) {
    States states;
    const bool lists = !f.pageOverLists;
    Add(states,
        {"mnuReportsVerifyROMs", "mnuReportsLastROM", "mnuReportsVerifySamples",
         "mnuReportsLastSample", "mnuReportsWhatsChanged", "mnuReportsWhatROMsChanged",
         "mnuReportsWhatROMsChangedReport", "mnuReportsRebuild", "mnuReportsFind"},
        lists);
    Add(states, {"mnuReportsSamples", "mnuReportsFavoriteArcadeChanges"}, lists && !f.inOtherView);
    states.push_back({"mnuReportsFavoriteOtherChanges", lists && f.inOtherView});
    Add(states, {"mnuReportsSoftware", "mnuReportsVerifyMachinesSoftware"},
        lists && f.inOtherView && f.softwareRows);
    states.push_back({"mnuReportsLastMachinesSoftware", lists && f.inOtherView});
    states.push_back({"mnuReportsUnlistedMachines", lists && f.unlistedReport});
    return states;
}

} // namespace

bool DropsOtherFavourites(const MenuFacts& facts) {
    return !facts.inOtherView && facts.otherRomsEmpty;
}

std::vector<MenuEntryState> MenuStates(int linkIndex, const MenuFacts& facts) {
    switch (linkIndex) {
    case 0:
        return MainMenu(facts);
    case 1:
        return ViewMenu(facts);
    case 2:
        return ToolsMenu(facts);
    case 3:
        return ReportsMenu(facts);
    default:
        return {}; // the Help menu is always there to be read
    }
}

} // namespace coinlight
