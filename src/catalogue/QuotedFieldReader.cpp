#include "QuotedFieldReader.h"

#include <cstring>

namespace coinlight {

namespace {

bool IsLineEnd(char c) {
    return c == '\r' || c == '\n';
}

bool IsBlank(char c) {
    return c == ' ' || c == '\t';
}

} // namespace

void QuotedFieldReader::SkipLineEnds() {
    while (m_position < m_text.size() && IsLineEnd(m_text[m_position])) {
        ++m_position;
    }
}

bool QuotedFieldReader::AtEnd() {
    if (!m_afterComma) {
        SkipLineEnds();
    }
    return !m_afterComma && m_position >= m_text.size();
}

/// Passes what stands between a closing quote and the delimiter, and the delimiter itself.
void QuotedFieldReader::SkipToDelimiter() {
    while (m_position < m_text.size()) {
        const char c = m_text[m_position];
        if (c == ',') {
            ++m_position;
            m_afterComma = true;
            return;
        }
        if (IsLineEnd(c)) {
            m_position +=
                (c == '\r' && m_position + 1 < m_text.size() && m_text[m_position + 1] == '\n') ? 2
                                                                                                : 1;
            return;
        }
        ++m_position;
    }
}

bool QuotedFieldReader::Next(std::string_view& field) {
    if (AtEnd()) {
        return false;
    }
    m_afterComma = false;
    while (m_position < m_text.size() && IsBlank(m_text[m_position])) {
        ++m_position;
    }
    const char* base = m_text.data();
    const std::size_t size = m_text.size();
    if (m_position < size && base[m_position] == '"') {
        const std::size_t begin = m_position + 1;
        const auto* close = static_cast<const char*>(std::memchr(base + begin, '"', size - begin));
        if (close == nullptr) {
            // An open quote runs to the end of the text.
            field = m_text.substr(begin);
            m_position = size;
            return true;
        }
        const auto end = static_cast<std::size_t>(close - base);
        field = m_text.substr(begin, end - begin);
        m_position = end + 1;
        // The usual case, `","` or `"` CR LF, without the general loop.
        if (m_position < size && base[m_position] == ',') {
            ++m_position;
            m_afterComma = true;
        } else if (m_position + 1 < size && base[m_position] == '\r' &&
                   base[m_position + 1] == '\n') {
            m_position += 2;
        } else {
            SkipToDelimiter();
        }
        return true;
    }
    const std::size_t begin = m_position;
    while (m_position < size && base[m_position] != ',' && !IsLineEnd(base[m_position])) {
        ++m_position;
    }
    std::size_t end = m_position;
    while (end > begin && IsBlank(base[end - 1])) {
        --end;
    }
    field = m_text.substr(begin, end - begin);
    SkipToDelimiter();
    return true;
}

bool QuotedFieldReader::ReadFields(std::span<std::string_view> fields, std::size_t& filled) {
    filled = 0;
    for (auto& field : fields) {
        if (!Next(field)) {
            return false;
        }
        ++filled;
    }
    return true;
}

} // namespace coinlight
