#pragma once

#include <filesystem>
#include <optional>

#include "FilterRows.h"

namespace coinlight {

/// The category rows of this run. catver.ini is read once: it is large, and a new one is
/// noticed at the next start.
class CategoryRowsCache {
public:
    /// The rows kept from an earlier read when there are any; otherwise the file's, kept
    /// for next time when they were read whole. Nothing when the file is missing.
    std::optional<CategoryRows> Rows(const std::filesystem::path& catverIni);

private:
    std::vector<std::string> m_rows;
};

} // namespace coinlight
