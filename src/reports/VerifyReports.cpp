#include "VerifyReports.h"

#include <array>

namespace coinlight {

namespace {

constexpr std::array<VerifyReport, 5> kReports = {{
    {VerifyKind::ArcadeRoms, "arcadeauditroms.txt", "Verify All ROMs", "Last ROMs Report",
     "Last ROMs Report", "ROMs"},
    {VerifyKind::OtherRoms, "otherauditroms.txt", "Verify All ROMs", "Last ROMs Report",
     "Last ROMs Report", "ROMs"},
    {VerifyKind::Samples, "arcadeauditsamples.txt", "Verify All Samples", "Last Samples Report",
     "Last Samples Report", "Samples"},
    {VerifyKind::AllSoftware, "otherauditallsoftware.txt", "Verify All Software",
     "Last All Software Report", "Last All Software Report", "Software"},
    {VerifyKind::MachineSoftware, "otherauditmachinessoftware.txt", "Verify Machine's Software",
     "Last Machine's Software Report (May Not Be Current Selected Machine)",
     "Last Machine's Software Report", "Software"},
}};

} // namespace

const VerifyReport& ReportOf(VerifyKind kind) {
    return kReports[static_cast<std::size_t>(kind)];
}

VerifyKind RomReportKind(bool otherView) {
    return otherView ? VerifyKind::OtherRoms : VerifyKind::ArcadeRoms;
}

VerifyKind SoftwareReportKind(std::string_view lists) {
    return lists.empty() ? VerifyKind::AllSoftware : VerifyKind::MachineSoftware;
}

std::optional<std::string> VerifyCommandLine(const MameCommand& mame, VerifyKind kind,
                                             const std::filesystem::path& output,
                                             std::string_view softwareMachine) {
    CommandLine line = mame.Start();
    switch (kind) {
    case VerifyKind::ArcadeRoms:
    case VerifyKind::OtherRoms:
        line.Word(kAllMachines).Word("-verifyroms");
        break;
    case VerifyKind::Samples:
        line.Word(kAllMachines).Word("-verifysamples");
        break;
    case VerifyKind::AllSoftware:
        line.Word("-verifysoftware");
        break;
    case VerifyKind::MachineSoftware:
        if (!IsShortName(softwareMachine)) {
            return std::nullopt;
        }
        line.ShortName(softwareMachine).Word("-verifysoftware");
        break;
    }
    line.RedirectOutput(output / ReportOf(kind).fileName);
    return line.Text();
}

UserMessage ConfirmVerifyQuestion() {
    UserMessage question;
    question.title = "Confirm Verify";
    question.text = "This could take a very long time.  Do you want to continue?";
    question.icon = MessageIcon::Question;
    question.buttons = MessageButtons::YesNo;
    return question;
}

std::string VerifyInProgressText() {
    return "Verification in process.  Please stand by.\r\rTo cancel this operation, press "
           "Cancel.\r\r";
}

UserMessage MissingReportMessage(const VerifyReport& report) {
    UserMessage message;
    message.title = std::string(report.missingTitle);
    message.text = "Cannot find " + std::string(report.missingWhat) +
                   " report.  You can create one from the Reports pull-down menu above.";
    message.icon = MessageIcon::Information;
    return message;
}

} // namespace coinlight
