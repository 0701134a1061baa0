#include "MachineRow.h"

#if defined(__x86_64__)
#include <immintrin.h>
#endif

namespace coinlight {

namespace {

constexpr int kQuotes = 2 * kRecordFieldCount;
constexpr std::size_t kMostPerChunk = 32;
using QuotePositions = std::array<std::uint32_t, kQuotes + kMostPerChunk>;

/// Adds the positions of the set bits of `mask`, counted from `at`.
inline void AddPositions(std::uint32_t mask, std::size_t at, QuotePositions& positions,
                         int& count) {
    while (mask != 0) {
        positions[static_cast<std::size_t>(count++)] =
            static_cast<std::uint32_t>(at + static_cast<unsigned>(__builtin_ctz(mask)));
        mask &= mask - 1;
    }
}

/// The quotes of the bytes a wide scan left over, one at a time.
int FindRemainingQuotes(std::string_view line, std::size_t at, QuotePositions& positions,
                        int count) {
    for (; at < line.size(); ++at) {
        if (line[at] == '"') {
            if (count == kQuotes) {
                return kQuotes + 1;
            }
            positions[static_cast<std::size_t>(count++)] = static_cast<std::uint32_t>(at);
        }
    }
    return count;
}

// The positions of the double quotes of a line, many bytes at a time: this scan is most of
// the cost of reading a catalogue. Each returns how many there are, or more than kQuotes
// when there are more than a record has. A chunk adds at most as many positions as it has
// bytes, which the array has room for.

#if defined(__x86_64__)
__attribute__((target("avx2"))) int FindQuotesWide(std::string_view line,
                                                   QuotePositions& positions) {
    const char* const data = line.data();
    const __m256i quote = _mm256_set1_epi8('"');
    std::size_t at = 0;
    int count = 0;
    for (; at + 32 <= line.size(); at += 32) {
        const __m256i chunk = _mm256_loadu_si256(reinterpret_cast<const __m256i*>(data + at));
        AddPositions(
            static_cast<std::uint32_t>(_mm256_movemask_epi8(_mm256_cmpeq_epi8(chunk, quote))), at,
            positions, count);
        if (count > kQuotes) {
            return count;
        }
    }
    return FindRemainingQuotes(line, at, positions, count);
}

int FindQuotesNarrow(std::string_view line, QuotePositions& positions) {
    const char* const data = line.data();
    const __m128i quote = _mm_set1_epi8('"');
    std::size_t at = 0;
    int count = 0;
    for (; at + 16 <= line.size(); at += 16) {
        const __m128i chunk = _mm_loadu_si128(reinterpret_cast<const __m128i*>(data + at));
        AddPositions(static_cast<std::uint32_t>(_mm_movemask_epi8(_mm_cmpeq_epi8(chunk, quote))),
                     at, positions, count);
        if (count > kQuotes) {
            return count;
        }
    }
    return FindRemainingQuotes(line, at, positions, count);
}

int FindQuotes(std::string_view line, QuotePositions& positions) {
    static const bool wide = __builtin_cpu_supports("avx2");
    return wide ? FindQuotesWide(line, positions) : FindQuotesNarrow(line, positions);
}
#else
int FindQuotes(std::string_view line, QuotePositions& positions) {
    return FindRemainingQuotes(line, 0, positions, 0);
}
#endif

} // namespace

bool ParseRecordLine(std::string_view line, RecordSpans& spans) {
    // Each field is a quote, its text, a quote; fields are joined by single commas. No field
    // holds a quote, so a record is exactly 44 quotes, the first and last at the line's ends.
    QuotePositions quotes;
    if (line.size() > RecordSpans::kLongestLine || FindQuotes(line, quotes) != kQuotes ||
        quotes[0] != 0 || quotes[kQuotes - 1] != line.size() - 1) {
        return false;
    }
    for (std::size_t field = 0; field < kRecordFieldCount; ++field) {
        const std::uint32_t open = quotes[2 * field];
        const std::uint32_t close = quotes[2 * field + 1];
        if (field > 0 && (open != quotes[2 * field - 1] + 2 || line[open - 1] != ',')) {
            return false;
        }
        spans.begin[field] = static_cast<std::uint16_t>(open + 1);
        spans.end[field] = static_cast<std::uint16_t>(close);
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
        m_spans.begin[column] = static_cast<std::uint16_t>(text.size());
        text.append(fields[column]);
        m_spans.end[column] = static_cast<std::uint16_t>(text.size());
    }
    const std::size_t playersAt = text.size();
    text.append(players);
    m_line = text.data();
    m_players = std::string_view(text).substr(playersAt);
}

} // namespace coinlight
