#pragma once

#include <filesystem>
#include <optional>
#include <string>

#include "CrcComparison.h"
#include "ReportHeading.h"
#include "core/UserMessage.h"

namespace coinlight {

inline constexpr const char* kChangedRomsTxt = "changedroms.txt";

/// The box that stops a comparison before it starts: one of the two files is absent.
std::optional<UserMessage> MissingCrcInfo(const std::filesystem::path& newFile,
                                          const std::filesystem::path& lastFile);

/// A comparison of the two crcinfo generations and what became of it.
struct WhatRomsChangedRun {
    std::optional<UserMessage> missing; // a file to compare is absent: nothing else was done
    std::optional<RunTimeError> error;  // a file not read to its end, or the report not written
    std::string text;                   // the report, when the comparison was made
    bool anyChange = false;
};

/// Compares `newFile` with `lastFile` and, when anything changed, writes the report to
/// `report` (when given). With nothing changed an older report is left as it is.
WhatRomsChangedRun CompareCrcInfoFiles(const std::filesystem::path& newFile,
                                       const std::filesystem::path& lastFile,
                                       const std::optional<std::filesystem::path>& report);

/// The box of the Last command when no comparison has been kept.
UserMessage MissingChangedRomsMessage();

/// The bold headings of the comparison's page, and of the saved report shown again.
ReportHeadings ComparisonHeadings();
ReportHeadings SavedReportHeadings();

/// The page text of a comparison that failed.
std::string ComparisonErrorText(const RunTimeError& error);

} // namespace coinlight
