#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "ListColumns.h"

namespace coinlight {

/// Where the fields of one catalogue line lie: the text between each pair of quotes. MAME's
/// longest line is some 500 bytes, but the reader takes whatever the writer can write: a
/// description of any length must never make the catalogue unloadable.
struct RecordSpans {
    static constexpr std::size_t kLongestLine = 0xFFFFFFFF;
    std::array<std::uint32_t, kRecordFieldCount> begin{}; // the first byte of each field
    std::uint32_t lineLength = 0;

    /// Fields are joined by `","` and the line ends in a quote, so each field ends three
    /// bytes before the next begins: its end need not be kept.
    std::size_t End(std::size_t column) const {
        return column + 1 < kRecordFieldCount ? begin[column + 1] - 3 : lineLength - 1;
    }
    std::string_view Field(std::string_view line, int column) const {
        const auto c = static_cast<std::size_t>(column);
        return line.substr(begin[c], End(c) - begin[c]);
    }
};

/// Finds the 22 quoted fields of a catalogue line; false when the line holds another count.
bool ParseRecordLine(std::string_view line, RecordSpans& spans);

/// One row of a machine list: the fields of its catalogue line, the Players text and
/// whether the machine's files were found. A row read from a catalogue file points into the
/// file's text, which the list keeps (see MachineRows), so 45,000 rows cost no allocation
/// of their own; a row made from separate texts owns a copy of them.
class MachineRow {
public:
    static constexpr int kColumns = kRecordFieldCount + 1; // the record, then Players

    /// `line` and `players` must outlive the row.
    MachineRow(std::string_view line, const RecordSpans& spans, std::string_view players,
               bool available);
    MachineRow(const std::array<std::string_view, kRecordFieldCount>& fields,
               std::string_view players, bool available);

    std::string_view Field(int column) const {
        if (column == ColPlayers) {
            return m_players;
        }
        if (column < 0 || column >= kRecordFieldCount) {
            return {};
        }
        const auto c = static_cast<std::size_t>(column);
        return std::string_view(m_line + m_spans.begin[c], m_spans.End(c) - m_spans.begin[c]);
    }
    std::string_view ShortName() const { return Field(ColName); }
    bool Available() const { return m_available; }

private:
    const char* m_line = nullptr;
    RecordSpans m_spans;
    std::string_view m_players;
    std::unique_ptr<std::string> m_owned; // only for rows not read from a file
    bool m_available = true;
};

} // namespace coinlight
