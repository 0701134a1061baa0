#include "LaunchAftermath.h"

#include "LaunchCommand.h"
#include "core/CommandLine.h"
#include "core/FileTests.h"
#include "core/TextFile.h"

namespace coinlight {

namespace {

/// The capture's text, or nothing for an empty or missing file; the file goes either way.
std::optional<std::string> TakeCapture(const std::filesystem::path& file) {
    const auto size = FileSize(file);
    if (!size) {
        return std::nullopt;
    }
    std::optional<std::string> text;
    if (*size > 0) {
        text = ReadFileBytes(file);
    }
    std::error_code ignored;
    std::filesystem::remove(file, ignored);
    return text;
}

void DeleteMachineCfg(const Preferences& preferences, std::string_view machine) {
    const std::string& folder = preferences.outputPaths.cfg;
    // Without a folder the name would be looked for wherever Coinlight happens to run.
    if (!preferences.other.deleteCfg || folder.empty() || !IsShortName(machine)) {
        return;
    }
    std::error_code ignored;
    std::filesystem::remove(std::filesystem::path(folder) / (std::string(machine) + ".cfg"),
                            ignored);
}

} // namespace

std::filesystem::path LastRunFile(const DataLayout& data) {
    return data.Output() / "lastrun.txt";
}

std::optional<UserMessage> WriteLastRun(const DataLayout& data, std::string_view commandLine,
                                        std::string_view routine) {
    std::string error;
    if (!WriteTextLines(LastRunFile(data), {std::string(commandLine)}, &error)) {
        return RoutineError("Error in " + std::string(routine), error, 12);
    }
    return std::nullopt;
}

LaunchOutput FinishLaunch(const AppContext& context, std::string_view machine) {
    DeleteMachineCfg(context.preferences, machine);
    return {TakeCapture(StandardOutputFile(context.data)),
            TakeCapture(StandardErrorFile(context.data))};
}

} // namespace coinlight
