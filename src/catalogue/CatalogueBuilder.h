#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "BlockLineReader.h"
#include "CatalogueProgress.h"
#include "DeviceRomSource.h"
#include "MachineFields.h"
#include "MachineLists.h"
#include "ProfileTextBuilder.h"
#include "RunTimeError.h"
#include "core/AtomicFileWriter.h"
#include "core/ProfileDocument.h"

namespace coinlight {

/// The files the second pass writes as it goes; they replace the old ones only when the
/// whole run succeeded.
struct CatalogueWriters {
    explicit CatalogueWriters(const std::filesystem::path& outputFolder);

    AtomicFileWriter arcadeInfo;
    AtomicFileWriter biosFilter;
    AtomicFileWriter crcInfo;
    AtomicFileWriter otherInfo;
    AtomicFileWriter arcadeBios;
    AtomicFileWriter otherBios;
};

/// What one run wrote, for the progress labels and for maintainers.
struct CatalogueCounts {
    std::int32_t arcade = 0;
    std::int32_t other = 0;
    std::size_t unlisted = 0;
    std::size_t biosSets = 0; // lines of biosfilter.txt
    std::size_t crcRecords = 0;
    std::size_t deviceRoms = 0;
    std::size_t arcadeBiosLines = 0;
    std::size_t otherBiosLines = 0;
    std::size_t biosIniKeys = 0;
    std::size_t softFilterSections = 0;
};

/// The second pass over `machine.xml`: a line scanner that decides by the first five
/// characters of each line (TABs removed) and writes a machine's records when its
/// `</machine>` line comes. It keeps the scanner's known habits: a skipped machine leaves
/// its set type, BIOS and BIOS flag to the next one, and the first occurrence of a key in
/// a line decides.
///
/// Whether a machine needs device ROMs is known only when the first pass is through. Until
/// then the device names a machine refers to are kept, and its info records wait in order;
/// they are settled and written as soon as the first pass is done.
class CatalogueBuilder {
public:
    CatalogueBuilder(const MachineLists& lists, DeviceRomSource& devices,
                     const ProfileDocument* catver, CatalogueWriters& writers,
                     CatalogueProgress& progress);

    /// Runs the loop to the end of the file; a failure ends the routine (CatalogueAbort).
    void Run(BlockLineReader& machineXml);

    const std::string& UnlistedMachines() const { return m_unlisted; }
    const ProfileTextBuilder& BiosIni() const { return m_biosIni; }
    const ProfileTextBuilder& SoftFilterIni() const { return m_softFilterIni; }
    CatalogueCounts Counts() const;

private:
    void Scan(BlockLineReader& machineXml);
    void StartMachine(std::string_view line);
    void Description(std::string_view line);
    void Manufacturer(std::string_view line);
    void BiosSet(std::string_view line);
    void Rom(std::string_view line);
    void DeviceRef(std::string_view line);
    void Display(std::string_view line);
    void Control(std::string_view line);
    void Feature(std::string_view line);
    void Instance(std::string_view line);
    void SoftwareList(std::string_view line);
    void EndMachine();
    void FillDefaults();
    void CountMachine();
    void ClearMachine();
    /// True once the first pass is through; settles what waited for it the first time.
    bool DevicesKnown();
    void SettlePending();
    /// Before a failure is reported: one that came earlier in the file wins.
    void SettleBeforeFailing();
    /// Passes over raw lines up to the next one that holds `</mach`.
    void SkipMachine(int location);
    std::string_view Attribute(std::string_view line, std::string_view key, int location) const;

    // The device references a machine made before the first pass was through: each name
    // followed by a line feed, which no name can hold. A reference whose name could not be
    // read fails only if its turn comes, that is when no earlier one named a device ROM.
    struct PendingRefs {
        std::string names;
        std::vector<std::pair<std::size_t, RunTimeError>> failures; // after that many names
        bool Empty() const { return names.empty() && failures.empty(); }
        void Clear() {
            names.clear();
            failures.clear();
        }
    };
    struct PendingRecord {
        bool other = false;
        std::string text;
        std::size_t deviceValueAt = 0; // where "No" stands for Device ROM(s) Required
        PendingRefs refs;
    };
    bool AnyDeviceRom(const PendingRefs& refs) const;

    const MachineLists& m_lists;
    DeviceRomSource& m_devices;
    const NameList* m_deviceRoms = nullptr;
    PendingRefs m_pendingRefs;
    std::size_t m_pendingNameCount = 0;
    std::vector<PendingRecord> m_pendingRecords;
    const ProfileDocument* m_catver;
    CatalogueWriters& m_writers;
    CatalogueProgress& m_progress;
    BlockLineReader* m_reader = nullptr;

    MachineFields m_fields;
    std::string m_biosSets;
    std::string m_unlisted;
    bool m_isBios = false;
    bool m_isOther = false;
    bool m_inMachine = false;
    bool m_displaySeen = false;
    bool m_seenControl = false;
    bool m_seenInstance = false;
    bool m_seenSoftwareList = false;
    std::int16_t m_otherCount = 0;
    CatalogueCounts m_counts;
    ProfileTextBuilder m_biosIni;
    ProfileTextBuilder m_softFilterIni;
    std::string m_record; // reused for each record written
    std::string m_untabbed;
};

} // namespace coinlight
