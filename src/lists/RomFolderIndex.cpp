#include "RomFolderIndex.h"

#include <dirent.h>

namespace coinlight {

namespace {

/// Every entry of a folder; a folder that cannot be read has none.
std::unordered_set<std::string> NamesIn(const std::string& folder) {
    std::unordered_set<std::string> names;
    DIR* directory = ::opendir(folder.c_str());
    if (directory == nullptr) {
        return names;
    }
    while (const dirent* entry = ::readdir(directory)) {
        names.emplace(entry->d_name);
    }
    ::closedir(directory);
    return names;
}

bool EndsWith(std::string_view text, std::string_view suffix) {
    return text.size() >= suffix.size() && text.substr(text.size() - suffix.size()) == suffix;
}

} // namespace

RomFolderIndex::RomFolderIndex(std::vector<std::string> folders) {
    for (auto& folder : folders) {
        if (folder.empty()) {
            continue;
        }
        ArchiveNames archives;
        for (const auto& name : NamesIn(folder)) {
            const std::string_view view(name);
            for (const std::string_view extension :
                 {std::string_view(".7z"), std::string_view(".zip")}) {
                if (view.size() > extension.size() && EndsWith(view, extension)) {
                    archives.emplace(view.substr(0, view.size() - extension.size()));
                }
            }
        }
        m_archives.push_back(std::move(archives));
        m_folders.push_back(std::move(folder));
    }
}

bool RomFolderIndex::RomFileExists(std::string_view baseName) const {
    if (baseName.empty()) {
        return false;
    }
    for (const auto& archives : m_archives) {
        if (archives.find(baseName) != archives.end()) {
            return true;
        }
    }
    return false;
}

bool RomFolderIndex::AnyChdIn(std::string_view subfolder) const {
    if (subfolder.empty()) {
        return false;
    }
    for (const auto& folder : m_folders) {
        for (const auto& name : NamesIn(folder + "/" + std::string(subfolder))) {
            if (EndsWith(name, ".chd")) {
                return true;
            }
        }
    }
    return false;
}

} // namespace coinlight
