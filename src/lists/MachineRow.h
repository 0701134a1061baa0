#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

#include "ListColumns.h"

namespace coinlight {

/// One row of a machine list: the catalogue record's fields, the Players text and whether
/// the machine's files were found. The texts live in one string, so a list of 45,000 rows
/// costs one allocation a row, and every column stays readable by its number.
class MachineRow {
public:
    static constexpr int kColumns = kRecordFieldCount + 1; // the record, then Players

    MachineRow() = default;
    /// `fields` are the record's 22 fields in order.
    MachineRow(const std::array<std::string_view, kRecordFieldCount>& fields,
               std::string_view players, bool available);

    std::string_view Field(int column) const {
        if (column < 0 || column >= kColumns) {
            return {};
        }
        return std::string_view(m_text).substr(m_offsets[static_cast<std::size_t>(column)],
                                               m_offsets[static_cast<std::size_t>(column) + 1] -
                                                   m_offsets[static_cast<std::size_t>(column)]);
    }
    std::string_view ShortName() const { return Field(ColName); }
    bool Available() const { return m_available; }

private:
    std::string m_text;
    std::array<std::uint32_t, kColumns + 1> m_offsets{};
    bool m_available = true;
};

} // namespace coinlight
