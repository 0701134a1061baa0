#pragma once

#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "core/UserMessage.h"

namespace coinlight {

/// Items laid out in print zones: each item after the first starts at the next multiple of
/// 14 columns past the end of the one before, so an item of 14 characters or more pushes
/// the next one a whole zone further.
std::string PrintZones(std::initializer_list<std::string_view> items);

/// The file a view's list is exported to, in the output folder.
std::string ExportFileName(std::string_view view);

UserMessage ConfirmExportQuestion();

/// One row of the list as exported: its short name and its text.
struct ExportRow {
    std::string_view shortName;
    std::string_view text;
};

/// Writes the rows (`row(i)` for i below `count`, in the list's present order) with a
/// header and the total. Returns the box that says it is done, or why it failed.
UserMessage ExportList(const std::filesystem::path& file, bool otherMachines, int count,
                       const std::function<ExportRow(int)>& row);

} // namespace coinlight
