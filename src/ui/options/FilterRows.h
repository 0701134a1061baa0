#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/Preferences.h"

namespace coinlight {

inline constexpr const char* kBiosWarning =
    "The BIOS Filter will not populate until Coinlight creates the file from MAME.  Once "
    "Coinlight loads, you can come back to Options from the Tools Menu and choose your BIOS "
    "filters.";
inline constexpr const char* kCategoryWarning =
    "The Category Filter will not populate unless catver.ini is in your Coinlight support "
    "directory. Once it's there, you can come back to Options from the Tools Menu and choose "
    "your Category filters.";

/// The rows of the BIOS filter list: the lines of biosfilter.txt as they stand, blank and
/// repeated lines left out (a repeated row would be saved twice under one key). Nothing
/// when the file is missing.
std::optional<std::vector<std::string>> ReadBiosRows(const std::filesystem::path& biosFilterTxt);

/// The rows of the category filter list, from the [Category] section of catver.ini.
struct CategoryRows {
    std::vector<std::string> rows; // sorted as a person looks for them
    /// The first line of the section that was neither blank nor "key=value": the reading
    /// stopped there.
    std::optional<std::size_t> badLineNumber;
    std::string badLine;
};
/// Each category once, as "Hide <category> Systems". Unknown machines, BIOS sets and
/// devices are no category to hide. A row is also left out when one already in the list
/// begins with its text (compared without regard to case), as the list box's own search
/// would find it. Nothing when the file is missing.
std::optional<CategoryRows> ReadCategoryRows(const std::filesystem::path& catverIni);

/// Rows and the saved names they stand for.
std::string BiosRow(std::string_view name);
std::string CategoryRow(std::string_view name);
std::string BiosName(std::string_view row);
std::string CategoryName(std::string_view row);

/// Which rows the saved entries select: exact matches only.
std::vector<bool> SelectedRows(const std::vector<std::string>& rows,
                               const std::vector<FilterEntry>& entries,
                               std::string (*rowOf)(std::string_view));

/// The saved entries of the selected rows, in list order.
std::vector<FilterEntry> EntriesOf(const std::vector<std::string>& rows,
                                   const std::vector<bool>& selected,
                                   std::string (*nameOf)(std::string_view));

} // namespace coinlight
