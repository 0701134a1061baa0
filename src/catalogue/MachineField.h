#pragma once

#include <cstddef>
#include <cstdint>

namespace coinlight {

/// The 22 fields of a machine record, in file order. The number is also the column of the
/// machine lists: field 0 is a row's text, the others its sub-items.
enum class MachineField : std::uint8_t {
    Machine, // description
    Year,
    Driver,
    Palette,
    Sound,
    Graphics,
    ControlType,
    Manufacturer,
    Images,
    Resolutions,
    Orientations,
    RefreshRates,
    Rom, // short name: the key of every other file
    SetType,
    BriefNames,
    SoftwareLists,
    Source,
    RomOf,
    RomRequired,
    DeviceRomsRequired,
    ChdRequired,
    Category,
};

inline constexpr std::size_t kMachineFieldCount = 22;
inline constexpr std::size_t kSoftwareFieldCount = 10;
inline constexpr std::size_t kCrcFieldCount = 3;

constexpr std::size_t Column(MachineField field) {
    return static_cast<std::size_t>(field);
}

/// The fields of a software record (`output/soft/<machine>.txt`), in file order.
enum class SoftwareField : std::uint8_t {
    Availability, // "A" or "U", measured when the file was made
    Software,     // description
    Year,
    Supported,
    Publisher,
    Devices,
    Name, // short name
    Requirement,
    Disk,
    List,
};

/// The fields of a `crcinfo.txt` record.
enum class CrcField : std::uint8_t {
    Rom,
    Machine,
    Crcs, // "name=crc;" for each ROM that has a CRC
};

} // namespace coinlight
