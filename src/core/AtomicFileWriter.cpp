#include "AtomicFileWriter.h"

#include <cerrno>
#include <charconv>
#include <csignal>
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

/// Temporary files are named `<file>.tmp-<process id>-XXXXXX`, so that a later run can
/// tell the leftovers of a killed process from the files of a live one.
constexpr std::string_view kTemporaryMark = ".tmp-";

/// The file a chain of symbolic links ends at; the path itself when it is no link. A
/// dangling link gives the file it would name, so that the write creates it.
std::filesystem::path ResolveLinks(std::filesystem::path path) {
    for (int hops = 0; hops < 40; ++hops) {
        std::error_code error;
        if (!std::filesystem::is_symlink(path, error)) {
            break;
        }
        const std::filesystem::path target = std::filesystem::read_symlink(path, error);
        if (error) {
            break;
        }
        path = target.is_absolute() ? target : path.parent_path() / target;
    }
    return path;
}

/// The rights of the file being replaced, or those of a new file.
mode_t ModeFor(const std::filesystem::path& destination) {
    struct stat info {};
    if (::stat(destination.c_str(), &info) == 0 && S_ISREG(info.st_mode)) {
        return info.st_mode & 07777;
    }
    return NewFileMode();
}

/// The process that made a temporary file, from its name; 0 for names of another form
/// (an older version wrote `<file>.tmp-XXXXXX`, which only a finished process can own).
pid_t OwnerOf(std::string_view name) {
    const auto mark = name.rfind(kTemporaryMark);
    if (mark == std::string_view::npos) {
        return -1;
    }
    const std::string_view rest = name.substr(mark + kTemporaryMark.size());
    const auto dash = rest.find('-');
    if (dash == std::string_view::npos) {
        return rest.size() == 6 ? 0 : -1;
    }
    pid_t owner = 0;
    const auto [end, error] = std::from_chars(rest.data(), rest.data() + dash, owner);
    if (error != std::errc() || end != rest.data() + dash || rest.size() - dash - 1 != 6) {
        return -1;
    }
    return owner;
}

bool ProcessIsGone(pid_t process) {
    return process == 0 || (::kill(process, 0) != 0 && errno == ESRCH);
}

} // namespace

std::string TemporaryPatternFor(const std::filesystem::path& destination) {
    return destination.string() + std::string(kTemporaryMark) + std::to_string(::getpid()) +
           "-XXXXXX";
}

void RemoveOrphanedTemporaries(const std::filesystem::path& folder) {
    std::error_code error;
    for (const auto& entry : std::filesystem::directory_iterator(folder, error)) {
        const std::string name = entry.path().filename().string();
        if (name.find(kTemporaryMark) == std::string::npos || !entry.is_regular_file(error)) {
            continue;
        }
        const pid_t owner = OwnerOf(name);
        if (owner >= 0 && owner != ::getpid() && ProcessIsGone(owner)) {
            std::filesystem::remove(entry.path(), error);
        }
    }
}

AtomicFileWriter::AtomicFileWriter(std::filesystem::path destination)
    : m_destination(ResolveLinks(std::move(destination))) {
    std::string pattern = TemporaryPatternFor(m_destination);
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
    // mkstemp gives 0600: the new file takes the rights of the one it replaces.
    ::fchmod(::fileno(m_file), ModeFor(m_destination));
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
