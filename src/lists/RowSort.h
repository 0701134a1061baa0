#pragma once

#include <algorithm>
#include <cstdint>
#include <string_view>
#include <vector>

#include "MachineRows.h"

namespace coinlight {

/// The first eight bytes of a text, lower-cased, as a number that orders as they do: most
/// comparisons are settled by it without touching the texts.
std::uint64_t SortPrefix(std::string_view text);
int CompareIgnoringCase(std::string_view a, std::string_view b);

/// Orders row numbers by the text `textOf(row)` gives, ignoring case as the lists always
/// have; rows of equal text keep their order, so a second sort refines the first.
template <class TextOf>
void SortOrderByText(std::vector<std::uint32_t>& order, const TextOf& textOf, bool descending) {
    struct Key {
        std::uint64_t prefix;
        std::uint32_t row;
    };
    std::vector<Key> keys;
    keys.reserve(order.size());
    for (const std::uint32_t row : order) {
        keys.push_back({SortPrefix(textOf(row)), row});
    }
    std::stable_sort(keys.begin(), keys.end(), [&](const Key& left, const Key& right) {
        if (left.prefix != right.prefix) {
            return descending ? left.prefix > right.prefix : left.prefix < right.prefix;
        }
        const int compared = CompareIgnoringCase(textOf(left.row), textOf(right.row));
        return descending ? compared > 0 : compared < 0;
    });
    for (std::size_t i = 0; i < keys.size(); ++i) {
        order[i] = keys[i].row;
    }
}

/// A machine list's rows by one column's text.
void SortRows(std::vector<std::uint32_t>& order, const MachineRows& rows, int column,
              bool descending);

} // namespace coinlight
