#include <iostream>
#include <map>
#include <set>

#include "ToolCommand.h"
#include "ToolOptions.h"
#include "launch/OtherLaunch.h"

namespace coinlight {

namespace {

/// The flags of other-line: those that take a value, and those that stand alone.
const std::set<std::string> kValueFlags = {"--devices",     "--lists",         "--software",
                                           "--parts",       "--requirement",   "--disk",
                                           "--edit-answer", "--other-commands"};
const std::set<std::string> kSwitches = {"--run-no-software", "--string-edit"};

struct OtherLineArguments {
    std::filesystem::path optionsIni;
    std::string machine;
    std::map<std::string, std::string> values;
    std::set<std::string> switches;

    std::string Value(const std::string& flag, std::string fallback = {}) const {
        const auto found = values.find(flag);
        return found == values.end() ? fallback : found->second;
    }
};

/// Nothing for a misuse: an unknown flag, a flag twice, a value missing, or a title's
/// details without the title.
std::optional<OtherLineArguments> Parse(const ToolArguments& arguments) {
    if (arguments.size() < 2 || arguments[0].starts_with("--") || arguments[1].starts_with("--")) {
        return std::nullopt;
    }
    OtherLineArguments parsed{arguments[0], arguments[1], {}, {}};
    for (std::size_t at = 2; at < arguments.size(); ++at) {
        const std::string& flag = arguments[at];
        if (kSwitches.count(flag) != 0 && parsed.switches.insert(flag).second) {
            continue;
        }
        if (kValueFlags.count(flag) == 0 || at + 1 == arguments.size() ||
            !parsed.values.emplace(flag, arguments[at + 1]).second) {
            return std::nullopt;
        }
        ++at;
    }
    const bool hasTitle = parsed.values.count("--software") != 0;
    for (const char* detail : {"--parts", "--requirement", "--disk"}) {
        if (!hasTitle && parsed.values.count(detail) != 0) {
            return std::nullopt;
        }
    }
    if (parsed.values.count("--devices") == 0 || parsed.values.count("--lists") == 0) {
        return std::nullopt;
    }
    return parsed;
}

/// A message as the window would show it, on one line.
void Tell(const std::string& title, const std::string& text) {
    std::string line = title + ": " + text;
    for (char& c : line) {
        if (c == '\n' || c == '\r') {
            c = ' ';
        }
    }
    std::cerr << line << '\n';
}

OtherStartRequest RequestOf(const OtherLineArguments& parsed) {
    OtherStartRequest request;
    request.selection = OtherMachineSelection{parsed.machine, parsed.Value("--devices"),
                                              parsed.Value("--lists"), false};
    // A title given stands for the selected row of a list that shows titles.
    request.softwareListEmpty = false;
    if (parsed.values.count("--software") != 0) {
        request.title =
            SoftwareTitle{parsed.Value("--parts"), parsed.Value("--software"),
                          parsed.Value("--requirement", "N/A"), parsed.Value("--disk", "N/A")};
    }
    request.runNoSoftware = parsed.switches.count("--run-no-software") != 0;
    request.stringEdit = parsed.switches.count("--string-edit") != 0;
    return request;
}

int OtherLine(const ToolArguments& arguments) {
    const auto parsed = Parse(arguments);
    if (!parsed) {
        return -1;
    }
    const auto preferences = ReadToolOptions(parsed->optionsIni);
    if (!preferences) {
        return 1;
    }
    const OtherStartPlan plan =
        PlanOtherStart(RequestOf(*parsed), std::filesystem::path(preferences->searchPaths.mame) /
                                               preferences->mame.executable);
    if (plan.refusal) {
        Tell(plan.refusal->title, plan.refusal->text);
        return 1;
    }
    for (const UserMessage& notice : plan.notices) {
        Tell(notice.title, notice.text);
    }
    std::string softwareArgs = plan.softwareArgs;
    if (plan.edit) {
        Tell(plan.edit->title, plan.edit->prompt);
        const auto edited = EditedSoftwareArgs(parsed->values.count("--edit-answer") != 0
                                                   ? std::optional(parsed->Value("--edit-answer"))
                                                   : std::nullopt);
        if (!edited) {
            return 1; // the start stops without a word, as a cancelled box does
        }
        softwareArgs = *edited;
    }
    const auto line =
        ComposeOtherCommandLine(*preferences, DataFolderOf(parsed->optionsIni), parsed->machine,
                                softwareArgs, parsed->Value("--other-commands"));
    if (!line) {
        return ToolFailure("\"" + parsed->machine + "\" is not the short name of a machine");
    }
    std::cout << *line << '\n';
    return 0;
}

} // namespace

std::vector<ToolCommand> OtherLaunchCommands() {
    return {
        {"other-line",
         "other-line OPTIONS_INI MACHINE --devices D1;D2 --lists L1;L2 [--software NAME "
         "--parts P1;P2 --requirement REQ --disk DISK] [--run-no-software] [--string-edit "
         "--edit-answer TEXT] [--other-commands TEXT]",
         OtherLine},
    };
}

} // namespace coinlight
