#include "CatalogueBuilder.h"

#include <array>
#include <limits>

#include "CatalogueAbort.h"
#include "CatalogueFiles.h"
#include "MachineLookups.h"
#include "QuotedRecordFile.h"
#include "TextFunctions.h"
#include "XmlLineScanners.h"

namespace coinlight {

namespace {

using F = MachineField;

// "Line Number: " of a failure: the step of the run and the rule of the line loop.
constexpr int kLocationLoop = 800;
constexpr int Location(int rule) {
    return kLocationLoop + rule;
}

constexpr std::size_t kTagLength = 5;

/// The first five characters of a line as one number, for a switch over the tags.
constexpr std::uint64_t TagCode(std::string_view tag) {
    std::uint64_t code = 0;
    for (std::size_t i = 0; i < tag.size() && i < kTagLength; ++i) {
        code |= static_cast<std::uint64_t>(static_cast<unsigned char>(tag[i])) << (8 * i);
    }
    return code;
}

/// The first five characters of the line once its TABs are gone.
std::string_view TagOf(std::string_view raw, std::string& scratch) {
    const std::size_t start = raw.find_first_not_of('\t');
    if (start == std::string_view::npos) {
        return {};
    }
    const std::string_view head = raw.substr(start, kTagLength);
    return head.find('\t') == std::string_view::npos
               ? head
               : WithoutTabs(raw, scratch).substr(0, kTagLength);
}

/// `field` gets `value` as its first entry, or `value` after `separator` when `more`.
void AddEntry(std::string& field, bool more, std::string_view separator, std::string_view value) {
    if (more) {
        field.append(separator);
        field.append(value);
    } else {
        field.assign(value);
    }
}

/// Where the value of Device ROM(s) Required starts in the record's line.
std::size_t DeviceValueOffset(const MachineFields& fields) {
    std::size_t offset = 1; // the opening quote of the first field
    for (std::size_t column = 0; column < Column(F::DeviceRomsRequired); ++column) {
        offset += fields.values[column].size() + 3; // the field, `","`
    }
    return offset;
}

void SetDefault(std::string& field, std::string_view value) {
    if (field.empty()) {
        field.assign(value);
    }
}

} // namespace

CatalogueBuilder::CatalogueBuilder(const MachineLists& lists, DeviceRomSource& devices,
                                   const ProfileDocument* catver, CatalogueWriters& writers,
                                   CatalogueProgress& progress)
    : m_lists(lists), m_pending(devices), m_catver(catver), m_writers(writers),
      m_progress(progress) {}

CatalogueCounts CatalogueBuilder::Counts() const {
    CatalogueCounts counts = m_counts;
    counts.softFilterSections = m_softFilterIni.SectionCount();
    return counts;
}

std::string_view CatalogueBuilder::Attribute(std::string_view line, std::string_view key,
                                             int location) const {
    return AttributeOrAbort(line, key, location);
}

void CatalogueBuilder::Run(LineReader& machineXml) {
    m_reader = &machineXml;
    try {
        Scan(machineXml);
    } catch (const CatalogueAbort&) {
        // A failure that waited for the device list came earlier in the file: it wins.
        WaitForDevices();
        throw;
    }
    m_counts.deviceRoms = WaitForDevices().Size();
}

void CatalogueBuilder::Scan(LineReader& machineXml) {
    std::string_view raw;
    while (machineXml.Next(raw)) {
        const auto line = [&] {
            return WithoutTabs(raw, m_untabbed);
        };
        switch (TagCode(TagOf(raw, m_untabbed))) {
        // Rule 1: the bulk of the file, passed over first.
        case TagCode("<samp"):
        case TagCode("<chip"):
        case TagCode("<soun"):
        case TagCode("<dips"):
        case TagCode("<dipl"):
        case TagCode("<dipv"):
        case TagCode("<conf"):
        case TagCode("<port"):
        case TagCode("<exte"):
        case TagCode("<slot"):
        case TagCode("<ramo"):
            break;
        case TagCode("<mach"):
            StartMachine(line());
            break;
        case TagCode("<desc"):
            Description(line());
            break;
        case TagCode("<year"):
            m_fields[F::Year] = GetXMLElement(line(), "<year>");
            break;
        case TagCode("<manu"):
            Manufacturer(line());
            break;
        case TagCode("<bios"):
            BiosSet(line());
            break;
        case TagCode("<rom "):
            Rom(line());
            break;
        case TagCode("<devi"):
            DeviceRef(line());
            break;
        case TagCode("<disk"):
            m_fields[F::ChdRequired] = "Yes";
            break;
        case TagCode("<disp"):
            Display(line());
            break;
        case TagCode("<cont"):
            Control(line());
            break;
        case TagCode("<driv"):
            m_fields[F::Driver] = ProperCase(Attribute(line(), "driver status=", Location(12)));
            break;
        case TagCode("<feat"):
            Feature(line());
            break;
        case TagCode("<inst"):
            Instance(line());
            break;
        case TagCode("<soft"):
            SoftwareList(line());
            break;
        case TagCode("</mac"):
            EndMachine();
            break;
        default:
            break;
        }
    }
    if (machineXml.Failed()) {
        Abort(kErrorDeviceIo, kDeviceIoText, kLocationLoop);
    }
    // A file cut off inside a machine has lost the rest of it.
    if (m_inMachine) {
        Abort(kErrorPastEnd, kPastEndText, kLocationLoop);
    }
}

const NameList* CatalogueBuilder::DevicesKnown() {
    bool currentHasOne = false;
    const NameList* devices =
        m_pending.Known(m_writers.arcadeInfo, m_writers.otherInfo, currentHasOne);
    if (currentHasOne) {
        m_fields[F::DeviceRomsRequired] = "Yes";
    }
    return devices;
}

const NameList& CatalogueBuilder::WaitForDevices() {
    bool currentHasOne = false;
    const NameList& devices =
        m_pending.Wait(m_writers.arcadeInfo, m_writers.otherInfo, currentHasOne);
    if (currentHasOne) {
        m_fields[F::DeviceRomsRequired] = "Yes";
    }
    return devices;
}

void CatalogueBuilder::SkipMachine(int location) {
    std::string_view line;
    if (!m_reader->NextHolding("</mach", line)) {
        Abort(kErrorPastEnd, kPastEndText, location);
    }
    m_inMachine = false;
}

void CatalogueBuilder::StartMachine(std::string_view line) {
    constexpr int kHere = Location(2);
    m_inMachine = true;
    if (Holds(line, "isdevice=\"yes\"")) {
        SkipMachine(kHere);
        return;
    }
    if (Holds(line, "isbios=\"yes\"")) {
        m_isBios = true;
    }
    m_fields[F::Rom] = Attribute(line, "machine name=", kHere);
    m_fields[F::Source] = Attribute(line, "sourcefile=", kHere);
    if (Holds(line, "cloneof=")) {
        m_fields[F::SetType] = "Clone of ";
        m_fields[F::SetType].append(Attribute(line, "cloneof=", kHere));
    }
    if (Holds(line, "romof=")) {
        m_fields[F::RomOf] = Attribute(line, "romof=", kHere);
    }
    switch (m_lists.Place(m_fields[F::Rom])) {
    case MachineLists::Placement::Other:
        m_isOther = true;
        break;
    case MachineLists::Placement::Arcade:
        m_isOther = false;
        break;
    case MachineLists::Placement::Unlisted:
        m_isOther = false;
        m_unlisted.append(m_fields[F::Rom]).append("\r\n");
        ++m_counts.unlisted;
        SkipMachine(kHere);
        break;
    }
}

void CatalogueBuilder::Description(std::string_view line) {
    const std::string stripped = StripPattern(line, kMachineStripPattern);
    m_fields[F::Machine] = TrimSpaces(GetXMLElement(stripped, "<description>"));
    if (!m_isBios) {
        return;
    }
    // A BIOS set is not a machine to play: it becomes an entry of the BIOS filter.
    m_isBios = false;
    std::string name = ReplaceAll(m_fields[F::Machine], "bios", "", true);
    name = ReplaceAll(name, "  ", "");
    m_fields[F::Machine] = TrimSpaces(name);
    m_writers.biosFilter.WriteLine("Hide " + m_fields[F::Machine] +
                                   " Machines: " + ProperCase(m_fields[F::Rom]));
    ++m_counts.biosSets;
    SkipMachine(Location(3));
}

void CatalogueBuilder::Manufacturer(std::string_view line) {
    const std::string stripped = StripPattern(line, kMachineStripPattern);
    m_fields[F::Manufacturer] = GetXMLElement(stripped, "<manufacturer>");
    // MAME's own test and placeholder sets.
    if (m_fields[F::Manufacturer] == "MAME") {
        SkipMachine(Location(5));
    }
}

void CatalogueBuilder::BiosSet(std::string_view line) {
    constexpr int kHere = Location(6);
    const std::string_view name = Attribute(line, "biosset name=", kHere);
    const std::string description =
        StripPattern(TrimSpaces(Attribute(line, "description=", kHere)), kMachineStripPattern);
    const std::string entry = description + "> " + std::string(name);
    if (m_isOther) {
        m_writers.otherBios.WriteLine(m_fields[F::Rom] + ": " + entry);
        ++m_counts.otherBiosLines;
    } else {
        m_writers.arcadeBios.WriteLine(m_fields[F::Rom] + ": " + entry);
        ++m_counts.arcadeBiosLines;
    }
    m_biosSets.append(";;").append(entry);
}

void CatalogueBuilder::Rom(std::string_view line) {
    constexpr int kHere = Location(7);
    m_fields[F::RomRequired] = "Yes";
    if (Holds(line, "crc=")) {
        m_fields.crcs.append(Attribute(line, "rom name=", kHere));
        m_fields.crcs.push_back('=');
        m_fields.crcs.append(Attribute(line, "crc=", kHere));
        m_fields.crcs.push_back(';');
    }
}

void CatalogueBuilder::DeviceRef(std::string_view line) {
    constexpr int kHere = Location(8);
    if (m_fields[F::DeviceRomsRequired] == "Yes" || !Holds(line, "ref name=")) {
        return;
    }
    if (const NameList* devices = DevicesKnown()) {
        if (devices->Contains(Attribute(line, "device_ref name=", kHere))) {
            m_fields[F::DeviceRomsRequired] = "Yes";
        }
        return;
    }
    const XmlAttribute name = GetXMLAttribute(line, "device_ref name=");
    if (name.Failed()) {
        m_pending.AddUnreadableReference(
            {name.error, name.error == kErrorOverflow ? kOverflowText : kInvalidCallText, kHere});
    } else {
        m_pending.AddReference(name.value);
    }
}

void CatalogueBuilder::Display(std::string_view line) {
    constexpr int kHere = Location(10);
    const bool more = m_displaySeen;
    m_displaySeen = true;
    AddEntry(m_fields[F::Images], more, ", ", ProperCase(Attribute(line, "type=", kHere)));
    const std::string_view rotate = Attribute(line, "rotate=", kHere);
    AddEntry(m_fields[F::Orientations], more, ", ",
             rotate == "270" || rotate == "90" ? "Vertical" : "Horizontal");
    if (m_fields[F::Images].starts_with("Vec")) {
        m_fields[F::Resolutions] = "N/A";
    } else {
        std::string resolution(Attribute(line, "width=", kHere));
        resolution.push_back('x');
        resolution.append(Attribute(line, "height=", kHere));
        AddEntry(m_fields[F::Resolutions], more, ", ", resolution);
    }
    AddEntry(m_fields[F::RefreshRates], more, ", ", Attribute(line, "refresh=", kHere));
}

void CatalogueBuilder::Control(std::string_view line) {
    AddEntry(m_fields[F::ControlType], m_seenControl, ", ",
             ProperCase(Attribute(line, "control type=", Location(11))));
    m_seenControl = true;
}

void CatalogueBuilder::Feature(std::string_view line) {
    constexpr int kHere = Location(13);
    MachineField target = F::Palette;
    if (Holds(line, "palette")) {
        target = F::Palette;
    } else if (Holds(line, "graphics")) {
        target = F::Graphics;
    } else if (Holds(line, "sound")) {
        target = F::Sound;
    } else {
        return;
    }
    if (Holds(line, "status")) {
        m_fields[target] = ProperCase(Attribute(line, "status=", kHere));
    } else if (Holds(line, "overall")) {
        m_fields[target] = ProperCase(Attribute(line, "overall=", kHere));
    }
}

void CatalogueBuilder::Instance(std::string_view line) {
    AddEntry(m_fields[F::BriefNames], m_seenInstance, ";",
             Attribute(line, "briefname=", Location(14)));
    m_seenInstance = true;
}

void CatalogueBuilder::SoftwareList(std::string_view line) {
    constexpr int kHere = Location(15);
    const std::string_view list = Attribute(line, "name=", kHere);
    AddEntry(m_fields[F::SoftwareLists], m_seenSoftwareList, ";", list);
    m_seenSoftwareList = true;
    if (Holds(line, "filter=")) {
        m_softFilterIni.Set(m_fields[F::Rom], list, Attribute(line, "filter=", kHere));
    }
}

void CatalogueBuilder::EndMachine() {
    m_inMachine = false;
    // Screenless sets (slot machines, pinballs, test rigs) are not listed anywhere.
    if (!m_displaySeen) {
        m_biosSets.clear();
        ClearMachine();
        return;
    }
    DevicesKnown();
    if (m_catver != nullptr) {
        m_fields[F::Category] = CategoryOf(*m_catver, m_fields[F::Rom]);
    }
    FillDefaults();
    CountMachine();

    WriteInfoRecord();
    if (!m_fields.crcs.empty()) {
        m_record.clear();
        AppendQuotedRecord(m_record, std::array<std::string_view, 3>{
                                         m_fields[F::Rom], m_fields[F::Machine], m_fields.crcs});
        m_writers.crcInfo.Write(m_record);
        ++m_counts.crcRecords;
    }
    if (!m_biosSets.empty()) {
        m_biosIni.Set("BIOS", m_fields[F::Rom], std::string_view(m_biosSets).substr(2));
        ++m_counts.biosIniKeys;
        m_biosSets.clear();
    }
    ClearMachine();
}

void CatalogueBuilder::WriteInfoRecord() {
    m_record.clear();
    AppendQuotedRecord(m_record, m_fields.values);
    if (m_pending.MustHold()) {
        m_pending.Hold(m_isOther, m_record, DeviceValueOffset(m_fields));
    } else {
        (m_isOther ? m_writers.otherInfo : m_writers.arcadeInfo).Write(m_record);
    }
}

void CatalogueBuilder::FillDefaults() {
    SetDefault(m_fields[F::Source], "?");
    SetDefault(m_fields[F::SetType], "Parent");
    SetDefault(m_fields[F::RomRequired], "No");
    SetDefault(m_fields[F::RomOf], "N/A");
    SetDefault(m_fields[F::DeviceRomsRequired], "No");
    SetDefault(m_fields[F::Year], "Unknown");
    if (m_fields[F::Manufacturer] == "unknown") {
        m_fields[F::Manufacturer] = "Unknown";
    }
    SetDefault(m_fields[F::ChdRequired], "No");
    for (const F field : {F::Orientations, F::Resolutions, F::RefreshRates, F::ControlType}) {
        SetDefault(m_fields[field], "N/A");
    }
    SetDefault(m_fields[F::Category], "Catver.ini Not Found");
    for (const F field : {F::Palette, F::Graphics, F::Sound}) {
        SetDefault(m_fields[field], "Good");
    }
    SetDefault(m_fields[F::BriefNames], "N/A");
    SetDefault(m_fields[F::SoftwareLists], "N/A");
    std::string& images = m_fields[F::Images];
    if (images.empty()) {
        images = "N/A";
    } else if (Holds(images, "Svg") || Holds(images, "Lcd")) {
        images = ToUpperAscii(images);
    }
}

void CatalogueBuilder::CountMachine() {
    const auto shows = [](std::int32_t count) {
        return count == 1 || count % 25 == 0;
    };
    if (m_isOther) {
        // The other count has always been a 16-bit number.
        if (m_otherCount == std::numeric_limits<std::int16_t>::max()) {
            Abort(kErrorOverflow, kOverflowText, Location(16));
        }
        ++m_otherCount;
        m_counts.other = m_otherCount;
        if (shows(m_counts.other)) {
            m_progress.ShowOtherCount(m_counts.other);
        }
    } else {
        if (m_counts.arcade == std::numeric_limits<std::int32_t>::max()) {
            Abort(kErrorOverflow, kOverflowText, Location(16));
        }
        ++m_counts.arcade;
        if (shows(m_counts.arcade)) {
            m_progress.ShowArcadeCount(m_counts.arcade);
        }
    }
}

void CatalogueBuilder::ClearMachine() {
    ClearMachineFields(m_fields);
    m_displaySeen = false;
    m_seenControl = false;
    m_seenInstance = false;
    m_seenSoftwareList = false;
    m_pending.ClearCurrent();
}

} // namespace coinlight
