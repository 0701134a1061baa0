#pragma once

#include <filesystem>
#include <string>
#include <string_view>

#include "core/CommandRunner.h"

namespace coinlight {

/// The version in what `mame -version` prints: its first word ("0.251" of "0.251 (unknown)"),
/// without a trailing ".0.0". Empty when there is none.
std::string MameVersionFromOutput(std::string_view output);

/// Asks the executable for its version, through a file in `tempFolder` that is removed again.
/// Empty when MAME cannot be run or prints nothing.
std::string MameVersion(const std::filesystem::path& mameFolder, std::string_view executable,
                        const std::filesystem::path& tempFolder, const ExecPump& pump);

} // namespace coinlight
