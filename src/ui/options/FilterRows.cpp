#include "FilterRows.h"

#include <algorithm>
#include <array>
#include <set>

#include "core/FileTests.h"
#include "core/LineReader.h"
#include "core/ProfileDocument.h"
#include "core/TextCase.h"
#include "core/TextFile.h"

namespace coinlight {

namespace {

constexpr std::string_view kRowPrefix = "Hide ";
constexpr std::string_view kCategorySuffix = " Systems";
constexpr std::string_view kBiosSuffix = " BIOS Systems";

// Machines that are no category of their own: nothing a user would hide by name.
constexpr std::array<std::string_view, 4> kNoCategory = {"unknown / arcade", "unknown / other",
                                                         "system / bios", "system / device"};

bool IsNoCategory(std::string_view category) {
    const std::string lower = ToLowerAscii(category);
    return std::any_of(kNoCategory.begin(), kNoCategory.end(), [&](std::string_view word) {
        return lower.find(word) != std::string::npos;
    });
}

std::string_view WithoutPrefix(std::string_view row) {
    if (row.starts_with(kRowPrefix)) {
        row.remove_prefix(kRowPrefix.size());
    }
    return row;
}

std::string_view WithoutSuffix(std::string_view text, std::string_view suffix) {
    if (text.ends_with(suffix)) {
        text.remove_suffix(suffix.size());
    }
    return text;
}

/// The rows so far, in lower case, for the list box's prefix search.
class PrefixIndex {
public:
    /// True when no row begins with `row`; the row is then taken in.
    bool Add(const std::string& row) {
        std::string lower = ToLowerAscii(row);
        const auto found = m_rows.lower_bound(lower);
        if (found != m_rows.end() && found->starts_with(lower)) {
            return false;
        }
        m_rows.insert(std::move(lower));
        return true;
    }

private:
    std::set<std::string> m_rows;
};

} // namespace

std::optional<std::vector<std::string>> ReadBiosRows(const std::filesystem::path& biosFilterTxt) {
    if (!FileExists(biosFilterTxt)) {
        return std::nullopt;
    }
    std::vector<std::string> rows;
    std::set<std::string> seen;
    for (std::string& line : ReadTextLines(biosFilterTxt).value_or(std::vector<std::string>{})) {
        if (TrimBlanks(line).empty() || !seen.insert(ToLowerAscii(line)).second) {
            continue;
        }
        rows.push_back(std::move(line));
    }
    return rows;
}

std::optional<CategoryRows> ReadCategoryRows(const std::filesystem::path& catverIni) {
    if (!FileExists(catverIni)) {
        return std::nullopt;
    }
    CategoryRows result;
    LineReader reader(catverIni);
    PrefixIndex index;
    bool inSection = false;
    std::size_t lineNumber = 0;
    std::string_view line;
    while (reader.Next(line)) {
        ++lineNumber;
        const std::string_view trimmed = TrimBlanks(line);
        if (!inSection) {
            inSection = trimmed == "[Category]";
            continue;
        }
        // The section ends at [VerAdded]; any other header would end it just as well.
        if (trimmed.starts_with('[')) {
            break;
        }
        if (trimmed.empty() || trimmed.starts_with(';')) {
            continue;
        }
        const std::size_t equals = trimmed.find('=');
        if (equals == std::string_view::npos) {
            result.badLineNumber = lineNumber;
            result.badLine = std::string(trimmed);
            break;
        }
        const std::string_view category = TrimBlanks(trimmed.substr(equals + 1));
        if (category.empty() || IsNoCategory(category)) {
            continue;
        }
        std::string row = CategoryRow(category);
        if (index.Add(row)) {
            result.rows.push_back(std::move(row));
        }
    }
    std::sort(result.rows.begin(), result.rows.end(),
              [](const std::string& a, const std::string& b) {
                  return ToLowerAscii(a) < ToLowerAscii(b);
              });
    return result;
}

std::string BiosRow(std::string_view name) {
    return std::string(kRowPrefix) + std::string(name);
}

std::string CategoryRow(std::string_view name) {
    return std::string(kRowPrefix) + std::string(name) + std::string(kCategorySuffix);
}

std::string BiosName(std::string_view row) {
    return std::string(WithoutSuffix(WithoutPrefix(row), kBiosSuffix));
}

std::string CategoryName(std::string_view row) {
    return std::string(WithoutSuffix(WithoutPrefix(row), kCategorySuffix));
}

std::vector<bool> SelectedRows(const std::vector<std::string>& rows,
                               const std::vector<FilterEntry>& entries,
                               std::string (*rowOf)(std::string_view)) {
    std::set<std::string> wanted;
    for (const FilterEntry& entry : entries) {
        wanted.insert(rowOf(entry.name));
    }
    std::vector<bool> selected(rows.size());
    for (std::size_t index = 0; index < rows.size(); ++index) {
        selected[index] = wanted.contains(rows[index]);
    }
    return selected;
}

std::vector<FilterEntry> EntriesOf(const std::vector<std::string>& rows,
                                   const std::vector<bool>& selected,
                                   std::string (*nameOf)(std::string_view)) {
    std::vector<FilterEntry> entries;
    for (std::size_t index = 0; index < rows.size() && index < selected.size(); ++index) {
        if (selected[index]) {
            entries.push_back({nameOf(rows[index]), true});
        }
    }
    return entries;
}

} // namespace coinlight
