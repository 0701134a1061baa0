#include "OtherLaunch.h"

#include "DeviceSearch.h"
#include "LaunchCommand.h"
#include "catalogue/TextFunctions.h"
#include "core/CommandLine.h"
#include "settings/BuildIni.h"
#include "settings/MameIniPreview.h"
#include "settings/ProfileChoice.h"

namespace coinlight {

namespace {

constexpr std::string_view kNone = "N/A";

UserMessage StartMessage(std::string text, MessageIcon icon = MessageIcon::None) {
    UserMessage message;
    message.title = "Start";
    message.text = std::move(text);
    message.icon = icon;
    return message;
}

std::optional<UserMessage> RefuseOtherStart(const OtherStartRequest& request) {
    if (!request.selection) {
        return StartMessage("No machine is selected.");
    }
    const OtherMachineSelection& selection = *request.selection;
    // The name goes into file names and onto a shell line: only MAME's own form passes.
    if (!IsShortName(selection.machine)) {
        return StartMessage("\"" + selection.machine +
                            "\" is not the short name of a machine, so Coinlight will not "
                            "hand it to MAME.");
    }
    if (request.preview) {
        return std::nullopt;
    }
    if (selection.unavailable) {
        return StartMessage("This ROM is unavailable.");
    }
    const bool hasSoftware = selection.softwareLists != kNone;
    if (request.runNoSoftware || !hasSoftware) {
        return std::nullopt;
    }
    if (request.softwareListEmpty) {
        return StartMessage("If you do not have any software selected, you must tick \"Don't "
                            "Start Software\" when starting a machine which has software.");
    }
    if (!request.title) {
        return StartMessage("You must tick \"Don't Start Software\" or select a software title "
                            "when starting a machine which has software .");
    }
    return std::nullopt;
}

/// The machine's devices; a machine that has none lists "N/A", which is no device.
std::vector<std::string> DevicesOf(std::string_view field) {
    return field == kNone ? std::vector<std::string>{} : SplitPieces(field, ';');
}

UserMessage PartsNotice(std::size_t count, std::string_view parts) {
    return StartMessage("This title has " + std::to_string(count) + " parts (" +
                            std::string(parts) +
                            ").\nCoinlight will load the first part but you must load the "
                            "remaining parts from the Internal UI once the title has started.",
                        MessageIcon::Information);
}

UserMessage UnknownDeviceNotice() {
    return StartMessage("Cannot determine device type but the machine may still work.  If it "
                        "doesn't, tick the Command Line Edit checkbox to the right to manually "
                        "edit the string and try again.",
                        MessageIcon::Information);
}

CommandLineEdit EditBox(bool deviceUnknown, const std::filesystem::path& executable,
                        std::string_view machine, const std::string& softwareArgs) {
    CommandLineEdit edit;
    if (deviceUnknown) {
        edit.prompt = "Unable to determine device type.\n\n";
    }
    edit.prompt += "Here is the string that will be passed to the command line.\n\n"
                   "You can edit the portion after the machine name or leave it as is and "
                   "click OK.  Click Cancel to abort starting this machine.\n\n" +
                   executable.string() + " " + std::string(machine) + " " + softwareArgs;
    edit.preset = softwareArgs;
    return edit;
}

} // namespace

OtherStartPlan PlanOtherStart(const OtherStartRequest& request,
                              const std::filesystem::path& executable) {
    OtherStartPlan plan;
    if ((plan.refusal = RefuseOtherStart(request))) {
        return plan;
    }
    const OtherMachineSelection& machine = *request.selection;
    if (request.runNoSoftware || machine.softwareLists == kNone || !request.title ||
        request.preview) {
        return plan;
    }
    const SoftwareTitle& title = *request.title;
    const std::vector<std::string> parts = SplitPieces(title.parts, ';');
    const auto deviceSwitch = FindDeviceSwitch(
        DevicesOf(machine.devices), parts.empty() ? "" : parts.front(), title.disk != kNone);
    if (const auto refused = RefuseSoftwareNames(title, deviceSwitch.value_or(""))) {
        plan.refusal = StartMessage(*refused);
        return plan;
    }
    if (parts.size() > 1) {
        plan.notices.push_back(PartsNotice(parts.size(), title.parts));
    }
    const bool deviceUnknown = !deviceSwitch;
    if (deviceUnknown && !request.stringEdit) {
        plan.notices.push_back(UnknownDeviceNotice());
    }
    plan.softwareArgs =
        ComposeSoftwareArgs(title.requirement, deviceSwitch.value_or(""), title.name);
    if (request.stringEdit) {
        plan.edit = EditBox(deviceUnknown, executable, machine.machine, plan.softwareArgs);
    }
    return plan;
}

std::optional<std::string> EditedSoftwareArgs(const std::optional<std::string>& answer) {
    if (!answer || answer->empty()) {
        return std::nullopt;
    }
    return answer;
}

std::string OtherLaunchTail(std::string_view softwareArgs, std::string_view otherCommands) {
    std::string tail(softwareArgs);
    if (!otherCommands.empty()) {
        tail += " ";
        tail += otherCommands;
    }
    return tail;
}

std::optional<std::string> ComposeOtherCommandLine(const Preferences& preferences,
                                                   const DataLayout& data, std::string_view machine,
                                                   std::string_view softwareArgs,
                                                   std::string_view otherCommands) {
    return ComposeLaunchCommandLine(preferences, data, machine,
                                    OtherLaunchTail(softwareArgs, otherCommands));
}

OtherLaunchPlan PrepareOtherLaunch(const AppContext& context, const MameIniBase& base,
                                   std::string_view softwareArgs,
                                   const std::filesystem::path& currentProfile, bool preview) {
    OtherLaunchPlan plan;
    const Preferences& preferences = context.preferences;
    plan.profile = OtherStartProfile(context.data, base.machine, currentProfile);
    if (auto failure = CreateMAMEIni(preferences, base)) {
        plan.message = std::move(failure);
        return plan;
    }
    IniBuild build = BuildIni(preferences, base, plan.profile);
    if (build.failure) {
        plan.message = std::move(build.failure);
        return plan;
    }
    plan.otherCommands = std::move(build.commandString);
    if (preview) {
        plan.verdict = OtherLaunchVerdict::Previewed;
        return plan;
    }
    plan.strayIniWarning = StrayIniWarning(preferences.searchPaths.ini);
    const auto line = ComposeOtherCommandLine(preferences, context.data, base.machine, softwareArgs,
                                              plan.otherCommands);
    if (!line) {
        plan.message =
            RoutineError("Error in PlayOther",
                         "\"" + base.machine + "\" is not the short name of a machine", 14);
        return plan;
    }
    plan.commandLine = *line;
    plan.verdict = OtherLaunchVerdict::Ready;
    return plan;
}

} // namespace coinlight
