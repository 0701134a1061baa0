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
        m_names.push_back(NamesIn(folder));
        m_folders.push_back(std::move(folder));
    }
}

bool RomFolderIndex::RomFileExists(std::string_view baseName) const {
    if (baseName.empty()) {
        return false;
    }
    std::string name(baseName);
    const std::size_t stem = name.size();
    for (const auto& names : m_names) {
        name.resize(stem);
        name += ".7z";
        if (names.count(name) != 0) {
            return true;
        }
        name.resize(stem);
        name += ".zip";
        if (names.count(name) != 0) {
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
