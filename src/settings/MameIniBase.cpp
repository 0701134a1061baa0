#include "MameIniBase.h"

#include "MameIniText.h"
#include "core/TextCase.h"
#include "core/TextFile.h"

namespace coinlight {

namespace {

constexpr const char* kCreateError = "Error In CreateMAMEIni";

std::string SnapshotPart(const std::string& parts) {
    return ToLowerAscii(std::string_view(parts).substr(0, parts.find(';')));
}

void AppendSearchPaths(std::vector<std::string>& lines, const SearchPathPreferences& paths,
                       bool otherView) {
    AppendHeading(lines, "# CORE SEARCH PATH OPTIONS");
    lines.push_back(IniLine("homepath", "."));
    lines.push_back(
        IniLine("rompath", otherView ? paths.otherRoms + ";" + paths.software : paths.arcadeRoms));
    lines.push_back(otherView ? IniLine("hashpath", paths.hash) : "hashpath");
    lines.push_back(IniLine("samplepath", paths.samples));
    lines.push_back(IniLine("artpath", paths.artwork));
    lines.push_back(IniLine("ctrlrpath", paths.controller));
    lines.push_back(IniLine("inipath", paths.ini));
    lines.push_back(IniLine("fontpath", "."));
    lines.push_back(IniLine("cheatpath", paths.cheat));
    lines.push_back(paths.crosshair.empty() ? "crosshairpath"
                                            : IniLine("crosshairpath", paths.crosshair));
    lines.push_back(IniLine("pluginspath", paths.plugins));
    lines.push_back(IniLine("languagepath", paths.language));
    lines.emplace_back("swpath");
}

void AppendOutputFolders(std::vector<std::string>& lines, const OutputPathPreferences& paths) {
    AppendHeading(lines, "# CORE OUTPUT DIRECTORY OPTIONS");
    lines.push_back(IniLine("cfg_directory", paths.cfg));
    lines.push_back(IniLine("nvram_directory", paths.nvram));
    lines.push_back(IniLine("input_directory", paths.input));
    lines.push_back(IniLine("state_directory", paths.state));
    lines.push_back(IniLine("snapshot_directory", paths.snapshot));
    lines.push_back(IniLine("diff_directory", paths.diff));
    lines.emplace_back("# comment_directory");
    lines.emplace_back("# share_directory");
}

void AppendStateOptions(std::vector<std::string>& lines, const MameIniBase& base) {
    const std::string inputFile = base.machine + ".inp";
    AppendHeading(lines, "# CORE STATE/PLAYBACK OPTIONS");
    lines.emplace_back("state");
    lines.push_back(IniLine("autosave", base.boxes.autoSave ? "1" : "0"));
    lines.push_back(IniLine("rewind", "0"));
    lines.push_back(IniLine("rewind_capacity", "100"));
    lines.push_back(base.boxes.playback ? IniLine("playback", inputFile) : "playback");
    lines.push_back(base.boxes.record ? IniLine("record", inputFile) : "record");
    lines.push_back(IniLine("exit_after_playback", "0"));
    lines.emplace_back("mngwrite");
    lines.emplace_back("aviwrite");
    lines.emplace_back("wavwrite");
    if (!base.otherView || base.software == SoftwareListState::Empty) {
        lines.push_back(IniLine("snapname", "%g/%i"));
    } else if (base.software == SoftwareListState::Selected) {
        lines.push_back(IniLine("snapname", "%g/%d_" + SnapshotPart(base.selectedParts)));
    }
    // With titles listed but none selected there is no name to give: MAME's own default
    // applies.
    lines.push_back(IniLine("snapsize", "auto"));
    lines.push_back(IniLine("snapview", "auto"));
    lines.push_back(IniLine("snapbilinear", "1"));
    lines.push_back(IniLine("statename", "%g"));
    lines.push_back(IniLine("burnin", "0"));
}

} // namespace

std::filesystem::path MameIniFile(const Preferences& preferences) {
    if (preferences.searchPaths.ini.empty()) {
        return {};
    }
    return std::filesystem::path(preferences.searchPaths.ini) / "mame.ini";
}

std::vector<std::string> MameIniBaseLines(const Preferences& preferences, const MameIniBase& base) {
    std::vector<std::string> lines;
    AppendHeading(lines, "# CORE CONFIGURATION OPTIONS", true);
    lines.push_back(IniLine("readconfig", "1"));
    lines.push_back(IniLine("writeconfig", "0"));
    AppendSearchPaths(lines, preferences.searchPaths, base.otherView);
    AppendOutputFolders(lines, preferences.outputPaths);
    AppendStateOptions(lines, base);
    return lines;
}

std::optional<UserMessage> CreateMAMEIni(const Preferences& preferences, const MameIniBase& base) {
    const auto file = MameIniFile(preferences);
    if (file.empty()) {
        return RoutineError(kCreateError, "No Ini folder is set in Options.", 1);
    }
    std::string error;
    if (!WriteTextLines(file, MameIniBaseLines(preferences, base), &error)) {
        return RoutineError(kCreateError, error, 2);
    }
    return std::nullopt;
}

} // namespace coinlight
