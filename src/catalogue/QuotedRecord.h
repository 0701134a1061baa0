#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <type_traits>

#include "MachineField.h"

namespace coinlight {

/// The field enumerations: MachineField, SoftwareField, CrcField.
template <class T>
concept FieldEnum = std::is_enum_v<T>;

/// One record of a quoted record file, read-only and compact: the field texts side by side
/// in one string, so that a list of 45,000 machines costs one allocation a row.
template <std::size_t FieldCount> class QuotedRecord {
public:
    static constexpr std::size_t kFieldCount = FieldCount;

    QuotedRecord() = default;

    /// The fields in file order; `fields` must hold exactly kFieldCount of them.
    explicit QuotedRecord(std::span<const std::string_view, FieldCount> fields) {
        std::size_t length = 0;
        for (const auto field : fields) {
            length += field.size();
        }
        m_text.reserve(length);
        for (std::size_t column = 0; column < FieldCount; ++column) {
            m_text.append(fields[column]);
            m_ends[column] = static_cast<std::uint32_t>(m_text.size());
        }
    }

    std::string_view Field(std::size_t column) const {
        const std::uint32_t begin = column == 0 ? 0 : m_ends[column - 1];
        return std::string_view(m_text).substr(begin, m_ends[column] - begin);
    }
    std::string_view Field(FieldEnum auto field) const {
        return Field(static_cast<std::size_t>(field));
    }

    bool operator==(const QuotedRecord&) const = default;

private:
    std::string m_text;
    std::array<std::uint32_t, FieldCount> m_ends{};
};

using MachineRecord = QuotedRecord<kMachineFieldCount>;
using SoftwareRecord = QuotedRecord<kSoftwareFieldCount>;
using CrcRecord = QuotedRecord<kCrcFieldCount>;

} // namespace coinlight
