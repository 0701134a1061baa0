#include "CategoryRowsCache.h"

namespace coinlight {

std::optional<CategoryRows> CategoryRowsCache::Rows(const std::filesystem::path& catverIni) {
    if (!m_rows.empty()) {
        return CategoryRows{m_rows, std::nullopt, {}};
    }
    auto read = ReadCategoryRows(catverIni);
    if (read && !read->badLineNumber) {
        m_rows = read->rows;
    }
    return read;
}

} // namespace coinlight
