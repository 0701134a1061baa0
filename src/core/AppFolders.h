#pragma once

#include <filesystem>
#include <functional>
#include <optional>
#include <string>

#include "DataLayout.h"

namespace coinlight {

/// Looks up an environment variable; nothing when it is unset. Tests pass their own.
using EnvironmentLookup = std::function<std::optional<std::string>(const char* name)>;
EnvironmentLookup ProcessEnvironment();

/// The folder of the running executable.
std::filesystem::path ExecutableFolder();

/// A development run: the environment variable COINLIGHT_IDE is "1". It keeps its files
/// apart from an installed Coinlight's and shows the developer aids.
bool IsIdeMode(const EnvironmentLookup& environment);

/// `portable.txt` beside the executable keeps everything beside it; otherwise the user's
/// data folder, "Coinlight" or, in a development run, "Coinlight - IDE".
std::filesystem::path ResolveDataFolder(const std::filesystem::path& appFolder, bool ideMode,
                                        const EnvironmentLookup& environment);
bool IsPortable(const std::filesystem::path& appFolder);

/// Makes the data folder and its settings, output, output/soft and temp folders, in that
/// order, and clears those that exist of the temporary files of writes that never finished
/// (a process killed half-way). On failure, the reason.
std::optional<std::string> MakeFolderTree(const DataLayout& layout);

/// Renames the files of earlier releases to today's names. A rename onto an existing file
/// fails (the user must decide which to keep), and so does the start.
std::optional<std::string> MigrateOldNames(const DataLayout& layout);

/// The read-only support files installed with the program, or in a development tree the
/// source folder's; empty when none is found.
std::filesystem::path FindDistributionSupport(const std::filesystem::path& appFolder);

/// Copies each distribution file that the data folder's support folder lacks; a file the
/// user changed or added is never touched. Returns how many were copied.
int InstallSupportFiles(const std::filesystem::path& distribution, const DataLayout& layout);

} // namespace coinlight
