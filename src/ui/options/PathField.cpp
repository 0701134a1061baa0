#include "PathField.h"

#include <type_traits>

#include "core/PreferenceKeys.h"

namespace coinlight {

namespace {

/// The options.ini key of a member, found by walking the key table of its section, so that
/// every key name stays written once.
template <class Section, class ForEachKey>
std::string KeyOf(std::string Section::*member, ForEachKey&& forEachKey) {
    Section probe;
    std::string key;
    forEachKey(probe, [&](std::string_view name, auto& field, KeyWriter) {
        if constexpr (std::is_same_v<std::decay_t<decltype(field)>, std::string>) {
            if (&field == &(probe.*member)) {
                key = name;
            }
        }
    });
    return key;
}

PathFieldInfo Search(PathField field, std::string SearchPathPreferences::*member,
                     const char* textBox, const char* button, PathRule rule, bool multi = false) {
    PathFieldInfo info;
    info.field = field;
    info.name = KeyOf(member, [](auto& p, auto&& visit) { ForEachSearchPathKey(p, visit); });
    info.textBox = textBox;
    info.button = button;
    info.rule = rule;
    info.multi = multi;
    info.searchPath = member;
    return info;
}

PathFieldInfo Output(PathField field, std::string OutputPathPreferences::*member,
                     const char* textBox, const char* button) {
    PathFieldInfo info;
    info.field = field;
    info.name = KeyOf(member, [](auto& p, auto&& visit) { ForEachOutputPathKey(p, visit); });
    info.textBox = textBox;
    info.button = button;
    info.rule = PathRule::Output;
    info.outputPath = member;
    return info;
}

std::array<PathFieldInfo, kPathFieldCount> BuildTable() {
    using S = SearchPathPreferences;
    using O = OutputPathPreferences;
    using enum PathField;
    const auto required = PathRule::Required;
    const auto optional = PathRule::Optional;
    std::array<PathFieldInfo, kPathFieldCount> table = {
        Search(ArcadeRoms, &S::arcadeRoms, "txtArcadeROMPath", "cmdSelectArcadeROM", required,
               true),
        Search(OtherRoms, &S::otherRoms, "txtMESSROMPath", "cmdSelectMESSROM", optional, true),
        Search(Hash, &S::hash, "txtMESSHashPath", "cmdSelectMESSHash", optional),
        Search(Software, &S::software, "txtMESSSoftwarePath", "cmdSelectMESSSoftware", optional,
               true),
        Search(Samples, &S::samples, "txtSamPath", "cmdSelectSam", required),
        Search(Artwork, &S::artwork, "txtArtworkPath", "cmdSelectArtwork", required, true),
        Search(Controller, &S::controller, "txtCtrlrPath", "cmdSelectCtrlr", required),
        Search(Ini, &S::ini, "txtINIPath", nullptr, PathRule::Fixed),
        Search(Cheat, &S::cheat, "txtCheatPath", "cmdSelectCheat", required),
        Search(Plugins, &S::plugins, "txtPluginsPath", "cmdSelectPlugins", required),
        Search(Language, &S::language, "txtLanguagePath", "cmdSelectLanguage", required),
        Output(Cfg, &O::cfg, "txtCfgPath", "cmdSelectCfg"),
        Output(Nvram, &O::nvram, "txtNvramPath", "cmdSelectNvram"),
        Output(Input, &O::input, "txtInpPath", "cmdSelectInp"),
        Output(State, &O::state, "txtStatePath", "cmdSelectState"),
        Output(Snapshot, &O::snapshot, "txtSnapPath", "cmdSelectSnap"),
        Output(Diff, &O::diff, "txtDiffPath", "cmdSelectDiff"),
    };
    table[IndexOf(Cheat)].mayBeMissing = true;
    return table;
}

} // namespace

const std::array<PathFieldInfo, kPathFieldCount>& PathFields() {
    static const std::array<PathFieldInfo, kPathFieldCount> table = BuildTable();
    return table;
}

const PathFieldInfo& InfoOf(PathField field) {
    return PathFields()[IndexOf(field)];
}

PathTexts TextsFrom(const Preferences& preferences) {
    PathTexts texts;
    for (const PathFieldInfo& info : PathFields()) {
        texts[info.field] = info.searchPath != nullptr ? preferences.searchPaths.*info.searchPath
                                                       : preferences.outputPaths.*info.outputPath;
    }
    return texts;
}

void StoreTexts(const PathTexts& texts, Preferences& preferences) {
    for (const PathFieldInfo& info : PathFields()) {
        std::string& place = info.searchPath != nullptr ? preferences.searchPaths.*info.searchPath
                                                        : preferences.outputPaths.*info.outputPath;
        place = texts[info.field];
    }
}

} // namespace coinlight
