#pragma once

#include <cstddef>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "CatalogueOutcome.h"

namespace coinlight {

class AtomicFileWriter;

/// What a machine's software file is made from.
struct SoftwareSources {
    std::filesystem::path softwareXml;   // output/software.xml
    std::filesystem::path softFilterIni; // output/softfilter.ini
    std::vector<std::filesystem::path> softwarePaths;
};

struct SoftwareFileResult {
    CatalogueOutcome outcome;
    std::size_t records = 0;
};

/// Appends to `out` one record for each software item of `list` that has a good ROM or
/// disk and passes the machine's compatibility filter. A list that `software.xml` does not
/// hold gives no record and no error. On failure the outcome carries the information
/// message; the caller then throws the machine's file away (KillSoftsOther).
SoftwareFileResult CreateSoftwareFile(const SoftwareSources& sources, std::string_view machine,
                                      std::string_view list, AtomicFileWriter& out);

/// Makes `output/soft/<machine>.txt` (or any `file`) from the machine's lists, each looked
/// up from the top of `software.xml`. The file appears only whole: on failure the old one
/// is deleted as well, so that the next view builds it again.
SoftwareFileResult WriteSoftwareFile(const SoftwareSources& sources, std::string_view machine,
                                     const std::vector<std::string>& lists,
                                     const std::filesystem::path& file);

/// A software item is available when `<path>/<list>/<name>` is a folder (an item with a
/// disk) or `<path>/<list>/<name>.zip` or `.7z` exists (one without), on any path.
bool SoftwareIsAvailable(bool hasDisk, std::string_view softwareName, std::string_view listName,
                         const std::vector<std::filesystem::path>& paths);

/// The files side of throwing software files away: `<machine>.txt` in `softFolder`, or
/// with an empty machine every `*.txt` there. A machine that is not a short name is
/// refused. False when a file could not be deleted.
bool KillSoftsOther(const std::filesystem::path& softFolder, std::string_view machine);

/// `Software List(s)` of a machine record split at `;`; "N/A" gives none.
std::vector<std::string> SoftwareListsOf(std::string_view field);

} // namespace coinlight
