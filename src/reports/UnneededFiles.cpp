#include "UnneededFiles.h"

#include <algorithm>
#include <filesystem>

#include "PermissionAdvice.h"
#include "core/TextCase.h"
#include "lists/ListColumns.h"

namespace coinlight {

namespace {

constexpr int kScanStep = 2;

struct FolderListing {
    std::vector<std::string> files;
    std::error_code error;
};

/// The plain files of a folder in name order. A folder that is not there holds nothing.
FolderListing ListFiles(const std::string& folder) {
    FolderListing listing;
    std::error_code error;
    if (folder.empty() || !std::filesystem::is_directory(folder, error)) {
        return listing;
    }
    std::filesystem::directory_iterator entries(folder, listing.error);
    for (const std::filesystem::directory_iterator end; !listing.error && entries != end;
         entries.increment(listing.error)) {
        if (entries->is_regular_file(error)) {
            listing.files.push_back(entries->path().filename().string());
        }
    }
    std::sort(listing.files.begin(), listing.files.end());
    return listing;
}

} // namespace

std::string RomFolderFile::Text() const {
    return folder + "|" + file + (duplicate ? " {Duplicate}" : "");
}

std::string BaseNameOf(std::string_view file) {
    const std::size_t dot = file.rfind('.');
    return ToLowerAscii(dot == std::string_view::npos ? file : file.substr(0, dot));
}

std::string ExtensionOf(std::string_view file) {
    const std::size_t dot = file.rfind('.');
    return dot == std::string_view::npos ? std::string() : ToLowerAscii(file.substr(dot + 1));
}

void NeededNames::AddName(std::string name) {
    m_names.insert(std::move(name));
}

void NeededNames::Add(const MachineRow& row) {
    AddName(ToLowerAscii(row.ShortName()));
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
            AddName(ToLowerAscii(value.substr(begin, end - begin)));
            if (end == std::string_view::npos) {
                break;
            }
            begin = end + 1;
        }
    }
}

void NeededNames::AddRows(std::span<const MachineRow> rows) {
    m_names.reserve(m_names.size() + rows.size() * 2);
    for (const MachineRow& row : rows) {
        Add(row);
    }
}

bool NeededNames::Contains(std::string_view baseName) const {
    return m_names.contains(baseName);
}

RomFolderScan ScanRomFolders(const std::vector<std::string>& arcadeFolders,
                             const std::vector<std::string>& otherFolders, SetFormat format,
                             const std::function<void(const std::string& folder)>& searching) {
    const std::string expected = format == SetFormat::SevenZip ? "7z" : "zip";
    RomFolderScan scan;
    std::unordered_set<std::string, ShortNameHash, std::equal_to<>> seen;
    for (const auto* folders : {&arcadeFolders, &otherFolders}) {
        for (const std::string& folder : *folders) {
            if (searching) {
                searching(folder);
            }
            FolderListing listing = ListFiles(folder);
            if (listing.error) {
                scan.error = UnneededSearchError(
                    FailureDescription(listing.error) + " (" + folder + ")", kScanStep);
                return scan;
            }
            for (std::string& file : listing.files) {
                RomFolderFile entry{folder, std::move(file), false};
                if (ExtensionOf(entry.file) != expected) {
                    scan.surplus.push_back(std::move(entry));
                } else if (!seen.insert(BaseNameOf(entry.file)).second) {
                    entry.duplicate = true;
                    scan.surplus.push_back(std::move(entry));
                } else {
                    scan.found.push_back(std::move(entry));
                }
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
    for (RomFolderFile& entry : scan.found) {
        if (!needed.Contains(BaseNameOf(entry.file))) {
            search.entries.push_back(std::move(entry));
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
