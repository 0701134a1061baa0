#include "LineReader.h"

#include <cerrno>
#include <chrono>
#include <cstring>
#include <fcntl.h>
#include <thread>
#include <unistd.h>

namespace coinlight {

namespace {

// Large enough that system calls and hooks are rare, small enough to stay in the cache.
constexpr std::size_t kBlockSize = 1 << 21;
// How long a reader that has caught up with its writer rests before it looks again: short
// beside the time MAME takes to write a block, long beside a read that finds nothing.
constexpr auto kWriterPause = std::chrono::milliseconds(4);

const char* Find(const char* from, const char* to, char c) {
    return static_cast<const char*>(std::memchr(from, c, static_cast<std::size_t>(to - from)));
}

} // namespace

LineReader::LineReader(const std::filesystem::path& file) : m_buffer(kBlockSize) {
    m_descriptor = ::open(file.c_str(), O_RDONLY | O_CLOEXEC);
    if (m_descriptor < 0) {
        m_failed = true;
    } else {
        ::posix_fadvise(m_descriptor, 0, 0, POSIX_FADV_SEQUENTIAL);
    }
}

LineReader::~LineReader() {
    if (m_descriptor >= 0) {
        ::close(m_descriptor);
    }
}

bool LineReader::Refill() {
    if (m_eof || m_descriptor < 0) {
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
    const ssize_t got = ReadMore();
    if (got <= 0) {
        m_eof = true;
        m_failed = got < 0;
        return false;
    }
    m_end += static_cast<std::size_t>(got);
    if (m_onBlockRead) {
        m_onBlockRead();
    }
    return true;
}

ssize_t LineReader::ReadMore() {
    for (;;) {
        // Asked before the read: what a finished writer wrote is all there by then, so an
        // empty read after it is the real end.
        const bool finished = !m_writerFinished || m_writerFinished();
        const ssize_t got = ::read(m_descriptor, m_buffer.data() + m_end, m_buffer.size() - m_end);
        if (got < 0 && errno == EINTR) {
            continue;
        }
        if (got != 0 || finished) {
            return got;
        }
        std::this_thread::sleep_for(kWriterPause);
        if (m_onBlockRead) {
            m_onBlockRead();
        }
    }
}

std::string_view LineReader::TakeLine(std::size_t end, std::size_t next) {
    const std::size_t begin = m_begin;
    if (end > begin && m_buffer[end - 1] == '\r') {
        --end;
    }
    m_begin = next;
    return {m_buffer.data() + begin, end - begin};
}

bool LineReader::Next(std::string_view& line) {
    std::size_t searchFrom = m_begin;
    for (;;) {
        const char* base = m_buffer.data();
        if (const char* newline = Find(base + searchFrom, base + m_end, '\n')) {
            const auto end = static_cast<std::size_t>(newline - base);
            line = TakeLine(end, end + 1);
            return true;
        }
        const std::size_t scanned = m_end - m_begin;
        if (!Refill()) {
            if (m_end == m_begin) {
                return false;
            }
            line = TakeLine(m_end, m_end);
            return true;
        }
        searchFrom = m_begin + scanned;
    }
}

bool LineReader::NextHolding(std::string_view needle, std::string_view& line) {
    if (needle.empty()) {
        return Next(line);
    }
    for (;;) {
        const char* base = m_buffer.data();
        const auto* hit = static_cast<const char*>(
            ::memmem(base + m_begin, m_end - m_begin, needle.data(), needle.size()));
        if (hit == nullptr) {
            // Only the last, unfinished line can still turn out to hold it.
            const char* lastNewline =
                static_cast<const char*>(::memrchr(base + m_begin, '\n', m_end - m_begin));
            if (lastNewline != nullptr) {
                m_begin = static_cast<std::size_t>(lastNewline - base) + 1;
            }
            if (!Refill()) {
                m_begin = m_end;
                return false;
            }
            continue;
        }
        const auto hitAt = static_cast<std::size_t>(hit - base);
        const char* previousNewline =
            static_cast<const char*>(::memrchr(base + m_begin, '\n', hitAt - m_begin));
        if (previousNewline != nullptr) {
            m_begin = static_cast<std::size_t>(previousNewline - base) + 1;
        }
        // The line that holds it may run past the block; Next reads the rest.
        return Next(line);
    }
}

} // namespace coinlight
