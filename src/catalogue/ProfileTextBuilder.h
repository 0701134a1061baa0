#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

namespace coinlight {

/// A profile file made from nothing in one pass. Writing thousands of keys one by one
/// would rewrite the file each time; this gives the same bytes as those writes into a file
/// that did not exist: sections and keys in the order of their first write, a key written
/// again replaced in place, names compared without regard to case.
class ProfileTextBuilder {
public:
    void Set(std::string_view section, std::string_view key, std::string_view value);

    bool Empty() const { return m_sections.empty(); }
    std::size_t SectionCount() const { return m_sections.size(); }

    /// The file's text, each line ended by CR LF; with `spacing` one empty line stands
    /// before every section but the first, as INISpacing leaves it.
    std::string Text(bool spacing) const;

private:
    struct Section {
        std::string name;
        std::vector<std::pair<std::string, std::string>> entries;
        std::unordered_map<std::string, std::size_t> keyIndex; // lower-cased key
    };

    std::vector<Section> m_sections;
    std::unordered_map<std::string, std::size_t> m_sectionIndex; // lower-cased name
};

} // namespace coinlight
