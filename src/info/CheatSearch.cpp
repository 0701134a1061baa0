#include "CheatSearch.h"

#include "InfoLines.h"
#include "catalogue/TextFunctions.h"
#include "core/FileTests.h"

namespace coinlight {

namespace {

/// Step one in the Other view: a title must be chosen. Nothing when the search goes on.
std::optional<std::string> SoftwareMissingText(const InfoSelection& selection) {
    if (!selection.softwareSelected || !selection.softwareCaption) {
        return "No software for this machine or no software was selected.\n";
    }
    if (selection.softwareListEmpty) {
        return "No software selected.\n";
    }
    return std::nullopt;
}

std::optional<InfoError> AppendCheatLines(const std::filesystem::path& file, std::string& panel) {
    LineReader reader(file);
    if (auto error = OpenFailure(reader, file)) {
        return error;
    }
    std::string_view line;
    while (reader.NextHolding("<cheat desc=", line)) {
        panel += CheatLine(line);
        panel += '\n';
    }
    return reader.Failed() ? std::optional(DeviceError()) : std::nullopt;
}

} // namespace

std::string CheatLine(std::string_view line) {
    std::string text = ReplaceAll(TrimSpaces(line), "<cheat desc=", "");
    text = ReplaceAll(text, "/>", "");
    text = ReplaceAll(text, "<comment>", "(");
    text = ReplaceAll(text, "</comment>", ")");
    text = ReplaceAll(text, ">", "");
    return ReplaceAll(text, "\"", "");
}

std::optional<InfoError> SearchCheats(const std::filesystem::path& archive,
                                      const std::filesystem::path& tempFolder,
                                      const InfoSelection& selection, std::string& panel,
                                      const ArchiveLimits& limits) {
    const InfoKeys keys = KeysOf(selection);
    std::string entry;
    if (selection.inOtherView) {
        if (auto text = SoftwareMissingText(selection)) {
            panel += *text;
            return std::nullopt;
        }
        panel += selection.softwareText + "\n\n";
        entry = selection.otherMachine + "/" + keys.softwareName + ".xml";
    } else {
        entry = keys.machine + ".xml";
    }
    const auto fileName = ExtractedName(entry);
    const auto file = tempFolder / fileName.value_or(std::string());
    std::error_code ignored;
    if (fileName) {
        std::filesystem::remove(file, ignored); // left by a search that was cut short
        // Exact names: a machine's file is only the one at the root.
        const auto wanted = [&entry](std::string_view name) {
            return name == entry;
        };
        if (auto error = ExtractArchiveEntry(archive, wanted, tempFolder, limits)) {
            return error;
        }
    }
    if (!fileName || !FileExists(file)) {
        panel += selection.inOtherView ? "No cheats found for this software title.\n"
                                       : "No cheats found for this machine.\n";
        return std::nullopt;
    }
    auto error = AppendCheatLines(file, panel);
    std::filesystem::remove(file, ignored);
    return error;
}

} // namespace coinlight
