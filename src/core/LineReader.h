#pragma once

#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace coinlight {

/// Reads a text file line by line without holding it whole, so that a 270 MB machine list
/// costs a buffer, not its size. Lines end at LF; a CR before the LF is dropped, and a last
/// line without LF still counts. Bytes pass through unchanged.
class LineReader {
public:
    explicit LineReader(const std::filesystem::path& file);
    ~LineReader();
    LineReader(const LineReader&) = delete;
    LineReader& operator=(const LineReader&) = delete;

    bool IsOpen() const { return m_file != nullptr; }

    /// The next line, valid until the following call; false at the end of the file.
    bool Next(std::string_view& line);

    /// True when a read failed (as opposed to reaching the end).
    bool Failed() const { return m_failed; }

    /// Bytes consumed so far, for progress reports.
    std::uint64_t Position() const { return m_consumed; }

private:
    bool Refill();

    std::FILE* m_file = nullptr;
    std::vector<char> m_buffer;
    std::size_t m_begin = 0;
    std::size_t m_end = 0;
    std::uint64_t m_consumed = 0;
    bool m_eof = false;
    bool m_failed = false;
};

} // namespace coinlight
