#include "BadSets.h"

#include <cstdint>
#include <limits>

#include "catalogue/RunTimeError.h"

namespace coinlight {

bool HasBadSets(std::string_view report) {
    return report.find(" is bad") != std::string_view::npos;
}

BadSetList ListBadSets(std::string_view report) {
    BadSetList list;
    std::string lines;
    std::size_t begin = 0;
    while (begin < report.size()) {
        std::size_t end = report.find_first_of("\r\n", begin);
        if (end == std::string_view::npos) {
            end = report.size();
        }
        const std::string_view line = report.substr(begin, end - begin);
        if (line.ends_with("is bad")) {
            // The count has always been a 16-bit number; a report past it is an error.
            if (list.count == std::numeric_limits<std::int16_t>::max()) {
                list.error = RoutineError("Error In Find", kOverflowText, 3);
                return list;
            }
            ++list.count;
            lines.append(line).append("\r\n");
        }
        begin = end + 1;
        if (end < report.size() && report[end] == '\r' && begin < report.size() &&
            report[begin] == '\n') {
            ++begin;
        }
    }
    list.text =
        std::to_string(list.count) + " bad sets found.\r\r" + lines + "\rEnd of report.\r\r";
    return list;
}

} // namespace coinlight
