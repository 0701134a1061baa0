#include "SoftwareListReader.h"

#include <algorithm>

#include "CatalogueAbort.h"
#include "QuotedRecordFile.h"
#include "TextFunctions.h"
#include "core/ProfileFile.h"

namespace coinlight {

namespace {

using S = SoftwareField;

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

} // namespace

SoftwareListReader::SoftwareListReader(const SoftwareSources& sources, std::string_view machine,
                                       std::string_view list, AtomicFileWriter& out)
    : m_sources(sources), m_list(list), m_out(out),
      m_filterValues(SplitPieces(
          ReadProfileValue(sources.softFilterIni, machine, list, std::string_view()), ',')) {}

std::optional<RunTimeError> SoftwareListReader::Run() {
    try {
        Scan();
    } catch (const CatalogueAbort& abort) {
        return abort.error;
    }
    return std::nullopt;
}

void SoftwareListReader::Scan() {
    LineReader reader(m_sources.softwareXml);
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
    const auto pieces = SplitPieces(AttributeOrAbort(line, "value=", kLocationLoop), ',');
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

} // namespace coinlight
