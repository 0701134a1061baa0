#include "AuditReport.h"

#include <optional>

#include "PermissionAdvice.h"
#include "core/TextFile.h"
#include "core/UserMessage.h"

namespace coinlight {

namespace {

constexpr std::string_view kCrLf = "\r\n";

constexpr std::string_view kSetGone =
    "ROM set not found.  If you just removed this ROM set, please refresh the list from the "
    "View drop-down menu so Coinlight can update the lists.";
constexpr std::string_view kSetAdded =
    "ROM set found.  If you just added this ROM set, please refresh the list from the View "
    "drop-down menu so Coinlight can update the lists.";

struct Capture {
    std::string bytes;
    std::vector<std::string> lines;
};

/// Reads one capture and deletes it; nothing when it was never written.
std::optional<Capture> TakeCapture(const std::filesystem::path& file) {
    auto bytes = ReadFileBytes(file);
    std::error_code ignored;
    std::filesystem::remove(file, ignored);
    if (!bytes) {
        return std::nullopt;
    }
    Capture capture;
    capture.lines = SplitLines(*bytes);
    capture.bytes = std::move(*bytes);
    return capture;
}

void AppendLines(std::string& text, const std::vector<std::string>& lines) {
    for (const auto& line : lines) {
        text.append(line).append(kCrLf);
    }
}

std::string RomsSection(const AuditFacts& facts) {
    std::string text = "ROMs\r\n\r\n";
    if (facts.listAvailable && !facts.fileFound) {
        text.append(kSetGone).append("\r\n\r\n");
    } else if (facts.fileFound && !facts.listAvailable) {
        text.append(kSetAdded).append("\r\n\r\n");
    }
    return text;
}

} // namespace

std::vector<std::string> AuditCommandLines(const MameCommand& mame, std::string_view shortName,
                                           const std::filesystem::path& temp) {
    std::vector<std::string> lines;
    for (const auto& capture : kAuditCaptures) {
        CommandLine line = mame.Start();
        line.ShortName(shortName).Word(capture.verb).RedirectOutput(temp / capture.file);
        if (!IsShortName(shortName) || !line.IsValid()) {
            return {};
        }
        lines.push_back(line.Text());
    }
    return lines;
}

UserMessage RefusedNameMessage(std::string_view shortName) {
    UserMessage message;
    message.title = "Audit";
    message.text = "\"" + std::string(shortName) +
                   "\" is not the short name of a machine, so Coinlight will not hand it to MAME.";
    message.icon = MessageIcon::Information;
    return message;
}

AuditReport MakeAuditReport(const AuditFacts& facts, const std::filesystem::path& temp) {
    std::array<std::optional<Capture>, kAuditCaptures.size()> captures;
    for (std::size_t i = 0; i < captures.size(); ++i) {
        captures[i] = TakeCapture(temp / kAuditCaptures[i].file);
    }
    AuditReport report;
    for (const auto& capture : captures) {
        if (!capture) {
            report.capturesMissing = true;
            report.text = "Unable to find audit file(s).  " + NoPermissionSentence(temp);
            return report;
        }
    }
    const auto& [verifyRoms, listRoms, verifySamples, listSamples] = captures;
    std::string& text = report.text;
    text = RomsSection(facts);
    AppendLines(text, verifyRoms->lines);
    text.append(kCrLf);
    AppendLines(text, listRoms->lines);
    text.append("\r\n\r\nSamples\r\n\r\n");
    if (!verifySamples->bytes.empty()) {
        AppendLines(text, verifySamples->lines);
        text.append(kCrLf);
    } else {
        text.append("Sample set not found.\r\n\r\n");
    }
    if (listSamples->lines.size() >= 2) {
        AppendLines(text, listSamples->lines);
    } else {
        text.append("This machine does not use samples.\r\n\r\n");
    }
    report.headings = {{"ROMs", 0}, {"Samples", 0}};
    return report;
}

} // namespace coinlight
