#include "OptionsOutcome.h"

#include <tuple>

namespace coinlight {

namespace {

auto FilterFields(const Preferences& p) {
    const OtherPreferences& o = p.other;
    return std::tie(p.biosFilter, p.categoryFilter, o.hideArcadeClones, o.hideOtherClones,
                    o.hidePreliminary, o.hideVs, o.hideYear, o.hideBootleg, o.hideChd,
                    o.hideImperfect, o.year, o.mergedRomSets);
}

auto LookFields(const OtherPreferences& o) {
    return std::tie(o.theme, o.listBackColor, o.listFontColor, o.listFontSize, o.listGridlines,
                    o.guiFont, o.useLinks);
}

auto PathValues(const Preferences& p) {
    const SearchPathPreferences& s = p.searchPaths;
    const OutputPathPreferences& o = p.outputPaths;
    return std::tie(p.mame.executable, s.mame, s.arcadeRoms, s.otherRoms, s.hash, s.software,
                    s.samples, s.artwork, s.controller, s.ini, s.cheat, s.plugins, s.language,
                    o.cfg, o.nvram, o.input, o.state, o.snapshot, o.diff);
}

} // namespace

OptionsOutcome CompareOptions(const Preferences& before, const Preferences& after) {
    OptionsOutcome outcome;
    outcome.accepted = true;
    outcome.filtersChanged = FilterFields(before) != FilterFields(after);
    outcome.softwarePathChanged = before.searchPaths.software != after.searchPaths.software;
    outcome.pathsChanged = PathValues(before) != PathValues(after);
    outcome.lookChanged = LookFields(before.other) != LookFields(after.other);
    return outcome;
}

} // namespace coinlight
