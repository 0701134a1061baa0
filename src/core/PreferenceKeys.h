#pragma once

#include <string>

#include "Preferences.h"

namespace coinlight {

// Section and key names of options.ini, each written once. The ForEach functions hand every
// key with its field to a visitor, so that reading, writing and resetting all walk the same
// table. `P` is the preferences struct, const or not.

inline constexpr const char* kSectionMiscellaneous = "Miscellaneous";
inline constexpr const char* kSectionMame = "MAME";
inline constexpr const char* kSectionBiosFilter = "Preferences BIOS";
inline constexpr const char* kSectionCategoryFilter = "Preferences Category";
inline constexpr const char* kSectionOther = "Preferences Other";
inline constexpr const char* kSectionSearchPaths = "Core Search Path Options";
inline constexpr const char* kSectionOutputPaths = "Core Output Directory Options";
inline constexpr const char* kSectionView = "View";

inline constexpr const char* kKeyCoinlightVersion = "Coinlight Version";
inline constexpr const char* kKeyNews = "News";
inline constexpr const char* kKeyAutoRun = "Auto Run";
inline constexpr const char* kKeyListsTxtSize = "Lists.txt Size";
inline constexpr const char* kKeyCatverIniSize = "Catver.ini Size";
inline constexpr const char* kKeyExecutable = "Executable";
inline constexpr const char* kKeyMameExeSize = "Mame.exe Size";
inline constexpr const char* kKeyTotal = "Total";
inline constexpr const char* kKeyGradientColor = "GradientColor";
inline constexpr const char* kKeyCrosshair = "Crosshair";

/// Who writes a key: the OK of the Options dialog, or some other routine of its own.
enum class KeyWriter { OptionsDialog, Elsewhere };

template <class P, class Visit> void ForEachMiscellaneousKey(P& p, Visit&& visit) {
    visit(kKeyNews, p.news, KeyWriter::Elsewhere);
    visit(kKeyAutoRun, p.autoRun, KeyWriter::Elsewhere);
    visit(kKeyListsTxtSize, p.listsTxtSize, KeyWriter::Elsewhere);
    visit(kKeyCatverIniSize, p.catverIniSize, KeyWriter::Elsewhere);
}

template <class P, class Visit> void ForEachMameKey(P& p, Visit&& visit) {
    visit(kKeyExecutable, p.executable, KeyWriter::OptionsDialog);
    visit(kKeyMameExeSize, p.mameExeSize, KeyWriter::Elsewhere);
}

template <class P, class Visit> void ForEachOtherKey(P& p, Visit&& visit) {
    const auto dialog = KeyWriter::OptionsDialog;
    visit("Hide Arcade Clones", p.hideArcadeClones, dialog);
    visit("Hide Other Clones", p.hideOtherClones, dialog);
    visit("Hide Preliminary", p.hidePreliminary, dialog);
    visit("Hide Vs", p.hideVs, dialog);
    visit("Hide Year", p.hideYear, dialog);
    visit("Hide Bootleg", p.hideBootleg, dialog);
    visit("Hide CHD", p.hideChd, dialog);
    visit("Hide Imperfect", p.hideImperfect, dialog);
    visit("Year", p.year, dialog);
    visit("Settings Level", p.settingsLevel, dialog);
    visit("Theme", p.theme, dialog);
    visit("List Back Color", p.listBackColor, dialog);
    visit("List Font Color", p.listFontColor, dialog);
    visit("List Font Size", p.listFontSize, dialog);
    visit("List Gridlines", p.listGridlines, dialog);
    visit("GUI Font", p.guiFont, dialog);
    visit("Use Links", p.useLinks, dialog);
    visit(kKeyGradientColor, p.gradientColor, KeyWriter::Elsewhere);
    visit("Clone Shots", p.cloneShots, dialog);
    visit("Merged ROM Sets", p.mergedRomSets, dialog);
    visit("Delete CFG", p.deleteCfg, dialog);
}

template <class P, class Visit> void ForEachSearchPathKey(P& p, Visit&& visit) {
    const auto dialog = KeyWriter::OptionsDialog;
    visit("MAME", p.mame, dialog);
    visit("Arcade ROMs", p.arcadeRoms, dialog);
    visit("Other ROMs", p.otherRoms, dialog);
    visit("Hash", p.hash, dialog);
    visit("Software", p.software, dialog);
    visit("Samples", p.samples, dialog);
    visit("Artwork", p.artwork, dialog);
    visit("Controller", p.controller, dialog);
    visit("Ini", p.ini, dialog);
    visit("Cheat", p.cheat, dialog);
    // Read at load and never written: it keeps whatever the file holds.
    visit(kKeyCrosshair, p.crosshair, KeyWriter::Elsewhere);
    visit("Plugins", p.plugins, dialog);
    visit("Language", p.language, dialog);
}

template <class P, class Visit> void ForEachOutputPathKey(P& p, Visit&& visit) {
    const auto dialog = KeyWriter::OptionsDialog;
    visit("Cfg", p.cfg, dialog);
    visit("Nvram", p.nvram, dialog);
    visit("Input", p.input, dialog);
    visit("State", p.state, dialog);
    visit("Snapshot", p.snapshot, dialog);
    visit("Diff", p.diff, dialog);
}

/// The saved selection and sort of the four lists, in the order they are saved.
template <class P, class Visit> void ForEachListStateKey(P& view, Visit&& visit) {
    const auto each = [&](const std::string& list, auto& state) {
        visit(list + " Key", state.key, KeyWriter::Elsewhere);
        visit(list + " Sort Key", state.sortKey, KeyWriter::Elsewhere);
        visit(list + " Sort Order", state.sortOrder, KeyWriter::Elsewhere);
    };
    each("All", view.all);
    each("Available", view.available);
    each("Unavailable", view.unavailable);
    each("Other Machine", view.other);
}

template <class P, class Visit> void ForEachViewKey(P& p, Visit&& visit) {
    visit("List View", p.listView, KeyWriter::Elsewhere);
    visit("Filters", p.filters, KeyWriter::OptionsDialog);
    visit("Snapshots", p.snapshots, KeyWriter::Elsewhere);
    visit("Favorite Arcade", p.favoriteArcade, KeyWriter::Elsewhere);
    visit("Favorite Other", p.favoriteOther, KeyWriter::Elsewhere);
    visit("Window State", p.windowState, KeyWriter::Elsewhere);
}

} // namespace coinlight
