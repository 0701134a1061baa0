#include "RowSort.h"

#include <algorithm>
#include <cstring>

#include "core/TextCase.h"

namespace coinlight {

namespace {

constexpr std::uint64_t kEachByte = 0x0101010101010101ull;

/// Eight bytes with every ASCII capital lowered at once.
std::uint64_t LowerWord(std::uint64_t word) {
    const std::uint64_t heptets = word & (0x7F * kEachByte);
    const std::uint64_t fromA = heptets + (0x80 - 'A') * kEachByte;
    const std::uint64_t pastZ = heptets + (0x80 - 'Z' - 1) * kEachByte;
    const std::uint64_t capitals = (fromA ^ pastZ) & ~word & (0x80 * kEachByte);
    return word | (capitals >> 2);
}

} // namespace

int CompareIgnoringCase(std::string_view a, std::string_view b) {
    const std::size_t common = std::min(a.size(), b.size());
    std::size_t i = 0;
    // Eight bytes at a time: descriptions that tie on their first letters often go on alike
    // for many more ("... (Spain)", "... (alt)").
    for (; i + 8 <= common; i += 8) {
        std::uint64_t x = 0;
        std::uint64_t y = 0;
        std::memcpy(&x, a.data() + i, 8);
        std::memcpy(&y, b.data() + i, 8);
        if (x == y) {
            continue;
        }
        x = LowerWord(x);
        y = LowerWord(y);
        if (x != y) {
            const std::size_t at = i + static_cast<unsigned>(__builtin_ctzll(x ^ y)) / 8;
            const auto p = static_cast<unsigned char>(LowerAscii(a[at]));
            const auto q = static_cast<unsigned char>(LowerAscii(b[at]));
            return p < q ? -1 : 1;
        }
    }
    for (; i < common; ++i) {
        const auto x = static_cast<unsigned char>(LowerAscii(a[i]));
        const auto y = static_cast<unsigned char>(LowerAscii(b[i]));
        if (x != y) {
            return x < y ? -1 : 1;
        }
    }
    return a.size() == b.size() ? 0 : (a.size() < b.size() ? -1 : 1);
}

namespace {

/// Eight bytes of a text from `offset`, lower-cased, as a number that orders as they do;
/// bytes past the end count as zero, which no text holds.
std::uint64_t ChunkAt(std::string_view text, std::size_t offset) {
    if (offset >= text.size()) {
        return 0;
    }
    const std::size_t take = std::min<std::size_t>(8, text.size() - offset);
    std::uint64_t word = 0;
    std::memcpy(&word, text.data() + offset, take);
    return __builtin_bswap64(LowerWord(word));
}

struct SortKey {
    std::uint64_t chunk;
    std::uint32_t position;
};

/// Orders keys[begin, end) by chunk, keeping the order of equal chunks: a least significant
/// digit radix sort of eleven bits a pass for many keys, a plain sort for few.
void SortByChunk(std::vector<SortKey>& keys, std::size_t begin, std::size_t end, bool descending) {
    const auto first = keys.begin() + static_cast<long>(begin);
    const auto last = keys.begin() + static_cast<long>(end);
    if (end - begin < 256) {
        std::stable_sort(first, last, [descending](const SortKey& left, const SortKey& right) {
            return descending ? left.chunk > right.chunk : left.chunk < right.chunk;
        });
        return;
    }
    constexpr unsigned kBits = 11;
    constexpr std::size_t kBuckets = std::size_t{1} << kBits;
    std::vector<SortKey> from(first, last);
    std::vector<SortKey> to(from.size());
    std::vector<std::uint32_t> counts(kBuckets);
    for (unsigned shift = 0; shift < 64; shift += kBits) {
        std::fill(counts.begin(), counts.end(), 0);
        const auto digit = [shift, descending](const SortKey& key) {
            const std::uint64_t chunk = descending ? ~key.chunk : key.chunk;
            return static_cast<std::size_t>((chunk >> shift) & (kBuckets - 1));
        };
        for (const SortKey& key : from) {
            ++counts[digit(key)];
        }
        std::uint32_t total = 0;
        for (std::uint32_t& count : counts) {
            const std::uint32_t here = count;
            count = total;
            total += here;
        }
        for (const SortKey& key : from) {
            to[counts[digit(key)]++] = key;
        }
        from.swap(to);
    }
    std::copy(from.begin(), from.end(), first);
}

/// Sorts keys[begin, end), whose texts agree on their first `offset` bytes, eight bytes at
/// a time: a radix sort with the chunks as digits. Texts are never compared whole, which
/// matters for lists where hundreds of titles share their first words.
void SortFrom(std::vector<SortKey>& keys, std::size_t begin, std::size_t end,
              const std::vector<std::string_view>& texts, std::size_t offset, bool descending) {
    std::size_t longest = 0;
    for (std::size_t k = begin; k < end; ++k) {
        const std::string_view text = texts[keys[k].position];
        keys[k].chunk = ChunkAt(text, offset);
        longest = std::max(longest, text.size());
    }
    SortByChunk(keys, begin, end, descending);
    if (longest <= offset + 8) {
        return; // every text ended in this chunk: equal chunks are equal texts
    }
    for (std::size_t run = begin; run < end;) {
        std::size_t runEnd = run + 1;
        while (runEnd < end && keys[runEnd].chunk == keys[run].chunk) {
            ++runEnd;
        }
        if (runEnd - run > 1) {
            SortFrom(keys, run, runEnd, texts, offset + 8, descending);
        }
        run = runEnd;
    }
}

} // namespace

std::uint64_t SortPrefix(std::string_view text) {
    return ChunkAt(text, 0);
}

std::vector<std::uint32_t> SortedPositions(const std::vector<std::string_view>& texts,
                                           bool descending) {
    std::vector<SortKey> keys(texts.size());
    for (std::size_t i = 0; i < keys.size(); ++i) {
        keys[i].position = static_cast<std::uint32_t>(i);
    }
    SortFrom(keys, 0, keys.size(), texts, 0, descending);
    std::vector<std::uint32_t> positions(keys.size());
    for (std::size_t i = 0; i < keys.size(); ++i) {
        positions[i] = keys[i].position;
    }
    return positions;
}

void SortRows(std::vector<std::uint32_t>& order, const MachineRows& machines, int column,
              bool descending) {
    const auto& rows = machines.rows;
    SortOrderByText(
        order, [&](std::uint32_t row) { return rows[row].Field(column); }, descending);
}

} // namespace coinlight
