#include "MachineSearchIndex.h"

#include <algorithm>

#include "ListColumns.h"
#include "SearchFolding.h"

namespace coinlight {

namespace {

constexpr Column kSearchedColumns[] = {ColMachine, ColName, ColManufacturer, ColYear, ColCategory};

} // namespace

MachineSearchIndex::MachineSearchIndex(const MachineRows& rows,
                                       const std::vector<std::uint32_t>& order)
    : m_spans(rows.rows.size()) {
    m_text.reserve(order.size() * 96);
    for (const std::uint32_t row : order) {
        if (row >= rows.rows.size()) {
            continue;
        }
        const auto begin = static_cast<std::uint32_t>(m_text.size());
        for (const Column column : kSearchedColumns) {
            AppendFolded(rows.rows[row].Field(column), m_text);
            // A blank between fields: no typed word holds one, so none matches across two.
            m_text.push_back(' ');
        }
        m_spans[row] = {begin, static_cast<std::uint32_t>(m_text.size())};
    }
}

bool MachineSearchIndex::Matches(std::uint32_t row, const SearchQuery& query) const {
    if (row >= m_spans.size()) {
        return false;
    }
    const auto [begin, end] = m_spans[row];
    if (end == 0) {
        return false; // not a row of this list: every indexed row holds its blanks
    }
    const std::string_view text(m_text.data() + begin, end - begin);
    return std::all_of(query.Words().begin(), query.Words().end(), [text](const auto& word) {
        return text.find(word) != std::string_view::npos;
    });
}

std::vector<std::uint32_t> MachineSearchIndex::Narrow(const std::vector<std::uint32_t>& order,
                                                      const SearchQuery& query) const {
    std::vector<std::uint32_t> shown;
    shown.reserve(query.Empty() ? order.size() : order.size() / 8);
    for (const std::uint32_t row : order) {
        if (Matches(row, query)) {
            shown.push_back(row);
        }
    }
    return shown;
}

} // namespace coinlight
