#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <string_view>
#include <sys/types.h>
#include <vector>

namespace coinlight {

/// Reads MAME's list files (hundreds of megabytes) in large blocks without ever holding
/// them whole. Besides line by line it can jump to the next line that holds a text,
/// searching the block rather than each line, which is what makes skipping most of a file
/// cheap. Lines end at LF; a CR before the LF is dropped; a last line without LF counts.
class LineReader {
public:
    explicit LineReader(const std::filesystem::path& file);
    ~LineReader();
    LineReader(const LineReader&) = delete;
    LineReader& operator=(const LineReader&) = delete;

    bool IsOpen() const { return m_descriptor >= 0; }
    /// True when a read failed, as opposed to reaching the end.
    bool Failed() const { return m_failed; }

    /// Called after each block is read (every few megabytes), and every few milliseconds
    /// while the reader waits for a writer (see FollowWriter), so that a long scan can let
    /// the interface breathe.
    void OnBlockRead(std::function<void()> hook) { m_onBlockRead = std::move(hook); }

    /// Reads a file that another process is still writing: at the end of the data the
    /// reader waits for more until `writerFinished` returns true, and only then is the end
    /// of the data the end of the file. `writerFinished` may be asked from any thread.
    void FollowWriter(std::function<bool()> writerFinished) {
        m_writerFinished = std::move(writerFinished);
    }

    /// The next line, valid until the following call; false at the end of the file.
    bool Next(std::string_view& line);

    /// The next line that holds `needle`, passing over the lines before it; false when the
    /// file ends first.
    bool NextHolding(std::string_view needle, std::string_view& line);

private:
    bool Refill();
    /// The next bytes of the file, waiting for a writer that has not finished; 0 at the end.
    ssize_t ReadMore();
    std::string_view TakeLine(std::size_t end, std::size_t next);

    int m_descriptor = -1;
    std::vector<char> m_buffer;
    std::size_t m_begin = 0;
    std::size_t m_end = 0;
    bool m_eof = false;
    bool m_failed = false;
    std::function<void()> m_onBlockRead;
    std::function<bool()> m_writerFinished;
};

} // namespace coinlight
