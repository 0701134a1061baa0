#include "RecordScanner.h"

#include <array>
#include <cstdint>

#if defined(__x86_64__)
#include <immintrin.h>
#endif

namespace coinlight {

namespace {

constexpr int kQuotes = 2 * kRecordFieldCount;
constexpr int kDelimiters = kRecordFieldCount - 1; // the `","` between two fields
constexpr std::size_t kWidest = 32;
/// Room for a record's delimiters and one chunk more: a chunk is added whole before the
/// count is looked at.
using DelimiterPositions = std::array<std::uint32_t, kDelimiters + kWidest>;

/// What the scan of one line found: its end, its quotes and the starts of its `","`
/// delimiters (gathered only as far as a record has them).
struct LineScan {
    std::size_t end = 0; // the position of its LF, or the end of the text
    int quotes = 0;
    int delimiters = 0;
};

inline void AddPositions(std::uint32_t mask, std::size_t at, DelimiterPositions& positions,
                         int& count) {
    while (mask != 0) {
        positions[static_cast<std::size_t>(count++)] =
            static_cast<std::uint32_t>(at + static_cast<unsigned>(__builtin_ctz(mask)));
        mask &= mask - 1;
    }
}

/// Bits below `bit` of a 32-bit mask.
inline std::uint32_t Below(unsigned bit) {
    return bit >= 32 ? ~0u : (1u << bit) - 1;
}

/// The bytes a wide scan left: one at a time.
LineScan ScanTail(std::string_view text, std::size_t at, DelimiterPositions& positions,
                  LineScan scan) {
    for (; at < text.size(); ++at) {
        const char c = text[at];
        if (c == '\n') {
            scan.end = at;
            return scan;
        }
        if (c != '"') {
            continue;
        }
        ++scan.quotes;
        if (at + 2 < text.size() && text[at + 1] == ',' && text[at + 2] == '"' &&
            scan.delimiters <= kDelimiters) {
            positions[static_cast<std::size_t>(scan.delimiters++)] = static_cast<std::uint32_t>(at);
        }
    }
    scan.end = text.size();
    return scan;
}

// Fields are separated by `","`, so a record's 22 fields are found from its 21 delimiters,
// sixteen or thirty-two bytes at a time; the quotes are only counted.

#if defined(__x86_64__)
__attribute__((target("avx2,popcnt"))) LineScan ScanWide(std::string_view text, std::size_t at,
                                                         DelimiterPositions& positions) {
    const __m256i quote = _mm256_set1_epi8('"');
    const __m256i comma = _mm256_set1_epi8(',');
    const __m256i newline = _mm256_set1_epi8('\n');
    const char* data = text.data();
    LineScan scan;
    // Two bytes of look-ahead for the delimiter's comma and closing quote.
    for (; at + 34 <= text.size(); at += 32) {
        const __m256i here = _mm256_loadu_si256(reinterpret_cast<const __m256i*>(data + at));
        const __m256i next = _mm256_loadu_si256(reinterpret_cast<const __m256i*>(data + at + 1));
        const __m256i after = _mm256_loadu_si256(reinterpret_cast<const __m256i*>(data + at + 2));
        const __m256i quotes = _mm256_cmpeq_epi8(here, quote);
        const auto ends =
            static_cast<std::uint32_t>(_mm256_movemask_epi8(_mm256_cmpeq_epi8(here, newline)));
        const std::uint32_t inLine =
            Below(ends == 0 ? 32u : static_cast<unsigned>(__builtin_ctz(ends)));
        const auto delimiters = static_cast<std::uint32_t>(_mm256_movemask_epi8(
            _mm256_and_si256(quotes, _mm256_and_si256(_mm256_cmpeq_epi8(next, comma),
                                                      _mm256_cmpeq_epi8(after, quote)))));
        scan.quotes +=
            __builtin_popcount(static_cast<std::uint32_t>(_mm256_movemask_epi8(quotes)) & inLine);
        if (scan.delimiters <= kDelimiters) {
            AddPositions(delimiters & inLine, at, positions, scan.delimiters);
        }
        if (ends != 0) {
            scan.end = at + static_cast<unsigned>(__builtin_ctz(ends));
            return scan;
        }
    }
    return ScanTail(text, at, positions, scan);
}

LineScan ScanNarrow(std::string_view text, std::size_t at, DelimiterPositions& positions) {
    const __m128i quote = _mm_set1_epi8('"');
    const __m128i comma = _mm_set1_epi8(',');
    const __m128i newline = _mm_set1_epi8('\n');
    const char* data = text.data();
    LineScan scan;
    for (; at + 18 <= text.size(); at += 16) {
        const __m128i here = _mm_loadu_si128(reinterpret_cast<const __m128i*>(data + at));
        const __m128i next = _mm_loadu_si128(reinterpret_cast<const __m128i*>(data + at + 1));
        const __m128i after = _mm_loadu_si128(reinterpret_cast<const __m128i*>(data + at + 2));
        const __m128i quotes = _mm_cmpeq_epi8(here, quote);
        const auto ends =
            static_cast<std::uint32_t>(_mm_movemask_epi8(_mm_cmpeq_epi8(here, newline)));
        const std::uint32_t inLine =
            Below(ends == 0 ? 32u : static_cast<unsigned>(__builtin_ctz(ends)));
        const auto delimiters = static_cast<std::uint32_t>(_mm_movemask_epi8(_mm_and_si128(
            quotes, _mm_and_si128(_mm_cmpeq_epi8(next, comma), _mm_cmpeq_epi8(after, quote)))));
        scan.quotes +=
            __builtin_popcount(static_cast<std::uint32_t>(_mm_movemask_epi8(quotes)) & inLine);
        if (scan.delimiters <= kDelimiters) {
            AddPositions(delimiters & inLine, at, positions, scan.delimiters);
        }
        if (ends != 0) {
            scan.end = at + static_cast<unsigned>(__builtin_ctz(ends));
            return scan;
        }
    }
    return ScanTail(text, at, positions, scan);
}

bool g_wideAllowed = true;

LineScan ScanLine(std::string_view text, std::size_t at, DelimiterPositions& positions) {
    static const bool wide = __builtin_cpu_supports("avx2");
    return wide && g_wideAllowed ? ScanWide(text, at, positions) : ScanNarrow(text, at, positions);
}
#else
LineScan ScanLine(std::string_view text, std::size_t at, DelimiterPositions& positions) {
    return ScanTail(text, at, positions, LineScan{});
}
#endif

/// Each field is a quote, its text, a quote; fields are joined by single commas. No field
/// holds a quote, so a record has exactly 44 quotes, 21 of its `","` between the fields
/// and one quote at each end of the line.
bool BuildSpans(std::string_view line, std::size_t lineStart, const LineScan& scan,
                const DelimiterPositions& delimiters, RecordSpans& spans) {
    if (scan.quotes != kQuotes || scan.delimiters != kDelimiters || line.size() < 2 ||
        line.size() > RecordSpans::kLongestLine || line.front() != '"' || line.back() != '"') {
        return false;
    }
    // Delimiters that share a quote (`","","` read from the middle) would give a field that
    // ends before it begins.
    const auto start = static_cast<std::uint32_t>(lineStart);
    std::uint32_t fieldBegin = 1;
    spans.begin[0] = fieldBegin;
    for (std::size_t field = 0; field < kDelimiters; ++field) {
        const std::uint32_t delimiter = delimiters[field] - start;
        if (delimiter < fieldBegin) {
            return false;
        }
        fieldBegin = delimiter + 3;
        spans.begin[field + 1] = fieldBegin;
    }
    spans.lineLength = static_cast<std::uint32_t>(line.size());
    return fieldBegin <= line.size() - 1;
}

} // namespace

bool RecordScanner::Next(std::string_view& line, RecordSpans& spans, bool& wellFormed) {
    if (m_at >= m_text.size()) {
        return false;
    }
    const std::size_t start = m_at;
    DelimiterPositions delimiters;
    const LineScan scan = ScanLine(m_text, start, delimiters);
    m_at = scan.end + 1;
    std::size_t end = scan.end;
    if (end > start && m_text[end - 1] == '\r') {
        --end;
    }
    line = m_text.substr(start, end - start);
    wellFormed = BuildSpans(line, start, scan, delimiters, spans);
    return true;
}

void AllowWideRecordScan(bool allowed) {
#if defined(__x86_64__)
    g_wideAllowed = allowed;
#else
    (void)allowed;
#endif
}

bool ParseRecordLine(std::string_view line, RecordSpans& spans) {
    if (line.find('\n') != std::string_view::npos) {
        return false;
    }
    RecordScanner scanner(line);
    std::string_view scanned;
    bool wellFormed = false;
    return scanner.Next(scanned, spans, wellFormed) && wellFormed && scanned.size() == line.size();
}

} // namespace coinlight
