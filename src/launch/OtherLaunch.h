#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "SoftwareArgs.h"
#include "core/AppContext.h"
#include "core/UserMessage.h"
#include "settings/MameIniBase.h"

namespace coinlight {

/// The selected row of the Other Machines list, as a start reads it.
struct OtherMachineSelection {
    std::string machine;       // the short name
    std::string devices;       // brief names of its devices, joined by ";"
    std::string softwareLists; // "N/A" when it has none
    bool unavailable = false;  // a red row: its files were not found
};

struct OtherStartRequest {
    std::optional<OtherMachineSelection> selection; // nothing when no row is selected
    bool softwareListEmpty = true;                  // the software list shows no rows
    std::optional<SoftwareTitle> title;             // its selected row
    bool runNoSoftware = false;                     // "Don't Start Software"
    bool stringEdit = false;                        // "Command Line Edit"
    bool preview = false; // the mame.ini preview: no checks, no software, no start
};

/// The input box of a start with "Command Line Edit" ticked.
struct CommandLineEdit {
    std::string title = "Command Line Edit";
    std::string prompt;
    std::string preset; // the software arguments as worked out
};

/// The first half of a start, up to the edit box: the checks and the software arguments.
struct OtherStartPlan {
    std::optional<UserMessage> refusal; // set: show it and do not start
    std::vector<UserMessage> notices;   // show in order; the start goes on
    std::string softwareArgs;
    std::optional<CommandLineEdit> edit; // ask, then EditedSoftwareArgs
};

/// `executable` is the emulator's full path, which the edit box shows as the start of the
/// line the user edits the end of.
OtherStartPlan PlanOtherStart(const OtherStartRequest& request,
                              const std::filesystem::path& executable);

/// The software arguments after the edit box: nothing when the user cancelled or emptied
/// the field, and then the machine does not start.
std::optional<std::string> EditedSoftwareArgs(const std::optional<std::string>& answer);

/// What follows the machine's name on the command line: the software arguments, then the
/// profile's "Other Commands" after one blank.
std::string OtherLaunchTail(std::string_view softwareArgs, std::string_view otherCommands);

/// The shell line of a start: the emulator, the Ini folder, the machine, the tail above and
/// the two captures; lower-cased but for the paths, double blanks folded once. Nothing when
/// `machine` is no short name.
std::optional<std::string> ComposeOtherCommandLine(const Preferences& preferences,
                                                   const DataLayout& data, std::string_view machine,
                                                   std::string_view softwareArgs,
                                                   std::string_view otherCommands);

enum class OtherLaunchVerdict {
    Failed,    // show `message`, set FatalErrorFlag and stop
    Previewed, // mame.ini holds what the machine would get; nothing more to do
    Ready,     // warn, then run `commandLine`
};

/// The second half: the profile, mame.ini and the command line.
struct OtherLaunchPlan {
    OtherLaunchVerdict verdict = OtherLaunchVerdict::Failed;
    std::optional<UserMessage> message;
    std::filesystem::path profile; // the profile in use from now on
    std::string otherCommands;     // the profile's "Other Commands"
    std::optional<UserMessage> strayIniWarning;
    std::string commandLine;
};

/// Builds mame.ini from the base text of the view as it is now (so that the snapshot name
/// follows the title chosen) and the machine's own profile, else other.cfg, else
/// `currentProfile`, which always applies for this family of machines.
OtherLaunchPlan PrepareOtherLaunch(const AppContext& context, const MameIniBase& base,
                                   std::string_view softwareArgs,
                                   const std::filesystem::path& currentProfile, bool preview);

} // namespace coinlight
