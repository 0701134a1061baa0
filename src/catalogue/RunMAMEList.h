#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

#include "CatalogueOutcome.h"
#include "CatalogueProgress.h"
#include "core/CommandRunner.h"
#include "core/DataLayout.h"

namespace coinlight {

/// The emulator as Options names it: its folder (the working folder of every run) and its
/// file name there.
struct MameProgram {
    std::filesystem::path folder;
    std::string executable;
};

/// Captures MAME's `-listxml` ("listxml", into `output/machine.xml`) or `-listsoftware`
/// (any other option, into `output/software.xml`) through the command runner, pumping
/// `progress` while MAME runs. Without `support/lists.txt` nothing runs. The outcome holds
/// the messages in the order they are shown; a fatal one ends the start.
CatalogueOutcome RunMAMEList(std::string_view option, const MameProgram& mame,
                             const DataLayout& data, CatalogueProgress& progress);

/// The outcome of a start without `support/lists.txt`, or nothing when it is there.
std::optional<CatalogueOutcome> MissingListsTxt(const DataLayout& data);

/// What the user is told of one capture: the runner's own message, and "not created" when
/// `created` is false. A fatal runner failure ends the start at once.
CatalogueOutcome CaptureOutcome(const ExecResult& run, bool created, const DataLayout& data);

/// Keeps `output/<fileName>` as `output/<fileName>last.xml` ("machine.xmllast.xml") before
/// a new MAME's capture replaces it. On failure, the reason.
std::optional<std::string> BackupMAMEFile(std::string_view fileName, const DataLayout& data);

} // namespace coinlight
