#pragma once

#include <cstddef>
#include <string_view>

#include "MachineRow.h"

namespace coinlight {

/// Walks a catalogue file line by line, finding each line's end and its fields' quotes in
/// the same pass over the bytes: reading the catalogue is mostly this scan.
class RecordScanner {
public:
    explicit RecordScanner(std::string_view text) : m_text(text) {}

    /// The next line without its line end, empty lines included; false at the end of the
    /// text. `wellFormed` tells whether the line is a record of 22 quoted fields, and then
    /// `spans` says where they lie.
    bool Next(std::string_view& line, RecordSpans& spans, bool& wellFormed);

private:
    std::string_view m_text;
    std::size_t m_at = 0;
};

/// Whether the scan may use the widest instructions the processor has. Only tests turn it
/// off, to check the narrower path on machines that have both.
void AllowWideRecordScan(bool allowed);

} // namespace coinlight
