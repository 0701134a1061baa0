#include "WhatRomsChanged.h"

#include "CrcInfoFile.h"
#include "core/TextFile.h"

namespace coinlight {

namespace {

UserMessage MissingFile(std::string text) {
    UserMessage message;
    message.title = "What ROMs Changed";
    message.text = std::move(text);
    message.icon = MessageIcon::Information;
    return message;
}

} // namespace

std::optional<UserMessage> MissingCrcInfo(const std::filesystem::path& newFile,
                                          const std::filesystem::path& lastFile) {
    std::error_code error;
    if (!std::filesystem::exists(newFile, error)) {
        return MissingFile("Cannot find crcinfo.txt.");
    }
    if (!std::filesystem::exists(lastFile, error)) {
        return MissingFile(
            "Cannot find crcinfolast.txt.  Coinlight must first detect a new version of MAME "
            "before it can create the crcinfolast.txt file.");
    }
    return std::nullopt;
}

WhatRomsChangedRun CompareCrcInfoFiles(const std::filesystem::path& newFile,
                                       const std::filesystem::path& lastFile,
                                       const std::optional<std::filesystem::path>& report) {
    WhatRomsChangedRun run;
    run.missing = MissingCrcInfo(newFile, lastFile);
    if (run.missing) {
        return run;
    }
    const auto newText = ReadCrcInfoFile(newFile);
    const auto lastText = ReadCrcInfoFile(lastFile);
    if (!newText || !lastText) {
        run.error = RunTimeError{kErrorFileNotFound, kFileNotFoundText, 5};
        return run;
    }
    const CrcRecords& newList = newText->records;
    const CrcRecords& lastList = lastText->records;
    if (newList.error || lastList.error) {
        run.error = newList.error ? newList.error : lastList.error;
        return run;
    }
    const CrcChanges changes = CompareCrcLists(newList.entries, lastList.entries);
    run.text = WhatRomsChangedText(changes);
    run.anyChange = !changes.Empty();
    if (run.anyChange && report) {
        std::string why;
        if (!WriteFileBytes(*report, run.text, &why)) {
            run.error = RunTimeError{kErrorFileAccess, why, 9};
        }
    }
    return run;
}

UserMessage MissingChangedRomsMessage() {
    UserMessage message = MissingFile(
        "Cannot find What ROMs Changed report.  You can create one from the Reports pull-down "
        "menu above.");
    message.title = "Last What ROMs Changed Report";
    return message;
}

ReportHeadings ComparisonHeadings() {
    // "Changed" from 150 on: the first sentence says "changed" twice before the heading.
    return {{"Added", 0}, {"Removed", 0}, {"Changed", 150}};
}

ReportHeadings SavedReportHeadings() {
    return {{"Added", 0}, {"Removed", 0}, {"Changed", 25}};
}

std::string ComparisonErrorText(const RunTimeError& error) {
    return "Error: " + std::to_string(error.number) + " " + error.description +
           "\r\nLine Number: " + std::to_string(error.location);
}

} // namespace coinlight
