#include "RowSort.h"

#include <algorithm>

#include "core/TextCase.h"

namespace coinlight {

namespace {

int CompareIgnoringCase(std::string_view a, std::string_view b) {
    const std::size_t common = std::min(a.size(), b.size());
    for (std::size_t i = 0; i < common; ++i) {
        const auto x = static_cast<unsigned char>(LowerAscii(a[i]));
        const auto y = static_cast<unsigned char>(LowerAscii(b[i]));
        if (x != y) {
            return x < y ? -1 : 1;
        }
    }
    return a.size() == b.size() ? 0 : (a.size() < b.size() ? -1 : 1);
}

/// The first eight bytes of a text, lower-cased, as a number that orders as they do: most
/// comparisons are settled by it without touching the texts.
std::uint64_t SortPrefix(std::string_view text) {
    std::uint64_t prefix = 0;
    for (std::size_t i = 0; i < 8; ++i) {
        const auto byte = i < text.size() ? static_cast<unsigned char>(LowerAscii(text[i])) : 0u;
        prefix = (prefix << 8) | byte;
    }
    return prefix;
}

} // namespace

void SortRows(std::vector<std::uint32_t>& order, const MachineRows& machines, int column,
              bool descending) {
    const auto& rows = machines.rows;
    struct Key {
        std::uint64_t prefix;
        std::uint32_t row;
    };
    std::vector<Key> keys;
    keys.reserve(order.size());
    for (const std::uint32_t row : order) {
        keys.push_back({SortPrefix(rows[row].Field(column)), row});
    }
    std::stable_sort(keys.begin(), keys.end(), [&](const Key& left, const Key& right) {
        if (left.prefix != right.prefix) {
            return descending ? left.prefix > right.prefix : left.prefix < right.prefix;
        }
        const int compared =
            CompareIgnoringCase(rows[left.row].Field(column), rows[right.row].Field(column));
        return descending ? compared > 0 : compared < 0;
    });
    for (std::size_t i = 0; i < keys.size(); ++i) {
        order[i] = keys[i].row;
    }
}

} // namespace coinlight
