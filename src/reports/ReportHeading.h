#pragma once

#include <string_view>
#include <vector>

namespace coinlight {

/// A word of a report shown in bold: its first occurrence at or after `from`, counting one
/// character for each line end as the report page does.
struct ReportHeading {
    std::string_view word;
    int from = 0;

    bool operator==(const ReportHeading&) const = default;
};

using ReportHeadings = std::vector<ReportHeading>;

} // namespace coinlight
