#include "MachineRow.h"

namespace coinlight {

MachineRow::MachineRow(std::string_view line, const RecordSpans& spans, std::string_view players,
                       bool available)
    : m_line(line.data()), m_spans(spans), m_players(players), m_available(available) {}

MachineRow::MachineRow(const std::array<std::string_view, kRecordFieldCount>& fields,
                       std::string_view players, bool available)
    : m_owned(std::make_unique<std::string>()), m_available(available) {
    // Laid out as a catalogue line, so that the spans work as for a row read from a file.
    std::string& text = *m_owned;
    for (std::size_t column = 0; column < fields.size(); ++column) {
        text.append(column == 0 ? "\"" : "\",\"");
        m_spans.begin[column] = static_cast<std::uint32_t>(text.size());
        text.append(fields[column]);
    }
    text.push_back('"');
    m_spans.lineLength = static_cast<std::uint32_t>(text.size());
    const std::size_t playersAt = text.size();
    text.append(players);
    m_line = text.data();
    m_players = std::string_view(text).substr(playersAt);
}

} // namespace coinlight
