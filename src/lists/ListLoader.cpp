#include "ListLoader.h"

#include "SelectionDetails.h"
#include "core/LineReader.h"

namespace coinlight {

namespace {

constexpr const char* kVersionAdvice =
    "This might mean you are not using the correct version of MAME.";

// Until the catalogue's own record reader is in: a record is its fields in double quotes,
// separated by commas, with no quote inside a field.
bool SplitRecord(std::string_view line, std::array<std::string_view, kRecordFieldCount>& fields) {
    if (line.size() < 2 || line.front() != '"' || line.back() != '"') {
        return false;
    }
    line = line.substr(1, line.size() - 2);
    std::size_t field = 0;
    for (;;) {
        const std::size_t end = line.find("\",\"");
        if (field == kRecordFieldCount) {
            return false;
        }
        fields[field++] = line.substr(0, end);
        if (end == std::string_view::npos) {
            break;
        }
        line.remove_prefix(end + 3);
    }
    return field == kRecordFieldCount;
}

std::string FailureMessage(const char* routine, const std::string& description,
                           std::string_view shortName, int lineNumber) {
    return std::string("Error In ") + routine + ": " + description +
           "\nROM: " + std::string(shortName) + "\nLine Number: " + std::to_string(lineNumber) +
           "\n\n" + kVersionAdvice;
}

bool NeedsNoFile(const std::array<std::string_view, kRecordFieldCount>& fields) {
    return fields[ColRomRequired] == "No" && fields[ColDeviceRomsRequired] == "No" &&
           fields[ColChdRequired] == "No";
}

std::string PlayersOf(const ListLoadOptions& options, std::string_view shortName) {
    if (!options.nplayers) {
        return {};
    }
    const auto value = options.nplayers->Find("NPlayers", shortName);
    return value ? std::string(*value) : "Unknown";
}

/// Where a machine stands: available or not, by the rules of its family.
using AvailabilityRule = bool (*)(const std::array<std::string_view, kRecordFieldCount>& fields,
                                  const std::string& romBaseName, const ListLoadOptions& options);

bool ArcadeAvailable(const std::array<std::string_view, kRecordFieldCount>& fields,
                     const std::string& romBaseName, const ListLoadOptions& options) {
    if (options.skipSearch || NeedsNoFile(fields)) {
        return true;
    }
    return options.roms != nullptr && options.roms->RomFileExists(romBaseName);
}

bool OtherAvailable(const std::array<std::string_view, kRecordFieldCount>& fields,
                    const std::string& romBaseName, const ListLoadOptions& options) {
    if (options.skipSearch || NeedsNoFile(fields)) {
        return true;
    }
    const std::string_view chd = fields[ColChdRequired];
    const bool romFound = options.roms != nullptr && options.roms->RomFileExists(romBaseName);
    if (chd == "No") {
        return romFound;
    }
    if (chd == "Yes") {
        return romFound && options.roms->AnyChdIn(romBaseName);
    }
    return true; // an unknown text leaves the row as it is
}

LoadedList LoadList(const char* routine, const std::filesystem::path& file,
                    const ListLoadOptions& options, const ListLoadProgress& progress,
                    AvailabilityRule availability) {
    LoadedList list;
    LineReader reader(file);
    if (!reader.IsOpen()) {
        list.error = FailureMessage(routine, "File not found: " + file.string(), "", 4);
        return list;
    }
    MachineFilter filter(options.filters);
    std::array<std::string_view, kRecordFieldCount> fields;
    std::string_view line;
    int lineNumber = 0;
    while (reader.Next(line)) {
        ++lineNumber;
        if (progress.yield) {
            progress.yield();
        }
        if (line.empty()) {
            continue;
        }
        if (!SplitRecord(line, fields)) {
            const std::string_view start = line.substr(0, 60);
            list.error = FailureMessage(routine, "Input past end of file", start, lineNumber);
            return list;
        }
        if (filter.Hides(fields)) {
            continue;
        }
        const std::string base =
            RomBaseName(fields[ColName], fields[ColSetType], options.mergedRomSets);
        const bool available = availability(fields, base, options);
        const auto row = static_cast<std::uint32_t>(list.rows.size());
        list.rows.emplace_back(fields, PlayersOf(options, fields[ColName]), available);
        (available ? list.available : list.unavailable).push_back(row);
        const int count = static_cast<int>(list.rows.size());
        if (progress.count && (count == 1 || count % 25 == 0)) {
            progress.count(count);
        }
    }
    if (reader.Failed()) {
        list.error = FailureMessage(routine, "Cannot read " + file.string(), "", lineNumber);
        return list;
    }
    if (progress.count) {
        progress.count(static_cast<int>(list.rows.size()));
    }
    return list;
}

} // namespace

LoadedList LoadArcadeList(const std::filesystem::path& file, const ListLoadOptions& options,
                          const ListLoadProgress& progress) {
    return LoadList("LoadListsArcade", file, options, progress, ArcadeAvailable);
}

LoadedList LoadOtherList(const std::filesystem::path& file, const ListLoadOptions& options,
                         const ListLoadProgress& progress) {
    ListLoadOptions otherOptions = options;
    otherOptions.nplayers.reset(); // the other list has no Players column
    return LoadList("LoadListsOther", file, otherOptions, progress, OtherAvailable);
}

std::vector<std::uint32_t> AllRows(const LoadedList& list) {
    std::vector<std::uint32_t> rows(list.rows.size());
    for (std::uint32_t i = 0; i < rows.size(); ++i) {
        rows[i] = i;
    }
    return rows;
}

} // namespace coinlight
