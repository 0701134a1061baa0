#pragma once

#include "TextCase.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace coinlight {

/// One profile file (ini) parsed once, looked up many times. Sections and keys are found
/// without regard to case; the first section of a name and the first key of a name within
/// it decide. Lines are kept as they stand, so an edit rewrites only the line it touches.
/// The edit functions return the new file text with CR LF line ends.
class ProfileDocument {
public:
    ProfileDocument() = default;
    explicit ProfileDocument(std::string bytes);

    /// The text after the first '=' with blanks around it removed; nothing when the section
    /// or key is absent or the key's line has no '='.
    std::optional<std::string_view> Find(std::string_view section, std::string_view key) const;

    bool HasSection(std::string_view section) const;

    /// For many lookups in one section: find the section once, then its keys.
    int SectionOrdinal(std::string_view section) const { return FindSection(section); }
    std::optional<std::string_view> FindInSection(int sectionOrdinal, std::string_view key) const;

    /// The key/value pairs of a section in file order (lines without '=' are left out).
    std::vector<std::pair<std::string_view, std::string_view>>
    Entries(std::string_view section) const;

    std::string WithValue(std::string_view section, std::string_view key,
                          std::string_view value) const;
    std::string WithoutKey(std::string_view section, std::string_view key) const;
    std::string WithoutSection(std::string_view section) const;
    /// Keeps the header and the blank lines, drops keys and comments.
    std::string WithSectionCleared(std::string_view section) const;

    /// The whole document as it would be written: every line ended by CR LF.
    std::string Text() const { return Compose(AllLines()); }

    std::size_t LineCount() const { return m_lines.size(); }

private:
    enum class Kind : std::uint8_t { Blank, Header, Comment, Key, KeyWithoutValue };
    struct Line {
        std::uint32_t begin = 0;
        std::uint32_t length = 0;
        std::uint32_t nameBegin = 0; // section name or key
        std::uint32_t nameLength = 0;
        std::uint32_t valueBegin = 0;
        std::uint32_t valueLength = 0;
        std::int32_t section = -1; // ordinal of the section the line belongs to
        Kind kind = Kind::Blank;
    };
    struct Section {
        std::uint32_t headerLine = 0;
        std::uint32_t endLine = 0; // one past the last line of its body
        bool firstOfName = true;
    };

    void ParseLines();
    void BuildKeyIndex();
    std::string_view LineText(const Line& line) const;
    std::string_view NameOf(const Line& line) const;
    std::string_view ValueOf(const Line& line) const;
    int FindSection(std::string_view section) const;
    int FindKeyLine(int section, std::string_view key) const;
    std::string Compose(const std::vector<std::string_view>& lines) const;
    std::vector<std::string_view> AllLines() const;

    std::string m_text;
    std::vector<Line> m_lines;
    std::vector<Section> m_sections;
    std::vector<std::uint32_t> m_keySlots; // open addressing: line index + 1, 0 is empty
};

/// Blanks, tabs and stray CRs at either end removed.
std::string_view TrimBlanks(std::string_view text);

} // namespace coinlight
