#pragma once

#include <filesystem>
#include <optional>
#include <string>

#include "core/AppContext.h"
#include "settings/StartBoxes.h"
#include "core/UserMessage.h"

namespace coinlight {

/// The selected arcade machine as the list and the panels show it.
struct ArcadeSelection {
    std::string view;         // the List View on show
    std::string displayType;  // the first six characters of the row's display column
    std::string machine;      // the row's short name
    std::string orientation;  // "H", "V" or "U"
    bool unavailable = false; // the status panel reads "Unavailable"
};

struct ArcadeStartRequest {
    ArcadeSelection selection;
    std::string profileName; // the class profile in force; kept for an unknown display type
    StartBoxes boxes;
    bool preview = false; // the mame.ini preview: stop once the ini is built
};

enum class ArcadeVerdict {
    Refused,         // show `message` and stop
    Failed,          // show `message`, set FatalErrorFlag and stop
    Previewed,       // mame.ini holds what the machine would get; nothing more to do
    PlaybackMissing, // show `message`, untick Playback, rewrite the base mame.ini, stop
    Ready,           // ask, warn, then run `commandLine`
};

/// Everything a start of an arcade machine needs before the emulator runs.
struct ArcadeLaunchPlan {
    ArcadeVerdict verdict = ArcadeVerdict::Refused;
    std::optional<UserMessage> message;
    std::string profileName;                      // the class profile name now in force
    std::optional<std::filesystem::path> profile; // the profile built into mame.ini, if any
    std::string otherCommands;                    // the profile's "Other Commands"
    /// Ask first when Ready: on No untick Record, rewrite the base mame.ini (which drops the
    /// profile), stop if that fails, else start all the same.
    std::optional<UserMessage> recordQuestion;
    std::optional<UserMessage> strayIniWarning; // show when Ready, then start
    std::string commandLine;                    // when Ready: the line for ExecCmd and lastrun.txt
};

/// The checks, the profile choice and the build of mame.ini for a start. mame.ini holds the
/// machine's profile afterwards whenever a profile applied, whatever the verdict but
/// Refused and Failed; the caller writes the base text back after the start.
ArcadeLaunchPlan PrepareArcadeLaunch(const AppContext& context, const ArcadeStartRequest& request);

} // namespace coinlight
