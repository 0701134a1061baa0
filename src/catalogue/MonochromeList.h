#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <unordered_set>

namespace coinlight {

/// `support/monochrome.ini`: plain lines, one short name each, compared in lower case
/// over the whole line. A missing file names no machine.
class MonochromeList {
public:
    MonochromeList() = default;
    explicit MonochromeList(const std::filesystem::path& file);
    bool Exists() const { return m_exists; }
    bool Contains(std::string_view shortName) const;

private:
    std::unordered_set<std::string> m_names;
    bool m_exists = false;
};

} // namespace coinlight
