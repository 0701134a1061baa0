// Two generations of crcinfo.txt in one input, split at the record separator: both are
// read, compared and turned into the What ROMs Changed report.
#include "FuzzInput.h"
#include "reports/CrcComparison.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace coinlight;
    const auto [newText, lastText] = fuzz::SplitInput(fuzz::AsText(data, size));
    const CrcRecords newRecords = ParseCrcRecords(newText);
    const CrcRecords lastRecords = ParseCrcRecords(lastText);
    const CrcChanges changes = CompareCrcLists(newRecords.entries, lastRecords.entries);
    if (changes.added.size() > newRecords.entries.size() ||
        changes.removed.size() + changes.changed.size() > lastRecords.entries.size()) {
        __builtin_trap(); // the sections can only hold records that were read
    }
    (void)WhatRomsChangedText(changes);
    return 0;
}
