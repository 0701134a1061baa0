#include "LineReader.h"

#include <cstring>

namespace coinlight {

namespace {
constexpr std::size_t kInitialBuffer = 1 << 20;
}

LineReader::LineReader(const std::filesystem::path& file) : m_buffer(kInitialBuffer) {
    m_file = std::fopen(file.c_str(), "rb");
    if (m_file == nullptr) {
        m_failed = true;
    }
}

LineReader::~LineReader() {
    if (m_file != nullptr) {
        std::fclose(m_file);
    }
}

bool LineReader::Refill() {
    if (m_eof || m_file == nullptr) {
        return false;
    }
    // Keep the unfinished line at the front; grow only when one line fills the buffer.
    const std::size_t pending = m_end - m_begin;
    if (m_begin > 0) {
        std::memmove(m_buffer.data(), m_buffer.data() + m_begin, pending);
        m_begin = 0;
        m_end = pending;
    }
    if (m_end == m_buffer.size()) {
        m_buffer.resize(m_buffer.size() * 2);
    }
    const std::size_t got = std::fread(m_buffer.data() + m_end, 1, m_buffer.size() - m_end, m_file);
    if (got == 0) {
        m_eof = true;
        if (std::ferror(m_file) != 0) {
            m_failed = true;
        }
        return false;
    }
    m_end += got;
    return true;
}

bool LineReader::Next(std::string_view& line) {
    if (m_file == nullptr) {
        return false;
    }
    std::size_t searchFrom = m_begin;
    for (;;) {
        const char* start = m_buffer.data() + searchFrom;
        const auto* newline =
            static_cast<const char*>(std::memchr(start, '\n', m_end - searchFrom));
        if (newline != nullptr) {
            const std::size_t lineEnd = static_cast<std::size_t>(newline - m_buffer.data());
            std::size_t length = lineEnd - m_begin;
            if (length > 0 && m_buffer[lineEnd - 1] == '\r') {
                --length;
            }
            line = std::string_view(m_buffer.data() + m_begin, length);
            m_consumed += lineEnd + 1 - m_begin;
            m_begin = lineEnd + 1;
            return true;
        }
        const std::size_t scanned = m_end - m_begin;
        if (!Refill()) {
            if (m_end == m_begin) {
                return false;
            }
            std::size_t length = m_end - m_begin;
            if (m_buffer[m_end - 1] == '\r') {
                --length;
            }
            line = std::string_view(m_buffer.data() + m_begin, length);
            m_consumed += m_end - m_begin;
            m_begin = m_end;
            return true;
        }
        searchFrom = m_begin + scanned;
    }
}

} // namespace coinlight
