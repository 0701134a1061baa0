#include "AtomicFileWriter.h"

#include <cerrno>
#include <cstring>
#include <sys/stat.h>
#include <unistd.h>

namespace coinlight {

namespace {

/// The rights a newly created file gets. umask can only be read by setting it, so this is
/// done once, at the first write, rather than racing other threads on every file.
mode_t NewFileMode() {
    static const mode_t mode = [] {
        const mode_t mask = ::umask(0);
        ::umask(mask);
        return static_cast<mode_t>(0666 & ~mask);
    }();
    return mode;
}

} // namespace

AtomicFileWriter::AtomicFileWriter(std::filesystem::path destination)
    : m_destination(std::move(destination)) {
    std::string pattern = m_destination.string() + ".tmp-XXXXXX";
    const int descriptor = ::mkstemp(pattern.data());
    if (descriptor < 0) {
        Fail("Cannot create a file in " + m_destination.parent_path().string());
        return;
    }
    m_temporary = pattern;
    m_file = ::fdopen(descriptor, "wb");
    if (m_file == nullptr) {
        ::close(descriptor);
        Fail("Cannot write " + m_temporary.string());
        Discard();
        return;
    }
    // Large outputs (the catalogue) are written in few system calls.
    std::setvbuf(m_file, nullptr, _IOFBF, 1 << 18);
}

AtomicFileWriter::~AtomicFileWriter() {
    Discard();
}

void AtomicFileWriter::Fail(const std::string& what) {
    if (m_error.empty()) {
        m_error = what + ": " + std::strerror(errno);
    }
}

void AtomicFileWriter::Discard() {
    if (m_file != nullptr) {
        std::fclose(m_file);
        m_file = nullptr;
    }
    if (!m_temporary.empty()) {
        std::error_code ignored;
        std::filesystem::remove(m_temporary, ignored);
        m_temporary.clear();
    }
}

void AtomicFileWriter::Write(std::string_view bytes) {
    if (m_file == nullptr || bytes.empty()) {
        return;
    }
    if (std::fwrite(bytes.data(), 1, bytes.size(), m_file) != bytes.size()) {
        Fail("Cannot write " + m_destination.string());
    }
}

void AtomicFileWriter::WriteLine(std::string_view line) {
    Write(line);
    Write("\r\n");
}

bool AtomicFileWriter::Commit() {
    if (m_file == nullptr || !m_error.empty()) {
        Discard();
        return false;
    }
    // mkstemp gives 0600; a file of ours should have the usual rights.
    ::fchmod(::fileno(m_file), NewFileMode());
    const bool flushed = std::fflush(m_file) == 0;
    const bool closed = std::fclose(m_file) == 0;
    m_file = nullptr;
    if (!flushed || !closed) {
        Fail("Cannot write " + m_destination.string());
        Discard();
        return false;
    }
    // ext4 and its kin flush the data of a file renamed over another before the rename
    // becomes durable, so no fsync is needed for the all-or-nothing guarantee.
    if (std::rename(m_temporary.c_str(), m_destination.c_str()) != 0) {
        Fail("Cannot replace " + m_destination.string());
        Discard();
        return false;
    }
    m_temporary.clear();
    return true;
}

} // namespace coinlight
