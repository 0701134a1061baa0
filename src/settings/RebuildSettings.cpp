#include "RebuildSettings.h"

#include <algorithm>

#include "BiosChoices.h"
#include "OptionCatalogue.h"
#include "ProfileLoad.h"
#include "core/FileTests.h"
#include "core/ProfileFile.h"
#include "core/TextFile.h"

namespace coinlight {

std::filesystem::path RebuildReportFile(const DataLayout& data) {
    return data.Output() / "rebuilt.txt";
}

std::vector<std::filesystem::path> SettingsFiles(const DataLayout& data) {
    std::vector<std::filesystem::path> files;
    std::error_code error;
    for (std::filesystem::directory_iterator entry(data.Settings(), error), end;
         !error && entry != end; entry.increment(error)) {
        std::error_code kindError;
        if (entry->is_regular_file(kindError) &&
            MatchesWildcard("*.cfg", entry->path().filename().string())) {
            files.push_back(entry->path());
        }
    }
    std::sort(files.begin(), files.end());
    return files;
}

RebuildOutcome RebuildSettings(const DataLayout& data, ComboChoices choices,
                               const RebuildProgress& progress) {
    RebuildOutcome outcome;
    const auto files = SettingsFiles(data);
    const auto biosIni = LoadProfile(data.Output() / "bios.ini");
    const auto catalogue = OptionCatalogue();
    std::string lines;
    for (std::size_t done = 0; done < files.size(); ++done) {
        const auto& file = files[done];
        const std::string name = file.filename().string();
        choices.SetBiosItems(IsClassProfileFileName(name)
                                 ? ClassBiosChoices().items
                                 : MachineBiosChoices(*biosIni, file.stem().string()).items);
        std::string error;
        const auto repaired = RepairProfile(file, choices, &error);
        if (!repaired) {
            outcome.failure = RoutineError("Error In RebuildSettings", error, 4);
            break;
        }
        for (std::size_t row : *repaired) {
            lines += name + "\t" + std::string(OptionTag(catalogue[row])) + "\r\n";
        }
        if (!repaired->empty()) {
            lines += "\r\n";
            outcome.changed = true;
        }
        if (progress) {
            progress(done + 1, files.size());
        }
    }
    const auto report = RebuildReportFile(data);
    if (!outcome.changed) {
        outcome.text = kNoInvalidValues;
        std::error_code ignored;
        std::filesystem::remove(report, ignored);
        return outcome;
    }
    outcome.text = std::string(kRebuildHeader) + lines;
    std::error_code ignored; // a folder that cannot be made shows in the write's error
    std::filesystem::create_directories(report.parent_path(), ignored);
    std::string error;
    if (!WriteFileBytes(report, outcome.text, &error) && !outcome.failure) {
        outcome.failure = RoutineError("Error In RebuildSettings", error, 6);
    }
    return outcome;
}

std::optional<std::string> RebuildReportText(const DataLayout& data) {
    return ReadFileBytes(RebuildReportFile(data));
}

} // namespace coinlight
