#pragma once

#include <array>
#include <initializer_list>
#include <string>
#include <utility>

#include "lists/ListColumns.h"

namespace coinlight::test {

/// A catalogue record with plausible defaults: a raster parent that needs its ROM set.
/// Tests name only the fields that matter to them.
inline std::array<std::string, kRecordFieldCount>
Record(std::string shortName, std::initializer_list<std::pair<Column, std::string>> fields = {}) {
    std::array<std::string, kRecordFieldCount> record = {"Game " + shortName,
                                                         "1985",
                                                         "Good",
                                                         "Good",
                                                         "Good",
                                                         "Good",
                                                         "Joy8way",
                                                         "Maker",
                                                         "Raster",
                                                         "256x224",
                                                         "Horizontal",
                                                         "60.000000",
                                                         shortName,
                                                         "Parent",
                                                         "N/A",
                                                         "N/A",
                                                         "maker/game.cpp",
                                                         "N/A",
                                                         "Yes",
                                                         "No",
                                                         "No",
                                                         "Shooter"};
    for (const auto& [column, value] : fields) {
        record[static_cast<std::size_t>(column)] = value;
    }
    return record;
}

inline std::string RecordLine(const std::array<std::string, kRecordFieldCount>& record) {
    std::string line;
    for (const auto& field : record) {
        line += (line.empty() ? "\"" : ",\"") + field + "\"";
    }
    return line + "\r\n";
}

inline std::array<std::string_view, kRecordFieldCount>
Views(const std::array<std::string, kRecordFieldCount>& record) {
    std::array<std::string_view, kRecordFieldCount> views;
    for (std::size_t i = 0; i < record.size(); ++i) {
        views[i] = record[i];
    }
    return views;
}

} // namespace coinlight::test
