#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "MachineRows.h"
#include "SearchQuery.h"

namespace coinlight {

/// The texts the search looks in, folded once per list so that a key press costs only the
/// look-up: each row's description, short name, manufacturer, year and category.
class MachineSearchIndex {
public:
    /// Indexes the rows of `order` (indices into `rows`); other rows never match.
    MachineSearchIndex(const MachineRows& rows, const std::vector<std::uint32_t>& order);

    bool Matches(std::uint32_t row, const SearchQuery& query) const;

    /// The rows of `order` that match, in that order.
    std::vector<std::uint32_t> Narrow(const std::vector<std::uint32_t>& order,
                                      const SearchQuery& query) const;

private:
    std::string m_text;
    std::vector<std::pair<std::uint32_t, std::uint32_t>> m_spans; // by row: begin, end
};

} // namespace coinlight
