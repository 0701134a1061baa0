#include "ListLoader.h"

#include "RecordScanner.h"
#include "SelectionDetails.h"
#include "core/BigMemory.h"

namespace coinlight {

namespace {

constexpr const char* kVersionAdvice =
    "This might mean you are not using the correct version of MAME.";

std::string FailureMessage(const char* routine, const std::string& description,
                           std::string_view shortName, int lineNumber) {
    return std::string("Error In ") + routine + ": " + description +
           "\nROM: " + std::string(shortName) + "\nLine Number: " + std::to_string(lineNumber) +
           "\n\n" + kVersionAdvice;
}

/// The short name of a line that is no whole record, for the message: the text of its
/// name field as far as the line has one, else nothing.
std::string_view ShortNameOfDamagedLine(std::string_view line) {
    std::size_t at = line.starts_with('"') ? 1 : 0;
    for (int field = 0; field < ColName; ++field) {
        const auto delimiter = line.find("\",\"", at);
        if (delimiter == std::string_view::npos) {
            return {};
        }
        at = delimiter + 3;
    }
    const std::string_view rest = line.substr(at);
    return rest.substr(0, rest.find('"'));
}

bool NeedsNoFile(const std::array<std::string_view, kRecordFieldCount>& fields) {
    return fields[ColRomRequired] == "No" && fields[ColDeviceRomsRequired] == "No" &&
           fields[ColChdRequired] == "No";
}

/// The Players text of a machine: from the list when there is one, else nothing at all.
class PlayersLookup {
public:
    explicit PlayersLookup(const std::shared_ptr<const ProfileDocument>& document)
        : m_document(document.get()),
          m_section(document ? document->SectionOrdinal("NPlayers") : -1) {}

    std::string_view Of(std::string_view shortName) const {
        if (m_document == nullptr) {
            return {};
        }
        return m_document->FindInSection(m_section, shortName).value_or("Unknown");
    }

private:
    const ProfileDocument* m_document;
    int m_section;
};

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
    list.machines = std::make_shared<MachineRows>();
    // The whole file stays in memory and the rows point into it: one read, no copy a row.
    auto bytes = ReadFileBig(file);
    if (!bytes) {
        list.error = FailureMessage(routine, "File not found: " + file.string(), "", 4);
        return list;
    }
    list.machines->text = std::move(*bytes);
    const std::string_view text = list.machines->text.View();
    list.machines->players = options.nplayers;
    auto& rows = list.machines->rows;
    rows.reserve(text.size() / 160);
    MachineFilter filter(options.filters);
    const PlayersLookup players(options.nplayers);
    RecordSpans spans;
    std::array<std::string_view, kRecordFieldCount> fields;
    int lineNumber = 0;
    RecordScanner scanner(text);
    std::string_view line;
    bool wellFormed = false;
    while (scanner.Next(line, spans, wellFormed)) {
        ++lineNumber;
        if (progress.yield) {
            progress.yield();
        }
        if (line.empty()) {
            continue;
        }
        if (!wellFormed) {
            list.error = FailureMessage(routine, "Input past end of file",
                                        ShortNameOfDamagedLine(line), lineNumber);
            return list;
        }
        for (int column = 0; column < kRecordFieldCount; ++column) {
            fields[static_cast<std::size_t>(column)] = spans.Field(line, column);
        }
        if (filter.Hides(fields)) {
            continue;
        }
        const std::string base =
            RomBaseName(fields[ColName], fields[ColSetType], options.mergedRomSets);
        const bool available = availability(fields, base, options);
        const auto row = static_cast<std::uint32_t>(rows.size());
        rows.emplace_back(line, spans, players.Of(fields[ColName]), available);
        (available ? list.available : list.unavailable).push_back(row);
        const int count = static_cast<int>(rows.size());
        if (progress.count && (count == 1 || count % 25 == 0)) {
            progress.count(count);
        }
    }
    if (progress.count) {
        progress.count(static_cast<int>(rows.size()));
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

LoadedList ListLoadJob::Run(const ListLoadProgress& progress) const {
    // Each ROM folder is listed once for the whole load, not once a machine.
    const RomFolderIndex roms(options.skipSearch ? std::vector<std::string>{} : romFolders);
    ListLoadOptions withRoms = options;
    withRoms.roms = &roms;
    return arcade ? LoadArcadeList(file, withRoms, progress)
                  : LoadOtherList(file, withRoms, progress);
}

std::vector<std::uint32_t> AllRows(const MachineRows& machines) {
    std::vector<std::uint32_t> rows(machines.rows.size());
    for (std::uint32_t i = 0; i < rows.size(); ++i) {
        rows[i] = i;
    }
    return rows;
}

} // namespace coinlight
