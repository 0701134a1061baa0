#pragma once

#include <filesystem>
#include <optional>

#include "CrcComparison.h"
#include "core/BigMemory.h"

namespace coinlight {

/// A crcinfo.txt read whole, its records pointing into its bytes.
struct CrcInfoFile {
    BigBuffer bytes;
    CrcRecords records;
};

/// Reads the file in blocks and parses the lines of each block while they are still in the
/// cache; nothing when it cannot be read. A record that runs over a line end (a damaged
/// file) makes it parse the whole text again, so the result is always ParseCrcRecords'.
std::optional<CrcInfoFile> ReadCrcInfoFile(const std::filesystem::path& file);

} // namespace coinlight
