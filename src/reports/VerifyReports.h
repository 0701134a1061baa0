#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

#include "MameCommand.h"
#include "core/UserMessage.h"

namespace coinlight {

/// The reports MAME writes about a whole collection, each kept in a file of its own.
enum class VerifyKind { ArcadeRoms, OtherRoms, Samples, AllSoftware, MachineSoftware };

struct VerifyReport {
    VerifyKind kind;
    std::string_view fileName;      // in the output folder
    std::string_view verifyCaption; // the page's caption while MAME verifies
    std::string_view lastCaption;   // the page's caption when the last report is shown again
    std::string_view missingTitle;  // the title of the box that says there is no report
    std::string_view missingWhat;   // "ROMs", "Samples", "Software"
};

const VerifyReport& ReportOf(VerifyKind kind);

/// The ROM report belongs to the family in view.
VerifyKind RomReportKind(bool otherView);

/// An empty list means all software; any other value the machine whose software was loaded.
VerifyKind SoftwareReportKind(std::string_view lists);

/// The command line that writes the report; nothing when the machine of a machine's
/// software report is no name MAME could have made.
std::optional<std::string> VerifyCommandLine(const MameCommand& mame, VerifyKind kind,
                                             const std::filesystem::path& output,
                                             std::string_view softwareMachine);

/// The question asked before MAME is set to work for minutes.
UserMessage ConfirmVerifyQuestion();

/// What the page says while MAME works.
std::string VerifyInProgressText();

/// The box of a Last command when there is no report yet.
UserMessage MissingReportMessage(const VerifyReport& report);

/// The page text of a run the user cancelled.
inline constexpr std::string_view kVerifyCancelled = "Verify Cancelled";

} // namespace coinlight
