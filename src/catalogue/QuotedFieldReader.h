#pragma once

#include <cstddef>
#include <span>
#include <string_view>

namespace coinlight {

/// Reads the fields of the quoted record files from text held in memory. A field in double
/// quotes runs to the next double quote, commas and all; anything between that quote and
/// the next comma or line end is dropped. A field without quotes runs to the next comma or
/// line end, blanks around it removed. Line ends (CR LF or LF) end a field but not a
/// record: a record is a fixed count of fields, so a short line takes its missing fields
/// from the next one, which is how such a file has always been read.
class QuotedFieldReader {
public:
    explicit QuotedFieldReader(std::string_view text) : m_text(text) {}

    /// True when only line ends are left.
    bool AtEnd();

    /// The next field; false when the text has no more.
    bool Next(std::string_view& field);

    /// Fills every element of `fields`; false when the text ends first (a read past the
    /// end), with the fields read so far at the front and their number in `filled`.
    bool ReadFields(std::span<std::string_view> fields, std::size_t& filled);

    /// Bytes consumed so far.
    std::size_t Position() const { return m_position; }

private:
    void SkipLineEnds();
    void SkipToDelimiter();

    std::string_view m_text;
    std::size_t m_position = 0;
    bool m_afterComma = false; // a comma promises one more field, even an empty one
};

} // namespace coinlight
