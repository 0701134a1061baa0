#include "MachineRow.h"

namespace coinlight {

MachineRow::MachineRow(const std::array<std::string_view, kRecordFieldCount>& fields,
                       std::string_view players, bool available)
    : m_available(available) {
    std::size_t size = players.size();
    for (const auto& field : fields) {
        size += field.size();
    }
    m_text.reserve(size);
    std::size_t column = 0;
    for (const auto& field : fields) {
        m_offsets[column++] = static_cast<std::uint32_t>(m_text.size());
        m_text.append(field);
    }
    m_offsets[column++] = static_cast<std::uint32_t>(m_text.size());
    m_text.append(players);
    m_offsets[column] = static_cast<std::uint32_t>(m_text.size());
}

} // namespace coinlight
