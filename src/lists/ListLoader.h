#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "ListFilters.h"
#include "MachineRows.h"
#include "RomFolderIndex.h"
#include "core/ProfileDocument.h"

namespace coinlight {

struct ListLoadOptions {
    ListFilterSettings filters;
    bool mergedRomSets = false;
    bool skipSearch = false; // every machine counts as available
    const RomFolderIndex* roms = nullptr;
    /// The players list; without it the Players column does not exist.
    std::shared_ptr<const ProfileDocument> nplayers;
};

/// Told the row count at the first row, every 25th and at the end; asked to let pending
/// input through between records.
struct ListLoadProgress {
    std::function<void(int rows)> count;
    std::function<void()> yield;
};

struct LoadedList {
    std::shared_ptr<MachineRows> machines;  // every machine no filter hides, in file order
    std::vector<std::uint32_t> available;   // arcade: the rows whose files were found
    std::vector<std::uint32_t> unavailable; // arcade: the others
    std::string error;                      // set: what to tell the user; the load failed
};

/// The arcade lists from arcadeinfo.txt or arcadefavs.txt: the filters drop machines, the
/// rest are available or not by their files.
LoadedList LoadArcadeList(const std::filesystem::path& file, const ListLoadOptions& options,
                          const ListLoadProgress& progress);

/// The other-machine list from otherinfo.txt or otherfavs.txt: a machine whose files are
/// missing stays, marked unavailable.
LoadedList LoadOtherList(const std::filesystem::path& file, const ListLoadOptions& options,
                         const ListLoadProgress& progress);

/// One family's load as a value: what the window decided (file, filters, folders) and
/// nothing of the window, so that it can run on another thread.
struct ListLoadJob {
    bool arcade = true;
    std::filesystem::path file;
    ListLoadOptions options; // `roms` is set by Run from `romFolders`
    std::vector<std::string> romFolders;

    LoadedList Run(const ListLoadProgress& progress) const;
};

/// All row numbers of a list, in order.
std::vector<std::uint32_t> AllRows(const MachineRows& rows);

} // namespace coinlight
