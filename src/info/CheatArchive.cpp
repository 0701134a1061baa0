#include "CheatArchive.h"

#include <archive.h>
#include <archive_entry.h>
#include <array>
#include <cerrno>
#include <fcntl.h>
#include <unistd.h>

#include "core/FileTests.h"

namespace coinlight {

namespace {

/// One archive open for reading; only the 7z format is accepted.
class ArchiveReader {
public:
    ArchiveReader(const std::filesystem::path& file, const ArchiveLimits& limits)
        : m_archive(archive_read_new()) {
        if (m_archive == nullptr) {
            m_error = TooLargeError("cannot start the archive reader");
            return;
        }
        if (FileSize(file).value_or(0) > limits.archiveBytes) {
            m_error = TooLargeError("the archive is larger than a cheat collection can be");
            return;
        }
        archive_read_support_format_7zip(m_archive);
        if (archive_read_open_filename(m_archive, file.c_str(), 1 << 16) != ARCHIVE_OK) {
            m_error = FileExists(file) ? Failure() : FileNotFoundError();
        }
    }
    ~ArchiveReader() {
        if (m_archive != nullptr) {
            archive_read_free(m_archive);
        }
    }
    ArchiveReader(const ArchiveReader&) = delete;
    ArchiveReader& operator=(const ArchiveReader&) = delete;

    const std::optional<InfoError>& Error() const { return m_error; }

    /// The next entry, or nothing at the end or on an error (then Error() says which).
    archive_entry* NextEntry() {
        archive_entry* entry = nullptr;
        const int status = archive_read_next_header(m_archive, &entry);
        if (status == ARCHIVE_EOF) {
            return nullptr;
        }
        if (status != ARCHIVE_OK && status != ARCHIVE_WARN) {
            m_error = Failure();
            return nullptr;
        }
        return entry;
    }

    /// Copies the current entry's data to `descriptor`, at most `limit` bytes.
    std::optional<InfoError> CopyData(int descriptor, std::uint64_t limit) {
        std::array<char, 1 << 16> block{};
        std::uint64_t total = 0;
        for (;;) {
            const la_ssize_t got = archive_read_data(m_archive, block.data(), block.size());
            if (got == 0) {
                return std::nullopt;
            }
            if (got < 0) {
                return Failure();
            }
            total += static_cast<std::uint64_t>(got);
            if (total > limit) {
                return TooLargeError("an archive entry is larger than a cheat file can be");
            }
            if (!WriteAll(descriptor, block.data(), static_cast<std::size_t>(got))) {
                return FileAccessError();
            }
        }
    }

private:
    InfoError Failure() const {
        const char* text = archive_error_string(m_archive);
        return InvalidFormatError(text != nullptr ? text : "");
    }

    static bool WriteAll(int descriptor, const char* data, std::size_t size) {
        while (size > 0) {
            const ssize_t put = ::write(descriptor, data, size);
            if (put < 0 && errno == EINTR) {
                continue;
            }
            if (put <= 0) {
                return false;
            }
            data += put;
            size -= static_cast<std::size_t>(put);
        }
        return true;
    }

    archive* m_archive;
    std::optional<InfoError> m_error;
};

std::string EntryName(archive_entry* entry) {
    const char* name = archive_entry_pathname_utf8(entry);
    if (name == nullptr) {
        name = archive_entry_pathname(entry);
    }
    std::string text = name != nullptr ? name : "";
    for (char& c : text) {
        if (c == '\\') {
            c = '/'; // archives made on Windows may keep its separator
        }
    }
    return text;
}

std::optional<InfoError> ExtractEntry(ArchiveReader& reader, const std::filesystem::path& target,
                                      std::uint64_t limit) {
    std::error_code ignored;
    std::filesystem::remove(target, ignored); // a stale copy, or a link someone left there
    const int descriptor =
        ::open(target.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, 0644);
    if (descriptor < 0) {
        return FileAccessError();
    }
    auto error = reader.CopyData(descriptor, limit);
    if (::close(descriptor) != 0 && !error) {
        error = FileAccessError();
    }
    if (error) {
        std::filesystem::remove(target, ignored);
    }
    return error;
}

} // namespace

std::optional<std::string> ExtractedName(std::string_view entryName) {
    const std::size_t slash = entryName.find_last_of("/\\");
    const std::string_view last =
        slash == std::string_view::npos ? entryName : entryName.substr(slash + 1);
    if (last.empty() || last == "." || last == ".." || last.find('\0') != std::string_view::npos) {
        return std::nullopt;
    }
    return std::string(last);
}

ArchiveListing ListArchiveEntries(const std::filesystem::path& archive,
                                  const ArchiveLimits& limits) {
    ArchiveListing listing;
    ArchiveReader reader(archive, limits);
    while (!reader.Error()) {
        archive_entry* entry = reader.NextEntry();
        if (entry == nullptr) {
            break;
        }
        if (listing.names.size() >= limits.entryCount) {
            listing.error = TooLargeError("the archive has too many entries");
            return listing;
        }
        listing.names.push_back(EntryName(entry));
    }
    listing.error = reader.Error();
    return listing;
}

std::optional<InfoError> ExtractArchiveEntry(const std::filesystem::path& archive,
                                             const EntrySelector& wanted,
                                             const std::filesystem::path& folder,
                                             const ArchiveLimits& limits) {
    ArchiveReader reader(archive, limits);
    std::uint64_t count = 0;
    std::uint64_t passed = 0;
    while (!reader.Error()) {
        archive_entry* entry = reader.NextEntry();
        if (entry == nullptr) {
            break;
        }
        if (++count > limits.entryCount) {
            return TooLargeError("the archive has too many entries");
        }
        const std::string name = EntryName(entry);
        const auto fileName = ExtractedName(name);
        if (archive_entry_filetype(entry) != AE_IFREG || !fileName || !wanted(name)) {
            // In a solid archive the entries before a wanted one are decoded to reach it.
            if (archive_entry_size_is_set(entry) != 0 && archive_entry_size(entry) > 0) {
                passed += static_cast<std::uint64_t>(archive_entry_size(entry));
            }
            if (passed > limits.passedBytes) {
                return TooLargeError("the archive is larger than a cheat collection can be");
            }
            continue;
        }
        // The rest of a solid archive would only be decoded to be thrown away.
        return ExtractEntry(reader, folder / *fileName, limits.entryBytes);
    }
    return reader.Error();
}

} // namespace coinlight
