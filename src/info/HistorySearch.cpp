#include "HistorySearch.h"

#include "InfoLines.h"
#include "catalogue/TextFunctions.h"

namespace coinlight {

namespace {

constexpr std::string_view kTextOpen = "<text>";
constexpr std::string_view kTextClose = "</text>";

/// The entities the history text uses, in the order that keeps "&amp;quot;" a quote.
void AppendDecoded(std::string& buffer, std::string_view line, bool copyrightSign) {
    if (line.find_first_of("&(") == std::string_view::npos) {
        buffer.append(line);
    } else {
        std::string text = ReplaceAll(line, "&apos;", "'");
        text = ReplaceAll(text, "&amp;", "&");
        text = ReplaceAll(text, "&quot;", "\"");
        if (copyrightSign) {
            text = ReplaceAll(text, "(c)", "\xC2\xA9");
        }
        buffer += text;
    }
    buffer += '\n';
}

/// The lines up to the one ending in "</text>", which is dropped with whatever it holds.
std::optional<InfoError> AppendTextLines(LineReader& reader, std::string& buffer,
                                         bool copyrightSign) {
    std::string_view line;
    for (;;) {
        if (!reader.Next(line)) {
            return EndOfRecordError(reader);
        }
        if (line.ends_with(kTextClose)) {
            return std::nullopt;
        }
        AppendDecoded(buffer, line, copyrightSign);
    }
}

std::optional<InfoError> AppendMachineText(LineReader& reader, std::string_view line,
                                           std::string& panel) {
    while (!line.ends_with(kTextOpen)) {
        if (!reader.Next(line)) {
            return EndOfRecordError(reader);
        }
    }
    std::string buffer;
    if (auto error = AppendTextLines(reader, buffer, true)) {
        return error;
    }
    panel += buffer;
    panel += '\n';
    return std::nullopt;
}

/// The entry whose `<item>` line names both the list and the title, in either order.
bool FindSoftwareEntry(LineReader& reader, const InfoKeys& keys, std::string_view& line) {
    const std::string name = "name=\"" + keys.softwareName + "\"";
    const std::string list = "<item list=\"" + keys.softwareList + "\"";
    while (reader.NextHolding(name, line)) {
        if (Holds(line, list)) {
            return true;
        }
    }
    return false;
}

std::optional<InfoError> SoftwarePass(const std::filesystem::path& file,
                                      const InfoSelection& selection, const InfoKeys& keys,
                                      std::string& panel) {
    LineReader reader(file);
    if (auto error = OpenFailure(reader, file)) {
        return error;
    }
    std::string_view line;
    if (!FindSoftwareEntry(reader, keys, line)) {
        if (reader.Failed()) {
            return DeviceError();
        }
        panel += "No history found for " + selection.softwareText + ".\n";
        return std::nullopt;
    }
    while (!Holds(line, kTextOpen)) {
        if (!reader.Next(line)) {
            return EndOfRecordError(reader);
        }
    }
    // Here the tag may stand anywhere in its line, and what follows it is kept as it is.
    std::string scratch;
    std::string buffer = "\n*** Software ***\n\n";
    buffer += ReplaceAll(WithoutTabs(line, scratch), kTextOpen, "");
    buffer += '\n';
    if (auto error = AppendTextLines(reader, buffer, false)) {
        return error;
    }
    panel += buffer;
    panel += '\n';
    return std::nullopt;
}

} // namespace

std::optional<InfoError> SearchHistory(const std::filesystem::path& file,
                                       const InfoSelection& selection, std::string& panel) {
    const InfoKeys keys = KeysOf(selection);
    {
        LineReader reader(file);
        if (auto error = OpenFailure(reader, file)) {
            return error;
        }
        const std::string needle = "<system name=\"" + keys.machine + "\"";
        std::string_view line;
        if (reader.NextHolding(needle, line)) {
            if (auto error = AppendMachineText(reader, line, panel)) {
                return error;
            }
        } else if (reader.Failed()) {
            return DeviceError();
        } else if (!selection.inOtherView) {
            panel += "No history found.\n";
            return std::nullopt;
        } else {
            panel += "No history found for " + selection.otherMachineText + ".\n";
        }
    }
    if (!SoftwareChosen(selection)) {
        return std::nullopt;
    }
    return SoftwarePass(file, selection, keys, panel);
}

} // namespace coinlight
