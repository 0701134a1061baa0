#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "core/LineReader.h"
#include "CatalogueCounts.h"
#include "CatalogueProgress.h"
#include "CatalogueWriters.h"
#include "MachineFields.h"
#include "MachineLists.h"
#include "PendingDeviceRoms.h"
#include "ProfileTextBuilder.h"
#include "core/ProfileDocument.h"

namespace coinlight {

/// The second pass over `machine.xml`: a line scanner that decides by the first five
/// characters of each line (TABs removed) and writes a machine's records when its
/// `</machine>` line comes. It keeps the scanner's known habits: a skipped machine leaves
/// its set type, BIOS and BIOS flag to the next one, and the first occurrence of a key in
/// a line decides.
class CatalogueBuilder {
public:
    CatalogueBuilder(const MachineLists& lists, DeviceRomSource& devices,
                     const ProfileDocument* catver, CatalogueWriters& writers,
                     CatalogueProgress& progress);

    /// Runs the loop to the end of the file; a failure ends the routine (CatalogueAbort).
    void Run(LineReader& machineXml);

    const std::string& UnlistedMachines() const { return m_unlisted; }
    const ProfileTextBuilder& BiosIni() const { return m_biosIni; }
    const ProfileTextBuilder& SoftFilterIni() const { return m_softFilterIni; }
    CatalogueCounts Counts() const;

private:
    void Scan(LineReader& machineXml);
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
    /// The device list once the first pass is through, or nothing yet.
    const NameList* DevicesKnown();
    const NameList& WaitForDevices();
    void WriteInfoRecord();
    /// Passes over raw lines up to the next one that holds `</mach`.
    void SkipMachine(int location);
    std::string_view Attribute(std::string_view line, std::string_view key, int location) const;

    const MachineLists& m_lists;
    PendingDeviceRoms m_pending;
    const ProfileDocument* m_catver;
    CatalogueWriters& m_writers;
    CatalogueProgress& m_progress;
    LineReader* m_reader = nullptr;

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
