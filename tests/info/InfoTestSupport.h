#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "info/InfoSelection.h"

namespace coinlight::test {

/// Writes a 7z archive with the entries given, names exactly as given (inner paths,
/// "..", anything), as the cheat collection would come.
void MakeArchive(const std::filesystem::path& file,
                 const std::vector<std::pair<std::string, std::string>>& entries);

/// The folder of the community's real support files, or nothing where it is absent.
std::optional<std::filesystem::path> RealDataFolder();

/// A selection in an arcade view with `machine` in the details strip.
InfoSelection ArcadeSelection(const std::string& machine);

/// A selection in the Other view; with `software` the title is selected in its list.
InfoSelection OtherSelection(const std::string& machine, const std::string& machineText,
                             const std::string& software = {}, const std::string& list = {},
                             const std::string& softwareText = {});

} // namespace coinlight::test
