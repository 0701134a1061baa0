#include "UnneededFiles.h"

#include <algorithm>
#include <cerrno>
#include <dirent.h>
#include <memory>
#include <sys/stat.h>

#include "PermissionAdvice.h"
#include "core/TextCase.h"
#include "lists/ListColumns.h"

namespace coinlight {

namespace {

constexpr int kScanStep = 2;

struct FolderListing {
    std::vector<std::string> files;
    int error = 0;
};

/// Closes the folder however the listing ends.
struct FolderCloser {
    void operator()(DIR* folder) const { ::closedir(folder); }
};

/// The plain files of a folder in name order. A folder that is not there holds nothing.
FolderListing ListFiles(const std::string& folder) {
    FolderListing listing;
    if (folder.empty()) {
        return listing;
    }
    const std::unique_ptr<DIR, FolderCloser> entries(::opendir(folder.c_str()));
    if (!entries) {
        listing.error = errno == ENOENT || errno == ENOTDIR ? 0 : errno;
        return listing;
    }
    const int descriptor = ::dirfd(entries.get());
    while (const dirent* entry = ::readdir(entries.get())) {
        bool file = entry->d_type == DT_REG;
        if (entry->d_type == DT_UNKNOWN || entry->d_type == DT_LNK) {
            struct stat info {};
            file = ::fstatat(descriptor, entry->d_name, &info, 0) == 0 && S_ISREG(info.st_mode);
        }
        if (file) {
            listing.files.emplace_back(entry->d_name);
        }
    }
    std::sort(listing.files.begin(), listing.files.end());
    return listing;
}

std::string_view BaseName(std::string_view file) {
    return file.substr(0, file.rfind('.'));
}

std::string_view Extension(std::string_view file) {
    const std::size_t dot = file.rfind('.');
    return dot == std::string_view::npos ? std::string_view() : file.substr(dot + 1);
}

} // namespace

std::string RomFolderFile::Text() const {
    return folder + "|" + file + (duplicate ? " {Duplicate}" : "");
}

void NeededNames::Add(const MachineRow& row) {
    m_names.Insert(row.ShortName());
    for (const int column : {ColRomOf, ColDeviceRomsRequired}) {
        const std::string_view value = row.Field(column);
        if (value == "N/A") {
            continue;
        }
        // The field is joined to the name list with ';' and split again, so a value
        // holding ';' gives several names.
        std::size_t begin = 0;
        for (;;) {
            const std::size_t end = value.find(';', begin);
            m_names.Insert(value.substr(begin, end - begin));
            if (end == std::string_view::npos) {
                break;
            }
            begin = end + 1;
        }
    }
}

void NeededNames::AddRows(std::span<const MachineRow> rows) {
    m_names.Reserve(m_names.Size() + rows.size() + 64);
    for (const MachineRow& row : rows) {
        Add(row);
    }
}

RomFolderScan ScanRomFolders(const std::vector<std::string>& arcadeFolders,
                             const std::vector<std::string>& otherFolders, SetFormat format,
                             const std::function<void(const std::string& folder)>& searching) {
    const std::string_view expected = format == SetFormat::SevenZip ? "7z" : "zip";
    RomFolderScan scan;
    scan.folders = arcadeFolders;
    scan.folders.insert(scan.folders.end(), otherFolders.begin(), otherFolders.end());
    CaseFoldedNames seen;
    for (std::uint32_t index = 0; index < scan.folders.size(); ++index) {
        const std::string& folder = scan.folders[index];
        if (searching) {
            searching(folder);
        }
        FolderListing listing = ListFiles(folder);
        if (listing.error != 0) {
            scan.error = UnneededSearchError(
                FailureDescription(std::error_code(listing.error, std::generic_category())) + " (" +
                    folder + ")",
                kScanStep);
            return scan;
        }
        seen.Reserve(seen.Size() + listing.files.size());
        for (std::string& file : listing.files) {
            if (!EqualsIgnoringCase(Extension(file), expected)) {
                scan.surplus.push_back({folder, std::move(file), false});
            } else if (!seen.Insert(BaseName(file))) {
                scan.surplus.push_back({folder, std::move(file), true});
            } else {
                scan.found.push_back({index, std::move(file)});
            }
        }
    }
    return scan;
}

std::string UnneededSearch::Status() const {
    if (noFiles) {
        return "No files found in your ROMs folder(s).";
    }
    return orphanFound ? "Search complete." : "Search complete.  No orphan files found.";
}

UnneededSearch CompareWithLists(RomFolderScan scan, const NeededNames& needed,
                                const std::function<void(std::size_t compared)>& compared) {
    UnneededSearch search;
    search.entries = std::move(scan.surplus);
    search.error = std::move(scan.error);
    if (search.error) {
        return search;
    }
    if (scan.found.empty()) {
        search.noFiles = true;
        return search;
    }
    std::size_t done = 0;
    for (RomFolderScan::FoundSet& set : scan.found) {
        if (!needed.Contains(BaseName(set.file))) {
            search.entries.push_back({scan.folders[set.folder], std::move(set.file), false});
            search.orphanFound = true;
        }
        if (compared && (++done == 1 || done % 25 == 0 || done == scan.found.size())) {
            compared(done);
        }
    }
    return search;
}

UserMessage UnneededSearchError(std::string_view description, int line) {
    UserMessage message;
    message.title = "Unneeded ROMs & Files";
    message.text = "Error in UnneededFileRemove: " + std::string(description) +
                   "\nLine Number: " + std::to_string(line);
    message.icon = MessageIcon::Information;
    return message;
}

} // namespace coinlight
