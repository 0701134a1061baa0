#pragma once

#include <array>
#include <string>

#include "MachineField.h"

namespace coinlight {

/// The machine record being built or just read, one string per field. The catalogue
/// builder appends to the fields line by line, and the record reader fills them.
struct MachineFields {
    std::array<std::string, kMachineFieldCount> values;
    /// The machine's ROM checksums for `crcinfo.txt`; not a field of the record.
    std::string crcs;

    std::string& operator[](MachineField field) { return values[Column(field)]; }
    const std::string& operator[](MachineField field) const { return values[Column(field)]; }
};

/// Empties every field but the description and the short name, which keep their values
/// until the next machine overwrites them.
void ClearMachineFields(MachineFields& fields);

/// Empties every field.
void ClearMachineRecord(MachineFields& fields);

} // namespace coinlight
