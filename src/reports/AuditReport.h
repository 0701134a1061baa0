#pragma once

#include <array>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "MameCommand.h"
#include "ReportHeading.h"
#include "core/UserMessage.h"

namespace coinlight {

/// The four questions an audit asks MAME, each answered into a file of its own in `temp`.
struct AuditCapture {
    std::string_view file;
    std::string_view verb;
};
inline constexpr std::array<AuditCapture, 4> kAuditCaptures = {{
    {"vroms.txt", "-verifyroms"},
    {"lroms.txt", "-listroms"},
    {"vsamples.txt", "-verifysamples"},
    {"lsamples.txt", "-listsamples"},
}};

/// The four command lines in the order they run; empty when `shortName` is not a name MAME
/// could have made, so that nothing of it reaches the shell.
std::vector<std::string> AuditCommandLines(const MameCommand& mame, std::string_view shortName,
                                           const std::filesystem::path& temp);

/// The box for a row whose name MAME could not have made.
UserMessage RefusedNameMessage(std::string_view shortName);

/// What the list shows about the machine against what the disk holds now.
struct AuditFacts {
    bool listAvailable = false; // the list does not call the machine unavailable
    bool fileFound = false;     // a .7z or .zip of the set lies in a ROM folder
};

/// The audit's page text made from the captures, which are deleted once read. When one
/// of them is missing (MAME's output could not be written) the text says so instead.
struct AuditReport {
    std::string text;
    ReportHeadings headings;
    bool capturesMissing = false;
};
AuditReport MakeAuditReport(const AuditFacts& facts, const std::filesystem::path& temp);

} // namespace coinlight
