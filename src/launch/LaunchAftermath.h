#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "core/AppContext.h"
#include "core/UserMessage.h"

namespace coinlight {

/// output/lastrun.txt: the one line of the last start.
std::filesystem::path LastRunFile(const DataLayout& data);

/// Replaces lastrun.txt with the command line. On failure, the error box of the start
/// routine named.
std::optional<UserMessage> WriteLastRun(const DataLayout& data, std::string_view commandLine,
                                        std::string_view routine = "PlayArcade");

/// What the emulator printed during a start. A stream that printed nothing has no text.
struct LaunchOutput {
    std::optional<std::string> standardOutput; // for the scrolling strip, upper-cased there
    std::optional<std::string> errorOutput;    // for the "MAME Error Output" page
};

/// The clean-up after a start: with "Delete CFG" the machine's own MAME .cfg goes (not a
/// profile of Coinlight's), and both capture files are read and removed from temp.
LaunchOutput FinishLaunch(const AppContext& context, std::string_view machine);

} // namespace coinlight
