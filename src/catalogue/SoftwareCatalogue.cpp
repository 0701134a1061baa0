#include "SoftwareCatalogue.h"

#include <algorithm>
#include <array>
#include <new>
#include <optional>

#include "BlockLineReader.h"
#include "CatalogueAbort.h"
#include "QuotedRecordFile.h"
#include "TextCase.h"
#include "core/AtomicFileWriter.h"
#include "core/CommandLine.h"
#include "core/ProfileFile.h"

namespace coinlight {

namespace {

using S = SoftwareField;

constexpr const char* kRoutine = "CreateSoftwareFile";

// "Line Number: " of a failure: the step of the routine.
constexpr int kLocationOpen = 4;
constexpr int kLocationLoop = 5;
constexpr int kLocationDrop = 6;

/// MAME's publishers that were written in lower case and are shown capitalised.
bool IsPlainPublisher(std::string_view publisher) {
    static constexpr std::array<std::string_view, 5> kPlain = {"homebrew", "pirate", " pirate",
                                                               "unknown", "unlicensed"};
    return std::find(kPlain.begin(), kPlain.end(), publisher) != kPlain.end();
}

/// The classic Split: an empty text has no pieces, "a,,b" has three.
std::vector<std::string> SplitAt(std::string_view text, char separator) {
    std::vector<std::string> pieces;
    if (text.empty()) {
        return pieces;
    }
    for (std::size_t start = 0;;) {
        const std::size_t end = text.find(separator, start);
        pieces.emplace_back(text.substr(start, end - start));
        if (end == std::string_view::npos) {
            return pieces;
        }
        start = end + 1;
    }
}

bool Holds(std::string_view line, std::string_view text) {
    return line.find(text) != std::string_view::npos;
}

std::string_view WithoutTabs(std::string_view raw, std::string& scratch) {
    if (raw.find('\t') == std::string_view::npos) {
        return raw;
    }
    scratch.clear();
    std::copy_if(raw.begin(), raw.end(), std::back_inserter(scratch),
                 [](char c) { return c != '\t'; });
    return scratch;
}

/// The item being read, and how one list is turned into records.
class SoftwareListReader {
public:
    SoftwareListReader(const SoftwareSources& sources, std::string_view machine,
                       std::string_view list, AtomicFileWriter& out)
        : m_sources(sources), m_list(list), m_out(out) {
        m_filterValues = SplitAt(
            ReadProfileValue(sources.softFilterIni, machine, list, std::string_view()), ',');
    }

    void Run();
    std::size_t Records() const { return m_records; }
    const std::string& Devices() const { return m_item[S::Devices]; }
    const std::string& Name() const { return m_item[S::Name]; }

private:
    struct Item {
        std::array<std::string, kSoftwareFieldCount> fields;
        std::string& operator[](SoftwareField field) {
            return fields[static_cast<std::size_t>(field)];
        }
        const std::string& operator[](SoftwareField field) const {
            return fields[static_cast<std::size_t>(field)];
        }
    };

    void Line(std::string_view line);
    void SharedFeature(std::string_view line);
    void Finish();
    void Drop();
    void Clear();

