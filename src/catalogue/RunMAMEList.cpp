#include "RunMAMEList.h"

#include "CatalogueFiles.h"
#include "FileCopy.h"
#include "core/CommandLine.h"
#include "core/UserMessage.h"

namespace coinlight {

namespace {

constexpr const char* kListsMissing =
    "Cannot find lists.txt.  This file is needed to populate machines in the proper lists.  "
    "It is included with Coinlight.\nPut the file in the Coinlight support folder and try "
    "again.";
constexpr const char* kNotCreated = "The machine.xml was not created.  Coinlight will now close.";

} // namespace

std::optional<CatalogueOutcome> MissingListsTxt(const DataLayout& data) {
    std::error_code error;
    if (std::filesystem::exists(data.Support() / kListsTxt, error)) {
        return std::nullopt;
    }
    return CatalogueOutcome{{{kListsMissing, true}}, true};
}

CatalogueOutcome CaptureOutcome(const ExecResult& run, bool created, const DataLayout& data) {
    CatalogueOutcome outcome;
    if (run.IsFatal()) {
        outcome.messages.push_back({run.message, true});
        outcome.fatalError = true;
        return outcome;
    }
    if (run.outcome == ExecOutcome::FolderUnavailable) {
        outcome.messages.push_back({run.message, true});
    }
    if (!created) {
        outcome.messages.push_back(
            {std::string(kNotCreated) + "\n\n" + NoPermissionSentence(data.Output()), true});
        outcome.fatalError = true;
    }
    return outcome;
}

CatalogueOutcome RunMAMEList(std::string_view option, const MameProgram& mame,
                             const DataLayout& data, CatalogueProgress& progress) {
    if (auto missing = MissingListsTxt(data)) {
        return *missing;
    }
    const std::string_view fileName = option == "listxml" ? kMachineXml : kSoftwareXml;
    const std::filesystem::path target = data.Output() / fileName;
    progress.ShowCapture("Creating " + std::string(fileName) + "...");

    CommandLine line(mame.folder, mame.executable);
    line.Word("-" + std::string(option)).Word("-nodtd").RedirectOutput(target);
    const ExecResult run = ExecCmd(line.Text(), mame.folder, [&progress] {
        progress.Pump();
        return true;
    });
    // The shell makes the file before MAME writes to it: an empty one counts as made.
    std::error_code error;
    return CaptureOutcome(run, !run.IsFatal() && std::filesystem::exists(target, error), data);
}

std::optional<std::string> BackupMAMEFile(std::string_view fileName, const DataLayout& data) {
    const std::filesystem::path current = data.Output() / fileName;
    std::error_code error;
    if (!std::filesystem::exists(current, error)) {
        return std::nullopt;
    }
    return CopyFileReplacing(current, data.Output() / LastCopyName(fileName));
}

} // namespace coinlight
