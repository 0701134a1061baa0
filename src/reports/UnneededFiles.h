#pragma once

#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "CaseFoldedNames.h"
#include "core/UserMessage.h"
#include "lists/MachineRow.h"

namespace coinlight {

/// The format in which the user keeps ROM sets; any other file is surplus.
enum class SetFormat { SevenZip, Zip };

/// One file of a ROM folder as the finder lists it.
struct RomFolderFile {
    std::string folder;
    std::string file;
    bool duplicate = false; // a set of the same name lies in an earlier folder

    /// "folder|file", and " {Duplicate}" after a duplicate.
    std::string Text() const;
    bool operator==(const RomFolderFile&) const = default;
};

/// The short names the lists need: each row's own, its BIOS and the text of its device
/// column, compared without regard to case. The device column holds "Yes" or "No" rather
/// than a name, so a set called yes or no always counts as needed.
class NeededNames {
public:
    void Add(const MachineRow& row);
    void AddRows(std::span<const MachineRow> rows);
    bool Contains(std::string_view baseName) const { return m_names.Contains(baseName); }
    std::size_t Size() const { return m_names.Size(); }

private:
    CaseFoldedNames m_names;
};

/// The ROM folders read once: files of another format and second copies go straight to
/// the surplus list; the rest wait for the comparison with the lists.
struct RomFolderScan {
    /// A set of the chosen format, by the index of its folder.
    struct FoundSet {
        std::uint32_t folder = 0;
        std::string file;
    };
    std::vector<std::string> folders; // arcade then other, as searched
    std::vector<RomFolderFile> surplus;
    std::vector<FoundSet> found;
    std::optional<UserMessage> error;
};

/// Lists the files (not sub-folders) of the arcade folders, then the other folders, each
/// folder's files in name order. `searching` is told each folder before it is read.
RomFolderScan ScanRomFolders(const std::vector<std::string>& arcadeFolders,
                             const std::vector<std::string>& otherFolders, SetFormat format,
                             const std::function<void(const std::string& folder)>& searching);

/// The finder's verdict.
struct UnneededSearch {
    std::vector<RomFolderFile> entries; // what lstOrphan holds, in order
    bool noFiles = false;               // no set of the chosen format at all
    bool orphanFound = false;           // a set that no list needs
    std::optional<UserMessage> error;

    /// What lblFolder says at the end.
    std::string Status() const;
};

/// Adds to the scan's surplus every found set that no list needs. `compared` is told the
/// number of sets compared so far.
UnneededSearch CompareWithLists(RomFolderScan scan, const NeededNames& needed,
                                const std::function<void(std::size_t compared)>& compared = {});

/// The message of a failure while searching: the finder has always named the routine that
/// removes files, whichever of the two failed.
UserMessage UnneededSearchError(std::string_view description, int line);

} // namespace coinlight
