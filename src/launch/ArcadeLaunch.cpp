#include "ArcadeLaunch.h"

#include "LaunchCommand.h"
#include "core/CommandLine.h"
#include "core/FileTests.h"
#include "settings/BuildIni.h"
#include "settings/MameIniPreview.h"
#include "settings/MonochromeList.h"
#include "settings/ProfileChoice.h"

namespace coinlight {

namespace {

UserMessage StartMessage(std::string text) {
    UserMessage message;
    message.title = "Start";
    message.text = std::move(text);
    message.icon = MessageIcon::Information;
    return message;
}

std::optional<UserMessage> RefuseArcadeStart(const ArcadeSelection& selection, bool skipSearch) {
    constexpr const char* kUnavailable = "This ROM is unavailable.";
    if (selection.view == "Unavailable Arcade Machines") {
        return StartMessage(kUnavailable);
    }
    if (selection.view == "All Arcade Machines" && selection.unavailable) {
        return StartMessage(
            skipSearch ? "You are running with !skipsearch.txt which assumes all arcade machines "
                         "are available.  This list is still useful to see which arcade "
                         "machines are unavailable but to start a game, use the Available "
                         "Arcade Machines view."
                       : kUnavailable);
    }
    if (selection.machine.empty()) {
        return StartMessage("No machine is selected.");
    }
    // The name goes into file names and onto a shell line: only MAME's own form passes.
    if (!IsShortName(selection.machine)) {
        return StartMessage("\"" + selection.machine +
                            "\" is not the short name of a machine, so Coinlight will not "
                            "hand it to MAME.");
    }
    return std::nullopt;
}

UserMessage PlaybackMissingMessage() {
    UserMessage message;
    message.title = "Playback";
    message.text = "Cannot find the .inp file for this game.\nYou must record this game first.";
    message.icon = MessageIcon::Information;
    return message;
}

UserMessage RecordQuestion() {
    UserMessage question;
    question.title = "Record";
    question.text = "An .inp file for this game already exists.\nDo you want to overwrite it?";
    question.icon = MessageIcon::Question;
    question.buttons = MessageButtons::YesNo;
    question.noIsDefault = true;
    return question;
}

} // namespace

ArcadeLaunchPlan PrepareArcadeLaunch(const AppContext& context, const ArcadeStartRequest& request) {
    ArcadeLaunchPlan plan;
    plan.profileName = request.profileName;
    const ArcadeSelection& selection = request.selection;
    const Preferences& preferences = context.preferences;
    if (auto refusal = RefuseArcadeStart(selection, context.markers.skipSearch)) {
        plan.message = std::move(refusal);
        return plan;
    }

    const bool monochrome = MonochromeList::Load(context.data).Contains(selection.machine);
    plan.profileName = ChooseProfileName(
        {selection.displayType, preferences.other.settingsLevel, monochrome, selection.orientation},
        request.profileName);
    plan.profile = ArcadeStartProfile(context.data, selection.machine, plan.profileName);
    if (plan.profile) {
        const MameIniBase base{false, selection.machine, request.boxes, {}, {}};
        IniBuild build = BuildIni(preferences, base, *plan.profile);
        if (build.failure) {
            plan.verdict = ArcadeVerdict::Failed;
            plan.message = std::move(build.failure);
            return plan;
        }
        plan.otherCommands = std::move(build.commandString);
    }
    if (request.preview) {
        plan.verdict = ArcadeVerdict::Previewed;
        return plan;
    }

    const auto inputFile =
        std::filesystem::path(preferences.outputPaths.input) / (selection.machine + ".inp");
    if (request.boxes.playback && !FileExists(inputFile)) {
        plan.verdict = ArcadeVerdict::PlaybackMissing;
        plan.message = PlaybackMissingMessage();
        return plan;
    }
    if (request.boxes.record && FileExists(inputFile)) {
        plan.recordQuestion = RecordQuestion();
    }
    plan.strayIniWarning = StrayIniWarning(preferences.searchPaths.ini);
    plan.commandLine =
        ComposeLaunchCommandLine(preferences, context.data, selection.machine, plan.otherCommands)
            .value_or("");
    plan.verdict = ArcadeVerdict::Ready;
    return plan;
}

} // namespace coinlight
