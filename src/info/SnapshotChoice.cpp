#include "SnapshotChoice.h"

#include "catalogue/TextFunctions.h"
#include "core/FileTests.h"

namespace coinlight {

std::string SnapshotName(const SnapshotQuery& query) {
    const std::string parent = ReplaceAll(query.setType, "Clone of ", "");
    if (query.cloneShots && parent != "Parent" && !parent.empty()) {
        return parent;
    }
    return query.machine;
}

std::optional<std::filesystem::path> ChooseSnapshot(const SnapshotQuery& query) {
    const std::string name = SnapshotName(query);
    if (name.empty()) {
        return std::nullopt;
    }
    const auto folder = query.snapshotFolder / name;
    if (!query.software.empty()) {
        const auto own = folder / (query.software + ".png");
        if (FileExists(own)) {
            return own;
        }
    }
    for (char digit = '9'; digit >= '0'; --digit) {
        const auto numbered = folder / (std::string("000") + digit + ".png");
        if (FileExists(numbered)) {
            return numbered;
        }
    }
    const auto plain = query.snapshotFolder / (name + ".png");
    if (FileExists(plain)) {
        return plain;
    }
    return std::nullopt;
}

std::filesystem::path SnapshotFolder(const std::string& preference,
                                     const std::filesystem::path& mameFolder) {
    const std::filesystem::path folder(preference);
    return folder.is_absolute() ? folder : mameFolder / folder;
}

std::optional<std::filesystem::path> CabinetIconFile(const std::filesystem::path& mameFolder,
                                                     std::string_view name) {
    if (name.empty() || mameFolder.empty()) {
        return std::nullopt;
    }
    auto icon = mameFolder / "icons" / (std::string(name) + ".ico");
    if (!FileExists(icon)) {
        return std::nullopt;
    }
    return icon;
}

bool AnyFileInFolders(std::string_view fileName, const std::vector<std::string>& folders) {
    for (const auto& folder : folders) {
        if (!folder.empty() && FileExists(std::filesystem::path(folder) / fileName)) {
            return true;
        }
    }
    return false;
}

} // namespace coinlight