    const SoftwareSources& m_sources;
    std::string m_list;
    AtomicFileWriter& m_out;
    std::vector<std::string> m_filterValues;
    BlockLineReader* m_reader = nullptr;
    Item m_item;
    bool m_hasRom = false;
    bool m_hasDisk = false;
    bool m_hasPart = false;
    bool m_dropped = false;
    std::size_t m_records = 0;
    std::string m_scratch;
    std::string m_record;
};

void SoftwareListReader::Run() {
    BlockLineReader reader(m_sources.softwareXml);
    if (!reader.IsOpen()) {
        Abort(kErrorFileNotFound, kFileNotFoundText, kLocationOpen);
    }
    m_reader = &reader;
    // The closing quote keeps "a2600" from finding "a2600_cass".
    const std::string key = "<softwarelist name=\"" + m_list + "\"";
    std::string_view raw;
    if (!reader.NextHolding(key, raw)) {
        return;
    }
    while (reader.Next(raw) && !Holds(raw, "</softwarelist>")) {
        Line(TrimLeadingSpaces(WithoutTabs(raw, m_scratch)));
    }
    if (reader.Failed()) {
        Abort(kErrorDeviceIo, kDeviceIoText, kLocationLoop);
    }
}

void SoftwareListReader::Line(std::string_view line) {
    if (line.starts_with("<software name=")) {
        m_item[S::Name] = AttributeOrAbort(line, "software name=", kLocationLoop);
        m_item[S::Supported] =
            Holds(line, "supported=")
                ? CapitaliseFirst(AttributeOrAbort(line, "supported=", kLocationLoop))
                : "Yes";
    } else if (line.starts_with("<description>")) {
        const std::string stripped = StripPattern(line, kSoftwareStripPattern);
        m_item[S::Software] = TrimSpaces(GetXMLElement(stripped, "<description>"));
    } else if (line.starts_with("<year>")) {
        m_item[S::Year] = TrimSpaces(GetXMLElement(line, "<year>"));
    } else if (line.starts_with("<publisher>")) {
        // "Ã¸" is an "ø" once read as an 8-bit code page.
        const std::string stripped =
            ReplaceAll(StripPattern(line, kSoftwareStripPattern), "\xC3\x83\xC2\xB8", "o");
        m_item[S::Publisher] = GetXMLElement(stripped, "<publisher>");
        if (IsPlainPublisher(m_item[S::Publisher])) {
            m_item[S::Publisher] = TrimSpaces(ProperCase(m_item[S::Publisher]));
        }
    } else if (line.starts_with("<sharedfeat name=")) {
        SharedFeature(line);
    } else if (line.starts_with("<part name=")) {
        std::string& devices = m_item[S::Devices];
        const std::string device = ProperCase(AttributeOrAbort(line, "part name=", kLocationLoop));
        devices = m_hasPart ? devices + ";" + device : device;
        m_hasPart = true;
    } else if (line.starts_with("<rom name=")) {
        if (Holds(line, "nodump")) {
            Drop();
        } else {
            m_hasRom = true;
        }
    } else if (line.starts_with("<disk name=")) {
        if (Holds(line, "nodump")) {
            Drop();
            return;
        }
        std::string& disk = m_item[S::Disk];
        const std::string name = ProperCase(AttributeOrAbort(line, "disk name=", kLocationLoop));
        disk = m_hasDisk ? disk + ";" + name : name;
        m_hasDisk = true;
    } else if (line.starts_with("</software>")) {
        Finish();
        Clear();
    }
}

void SoftwareListReader::SharedFeature(std::string_view line) {
    if (Holds(line, "requirement")) {
        m_item[S::Requirement] = AttributeOrAbort(line, "value=", kLocationLoop);
    }
    if (m_filterValues.empty() || !Holds(line, "compatibility") || !Holds(line, "value=")) {
        return;
    }
    // Only a compatibility line can drop an item: one without stays.
    const auto pieces = SplitAt(AttributeOrAbort(line, "value=", kLocationLoop), ',');
    const bool matches = std::any_of(pieces.begin(), pieces.end(), [&](const std::string& piece) {
        return std::find(m_filterValues.begin(), m_filterValues.end(), piece) !=
               m_filterValues.end();
    });
    if (!pieces.empty() && !matches) {
        Drop();
    }
}

void SoftwareListReader::Finish() {
    if (!m_hasRom && !m_hasDisk) {
        return;
    }
    if (m_item[S::Requirement].empty()) {
        m_item[S::Requirement] = "N/A";
    }
    if (m_item[S::Disk].empty()) {
        m_item[S::Disk] = "N/A";
    }
    m_item[S::Availability] =
        SoftwareIsAvailable(m_hasDisk, m_item[S::Name], m_list, m_sources.softwarePaths) ? "A"
                                                                                         : "U";
    m_item[S::List] = m_list;
    m_record.clear();
    AppendQuotedRecord(m_record, m_item.fields);
    m_out.Write(m_record);
    ++m_records;
}

/// A no-dump or a compatibility mismatch removes the whole item.
void SoftwareListReader::Drop() {
    std::string_view raw;
    if (!m_reader->NextHolding("</soft", raw)) {
        Abort(kErrorPastEnd, kPastEndText, kLocationDrop);
    }
    Clear();
}

void SoftwareListReader::Clear() {
    for (auto& field : m_item.fields) {
        field.clear();
    }
    m_hasRom = false;
    m_hasDisk = false;
    m_hasPart = false;
}

std::string FailureText(const RunTimeError& error, std::string_view list, std::string_view devices,
                        std::string_view name) {
    return HandlerMessage(kRoutine, error) + "\n\nSoftware List: " + std::string(list) +
           "\nDevice Type: " + std::string(devices) + "\nSoftware: " + std::string(name);
}

} // namespace

SoftwareFileResult CreateSoftwareFile(const SoftwareSources& sources, std::string_view machine,
                                      std::string_view list, AtomicFileWriter& out) {
    SoftwareFileResult result;
    std::optional<SoftwareListReader> reader;
    try {
        reader.emplace(sources, machine, list, out);
        reader->Run();
        result.records = reader->Records();
    } catch (const CatalogueAbort& abort) {
        const std::string devices = reader ? reader->Devices() : std::string();
        const std::string name = reader ? reader->Name() : std::string();
        result.outcome.messages.push_back({FailureText(abort.error, list, devices, name), false});
    } catch (const std::bad_alloc&) {
        result.outcome.messages.push_back(
            {FailureText({kErrorOutOfMemory, kOutOfMemoryText, 0}, list, {}, {}), false});
    }
    return result;
}

SoftwareFileResult WriteSoftwareFile(const SoftwareSources& sources, std::string_view machine,
                                     const std::vector<std::string>& lists,
                                     const std::filesystem::path& file) {
    SoftwareFileResult result;
    AtomicFileWriter out(file);
    for (const auto& list : lists) {
        SoftwareFileResult listResult = CreateSoftwareFile(sources, machine, list, out);
        result.records += listResult.records;
        if (!listResult.outcome.messages.empty()) {
            std::error_code ignored;
            std::filesystem::remove(file, ignored);
            return listResult;
        }
    }
    if (!out.Commit()) {
        result.outcome.messages.push_back(
            {FailureText({kErrorFileAccess, out.Error(), 0}, {}, {}, {}), false});
    }
    return result;
}

bool SoftwareIsAvailable(bool hasDisk, std::string_view softwareName, std::string_view listName,
                         const std::vector<std::filesystem::path>& paths) {
    for (const auto& path : paths) {
        std::error_code error;
        const auto item = path / listName / softwareName;
        if (hasDisk) {
            if (std::filesystem::is_directory(item, error)) {
                return true;
            }
            continue;
        }
        for (const char* extension : {".zip", ".7z"}) {
            auto archive = item;
            archive += extension;
            if (std::filesystem::exists(archive, error)) {
                return true;
            }
        }
    }
    return false;
}

bool KillSoftsOther(const std::filesystem::path& softFolder, std::string_view machine) {
    std::error_code error;
    if (!machine.empty()) {
        if (!IsShortName(machine)) {
            return false;
        }
        std::filesystem::remove(softFolder / (std::string(machine) + ".txt"), error);
        return !error;
    }
    bool removedAll = true;
    for (const auto& entry : std::filesystem::directory_iterator(softFolder, error)) {
        if (entry.path().extension() == ".txt" && entry.is_regular_file(error)) {
            removedAll = std::filesystem::remove(entry.path(), error) && removedAll;
        }
    }
    return removedAll;
}

std::vector<std::string> SoftwareListsOf(std::string_view field) {
    if (field == "N/A") {
        return {};
    }
    return SplitAt(field, ';');
}

} // namespace coinlight
