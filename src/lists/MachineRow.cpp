#include "MachineRow.h"

#if defined(__SSE2__)
#include <emmintrin.h>
#endif

namespace coinlight {

namespace {

constexpr int kQuotes = 2 * kRecordFieldCount;
constexpr std::size_t kChunk = 16;
using QuotePositions = std::array<std::uint32_t, kQuotes + kChunk>;

/// The positions of the double quotes of a line, sixteen bytes at a time where the machine
/// allows it: this scan is most of the cost of reading a catalogue. Returns how many there
/// are, or more than kQuotes when there are more than a record has.
int FindQuotes(std::string_view line, QuotePositions& positions) {
    const char* const data = line.data();
    const std::size_t size = line.size();
    std::size_t at = 0;
    int count = 0;
#if defined(__SSE2__)
    const __m128i quote = _mm_set1_epi8('"');
    for (; at + kChunk <= size; at += kChunk) {
        const __m128i chunk = _mm_loadu_si128(reinterpret_cast<const __m128i*>(data + at));
        auto mask = static_cast<unsigned>(_mm_movemask_epi8(_mm_cmpeq_epi8(chunk, quote)));
        // A chunk adds at most sixteen positions, which the array has room for.
        while (mask != 0) {
            positions[static_cast<std::size_t>(count++)] =
                static_cast<std::uint32_t>(at + static_cast<unsigned>(__builtin_ctz(mask)));
            mask &= mask - 1;
        }
        if (count > kQuotes) {
            return count;
        }
    }
#endif
    for (; at < size; ++at) {
        if (data[at] == '"') {
            if (count == kQuotes) {
                return kQuotes + 1;
            }
            positions[static_cast<std::size_t>(count++)] = static_cast<std::uint32_t>(at);
        }
    }
    return count;
}

} // namespace

bool ParseRecordLine(std::string_view line, RecordSpans& spans) {
    // Each field is a quote, its text, a quote; fields are joined by single commas. No field
    // holds a quote, so a record is exactly 44 quotes, the first and last at the line's ends.
    QuotePositions quotes;
    if (FindQuotes(line, quotes) != kQuotes || quotes[0] != 0 ||
        quotes[kQuotes - 1] != line.size() - 1) {
        return false;
    }
    for (std::size_t field = 0; field < kRecordFieldCount; ++field) {
        const std::uint32_t open = quotes[2 * field];
        const std::uint32_t close = quotes[2 * field + 1];
        if (field > 0 && (open != quotes[2 * field - 1] + 2 || line[open - 1] != ',')) {
            return false;
        }
        spans.begin[field] = open + 1;
        spans.end[field] = close;
    }
    return true;
}

MachineRow::MachineRow(std::string_view line, const RecordSpans& spans, std::string_view players,
                       bool available)
    : m_line(line.data()), m_spans(spans), m_players(players), m_available(available) {}

MachineRow::MachineRow(const std::array<std::string_view, kRecordFieldCount>& fields,
                       std::string_view players, bool available)
    : m_owned(std::make_unique<std::string>()), m_available(available) {
    std::string& text = *m_owned;
    for (std::size_t column = 0; column < fields.size(); ++column) {
        m_spans.begin[column] = static_cast<std::uint32_t>(text.size());
        text.append(fields[column]);
        m_spans.end[column] = static_cast<std::uint32_t>(text.size());
    }
    const std::size_t playersAt = text.size();
    text.append(players);
    m_line = text.data();
    m_players = std::string_view(text).substr(playersAt);
}

} // namespace coinlight
