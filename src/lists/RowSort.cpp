#include "RowSort.h"

#include "core/TextCase.h"

namespace coinlight {

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

std::uint64_t SortPrefix(std::string_view text) {
    std::uint64_t prefix = 0;
    for (std::size_t i = 0; i < 8; ++i) {
        const auto byte = i < text.size() ? static_cast<unsigned char>(LowerAscii(text[i])) : 0u;
        prefix = (prefix << 8) | byte;
    }
    return prefix;
}

void SortRows(std::vector<std::uint32_t>& order, const MachineRows& machines, int column,
              bool descending) {
    const auto& rows = machines.rows;
    SortOrderByText(
        order, [&](std::uint32_t row) { return rows[row].Field(column); }, descending);
}

} // namespace coinlight
