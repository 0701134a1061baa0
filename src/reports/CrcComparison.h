#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "catalogue/RunTimeError.h"

namespace coinlight {

/// One record of crcinfo.txt: a machine and its ROMs, the list compared as one text. The
/// hash of the name is taken while the record is read, when its bytes are at hand.
struct CrcEntry {
    std::string_view name;
    std::string_view description;
    std::string_view crcs;
    std::size_t nameHash = 0;

    static CrcEntry Of(std::string_view name, std::string_view description, std::string_view crcs);
};

/// The records of a crcinfo.txt held in memory; the entries point into that text.
struct CrcRecords {
    std::vector<CrcEntry> entries;
    std::optional<RunTimeError> error; // set when the text ends inside a record
};
CrcRecords ParseCrcRecords(std::string_view text);

/// What a new MAME did to the machines with ROMs.
struct CrcChanges {
    std::vector<CrcEntry> added;   // from the new file
    std::vector<CrcEntry> removed; // from the old file
    std::vector<CrcEntry> changed; // from the old file: same name, other ROMs

    bool Empty() const { return added.empty() && removed.empty() && changed.empty(); }
};

/// Drops the machines that stayed as they were, then pairs the rest by name. The order of
/// each section is the order the report has always had: the tables shrink from the front,
/// a removed record trading places with the first live one.
CrcChanges CompareCrcLists(std::span<const CrcEntry> newList, std::span<const CrcEntry> lastList);

/// The report page text of the comparison, and the same text as changedroms.txt.
std::string WhatRomsChangedText(const CrcChanges& changes);

/// " Elapsed Time: 12 Seconds", or in whole minutes from 60 seconds on.
std::string ElapsedTimeText(double seconds);

} // namespace coinlight
