#pragma once

#include <string>
#include <string_view>
#include <unordered_set>
#include <vector>

#include "ShortNameHash.h"

namespace coinlight {

/// The names in each ROM folder, read once per load. An availability test is then a lookup
/// instead of a walk of the disk per machine, with the same answer as testing each file.
class RomFolderIndex {
public:
    explicit RomFolderIndex(std::vector<std::string> folders);

    /// `<folder>/<baseName>.7z`, then `.zip`, folder by folder in order: is any there?
    bool RomFileExists(std::string_view baseName) const;

    /// Does `<folder>/<subfolder>` hold a `.chd` file, in any folder? Asked only for the few
    /// machines that need a disk, so it looks at the disk each time.
    bool AnyChdIn(std::string_view subfolder) const;

    bool Empty() const { return m_folders.empty(); }

private:
    /// The archives of a folder by the name before ".7z" or ".zip".
    using ArchiveNames = std::unordered_set<std::string, ShortNameHash, std::equal_to<>>;

    std::vector<std::string> m_folders;
    std::vector<ArchiveNames> m_archives;
};

} // namespace coinlight
