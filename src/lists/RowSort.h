#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

#include "MachineRows.h"

namespace coinlight {

/// The first eight bytes of a text, lower-cased, as a number that orders as they do.
std::uint64_t SortPrefix(std::string_view text);
/// The order of two texts ignoring ASCII case, bytes compared unsigned: -1, 0 or 1.
int CompareIgnoringCase(std::string_view a, std::string_view b);

/// The positions of `texts` in the order of their texts ignoring case; equal texts keep the
/// order they had, so a second sort refines the first.
std::vector<std::uint32_t> SortedPositions(const std::vector<std::string_view>& texts,
                                           bool descending);

/// Orders row numbers by the text `textOf(row)` gives, as SortedPositions orders texts.
template <class TextOf>
void SortOrderByText(std::vector<std::uint32_t>& order, const TextOf& textOf, bool descending) {
    std::vector<std::string_view> texts;
    texts.reserve(order.size());
    for (const std::uint32_t row : order) {
        texts.push_back(textOf(row));
    }
    const std::vector<std::uint32_t> positions = SortedPositions(texts, descending);
    std::vector<std::uint32_t> sorted(order.size());
    for (std::size_t i = 0; i < positions.size(); ++i) {
        sorted[i] = order[positions[i]];
    }
    order.swap(sorted);
}

/// A machine list's rows by one column's text.
void SortRows(std::vector<std::uint32_t>& order, const MachineRows& rows, int column,
              bool descending);

} // namespace coinlight
