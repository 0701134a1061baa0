#include "QuotedLine.h"

#include <cstdint>

#if defined(__SSE2__)
#include <emmintrin.h>
#endif

namespace coinlight {

namespace {

constexpr std::size_t kOpeningQuote = 25; // 1 for field 0, then two for each field before

} // namespace

std::size_t FindQuotes(std::string_view line, std::size_t* positions, std::size_t count) {
    const char* data = line.data();
    std::size_t at = 0;
    std::size_t found = 0;
    if (count == 0) {
        return 0;
    }
#if defined(__SSE2__)
    const __m128i quote = _mm_set1_epi8('"');
    for (; at + 16 <= line.size(); at += 16) {
        // A chunk holds a few quotes at most: taking them off one by one is cheaper than a
        // population count, which the baseline instruction set lacks.
        for (auto mask = static_cast<std::uint32_t>(_mm_movemask_epi8(_mm_cmpeq_epi8(
                 _mm_loadu_si128(reinterpret_cast<const __m128i*>(data + at)), quote)));
             mask != 0; mask &= mask - 1) {
            positions[found++] = at + static_cast<unsigned>(__builtin_ctz(mask));
            if (found == count) {
                return found;
            }
        }
    }
#endif
    for (; at < line.size(); ++at) {
        if (data[at] == '"') {
            positions[found++] = at;
            if (found == count) {
                return found;
            }
        }
    }
    return found;
}

std::optional<std::string_view> QuotedShortName(std::string_view line) {
    std::size_t quotes[kOpeningQuote];
    if (FindQuotes(line, quotes, kOpeningQuote) != kOpeningQuote) {
        return std::nullopt;
    }
    const std::size_t open = quotes[kOpeningQuote - 1];
    if (open < 2 || line[open - 1] != ',' || line[open - 2] != '"') {
        return std::nullopt;
    }
    const std::size_t close = line.find('"', open + 1);
    if (close == std::string_view::npos || (close + 1 < line.size() && line[close + 1] != ',')) {
        return std::nullopt;
    }
    return line.substr(open + 1, close - open - 1);
}

} // namespace coinlight
