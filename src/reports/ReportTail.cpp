#include "ReportTail.h"

#include <fcntl.h>
#include <unistd.h>

namespace coinlight {

namespace {

/// Closes the descriptor however the read ends.
class ReadOnlyFile {
public:
    explicit ReadOnlyFile(const std::filesystem::path& file)
        : m_descriptor(::open(file.c_str(), O_RDONLY | O_CLOEXEC)) {}
    ~ReadOnlyFile() {
        if (m_descriptor >= 0) {
            ::close(m_descriptor);
        }
    }
    ReadOnlyFile(const ReadOnlyFile&) = delete;
    ReadOnlyFile& operator=(const ReadOnlyFile&) = delete;

    int Descriptor() const { return m_descriptor; }

private:
    int m_descriptor;
};

} // namespace

std::string ReportTail::NewLines() {
    const ReadOnlyFile file(m_file);
    if (file.Descriptor() < 0) {
        return {}; // the shell has not made it yet
    }
    std::string added;
    char block[1 << 16];
    auto offset = static_cast<off_t>(m_consumed);
    for (;;) {
        const ssize_t got = ::pread(file.Descriptor(), block, sizeof block, offset);
        if (got <= 0) {
            break;
        }
        added.append(block, static_cast<std::size_t>(got));
        offset += got;
    }
    const std::size_t lastEnd = added.rfind('\n');
    if (lastEnd == std::string::npos) {
        return {};
    }
    added.resize(lastEnd + 1);
    m_consumed += added.size();
    return added;
}

} // namespace coinlight
