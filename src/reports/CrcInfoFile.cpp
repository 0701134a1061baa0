#include "CrcInfoFile.h"

#include <array>
#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "catalogue/QuotedFieldReader.h"

namespace coinlight {

namespace {

// Small enough to stay in the cache between the read and the parse.
constexpr std::size_t kBlock = std::size_t{1} << 19;

/// Closes the descriptor however the read ends.
class Descriptor {
public:
    explicit Descriptor(const std::filesystem::path& file)
        : m_descriptor(::open(file.c_str(), O_RDONLY | O_CLOEXEC)) {}
    ~Descriptor() {
        if (m_descriptor >= 0) {
            ::close(m_descriptor);
        }
    }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;

    int Get() const { return m_descriptor; }

private:
    int m_descriptor;
};

/// Parses whole records of `text`, which ends at a line end; false when one runs past it.
bool ParseLines(std::string_view text, std::vector<CrcEntry>& entries) {
    QuotedFieldReader reader(text);
    std::array<std::string_view, 3> fields;
    while (!reader.AtEnd()) {
        std::size_t filled = 0;
        if (!reader.ReadFields(fields, filled)) {
            return false;
        }
        entries.push_back(CrcEntry::Of(fields[0], fields[1], fields[2]));
    }
    return true;
}

} // namespace

std::optional<CrcInfoFile> ReadCrcInfoFile(const std::filesystem::path& file) {
    const Descriptor descriptor(file);
    struct stat info {};
    if (descriptor.Get() < 0 || ::fstat(descriptor.Get(), &info) != 0 || !S_ISREG(info.st_mode)) {
        return std::nullopt;
    }
    CrcInfoFile crc{BigBuffer(static_cast<std::size_t>(info.st_size)), {}};
    std::vector<CrcEntry>& entries = crc.records.entries;
    entries.reserve(crc.bytes.Size() / 256 + 16);
    const std::string_view all(crc.bytes.Data(), crc.bytes.Size());
    std::size_t filled = 0;
    std::size_t parsed = 0;
    bool inStep = true; // every record so far lay within its block
    while (filled < crc.bytes.Size()) {
        const std::size_t want = std::min(kBlock, crc.bytes.Size() - filled);
        const ssize_t got = ::read(descriptor.Get(), crc.bytes.Data() + filled, want);
        if (got < 0 && errno == EINTR) {
            continue;
        }
        if (got < 0) {
            return std::nullopt;
        }
        if (got == 0) {
            break; // the file shrank while it was read
        }
        filled += static_cast<std::size_t>(got);
        const std::size_t lineEnd = all.substr(0, filled).rfind('\n');
        if (inStep && lineEnd != std::string_view::npos && lineEnd >= parsed) {
            inStep = ParseLines(all.substr(parsed, lineEnd + 1 - parsed), entries);
            parsed = lineEnd + 1;
        }
    }
    crc.bytes.Shrink(filled);
    if (inStep && parsed < filled) {
        inStep = ParseLines(all.substr(parsed, filled - parsed), entries);
    }
    if (!inStep) {
        crc.records = ParseCrcRecords(crc.bytes.View());
    }
    return crc;
}

} // namespace coinlight
