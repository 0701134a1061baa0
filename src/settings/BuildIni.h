#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "MameIniBase.h"
#include "OptionValues.h"
#include "core/UserMessage.h"

namespace coinlight {

/// A profile's options as the sections that follow the base text of mame.ini.
struct ProfileSections {
    std::vector<std::string> lines;
    std::string otherCommands;          // the profile's "Other Commands", for the command line
    std::optional<std::string> problem; // a value that cannot be written; no lines then
};
ProfileSections ProfileSectionLines(const OptionValues& values);

struct IniBuild {
    std::string commandString;          // the profile's "Other Commands"
    std::optional<UserMessage> failure; // the error box; the caller sets FatalErrorFlag
};

/// Appends the option sections of `profile` to mame.ini, first writing the base text when
/// the file is missing. A failure leaves mame.ini as it was before the append.
IniBuild BuildIni(const Preferences& preferences, const MameIniBase& base,
                  const std::filesystem::path& profile);

} // namespace coinlight
