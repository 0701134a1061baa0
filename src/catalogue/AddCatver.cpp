#include "AddCatver.h"

#include <new>
#include <string>

#include "CatalogueFiles.h"
#include "MachineLookups.h"
#include "QuotedRecordFile.h"
#include "core/AtomicFileWriter.h"
#include "core/ProfileFile.h"
#include "core/TextFile.h"

namespace coinlight {

namespace {

constexpr const char* kRoutine = "AddCatver";
constexpr int kLocationRead = 21;
constexpr int kLocationWrite = 22;
constexpr std::size_t kRecordsBetweenPumps = 256;

} // namespace

std::optional<RunTimeError> MergeCategories(const std::filesystem::path& recordFile,
                                            const ProfileDocument& catver,
                                            CatalogueProgress& progress) {
    const auto bytes = ReadFileBytes(recordFile);
    if (!bytes) {
        return RunTimeError{kErrorFileNotFound, kFileNotFoundText, kLocationRead};
    }
    AtomicFileWriter out(recordFile);
    QuotedFieldReader in(*bytes);
    MachineFields fields;
    for (std::size_t record = 1; !in.AtEnd(); ++record) {
        if (record % kRecordsBetweenPumps == 0) {
            progress.Pump();
        }
        if (!ReadMachineRecord(in, fields)) {
            return RunTimeError{kErrorPastEnd, kPastEndText, kLocationRead};
        }
        fields[MachineField::Category] = CategoryOf(catver, fields[MachineField::Rom]);
        WriteMachineRecord(out, fields);
    }
    if (!out.Commit()) {
        return RunTimeError{kErrorFileAccess, out.Error(), kLocationWrite};
    }
    return std::nullopt;
}

CatalogueOutcome AddCatver(std::string_view fileName, const DataLayout& data,
                           CatalogueProgress& progress) {
    CatalogueOutcome outcome;
    progress.ShowCatverMerge("Different catver.ini detected!",
                             "Adding catver info to " + std::string(fileName) + "...",
                             "Options will open next so you can verify your selections.");
    std::optional<RunTimeError> error;
    try {
        const auto catver = LoadProfile(data.Support() / kCatverIni);
        error = MergeCategories(data.Output() / fileName, *catver, progress);
        const auto favourites =
            data.Output() / (fileName == kArcadeInfo ? kArcadeFavs : kOtherFavs);
        std::error_code missing;
        if (!error && std::filesystem::exists(favourites, missing)) {
            error = MergeCategories(favourites, *catver, progress);
        }
    } catch (const std::bad_alloc&) {
        error = RunTimeError{kErrorOutOfMemory, kOutOfMemoryText, 0};
    }
    if (error) {
        outcome.messages.push_back({HandlerMessage(kRoutine, *error), true});
        outcome.fatalError = true;
        return outcome;
    }
    progress.ClearCatverMerge();
    return outcome;
}

} // namespace coinlight
