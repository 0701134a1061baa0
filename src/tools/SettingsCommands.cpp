#include <iostream>
#include <optional>

#include "ToolCommand.h"
#include "ToolOptions.h"
#include "core/DataLayout.h"
#include "core/FileTests.h"
#include "launch/LaunchCommand.h"
#include "settings/BuildIni.h"
#include "settings/ProfileChoice.h"

namespace coinlight {

namespace {

void PrintLines(const std::vector<std::string>& lines) {
    for (const auto& line : lines) {
        std::cout << line << "\r\n";
    }
}

struct MameIniArguments {
    std::filesystem::path optionsIni;
    MameIniBase base;
    std::optional<std::string> profile;
};

/// Nothing for a misuse.
std::optional<MameIniArguments> ParseMameIni(const ToolArguments& arguments) {
    if (arguments.empty() || arguments[0].starts_with("--")) {
        return std::nullopt;
    }
    MameIniArguments parsed{arguments[0], {}, {}};
    MameIniBase& base = parsed.base;
    bool softwareGiven = false;
    for (std::size_t at = 1; at < arguments.size(); ++at) {
        const std::string& flag = arguments[at];
        const bool hasValue = at + 1 < arguments.size();
        if (flag == "--other") {
            base.otherView = true;
        } else if (flag == "--autosave") {
            base.boxes.autoSave = true;
        } else if (flag == "--record") {
            base.boxes.record = true;
        } else if (flag == "--playback") {
            base.boxes.playback = true;
        } else if (flag == "--software-unselected" && !softwareGiven) {
            base.software = SoftwareListState::NoneSelected;
            softwareGiven = true;
        } else if (flag == "--software-part" && hasValue && !softwareGiven) {
            base.software = SoftwareListState::Selected;
            base.selectedParts = arguments[++at];
            softwareGiven = true;
        } else if (flag == "--machine" && hasValue) {
            base.machine = arguments[++at];
        } else if (flag == "--profile" && hasValue) {
            parsed.profile = arguments[++at];
        } else {
            return std::nullopt;
        }
    }
    const bool needsMachine = base.boxes.record || base.boxes.playback;
    if ((base.boxes.record && base.boxes.playback) || (needsMachine && base.machine.empty())) {
        return std::nullopt;
    }
    return parsed;
}

/// A profile file as given, or a profile name of the data folder.
std::optional<std::filesystem::path> FindProfile(const std::string& given, const DataLayout& data) {
    for (const auto& candidate : {std::filesystem::path(given), ProfilePath(data, given)}) {
        if (FileExists(candidate) && !std::filesystem::is_directory(candidate)) {
            return candidate;
        }
    }
    return std::nullopt;
}

int MameIni(const ToolArguments& arguments) {
    const auto parsed = ParseMameIni(arguments);
    if (!parsed) {
        return -1;
    }
    const auto preferences = ReadToolOptions(parsed->optionsIni);
    if (!preferences) {
        return 1;
    }
    std::vector<std::string> lines = MameIniBaseLines(*preferences, parsed->base);
    if (parsed->profile) {
        const auto profile = FindProfile(*parsed->profile, DataFolderOf(parsed->optionsIni));
        if (!profile) {
            return ToolFailure("no profile " + *parsed->profile);
        }
        const ProfileSections sections = ProfileSectionLines(ReadOptionValues(*profile));
        if (sections.problem) {
            return ToolFailure(profile->string() + ": " + *sections.problem);
        }
        lines.insert(lines.end(), sections.lines.begin(), sections.lines.end());
    }
    PrintLines(lines);
    return 0;
}

int LaunchLine(const ToolArguments& arguments) {
    std::string otherCommands;
    if (arguments.size() == 4 && arguments[2] == "--other-commands") {
        otherCommands = arguments[3];
    } else if (arguments.size() != 2) {
        return -1;
    }
    const auto preferences = ReadToolOptions(arguments[0]);
    if (!preferences) {
        return 1;
    }
    const auto line = ComposeLaunchCommandLine(*preferences, DataFolderOf(arguments[0]),
                                               arguments[1], otherCommands);
    if (!line) {
        return ToolFailure("\"" + arguments[1] + "\" is not the short name of a machine");
    }
    std::cout << *line << '\n';
    return 0;
}

} // namespace

std::vector<ToolCommand> SettingsCommands() {
    return {
        {"mameini",
         "mameini OPTIONS_INI [--other] [--machine NAME] [--profile CFG] [--autosave] "
         "[--record | --playback] [--software-part PART | --software-unselected]",
         MameIni},
        {"launch-line", "launch-line OPTIONS_INI MACHINE [--other-commands TEXT]", LaunchLine},
    };
}

} // namespace coinlight
