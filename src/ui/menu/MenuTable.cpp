#include "MenuTable.h"

#include <array>

namespace coinlight {

namespace {

constexpr std::array<MenuDefinition, 6> kMenus = {{
    {"mnuMain", "&Main", 0},
    {"mnuView", "&View", 1},
    {"mnuTools", "&Tools", 2},
    {"mnuReports", "&Reports", 3},
    {"mnuHelp", "&Help", 4},
    {"mnuRClick", "RClick", -1},
}};

constexpr MenuEntryDefinition Entry(std::string_view menu, std::string_view name,
                                    std::string_view caption) {
    return {menu, name, caption};
}
constexpr MenuEntryDefinition Checked(std::string_view menu, std::string_view name,
                                      std::string_view caption, bool separatorBefore = false) {
    return {menu, name, caption, true, separatorBefore};
}
constexpr MenuEntryDefinition After(MenuEntryDefinition entry) {
    entry.separatorBefore = true;
    return entry;
}
constexpr MenuEntryDefinition Under(std::string_view subMenu, std::string_view group,
                                    std::string_view name, std::string_view caption) {
    return {"mnuReports", name, caption, false, false, group, subMenu};
}

constexpr std::array kEntries = {
    Entry("mnuMain", "mnuMainPlay", "Start"),
    Entry("mnuMain", "mnuMainAudit", "Audit"),
    Entry("mnuMain", "mnuMainInfo", "Information"),
    Entry("mnuMain", "mnuMainExport", "Export List"),
    After(Entry("mnuMain", "mnuMainExit", "Exit")),

    Checked("mnuView", "mnuViewAll", "All Arcade Machines"),
    Checked("mnuView", "mnuViewAvailable", "Available Arcade Machines"),
    Checked("mnuView", "mnuViewUnavailable", "Unavailable Arcade Machines"),
    Checked("mnuView", "mnuViewArcadeFavorites", "Favorite Arcade Machines"),
    Checked("mnuView", "mnuViewOtherMachines", "Other Machines", true),
    Checked("mnuView", "mnuViewOtherFavorites", "Favorite Other Machines"),
    After(Entry("mnuView", "mnuViewRefresh", "Refresh")),
    Checked("mnuView", "mnuViewShots", "Snapshots"),

    Entry("mnuTools", "mnuToolsArcade", "Arcade Settings..."),
    Entry("mnuTools", "mnuToolsOther", "Other Settings..."),
    Entry("mnuTools", "mnuToolsLCD", "LCD Settings..."),
    Entry("mnuTools", "mnuToolsCustom", "Custom Settings..."),
    Entry("mnuTools", "mnuToolsRebuild", "Rebuild Settings"),
    After(Entry("mnuTools", "mnuToolsMaintenance", "Maintenance...")),
    Entry("mnuTools", "mnuToolsOptions", "Options..."),
    Entry("mnuTools", "mnuToolsCheckOptions", "Check MAME Options"),
    After(Entry("mnuTools", "mnuToolsOpenAppFolder", "Open Coinlight's App Folder")),
    Entry("mnuTools", "mnuToolsOpenDataFolder", "Open Coinlight's Data Folder"),

    Under("mnuReportsROMs", "ROMs", "mnuReportsVerifyROMs", "Verify All ROMs"),
    Under("mnuReportsROMs", "ROMs", "mnuReportsLastROM", "Last ROMs Report"),
    Under("mnuReportsSoftware", "Software", "mnuReportsVerifyAllSoftware", "Verify All Software"),
    Under("mnuReportsSoftware", "Software", "mnuReportsLastAllSoftware",
          "Last All Software Report"),
    Under("mnuReportsSoftware", "Software", "mnuReportsVerifyMachinesSoftware",
          "Verify Machine's Software"),
    Under("mnuReportsSoftware", "Software", "mnuReportsLastMachinesSoftware",
          "Last Machine's Software Report (May Not Be Current Selected Machine)"),
    Under("mnuReportsSamples", "Samples", "mnuReportsVerifySamples", "Verify All Samples"),
    Under("mnuReportsSamples", "Samples", "mnuReportsLastSample", "Last Samples Report"),
    Under("mnuReportsSets", "Sets", "mnuReportsVerifySets", "Verify All Sets"),
    Under("mnuReportsSets", "Sets", "mnuReportsLastSets", "Last Sets Report"),
    Under("mnuReportsWhatsChanged", "What's Changed", "mnuReportsWhatROMsChanged",
          "What ROMs Changed"),
    Under("mnuReportsWhatsChanged", "What's Changed", "mnuReportsWhatROMsChangedReport",
          "Last What ROMs Changed Report"),
    After(Entry("mnuReports", "mnuReportsRebuild", "Rebuild Settings Report")),
    Entry("mnuReports", "mnuReportsFavoriteArcadeChanges", "Favorite Arcade Machine Changes"),
    Entry("mnuReports", "mnuReportsFavoriteOtherChanges", "Favorite Other Machine Changes"),
    Entry("mnuReports", "mnuReportsUnlistedMachines", "Unlisted Machines"),
    After(Entry("mnuReports", "mnuReportsFind", "MAME.Ini")),

    Entry("mnuHelp", "mnuHelpHeritage", "Coinlight Info"),
    After(Entry("mnuHelp", "mnuHelpCommandLines", "MAME Command-Line Options")),
    Entry("mnuHelp", "mnuHelpDefaultKeys", "MAME Default Keys"),
    Entry("mnuHelp", "mnuHelpBGFX", "MAME BGFX"),
    Entry("mnuHelp", "mnuHelpHLSL", "MAME HLSL"),
    Entry("mnuHelp", "mnuHelpGLSL", "MAME GLSL"),
    After(Entry("mnuHelp", "mnuHelpNews", "Coinlight News")),
    Entry("mnuHelp", "mnuHelpUpdate", "Check For Update"),
    After(Entry("mnuHelp", "mnuHelpAbout", "About Coinlight")),

    Entry("mnuRClick", "mnuAddFavorite", "Add To Favorites"),
    Entry("mnuRClick", "mnuRemoveFavorite", "Remove From Favorites"),
    Entry("mnuRClick", "mnuRefreshSoftware", "Refresh Software"),
    After(Entry("mnuRClick", "mnuDeleteROM", "Delete ROM")),
    Entry("mnuRClick", "mnuDeleteSamples", "Delete &Samples"),
};

} // namespace

std::span<const MenuDefinition> Menus() {
    return kMenus;
}

std::span<const MenuEntryDefinition> MenuEntries() {
    return kEntries;
}

} // namespace coinlight
