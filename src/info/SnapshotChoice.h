#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace coinlight {

/// The selection whose picture is wanted.
struct SnapshotQuery {
    std::filesystem::path snapshotFolder;
    std::string machine;     // the row's short name
    std::string setType;     // "Parent", or "Clone of <parent>"
    std::string software;    // the selected title in the Other view, or empty
    bool cloneShots = false; // a clone shows its parent's picture
};

/// The name the pictures are filed under: the machine, or with Clone Shots its parent.
std::string SnapshotName(const SnapshotQuery& query);

/// The picture to show: the title's own, then the highest of the numbered shots
/// `0009.png` to `0000.png` that MAME writes, then `<name>.png` beside the folder.
std::optional<std::filesystem::path> ChooseSnapshot(const SnapshotQuery& query);

/// The snapshot folder as preferences give it: a relative one lies in the MAME folder,
/// where MAME runs.
std::filesystem::path SnapshotFolder(const std::string& preference,
                                     const std::filesystem::path& mameFolder);

/// `<MAME folder>/icons/<name>.ico` when it exists.
std::optional<std::filesystem::path> CabinetIconFile(const std::filesystem::path& mameFolder,
                                                     std::string_view name);

/// True at the first folder that holds `fileName`.
bool AnyFileInFolders(std::string_view fileName, const std::vector<std::string>& folders);

} // namespace coinlight
