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

} // namespace

void SortRows(std::vector<std::uint32_t>& order, const MachineRows& machines, int column,
              bool descending) {
    const auto& rows = machines.rows;
    std::stable_sort(order.begin(), order.end(), [&](std::uint32_t left, std::uint32_t right) {
        const int compared =
            CompareIgnoringCase(rows[left].Field(column), rows[right].Field(column));
        return descending ? compared > 0 : compared < 0;
    });
}

} // namespace coinlight
