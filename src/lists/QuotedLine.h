#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string_view>

namespace coinlight {

// Fast readings of the lines of Coinlight's quoted record files, where a line is a record:
// each field in double quotes, one comma between fields, no quote inside a field. They find
// the quotes sixteen bytes at a time; a line they cannot read is left to the general readers.

/// The positions of the first quotes of a line, at most `count`; how many it found.
std::size_t FindQuotes(std::string_view line, std::size_t* positions, std::size_t count);

/// The short name of a catalogue line, field 12, found by its quotes alone: the 25th
/// opens the field and the next one closes it. A purge looks at every line of a catalogue
/// for this one field. Nothing when the line has fewer quotes, or they do not stand where
/// a record's `","` delimiters would.
std::optional<std::string_view> QuotedShortName(std::string_view line);

/// The fields of a line of exactly `N` quoted fields; false for any other line.
template <std::size_t N>
bool SplitQuotedLine(std::string_view line, std::array<std::string_view, N>& fields) {
    std::array<std::size_t, 2 * N + 1> quotes;
    if (FindQuotes(line, quotes.data(), quotes.size()) != 2 * N || quotes[0] != 0 ||
        quotes[2 * N - 1] != line.size() - 1) {
        return false;
    }
    for (std::size_t field = 0; field < N; ++field) {
        const std::size_t open = quotes[2 * field];
        const std::size_t close = quotes[2 * field + 1];
        if (field > 0 && (open != quotes[2 * field - 1] + 2 || line[open - 1] != ',')) {
            return false;
        }
        fields[field] = line.substr(open + 1, close - open - 1);
    }
    return true;
}

} // namespace coinlight
